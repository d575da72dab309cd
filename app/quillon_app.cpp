// SPDX-License-Identifier: MIT
#include "app/quillon_app.h"

#include "app/credits_panel.h"
#include "model/notification_names.h"
#include "render/preference_keys.h"
#include "ui/content_view.h"
#include "ui/help_window.h"
#include "ui/main_window.h"
#include "ui/maker.h"
#include "ui/preferences_window.h"
#include "ui/window_behavior.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileOpenEvent>
#include <QMenuBar>
#include <QTimer>

#include <chrono>

namespace quillon {

namespace {

// Drawing the icon in all its sizes takes 6 ms, which the log would wait for. So the window gets
// one size at once, and the others when the log is there.
constexpr int kFirstIconSize = 48;
constexpr std::chrono::milliseconds kIconDelay{200};

QIcon applicationIcon()
{
    return QIcon(QStringLiteral(":/AppIcon.svg"));
}

} // namespace

SharedState& sharedState()
{
    static SharedState state;
    return state;
}

LogViewModel& sharedLogViewModel()
{
    return sharedState().viewModel;
}

QuillonApp::QuillonApp(QApplication& application)
    : m_viewModel(sharedLogViewModel()), m_delegate(m_viewModel)
{
    sharedState().defaults.registerDefaults(defaultPreferences());
    application.installEventFilter(this);
    QApplication::setWindowIcon(applicationIcon().pixmap(kFirstIconSize));
    buildMainWindow();
    QTimer::singleShot(kIconDelay, this, [] { QApplication::setWindowIcon(applicationIcon()); });
}

QuillonApp::~QuillonApp() = default;

void QuillonApp::buildMainWindow()
{
    m_mainWindow = std::make_unique<MainWindow>(m_viewModel, sharedState().notifications);
    buildMenus(*m_mainWindow->menuBar(), [this](MenuCommand command) { run(command); });
    connect(m_mainWindow.get(), &MainWindow::filesDropped, this,
            [this](const QList<QUrl>& urls) { m_delegate.openURLs(urls); });
}

void QuillonApp::presentMainWindow()
{
    bringToFront(*m_mainWindow);
}

void QuillonApp::run(MenuCommand command)
{
    switch (command) {
    case MenuCommand::OpenLog:
        sharedState().notifications.post(kCmdOpenLog);
        break;
    case MenuCommand::CloseWindow:
        m_mainWindow->close();
        break;
    case MenuCommand::Quit:
        QApplication::quit();
        break;
    case MenuCommand::Copy:
        m_mainWindow->content().copy();
        break;
    case MenuCommand::SelectAll:
        m_mainWindow->content().selectAll();
        break;
    case MenuCommand::Find:
        m_mainWindow->content().focusSearchField();
        break;
    case MenuCommand::Settings:
        presentPreferences();
        break;
    case MenuCommand::Help:
        HelpWindow::show();
        break;
    case MenuCommand::SupportSite:
        openSupportSite();
        break;
    case MenuCommand::Credits:
    case MenuCommand::About:
        presentCredits(command);
        break;
    }
}

void QuillonApp::presentPreferences()
{
    if (!m_preferences) {
        SharedState& state = sharedState();
        m_preferences = std::make_unique<PreferencesWindow>(state.defaults, state.notifications);
    }
    m_preferences->present();
}

void QuillonApp::presentCredits(MenuCommand command)
{
    if (!m_credits) {
        m_credits = std::make_unique<CreditsPanel>();
    }
    m_credits->present(command == MenuCommand::Credits ? CreditsPanel::Content::WithCredits
                                                       : CreditsPanel::Content::Plain);
}

void QuillonApp::openSupportSite()
{
    const QUrl site = supportUrl();
    if (site.isValid()) {
        QDesktopServices::openUrl(site);
    }
}

bool QuillonApp::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::FileOpen) {
        return QObject::eventFilter(watched, event);
    }
    const auto* const open = static_cast<QFileOpenEvent*>(event);
    if (open->url().isValid()) {
        m_delegate.openURLs({open->url()});
    } else {
        m_delegate.openFile(open->file());
    }
    presentMainWindow();
    return true;
}

} // namespace quillon
