// SPDX-License-Identifier: MIT
#include "tests/support/spin_until.h"
#include "tests/window/control_names.h"
#include "tests/window/window_fixture.h"

namespace quillon {
namespace {

const QColor kGreen(0, 0xE0, 0x40);
const QByteArray kGreenFatal("[General]\nprefs.color.fatal=#00E040\n");
const QString kFatalWell = QStringLiteral("Fatal / Error");
const QString kWrapDefault = QStringLiteral("Retour à la ligne par défaut");
const QString kSizeDefault = QStringLiteral("Taille de police par défaut");

class Settings : public WindowTest {
protected:
    // Letters that are upright strokes hold pixels of the colour itself.
    static int greenPixels()
    {
        return pixelsOfColor(desktop().picture(desktop().windowTitled(kLogTitle)), kGreen);
    }
    [[nodiscard]] AccessibleNode preference(const char* role, const QString& name) const
    {
        return element(window(kPreferencesTitle), QString::fromLatin1(role), name);
    }
    void openPreferences()
    {
        desktop().press(QStringLiteral("ctrl+comma"));
        awaitActive(kPreferencesTitle);
    }
    // Goes on by Tab until the control of that name has the keyboard.
    void tabTo(const QString& name)
    {
        constexpr int kMoreThanThereAre = 20;
        for (int i = 0; i < kMoreThanThereAre && announcedFocus() != name; ++i) {
            const QString before = announcedFocus();
            desktop().press(QStringLiteral("Tab"));
            ASSERT_TRUE(spinUntil([&] { return announcedFocus() != before; }));
        }
        ASSERT_EQ(announcedFocus(), name) << "Tab does not come to " << qPrintable(name);
    }
};

TEST_F(Settings, ASettingsFileThatIsEditedFromOutsideRecoloursTheLog)
{
    QuillonProcess& quillon = startWithLog("PHP Fatal error:  lllllllllllll\n");
    awaitRows(QStringLiteral("1\tPHP Fatal error:  lllllllllllll\n"));
    EXPECT_EQ(greenPixels(), 0);
    quillon.writeSettings(kGreenFatal);
    EXPECT_TRUE(spinUntil([] { return greenPixels() > 10; }));
}

TEST_F(Settings, ASettingsFileThatIsEditedFromOutsideShowsInTheOpenPreferences)
{
    QuillonProcess& quillon = startWithLog("a\n");
    openPreferences();
    quillon.writeSettings("[General]\nprefs.color.fatal=#00E040\nprefs.wrap.default=false\n"
                          "prefs.font.default=21\nprefs.default.folder=/var/log\n");
    EXPECT_TRUE(spinUntil([this] {
        return preference("push button", kFatalWell).description == QStringLiteral("#00E040") &&
               !preference("check box", kWrapDefault).is("checked") &&
               preference("slider", kSizeDefault).value == 21.0 &&
               preference("text", QStringLiteral("Dossier favori")).text ==
                   QStringLiteral("/var/log");
    }));
}

TEST_F(Settings, TheDefaultsOfWrappingAndSizeTakeEffectWhenThePreferencesClose)
{
    startWithLog("a\n");
    awaitToggle(kWrap, true);
    openPreferences();
    tabTo(kWrapDefault);
    desktop().press(QStringLiteral("space"));
    tabTo(kSizeDefault);
    desktop().press(QStringLiteral("End"));
    desktop().press(QStringLiteral("ctrl+w"));
    awaitActive(kLogTitle);
    awaitToggle(kWrap, false);
    EXPECT_TRUE(spinUntil([this] {
        return element(mainWindow(), QStringLiteral("slider"), kTextSize).value == 24.0;
    }));
}

TEST_F(Settings, TheDefaultsOfWrappingAndSizeHoldAfterARestart)
{
    QuillonProcess& before = startWithLog("a\n");
    openPreferences();
    tabTo(kWrapDefault);
    desktop().press(QStringLiteral("space"));
    tabTo(kSizeDefault);
    desktop().press(QStringLiteral("End"));
    desktop().press(QStringLiteral("ctrl+w"));
    awaitActive(kLogTitle);
    desktop().press(QStringLiteral("ctrl+q"));
    ASSERT_EQ(before.wait(), 0);

    program({folder().path(kLog)},
            {{QStringLiteral("XDG_CONFIG_HOME"), before.configuration().path(QString())}})
        .start();
    awaitActive(kLogTitle);
    awaitToggle(kWrap, false);
    EXPECT_EQ(element(mainWindow(), QStringLiteral("slider"), kTextSize).value, 24.0);
}

TEST_F(Settings, ThePreferencesAreTheSameOneWindowWhenTheyAreAskedForAgain)
{
    startWithLog("a\n");
    openPreferences();
    desktop().press(QStringLiteral("Escape"));
    awaitActive(kLogTitle);
    openPreferences();
    awaitWindows({kLogTitle, kPreferencesTitle});
}

} // namespace
} // namespace quillon
