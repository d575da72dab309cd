// SPDX-License-Identifier: MIT
#include "tests/ui/theme/text_surfaces.h"
#include "ui/theme/contrast.h"
#include "ui/theme/palette.h"
#include "ui/theme/theme.h"

#include <array>
#include <gtest/gtest.h>

namespace quillon {
namespace {

class HighContrast : public testing::TestWithParam<Appearance> {
protected:
    const QPalette palette = paletteFor({GetParam(), Contrast::High});
};

INSTANTIATE_TEST_SUITE_P(Palette, HighContrast,
                         testing::Values(Appearance::Light, Appearance::Dark),
                         [](const auto& instance) {
                             return instance.param == Appearance::Light ? "Light" : "Inverse";
                         });

TEST_P(HighContrast, IsRecognisedFromItsPalette)
{
    EXPECT_EQ(contrastOf(palette), Contrast::High);
    EXPECT_EQ(appearanceOf(palette), GetParam());
    EXPECT_EQ(contrastOf(paletteFor(GetParam())), Contrast::Normal);
}

TEST_P(HighContrast, GivesTextsSevenToOneAlsoWhileTheyAreDisabled)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto& [text, surface] : kTextsOnSurfaces) {
            EXPECT_GE(contrastRatio(palette.color(group, text), palette.color(group, surface)), 7.0)
                << "group " << group << ", role " << text << " on role " << surface;
        }
    }
}

TEST_P(HighContrast, GivesSystemColoursSevenToOneOnTheTextBackground)
{
    const auto pixels = [this](SystemColor color) {
        return resolvedColor(Color::system(color), palette);
    };
    const QColor background = pixels(SystemColor::TextBackground);
    for (const SystemColor color :
         {SystemColor::Text, SystemColor::SecondaryLabel, SystemColor::Label, SystemColor::Red,
          SystemColor::Orange, SystemColor::Yellow, SystemColor::Blue, SystemColor::Purple,
          SystemColor::Gray}) {
        EXPECT_GE(contrastRatio(pixels(color), background), 7.0) << systemColorName(color).data();
    }
    EXPECT_GE(contrastRatio(pixels(SystemColor::Text), pixels(SystemColor::SelectedTextBackground)),
              7.0);
}

TEST_P(HighContrast, DrawsTheLinesBetweenControlsInTheTextColour)
{
    EXPECT_EQ(outlineColor(palette, 0.1F), palette.color(QPalette::WindowText));
    EXPECT_LT(outlineColor(paletteFor(GetParam()), 0.1F).alpha(), 64);
}

TEST(Palette, TheToolkitsBlackOnGreyIsNoHighContrast)
{
    EXPECT_EQ(contrastOf(QPalette(QColor(0xEF, 0xEF, 0xEF))), Contrast::Normal);
}

class Accent : public testing::TestWithParam<PaletteStyle> {};

const std::array kAccents{QColor(0xE6, 0x61, 0x00), QColor(0xF8, 0xE4, 0x5C),
                          QColor(0x00, 0x00, 0x00), QColor(0xFF, 0xFF, 0xFF),
                          QColor(0x91, 0x41, 0xAC), QColor(0x3A, 0x94, 0x4A)};

INSTANTIATE_TEST_SUITE_P(Palette, Accent,
                         testing::Values(PaletteStyle(Appearance::Light),
                                         PaletteStyle(Appearance::Dark),
                                         PaletteStyle(Appearance::Light, Contrast::High),
                                         PaletteStyle(Appearance::Dark, Contrast::High)));

TEST_P(Accent, OfAnyColourIsReadableAsLinkAndBelowText)
{
    PaletteStyle style = GetParam();
    const double wanted = style.contrast == Contrast::High ? 7.0 : 4.5;
    for (const QColor& accent : kAccents) {
        style.accent = accent;
        const QPalette palette = paletteFor(style);
        EXPECT_GE(contrastRatio(palette.color(QPalette::Link), palette.color(QPalette::Window)),
                  wanted)
            << accent.name().toStdString();
        EXPECT_GE(contrastRatio(palette.color(QPalette::HighlightedText),
                                palette.color(QPalette::Highlight)),
                  wanted)
            << accent.name().toStdString();
    }
}

TEST_P(Accent, KeepsItsHue)
{
    PaletteStyle style = GetParam();
    style.accent = QColor(0xE6, 0x61, 0x00);
    const QPalette palette = paletteFor(style);
    for (const auto role : {QPalette::Link, QPalette::Highlight}) {
        EXPECT_NEAR(palette.color(role).hslHueF(), style.accent->hslHueF(), 0.02);
    }
}

// What has the keyboard is ringed in the link's colour.
TEST_P(Accent, RingsStandOutFromEverySurface)
{
    PaletteStyle style = GetParam();
    std::vector<std::optional<QColor>> accents(kAccents.begin(), kAccents.end());
    accents.push_back(std::nullopt);
    for (const std::optional<QColor>& accent : accents) {
        style.accent = accent;
        const QPalette palette = paletteFor(style);
        for (const auto surface : {QPalette::Window, QPalette::Base, QPalette::Button}) {
            EXPECT_GE(contrastRatio(palette.color(QPalette::Link), palette.color(surface)), 3.0)
                << "role " << surface << (accent ? accent->name().toStdString() : " own");
        }
    }
}

TEST(Contrast, AColourThatHasItAlreadyStays)
{
    EXPECT_EQ(withContrast(Qt::darkBlue, Qt::white, 4.5), QColor(Qt::darkBlue));
}

TEST(Contrast, AColourIsChangedNoFurtherThanNeeded)
{
    for (const QColor background :
         {QColor(Qt::white), QColor(Qt::black), QColor(0x2A, 0x2A, 0x2D)}) {
        const QColor found = withContrast(QColor(0xE6, 0x61, 0x00), background, 7.0);
        EXPECT_GE(contrastRatio(found, background), 7.0);
        EXPECT_LT(contrastRatio(found, background), 7.4);
    }
}

TEST(Contrast, WhereItIsOutOfReachBlackOrWhiteIsTheBest)
{
    const QColor grey(0x80, 0x80, 0x80);
    EXPECT_EQ(withContrast(Qt::red, grey, 21.0).rgb(), QColor(Qt::black).rgb());
}

TEST(TextScale, OfTheDesktopsOwnSizesIsOne)
{
    for (const double points : {9.0, 10.0, 10.5, 11.0}) {
        EXPECT_DOUBLE_EQ(textScaleOf(points, 96), 1.0) << points;
    }
}

TEST(TextScale, GrowsWithTheDesktopsFontAndResolution)
{
    EXPECT_DOUBLE_EQ(textScaleOf(16.5, 96), 1.5);
    EXPECT_DOUBLE_EQ(textScaleOf(11, 192), 2.0);
    EXPECT_LT(textScaleOf(7, 96), 1.0);
}

TEST(TextScale, WithoutAFontsSizeIsOne)
{
    EXPECT_DOUBLE_EQ(textScaleOf(-1, 96), 1.0);
    EXPECT_DOUBLE_EQ(textScaleOf(10, 0), 1.0);
}

TEST(TextScale, OfTheInterfaceIsKeptFromThreeQuartersToTwo)
{
    EXPECT_EQ(interfaceFont(1.0).pixelSize(), 13);
    EXPECT_EQ(interfaceFont(1.5).pixelSize(), 20);
    EXPECT_EQ(interfaceFont(40.0).pixelSize(), 26);
    EXPECT_EQ(interfaceFont(0.01).pixelSize(), 10);
}

} // namespace
} // namespace quillon
