// SPDX-License-Identifier: MIT
// The program on Wayland, without X11: what it shows is asked for, and what is done there is done,
// over the accessibility bus.
#include "tests/support/spin_until.h"
#include "tests/window/accessibility.h"
#include "tests/window/control_names.h"
#include "tests/window/wayland_desktop.h"
#include "tests/window/window_fixture.h"

namespace quillon {
namespace {

constexpr QSize kScreen(1280, 800);

// The parameter is the screen's scale.
class Wayland : public testing::TestWithParam<int> {
protected:
    void start(const QStringList& arguments)
    {
        m_quillon = std::make_unique<QuillonProcess>(arguments, m_desktop.variables());
        m_quillon->start();
    }
    void startWithLog(const QByteArray& content) { start({m_folder.write(kLog, content)}); }
    [[nodiscard]] qint64 processId() { return m_quillon->process().processId(); }
    [[nodiscard]] AccessibleNode window(const QString& title)
    {
        return m_screenReader.window(processId(), title).value_or(AccessibleNode());
    }
    [[nodiscard]] bool awaitRows(const QString& rows)
    {
        return spinUntil([&] {
            return elementOfRole(window(kLogTitle), QStringLiteral("document frame")).text == rows;
        });
    }
    // Ends the program by its menu; it must have had nothing to complain about.
    void quit()
    {
        EXPECT_TRUE(m_screenReader.act(processId(), QStringLiteral("menu item"),
                                       QStringLiteral("Quitter")));
        EXPECT_EQ(m_quillon->wait(), 0);
        EXPECT_EQ(m_quillon->errors(), QByteArray());
    }

    TemporaryFolder m_folder;
    WaylandDesktop m_desktop{kScreen, GetParam()};
    ScreenReader m_screenReader{m_desktop.environment()};
    std::unique_ptr<QuillonProcess> m_quillon;
};

INSTANTIATE_TEST_SUITE_P(AtScale, Wayland, testing::Values(1, 2),
                         testing::PrintToStringParamName());

TEST_P(Wayland, ShowsALogAndFindsInIt)
{
    startWithLog("PHP Notice:  a\nPHP Fatal error:  b\n");
    ASSERT_TRUE(awaitRows(QStringLiteral("1\tPHP Notice:  a\n2\tPHP Fatal error:  b\n")));
    ASSERT_TRUE(m_screenReader.enter(processId(), QStringLiteral("text"), kSearch,
                                     QStringLiteral("fatal")));
    EXPECT_TRUE(awaitRows(QStringLiteral("2\tPHP Fatal error:  b\n")));
    quit();
}

TEST_P(Wayland, TogglesAndWindowsAnswer)
{
    startWithLog("PHP Warning:  a\nb\n");
    ASSERT_TRUE(awaitRows(QStringLiteral("1\tPHP Warning:  a\n2\tb\n")));
    EXPECT_TRUE(m_screenReader.act(processId(), QStringLiteral("check box"),
                                   QStringLiteral("Afficher les lignes PHP Warning")));
    EXPECT_TRUE(awaitRows(QStringLiteral("2\tb\n")));
    for (const auto& [item, title] : {std::pair(QStringLiteral("Préférences…"), kPreferencesTitle),
                                      std::pair(QStringLiteral("Aide Quillon…"), kHelpTitle)}) {
        EXPECT_TRUE(m_screenReader.act(processId(), QStringLiteral("menu item"), item));
        EXPECT_TRUE(spinUntil([&] { return window(title).is("showing"); })) << qPrintable(title);
    }
    quit();
}

// The colour of a fatal row, in pixels of the screen, of which there are four times as many at
// scale 2.
TEST_P(Wayland, PaintsTheLogInThePixelsOfTheScreen)
{
    startWithLog(QByteArray("PHP Fatal error:  lllllllllllllllll\n").repeated(20));
    ASSERT_TRUE(spinUntil([this] { return window(kLogTitle).is("showing"); }));
    const QColor fatal(0xFF, 0x3B, 0x30);
    QImage picture;
    EXPECT_TRUE(spinUntil([&] {
        picture = m_desktop.picture();
        return pixelsOfColor(picture, fatal) > 100;
    }));
    EXPECT_EQ(picture.size(), kScreen * GetParam());
    quit();
}

} // namespace
} // namespace quillon
