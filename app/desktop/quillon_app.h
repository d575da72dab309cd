// SPDX-License-Identifier: MIT
#pragma once

#include "app/desktop/app_delegate.h"
#include "app/desktop/menus.h"
#include "model/log_view_model.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"

#include <QObject>

#include <memory>

class QApplication;

namespace quillon {

class CreditsPanel;
class MainWindow;
class PreferencesWindow;

// The view model that the whole process shares, with what it stands on.
struct SharedState {
    NotificationCenter notifications;
    UserDefaults defaults{notifications};
    LogViewModel viewModel{defaults, notifications};
};

// The one of the process, made when it is first asked for and kept until the process ends.
SharedState& sharedState();
LogViewModel& sharedLogViewModel();

// The program's outer shell: the main window with its menus, the preferences and the credits, each
// made when it is first needed, and the way for files from outside. The application object must
// outlive it.
class QuillonApp : public QObject {
    Q_OBJECT

public:
    explicit QuillonApp(QApplication& application);
    ~QuillonApp() override;

    [[nodiscard]] AppDelegate& delegate() { return m_delegate; }

    // Brings the main window to the front, also after it was closed.
    void presentMainWindow();
    // Opens and shows now what else the next turns of the event loop would, so that the window's
    // first picture has it.
    void showPending();
    // Does what a menu command says.
    void run(MenuCommand command);

    // Files that the desktop hands to the application object; they bring the main window back.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildMainWindow();
    void runFromMenu(MenuCommand command);
    void enableCopying();
    void presentPreferences();
    void presentCredits(MenuCommand command);
    static void openSupportSite();
    void collectHandedOver(const QUrl& url);
    void openHandedOver();

    LogViewModel& m_viewModel;
    AppDelegate m_delegate;
    std::unique_ptr<MainWindow> m_mainWindow;
    QList<QAction*> m_programWideActions;
    std::unique_ptr<PreferencesWindow> m_preferences;
    std::unique_ptr<CreditsPanel> m_credits;
    // The desktop sends an event for each file of one hand-over; they are collected until all are
    // in.
    QList<QUrl> m_handedOver;
};

} // namespace quillon
