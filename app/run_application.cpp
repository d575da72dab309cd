// SPDX-License-Identifier: MIT
#include "app/run_application.h"

#include "app/appearance.h"
#include "app/command_line.h"
#include "app/file_handover.h"
#include "app/quillon_app.h"
#include "model/notification_names.h"
#ifdef QUILLON_HAS_DBUS
#include "app/appearance_portal.h"
#include "app/session_bus.h"
#endif

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <csignal>

namespace quillon {

namespace {

// The windowing library removes these from the environment when it starts.
QString activationTokenFromEnvironment()
{
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
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

void followDesktopPreference(AppearanceFollower& appearance)
{
#ifdef QUILLON_HAS_DBUS
    if (const auto bus = sessionBus()) {
        auto* const portal = new AppearancePortal(*bus, &appearance);
        QObject::connect(portal, &AppearancePortal::preferenceChanged, &appearance,
                         &AppearanceFollower::setPreference);
    }
#else
    Q_UNUSED(appearance)
#endif
}

// The window is on its way to the screen; until it is asked for its first picture there is time to
// read the log, so that the picture is not one of an empty window.
void fillFirstPicture()
{
    // Opening, handing the text to the view and laying it out, each queued by the one before.
    constexpr int kSteps = 3;
    for (int step = 0; step < kSteps; ++step) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    }
}

} // namespace

int runApplication(int& argc, char** argv, const CommandLine& commandLine)
{
    // The diagnostic lines may go to a pipe whose reader has left.
    std::signal(SIGPIPE, SIG_IGN);
    const HandoverRequest request = handoverRequest(commandLine);
    introduceApplication();
    QApplication application(argc, argv);
    FileHandover handover;
    if (handover.claim(request) == FileHandover::Outcome::HandedOver) {
        return 0;
    }
    AppearanceFollower appearance(application);
    followDesktopPreference(appearance);
    QTranslator translator;
    translateToolkit(translator);
    QuillonApp app(application);
    connectHandover(handover, app);
    if (request.followTail) {
        sharedLogViewModel().followTail.set(true);
    }
    if (!request.files.isEmpty()) {
        app.delegate().openURLs(request.files);
    }
    app.presentMainWindow();
    fillFirstPicture();
    return QApplication::exec();
}

} // namespace quillon
