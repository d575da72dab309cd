// SPDX-License-Identifier: MIT
#include "app/command_line/command_line.h"
#include "app/desktop/quillon_app.h"
#include "app/desktop/run_application.h"
#include "model/log_view_model.h"
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

// What is due after a start would be seen by then: a change is shown once it is 60 ms old.
constexpr std::chrono::milliseconds kAfterwards{400};

// Sees what the log's view is asked to paint first, and what comes after that, and then ends the
// program.
class FirstPicture : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const view = qobject_cast<LogTextView*>(watched->parent());
        if (event->type() == QEvent::Paint && view != nullptr && watched == view->viewport()) {
            if (++s_pictures == 1) {
                s_text = view->attributedText().string();
                s_isAtEnd =
                    view->verticalScrollBar()->value() == view->verticalScrollBar()->maximum();
                m_output = sharedLogViewModel().attributedOutput.observeWillChange(
                    [] { ++s_laterOutputs; });
                QTimer::singleShot(kAfterwards, qApp, &QCoreApplication::quit);
            }
        }
        return QObject::eventFilter(watched, event);
    }

    static inline std::optional<QString> s_text;
    static inline bool s_isAtEnd = false;
    static inline int s_pictures = 0;
    static inline int s_laterOutputs = 0;

private:
    Subscription m_output;
};

// The application object is made within the function under test, and this as soon as it is there.
void watchForFirstPicture()
{
    constexpr std::chrono::seconds kPatience{60};
    qApp->installEventFilter(new FirstPicture(qApp));
    QTimer::singleShot(kPatience, qApp, &QCoreApplication::quit);
}
Q_COREAPP_STARTUP_FUNCTION(watchForFirstPicture)

TEST(RunApplication, TheWindowsFirstPictureIsThatOfTheEndOfTheLogAndTheOnlyOne)
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
    EXPECT_EQ(FirstPicture::s_pictures, 1);
    EXPECT_EQ(FirstPicture::s_laterOutputs, 0);
}

} // namespace
} // namespace quillon
