// SPDX-License-Identifier: MIT
#include "render/color_codec.h"
#include "render/preference_keys.h"
#include "tests/support/printing.h"
#include "tests/ui/log_text/log_text_painting_fixture.h"
#include "ui/log_text/log_text_colors.h"
#include "ui/theme/contrast.h"

#include <QWindow>

namespace quillon {
namespace {

struct NamedColor {
    QString name;
    Color color;
};

// Every colour that a log has text in as long as nobody changes a preference, and those that stand
// in where a preference cannot be read.
std::vector<NamedColor> textColors()
{
    std::vector<NamedColor> colors;
    for (const auto& [key, value] : defaultPreferences()) {
        if (const auto color = colorFromHex(value.toString())) {
            colors.push_back({key, *color});
        }
    }
    for (const SystemColor color :
         {SystemColor::Text, SystemColor::SecondaryLabel, SystemColor::Red, SystemColor::Orange,
          SystemColor::Yellow, SystemColor::Blue, SystemColor::Purple, SystemColor::Gray}) {
        colors.push_back({systemColorName(color), Color::system(color)});
    }
    return colors;
}

QPalette inactive(QPalette palette)
{
    palette.setCurrentColorGroup(QPalette::Inactive);
    return palette;
}

class LogTextColoursInEveryAppearance : public LogTextPainting,
                                        public testing::WithParamInterface<Appearance> {
protected:
    static SampleStyler::Runs all(const Color& color)
    {
        return [color](const AttributedRow& row) {
            RunAttributes attributes;
            attributes.foreground = color;
            return std::vector<AttributeRun>{{0, row.length(), attributes}};
        };
    }
    void showRows(const QStringList& lines, const SampleStyler::Runs& runs)
    {
        show(wrapped(sampleText(lines, runs)));
        view->setPalette(paletteFor(GetParam()));
        settle();
    }
    [[nodiscard]] int pixelsOf(const QImage& image, const QRect& area, const QColor& color) const
    {
        const QRgb wanted = color.rgb();
        return count(image, area, [wanted](QRgb pixel) { return pixel == wanted; });
    }
    // Blocks fill their boxes, so that there are pixels that no smoothing has mixed.
    const QString blocks = QStringLiteral("████");
    const Color notice = *colorFromHex(QStringLiteral("#FFD60A"));
};

INSTANTIATE_TEST_SUITE_P(LogTextColours, LogTextColoursInEveryAppearance,
                         testing::Values(Appearance::Light, Appearance::Dark),
                         [](const auto& instance) {
                             return instance.param == Appearance::Light ? "Light" : "Dark";
                         });

TEST_P(LogTextColoursInEveryAppearance, CanBeReadWhereTheyAreSelected)
{
    const QPalette active = paletteFor(GetParam());
    ASSERT_GE(textColors().size(), 17U);
    for (const QPalette& palette : {active, inactive(active)}) {
        const QColor background = selectionBackground(palette);
        for (const auto& [name, color] : textColors()) {
            EXPECT_GE(contrastRatio(selectedTextColorOn(color, palette), background), 4.5)
                << qPrintable(name);
        }
    }
}

TEST_P(LogTextColoursInEveryAppearance, StayWhatTheyAreWhereTheyCanBeReadSelected)
{
    const Color color =
        GetParam() == Appearance::Light ? Color::rgb(0.4, 0.0, 0.0) : Color::rgb(1.0, 1.0, 0.8);
    const QPalette palette = paletteFor(GetParam());
    EXPECT_EQ(selectedTextColorOn(color, palette), textColorOn(color, palette));
}

TEST_P(LogTextColoursInEveryAppearance, ThatLetTheirBackgroundThroughAreReadSelectedToo)
{
    const double extreme = GetParam() == Appearance::Light ? 0.0 : 1.0;
    const QPalette palette = paletteFor(GetParam());
    EXPECT_EQ(selectedTextColorOn(Color::rgb(extreme, extreme, extreme, 0.1), palette),
              resolvedColor(Color::system(SystemColor::Text), palette));
}

TEST_P(LogTextColoursInEveryAppearance, ChangeForSelectedCharactersAlone)
{
    for (const QString& suffix : {QString(), QStringLiteral(" e\u0301")}) {
        showRows({blocks + suffix, blocks + suffix}, all(notice));
        const QColor plain = textColorOn(notice, view->palette());
        const QColor text = resolvedColor(Color::system(SystemColor::Text), view->palette());
        const QImage before = painted();
        view->setTextSelection(TextPosition{0, 3}, TextPosition{0, 5});
        const QImage image = painted();
        EXPECT_GT(pixelsOf(image, boxOf(0, 3, 5), text), 50);
        EXPECT_EQ(pixelsOf(image, boxOf(0, 3, 5), plain), 0);
        EXPECT_GT(pixelsOf(image, boxOf(0, 2, 3), plain), 25);
        EXPECT_GT(pixelsOf(image, boxOf(0, 5, 6), plain), 25);
        EXPECT_EQ(image.copy(lineOf(1)), before.copy(lineOf(1)));
    }
}

TEST_P(LogTextColoursInEveryAppearance, AreReadInTheSelectionOfAnInactiveWindowToo)
{
    showRows({blocks}, all(notice));
    view->selectAll();
    const QImage active = painted();
    QWindow other;
    other.show();
    other.requestActivate();
    settle();
    ASSERT_FALSE(view->isActiveWindow());
    EXPECT_EQ(painted(), active);
    EXPECT_GT(pixelsOf(active, boxOf(0, 2, 6),
                       resolvedColor(Color::system(SystemColor::Text), view->palette())),
              100);
}

TEST_P(LogTextColoursInEveryAppearance, OfLettersThatJoinAreAllPaintedWhereHalfOfThemIsSelected)
{
    // Lam and alef are one glyph.
    showRows({QStringLiteral("\u0644\u0627")}, all(notice));
    const QRect row = lineOf(0).adjusted(24, 0, 0, 0);
    const int whole = inkIn(painted(), row);
    for (const qsizetype start : {2, 3}) {
        view->setTextSelection(TextPosition{0, start}, TextPosition{0, start + 1});
        const QImage image = painted();
        const QRgb selected = selectionBackground(view->palette()).rgb();
        const QRgb empty = background();
        EXPECT_GT(
            count(image, row, [&](QRgb pixel) { return pixel != selected && pixel != empty; }),
            whole / 2)
            << start;
    }
}

TEST(LogTextColors, AreReadableInHighContrastWhateverTheUserHasChosen)
{
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        const QPalette palette = paletteFor({appearance, Contrast::High});
        const QColor background =
            resolvedColor(Color::system(SystemColor::TextBackground), palette);
        for (const Color& chosen : {Color::rgb(1.0, 0.58, 0.0), Color::rgb(1.0, 1.0, 0.0),
                                    Color::rgb(0.0, 0.0, 0.4), Color::rgb(0.5, 0.5, 0.5)}) {
            EXPECT_GE(contrastRatio(textColorOn(chosen, palette), background), 7.0);
        }
    }
}

TEST(ContrastRatio, IsThatOfTheGuidelines)
{
    EXPECT_DOUBLE_EQ(contrastRatio(Qt::black, Qt::white), 21.0);
    EXPECT_DOUBLE_EQ(contrastRatio(Qt::white, Qt::black), 21.0);
    EXPECT_DOUBLE_EQ(contrastRatio(Qt::red, Qt::red), 1.0);
    EXPECT_NEAR(contrastRatio(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);
}

} // namespace
} // namespace quillon
