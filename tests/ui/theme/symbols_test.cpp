// SPDX-License-Identifier: MIT
#include "ui/theme/symbols.h"
#include "ui/theme/theme.h"

#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QSet>

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr auto kSymbolCount = static_cast<int>(Symbol::Folder) + 1;

QImage drawn(Symbol symbol, QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off,
             int edge = 24)
{
    return symbolIcon(symbol)
        .pixmap(QSize(edge, edge), 1.0, mode, state)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

int inkedPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += qAlpha(image.pixel(x, y)) > 128 ? 1 : 0;
        }
    }
    return count;
}

// The colour of the strongest pixel, which antialiasing has not thinned.
QColor inkOf(const QImage& image)
{
    QRgb strongest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > qAlpha(strongest)) {
                strongest = image.pixel(x, y);
            }
        }
    }
    return QColor::fromRgb(strongest);
}

class EverySymbol : public testing::TestWithParam<int> {
protected:
    static Symbol symbol() { return static_cast<Symbol>(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(Symbols, EverySymbol, testing::Range(0, kSymbolCount),
                         [](const auto& instance) {
                             return std::string(
                                 symbolName(static_cast<Symbol>(instance.param)).data());
                         });

TEST_P(EverySymbol, HasADrawingInTheProgram)
{
    EXPECT_TRUE(QFile::exists(QStringLiteral(":/symbols/%1.svg").arg(symbolName(symbol()))));
}

TEST_P(EverySymbol, PutsInkOnThePixmap)
{
    EXPECT_GT(inkedPixels(drawn(symbol())), 15);
}

TEST_P(EverySymbol, StaysInsideItsSquare)
{
    const QImage image = drawn(symbol(), QIcon::Normal, QIcon::Off, 96);
    for (int i = 0; i < 96; ++i) {
        EXPECT_EQ(qAlpha(image.pixel(i, 0)) + qAlpha(image.pixel(i, 95)) +
                      qAlpha(image.pixel(0, i)) + qAlpha(image.pixel(95, i)),
                  0)
            << "edge pixel " << i;
    }
}

TEST(Symbols, EachHasANameOfItsOwn)
{
    QSet<QString> names;
    for (int i = 0; i < kSymbolCount; ++i) {
        names.insert(symbolName(static_cast<Symbol>(i)));
    }
    EXPECT_EQ(names.size(), kSymbolCount);
}

TEST(Symbols, AtScaleTwoADrawingHasFourTimesThePixels)
{
    const QPixmap pixmap = symbolIcon(Symbol::Search).pixmap(QSize(18, 18), 2.0);
    EXPECT_EQ(pixmap.size(), QSize(36, 36));
    EXPECT_EQ(pixmap.devicePixelRatio(), 2.0);
}

TEST(Symbols, ADrawingIsCentredInASpaceThatIsNotSquare)
{
    const QPixmap pixmap = symbolIcon(Symbol::Clear).pixmap(QSize(40, 20), 1.0);
    const QImage image = pixmap.toImage();
    ASSERT_EQ(image.size(), QSize(40, 20));
    EXPECT_EQ(inkedPixels(image.copy(0, 0, 10, 20)), 0);
    EXPECT_GT(inkedPixels(image.copy(10, 0, 20, 20)), 0);
    EXPECT_EQ(inkedPixels(image.copy(30, 0, 10, 20)), 0);
}

TEST(Symbols, AnEmptySpaceGetsNoDrawing)
{
    EXPECT_TRUE(symbolIcon(Symbol::Clear).pixmap(QSize(0, 0), 1.0).isNull());
}

class SymbolTint : public testing::TestWithParam<Appearance> {
protected:
    void SetUp() override { QGuiApplication::setPalette(paletteFor(GetParam())); }
};

INSTANTIATE_TEST_SUITE_P(Symbols, SymbolTint, testing::Values(Appearance::Light, Appearance::Dark),
                         [](const auto& instance) {
                             return instance.param == Appearance::Light ? "Light" : "Dark";
                         });

TEST_P(SymbolTint, DistinguishesRestOnHoverAndDisabled)
{
    const QSet<QString> inks{
        inkOf(drawn(Symbol::OnlyErrors)).name(),
        inkOf(drawn(Symbol::OnlyErrors, QIcon::Normal, QIcon::On)).name(),
        inkOf(drawn(Symbol::OnlyErrors, QIcon::Active)).name(),
        inkOf(drawn(Symbol::OnlyErrors, QIcon::Active, QIcon::On)).name(),
        inkOf(drawn(Symbol::OnlyErrors, QIcon::Disabled)).name(),
    };
    EXPECT_EQ(inks.size(), 5);
}

TEST_P(SymbolTint, IsTheAccentColourWhenOn)
{
    EXPECT_EQ(inkOf(drawn(Symbol::OnlyErrors, QIcon::Normal, QIcon::On)).name(),
              QGuiApplication::palette().color(QPalette::Link).name());
}

TEST(Symbols, AnIconMadeBeforeAnAppearanceChangeFollowsIt)
{
    QGuiApplication::setPalette(paletteFor(Appearance::Light));
    const QIcon icon = symbolIcon(Symbol::Folder);
    const QColor before = inkOf(icon.pixmap(QSize(24, 24), 1.0).toImage());
    QGuiApplication::setPalette(paletteFor(Appearance::Dark));
    const QColor after = inkOf(icon.pixmap(QSize(24, 24), 1.0).toImage());
    EXPECT_LT(before.lightness(), 128);
    EXPECT_GT(after.lightness(), 128);
}

} // namespace
} // namespace quillon
