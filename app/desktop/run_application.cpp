// SPDX-License-Identifier: MIT
#include "app/desktop/run_application.h"

#include "app/command_line/command_line.h"
#include "app/command_line/exit_codes.h"
#include "app/command_line/no_window_text.h"
#include "app/desktop/appearance.h"
#include "app/desktop/desktop_session.h"
#include "app/desktop/file_handover.h"
#include "app/desktop/quillon_app.h"
#include "model/notification_names.h"
#ifndef Q_OS_MACOS
#include "app/desktop/display.h"
#endif

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>
#include <QWindow>

#include <algorithm>
#include <csignal>
#include <cstdio>

namespace quillon {

namespace {

// The windowing library removes these from the environment when it starts.
QString activationTokenFromEnvironment()
{
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
}

bool hasDisplay([[maybe_unused]] int argc, [[maybe_unused]] char** argv)
{
#ifdef Q_OS_MACOS
    return true;
#else
    return isDisplayReachable(QByteArrayList(argv, argv + argc));
#endif
}

HandoverRequest handoverRequest(const CommandLine& commandLine)
{
    HandoverRequest request;
    request.followTail = commandLine.followTail;
    request.activationToken = activationTokenFromEnvironment();
    for (const QString& file : commandLine.files) {
        request.files.append(fileUrlFromArgument(file));
    }
    return request;
}

void introduceApplication()
{
    QApplication::setOrganizationName(QStringLiteral("Quillon"));
    QApplication::setApplicationName(QStringLiteral("Quillon"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLON_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.quillon.Quillon"));
}

// The toolkit's own dialogs keep their widths, the folder last visited and a history of files in a
// settings file of theirs. Where that cannot be there, they keep it for as long as the program
// runs.
void keepToolkitFromWriting()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

// The toolkit's own dialogs and context menus speak French too, where its translation is installed.
void translateToolkit(QTranslator& translator)
{
    if (translator.load(QStringLiteral("qtbase_fr"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&translator);
    }
}

void connectHandover(const FileHandover& handover, QuillonApp& app)
{
    QObject::connect(&handover, &FileHandover::activationRequested, &app,
                     &QuillonApp::presentMainWindow);
    QObject::connect(&handover, &FileHandover::filesReceived, &app,
                     [&app](const QList<QUrl>& urls) { app.delegate().openURLs(urls); });
    QObject::connect(&handover, &FileHandover::followRequested, &app,
                     [] { sharedLogViewModel().followTail.set(true); });
    QObject::connect(&handover, &FileHandover::openPanelRequested, &app,
                     [&app] { app.run(MenuCommand::OpenLog); });
}

#ifdef Q_OS_MACOS
constexpr bool kOutlivesItsWindow = true;
#else
constexpr bool kOutlivesItsWindow = false;
#endif

// As applications do where they have an icon of their own that brings the window back.
void outliveTheWindow(const QApplication& application, QuillonApp& app)
{
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&application, &QGuiApplication::applicationStateChanged, &app,
                     [&app](Qt::ApplicationState state) {
                         const auto windows = QGuiApplication::topLevelWindows();
                         const bool isAnyVisible =
                             std::any_of(windows.begin(), windows.end(),
                                         [](const QWindow* window) { return window->isVisible(); });
                         if (state == Qt::ApplicationActive && !isAnyVisible) {
                             app.presentMainWindow();
                         }
                     });
}

} // namespace

int runApplication(int& argc, char** argv, const CommandLine& commandLine)
{
    // The diagnostic lines may go to a pipe whose reader has left.
    std::signal(SIGPIPE, SIG_IGN);
    const HandoverRequest request = handoverRequest(commandLine);
    introduceApplication();
    keepToolkitFromWriting();
    if (!hasDisplay(argc, argv)) {
        const QString reason =
            QCoreApplication::translate("RunApplication", "aucun écran n’est accessible");
        std::fputs(noWindowText(reason).toUtf8().constData(), stderr);
        return kExitFailure;
    }
    DesktopSession session;
    QApplication application(argc, argv);
    FileHandover handover;
    if (session.handOver(request, handover)) {
        return kExitSuccess;
    }
    AppearanceFollower appearance(application);
    session.tellPreference(appearance);
    QTranslator translator;
    translateToolkit(translator);
    QuillonApp app(application);
    if (kOutlivesItsWindow) {
        outliveTheWindow(application, app);
    }
    connectHandover(handover, app);
    if (request.followTail) {
        sharedLogViewModel().followTail.set(true);
    }
    if (!request.files.isEmpty()) {
        app.delegate().openURLs(request.files);
    }
    app.presentMainWindow();
    // The window is on its way to the screen; until it is asked for its first picture there is time
    // to read the log, so that the picture is not one of an empty window.
    app.showPending();
    return QApplication::exec();
}

} // namespace quillon
