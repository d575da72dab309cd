// SPDX-License-Identifier: MIT
#include "tests/ui/theme/text_surfaces.h"
#include "ui/theme/contrast.h"
#include "ui/theme/theme.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>

#include <cmath>
#include <gtest/gtest.h>

namespace quillon {
namespace {

QColor systemPixels(SystemColor color, Appearance appearance)
{
    return resolvedColor(Color::system(color), paletteFor(appearance));
}

class EveryAppearance : public testing::TestWithParam<Appearance> {};

INSTANTIATE_TEST_SUITE_P(Theme, EveryAppearance,
                         testing::Values(Appearance::Light, Appearance::Dark),
                         [](const auto& instance) {
                             return instance.param == Appearance::Light ? "Light" : "Dark";
                         });

TEST_P(EveryAppearance, IsRecognisedFromItsPalette)
{
    EXPECT_EQ(appearanceOf(paletteFor(GetParam())), GetParam());
}

TEST_P(EveryAppearance, HasEveryRoleInEveryGroup)
{
    const QPalette palette = paletteFor(GetParam());
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            if (role == QPalette::NoRole) {
                continue;
            }
            EXPECT_TRUE(palette.isBrushSet(group, static_cast<QPalette::ColorRole>(role)))
                << "group " << group << ", role " << role;
        }
    }
}

TEST_P(EveryAppearance, KeepsTextsReadableOnTheirSurfaces)
{
    const QPalette palette = paletteFor(GetParam());
    for (const auto& [text, surface] : kTextsOnSurfaces) {
        EXPECT_GE(contrastRatio(palette.color(text), palette.color(surface)), 4.5)
            << "role " << text << " on role " << surface;
    }
}

TEST_P(EveryAppearance, KeepsSystemColoursReadableOnTheTextBackground)
{
    const QColor background = systemPixels(SystemColor::TextBackground, GetParam());
    for (const SystemColor color :
         {SystemColor::Text, SystemColor::SecondaryLabel, SystemColor::Label, SystemColor::Red,
          SystemColor::Orange, SystemColor::Yellow, SystemColor::Blue, SystemColor::Purple,
          SystemColor::Gray}) {
        EXPECT_GE(contrastRatio(systemPixels(color, GetParam()), background), 4.5)
            << systemColorName(color).data();
    }
}

TEST_P(EveryAppearance, KeepsTheSecondaryLabelReadableOnWindowsAndControls)
{
    const QColor label = systemPixels(SystemColor::SecondaryLabel, GetParam());
    const QPalette palette = paletteFor(GetParam());
    EXPECT_GE(contrastRatio(label, palette.color(QPalette::Window)), 4.5);
    EXPECT_GE(contrastRatio(label, palette.color(QPalette::AlternateBase)), 4.5);
    EXPECT_GE(contrastRatio(label, systemPixels(SystemColor::ControlBackground, GetParam())), 4.5);
}

TEST_P(EveryAppearance, KeepsSelectedTextReadable)
{
    EXPECT_GE(contrastRatio(systemPixels(SystemColor::Text, GetParam()),
                            systemPixels(SystemColor::SelectedTextBackground, GetParam())),
              4.5);
}

TEST(Theme, LightAndDarkGiveASystemColourOtherPixels)
{
    EXPECT_NE(systemPixels(SystemColor::Text, Appearance::Light),
              systemPixels(SystemColor::Text, Appearance::Dark));
}

TEST(Theme, AFixedColourIsTheSamePixelsInEveryAppearance)
{
    const Color color = Color::rgb(1.0, 0.5, 0.0);
    const QColor light = resolvedColor(color, paletteFor(Appearance::Light));
    EXPECT_EQ(light.name(), QStringLiteral("#ff8000"));
    EXPECT_EQ(resolvedColor(color, paletteFor(Appearance::Dark)), light);
}

TEST(Theme, TheAlphaOfAColourIsKept)
{
    const Color color = Color::system(SystemColor::SelectedTextBackground, 0.35);
    EXPECT_EQ(resolvedColor(color, paletteFor(Appearance::Light)).alpha(), 89);
}

TEST(Theme, ComponentsOutsideTheirRangeAreBroughtIntoIt)
{
    const QColor color = resolvedColor(Color::rgb(1.5, -0.5, 0.0), QPalette());
    EXPECT_EQ(color.name(), QStringLiteral("#ff0000"));
}

TEST(Theme, OnePointOfTheMonospacedFontIsOnePixel)
{
    EXPECT_EQ(QFontInfo(monospacedSystemFont(13, FontWeight::Regular)).pixelSize(), 13);
    EXPECT_EQ(QFontInfo(monospacedSystemFont(24, FontWeight::Regular)).pixelSize(), 24);
}

TEST(Theme, AMonospacedFontKeepsPartsOfAPoint)
{
    const QString text(100, QChar(u'x'));
    const auto width = [&text](double points) {
        return QFontMetricsF(monospacedSystemFont(points, FontWeight::Regular))
            .horizontalAdvance(text);
    };
    const QFont between = monospacedSystemFont(16.5, FontWeight::Regular);
    const double dotsPerInch = std::round(QGuiApplication::primaryScreen()->logicalDotsPerInchY());
    EXPECT_NEAR(between.pointSizeF() * dotsPerInch / 72.0, 16.5, 0.01);
    EXPECT_GE(width(16.5), width(16));
    EXPECT_LE(width(16.5), width(17));
}

TEST(Theme, TheMonospacedFontGivesEveryLetterTheSameWidthInBothWeights)
{
    for (const FontWeight weight : {FontWeight::Regular, FontWeight::Bold}) {
        const QFontMetricsF metrics(monospacedSystemFont(13, weight));
        EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(QChar(u'i')),
                         metrics.horizontalAdvance(QChar(u'W')));
    }
}

TEST(Theme, TheBoldMonospacedFontIsBold)
{
    EXPECT_TRUE(monospacedSystemFont(13, FontWeight::Bold).bold());
    EXPECT_FALSE(monospacedSystemFont(13, FontWeight::Regular).bold());
}

TEST(Theme, HeadingsAreLargerThanTheBodyAndCaptionsSmaller)
{
    EXPECT_GT(fontFor(TextStyle::Title2).pixelSize(), fontFor(TextStyle::Body).pixelSize());
    EXPECT_LT(fontFor(TextStyle::Caption).pixelSize(), fontFor(TextStyle::Body).pixelSize());
    EXPECT_LT(fontFor(TextStyle::Footnote).pixelSize(), fontFor(TextStyle::Body).pixelSize());
}

TEST(Theme, HeadlinesAreBoldAndTitlesOnRequest)
{
    EXPECT_TRUE(fontFor(TextStyle::Headline).bold());
    EXPECT_FALSE(fontFor(TextStyle::Title2).bold());
    EXPECT_TRUE(fontFor(TextStyle::Title2, FontWeight::Bold).bold());
}

} // namespace
} // namespace quillon
