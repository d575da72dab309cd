// SPDX-License-Identifier: MIT
#include "app/command_line/command_line.h"
#include "app/desktop/run_application.h"
#include "tests/support/temporary_folder.h"
#include "ui/log_text/log_text_view.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QTimer>

#include <array>
#include <chrono>
#include <gtest/gtest.h>

namespace quillon {
namespace {

// Sees what the log's view is asked to paint first, and ends the program then.
class FirstPicture : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const view = qobject_cast<LogTextView*>(watched->parent());
        if (event->type() == QEvent::Paint && view != nullptr && watched == view->viewport()) {
            if (!s_text) {
                s_text = view->attributedText().string();
                s_isAtEnd =
                    view->verticalScrollBar()->value() == view->verticalScrollBar()->maximum();
            }
            QCoreApplication::quit();
        }
        return QObject::eventFilter(watched, event);
    }

    static inline std::optional<QString> s_text;
    static inline bool s_isAtEnd = false;
};

// The application object is made within the function under test, and this as soon as it is there.
void watchForFirstPicture()
{
    constexpr std::chrono::seconds kPatience{60};
    qApp->installEventFilter(new FirstPicture(qApp));
    QTimer::singleShot(kPatience, qApp, &QCoreApplication::quit);
}
Q_COREAPP_STARTUP_FUNCTION(watchForFirstPicture)

TEST(RunApplication, TheWindowsFirstPictureIsThatOfTheEndOfTheLog)
{
    const TemporaryFolder folder;
    // Nobody's settings and nobody's bus.
    qputenv("XDG_CONFIG_HOME", folder.path(QString()).toUtf8());
    qputenv("XDG_STATE_HOME", folder.path(QString()).toUtf8());
    qputenv("XDG_RUNTIME_DIR", folder.path(QString()).toUtf8());
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    CommandLine commandLine;
    commandLine.files.append(
        folder.write(QStringLiteral("php.log"), QByteArray("PHP Notice:  a\n").repeated(300)));
    std::array<char, 8> name{"quillon"};
    std::array<char*, 2> arguments{name.data(), nullptr};
    int count = 1;
    EXPECT_EQ(runApplication(count, arguments.data(), commandLine), 0);
    ASSERT_TRUE(FirstPicture::s_text.has_value());
    EXPECT_TRUE(FirstPicture::s_text->endsWith(QStringLiteral("300\tPHP Notice:  a\n")));
    EXPECT_TRUE(FirstPicture::s_isAtEnd);
}

} // namespace
} // namespace quillon
