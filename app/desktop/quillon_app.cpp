// SPDX-License-Identifier: MIT
#include "app/desktop/quillon_app.h"

#include "app/desktop/credits_panel.h"
#include "model/notification_names.h"
#include "render/preference_keys.h"
#include "ui/theme/app_icon.h"
#include "ui/windows/content_view.h"
#include "ui/windows/help_window.h"
#include "ui/windows/main_window.h"
#include "ui/windows/preferences_window.h"
#include "ui/windows/vendor.h"
#include "ui/windows/window_behavior.h"
#include "ui/windows/window_state_file.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileOpenEvent>
#include <QMenuBar>
#include <QTimer>

#include <chrono>
#include <utility>

namespace quillon {

namespace {

// Drawing the icon in all its sizes takes 6 ms, which the log would wait for. So the window gets
// one size at once, and the others when the log is there.
constexpr int kFirstIconSize = 48;
constexpr std::chrono::milliseconds kIconDelay{200};

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
    QApplication::setWindowIcon(appIcon().pixmap(kFirstIconSize));
    buildMainWindow();
    QTimer::singleShot(kIconDelay, this, [] { QApplication::setWindowIcon(appIcon()); });
}

QuillonApp::~QuillonApp() = default;

void QuillonApp::buildMainWindow()
{
    m_mainWindow =
        std::make_unique<MainWindow>(m_viewModel, sharedState().notifications, windowStateFile());
    m_programWideActions =
        buildMenus(*m_mainWindow->menuBar(), [this](MenuCommand command) { runFromMenu(command); });
    enableCopying();
    connect(&m_mainWindow->content(), &ContentView::copyTargetChanged, this,
            &QuillonApp::enableCopying);
    connect(m_mainWindow.get(), &MainWindow::filesDropped, this,
            [this](const QList<QUrl>& urls) { m_delegate.openURLs(urls); });
}

void QuillonApp::enableCopying()
{
    const QMenuBar& menuBar = *m_mainWindow->menuBar();
    const ContentView& content = m_mainWindow->content();
    menuItem(menuBar, MenuCommand::Copy).setEnabled(content.canCopy());
    menuItem(menuBar, MenuCommand::CopyWithoutNumbers).setEnabled(content.canCopyWithoutNumbers());
}

void QuillonApp::presentMainWindow()
{
    bringToFront(*m_mainWindow);
}

void QuillonApp::showPending()
{
    m_delegate.openNext();
    m_mainWindow->content().showPending();
}

// Another window may have the keyboard, and the main window be closed.
void QuillonApp::runFromMenu(MenuCommand command)
{
    if ((command == MenuCommand::OpenLog || command == MenuCommand::Find) &&
        !m_mainWindow->isActiveWindow()) {
        presentMainWindow();
    }
    // Later, since a dialog returns only when the user has decided: whoever asked for the command,
    // a screen reader for instance, is not to wait for that.
    QMetaObject::invokeMethod(
        this, [this, command] { run(command); }, Qt::QueuedConnection);
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
    case MenuCommand::CopyWithoutNumbers:
        m_mainWindow->content().copyWithoutNumbers();
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
        HelpWindow::window()->addActions(m_programWideActions);
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
        m_preferences->addActions(m_programWideActions);
    }
    m_preferences->present();
}

void QuillonApp::presentCredits(MenuCommand command)
{
    if (!m_credits) {
        m_credits = std::make_unique<CreditsPanel>();
        m_credits->addActions(m_programWideActions);
    }
    m_credits->present(command == MenuCommand::Credits ? CreditsPanel::Content::WithCredits
                                                       : CreditsPanel::Content::Plain);
}

void QuillonApp::openSupportSite()
{
    const QUrl site = vendorOfThisBuild().supportUrl();
    if (site.isValid()) {
        QDesktopServices::openUrl(site);
    }
}

void QuillonApp::collectHandedOver(const QUrl& url)
{
    m_handedOver.append(url);
    if (m_handedOver.size() == 1) {
        QMetaObject::invokeMethod(this, &QuillonApp::openHandedOver, Qt::QueuedConnection);
    }
}

void QuillonApp::openHandedOver()
{
    m_delegate.openURLs(std::exchange(m_handedOver, {}));
}

bool QuillonApp::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::FileOpen) {
        return QObject::eventFilter(watched, event);
    }
    const auto* const open = static_cast<QFileOpenEvent*>(event);
    if (open->url().isValid()) {
        collectHandedOver(open->url());
    } else {
        m_delegate.openFile(open->file());
    }
    presentMainWindow();
    return true;
}

} // namespace quillon
