// SPDX-License-Identifier: MIT
#include "app/appearance.h"

#include <QApplication>

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
    follower.setPreference(Appearance::Dark);
    EXPECT_EQ(shown(), Appearance::Dark);
    follower.setPreference(Appearance::Light);
    EXPECT_EQ(shown(), Appearance::Light);
}

TEST_F(AppearanceTest, WithoutAPreferenceTheDesktopsPaletteCounts)
{
    QApplication::setPalette(paletteFor(Appearance::Dark));
    AppearanceFollower follower(*qApp);
    EXPECT_EQ(shown(), Appearance::Dark);
    follower.setPreference(Appearance::Light);
    follower.setPreference(std::nullopt);
    EXPECT_EQ(shown(), Appearance::Dark);
}

TEST_F(AppearanceTest, TheEnvironmentOverridesThePreference)
{
    qputenv("QUILLON_APPEARANCE", "dark");
    AppearanceFollower follower(*qApp);
    follower.setPreference(Appearance::Light);
    EXPECT_EQ(shown(), Appearance::Dark);
}

TEST_F(AppearanceTest, AnUnknownAppearanceInTheEnvironmentIsIgnored)
{
    qputenv("QUILLON_APPEARANCE", "sepia");
    AppearanceFollower follower(*qApp);
    follower.setPreference(Appearance::Dark);
    EXPECT_EQ(shown(), Appearance::Dark);
}

} // namespace
} // namespace quillon
