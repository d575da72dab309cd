// SPDX-License-Identifier: MIT
#include "app/desktop/appearance.h"

#include <QApplication>
#include <QFont>

#include <gtest/gtest.h>

namespace quillon {
namespace {

class AppearanceTest : public ::testing::Test {
protected:
    void TearDown() override
    {
        qunsetenv("QUILLON_APPEARANCE");
        QApplication::setPalette(QPalette());
    }

    static Appearance shown() { return appearanceOf(QApplication::palette()); }
};

TEST_F(AppearanceTest, TheDesktopsPreferenceIsFollowedWheneverItChanges)
{
    AppearanceFollower follower(*qApp);
    follower.setPreferences({Appearance::Dark});
    EXPECT_EQ(shown(), Appearance::Dark);
    follower.setPreferences({Appearance::Light});
    EXPECT_EQ(shown(), Appearance::Light);
}

TEST_F(AppearanceTest, WithoutAPreferenceTheDesktopsPaletteCounts)
{
    QApplication::setPalette(paletteFor(Appearance::Dark));
    AppearanceFollower follower(*qApp);
    EXPECT_EQ(shown(), Appearance::Dark);
    follower.setPreferences({Appearance::Light});
    follower.setPreferences({std::nullopt});
    EXPECT_EQ(shown(), Appearance::Dark);
}

TEST_F(AppearanceTest, TheEnvironmentOverridesThePreference)
{
    qputenv("QUILLON_APPEARANCE", "dark");
    AppearanceFollower follower(*qApp);
    follower.setPreferences({Appearance::Light});
    EXPECT_EQ(shown(), Appearance::Dark);
}

TEST_F(AppearanceTest, AnUnknownAppearanceInTheEnvironmentIsIgnored)
{
    qputenv("QUILLON_APPEARANCE", "sepia");
    AppearanceFollower follower(*qApp);
    follower.setPreferences({Appearance::Dark});
    EXPECT_EQ(shown(), Appearance::Dark);
}

TEST_F(AppearanceTest, TheDesktopsAccentAndContrastAreFollowedWheneverTheyChange)
{
    AppearanceFollower follower(*qApp);
    DesktopPreferences preferences{Appearance::Light};
    preferences.accent = QColor(0xE6, 0x61, 0x00);
    follower.setPreferences(preferences);
    EXPECT_NEAR(QApplication::palette().color(QPalette::Highlight).hslHueF(),
                preferences.accent->hslHueF(), 0.02);
    preferences.wantsHighContrast = true;
    follower.setPreferences(preferences);
    EXPECT_EQ(contrastOf(QApplication::palette()), Contrast::High);
    follower.setPreferences({Appearance::Light});
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight),
              paletteFor(Appearance::Light).color(QPalette::Highlight));
    EXPECT_EQ(contrastOf(QApplication::palette()), Contrast::Normal);
}

TEST_F(AppearanceTest, AHighContrastPaletteOfTheDesktopIsKeptAsSuch)
{
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        QApplication::setPalette(paletteFor({appearance, Contrast::High}));
        AppearanceFollower follower(*qApp);
        EXPECT_EQ(contrastOf(QApplication::palette()), Contrast::High);
        EXPECT_EQ(shown(), appearance);
    }
}

TEST_F(AppearanceTest, TheDesktopsTextScaleIsFollowedWheneverItChanges)
{
    AppearanceFollower follower(*qApp);
    EXPECT_EQ(QApplication::font().pixelSize(), 13);
    DesktopPreferences preferences;
    preferences.textScale = 2.0;
    follower.setPreferences(preferences);
    EXPECT_EQ(QApplication::font().pixelSize(), 26);
    follower.setPreferences({});
    EXPECT_EQ(QApplication::font().pixelSize(), 13);
}

TEST_F(AppearanceTest, TheEnvironmentCanAskForHighContrast)
{
    qputenv("QUILLON_APPEARANCE", "dark-contrast");
    AppearanceFollower follower(*qApp);
    EXPECT_EQ(contrastOf(QApplication::palette()), Contrast::High);
    EXPECT_EQ(shown(), Appearance::Dark);
}

} // namespace
} // namespace quillon
