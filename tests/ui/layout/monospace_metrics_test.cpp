// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/layout/log_text_samples.h"
#include "ui/layout/character_range.h"
#include "ui/layout/displayed_text.h"
#include "ui/layout/monospace_metrics.h"

#include <QFontMetricsF>

#include <cmath>
#include <gtest/gtest.h>
#include <set>
#include <tuple>
#include <vector>

namespace quillon {
namespace {

class MonospaceMetricsTest : public ::testing::Test {
protected:
    std::shared_ptr<const MonospaceMetrics> metrics = sampleMetrics();
};

TEST_F(MonospaceMetricsTest, EveryAsciiCharacterHasTheColumnAdvance)
{
    for (char16_t character = 0x20; character < 0x7F; ++character) {
        EXPECT_EQ(metrics->advance(character), metrics->columnAdvance())
            << static_cast<int>(character);
    }
}

TEST_F(MonospaceMetricsTest, AControlCharacterIsAsWideAsItsPicture)
{
    for (char16_t character = 0; character < 0x20; ++character) {
        if (character == u'\t') {
            continue;
        }
        const auto picture = static_cast<char16_t>(0x2400 + character);
        EXPECT_EQ(metrics->advance(character), metrics->advance(picture));
        EXPECT_TRUE(metrics->advance(character).has_value());
    }
    EXPECT_EQ(metrics->advance(0x7F), metrics->advance(u'\u2421'));
}

TEST_F(MonospaceMetricsTest, ATabHasNoAdvanceOfItsOwn)
{
    EXPECT_EQ(metrics->advance(u'\t'), std::nullopt);
}

TEST_F(MonospaceMetricsTest, CharactersThatNeedShapingHaveNoAdvanceOfTheirOwn)
{
    for (const char16_t character :
         {u'\u0301', u'\u00AD', u'\u0628', u'\u05D0', u'\u0915', u'\u0E01', u'\u200D', u'\u2028',
          u'\uFEFF', u'\u3000', u'\u1161', char16_t{0xD83D}, char16_t{0xDE42}, u'\u231A'}) {
        EXPECT_EQ(metrics->advance(character), std::nullopt) << static_cast<int>(character);
    }
}

TEST_F(MonospaceMetricsTest, ADoubleWidthCharacterHasItsOwnAdvance)
{
    const QFontMetricsF font(metrics->font(FontWeight::Regular));
    EXPECT_EQ(metrics->advance(u'错'), toFixed(font.horizontalAdvance(QString(QChar(u'错')))));
}

// Text of a uniform range is measured by multiplication, so this must hold to the last unit.
TEST_F(MonospaceMetricsTest, EveryCharacterOfAUniformRangeHasTheColumnAdvance)
{
    for (char32_t character = 0; character < 0x10000; ++character) {
        const auto unit = static_cast<char16_t>(character);
        if (metrics->isUniform(characterRangeOf(QString(QChar(unit))))) {
            EXPECT_EQ(metrics->advance(unit), metrics->columnAdvance())
                << static_cast<unsigned>(character);
        }
    }
}

TEST_F(MonospaceMetricsTest, AsciiAndFrenchTextIsUniform)
{
    EXPECT_TRUE(metrics->isUniform(characterRangeOf(QString())));
    EXPECT_TRUE(
        metrics->isUniform(characterRangeOf(QStringLiteral("PHP Warning:  x in /a/b.php"))));
    EXPECT_TRUE(metrics->isUniform(characterRangeOf(QStringLiteral("l’été vu… “Œuvre” — ça"))));
}

TEST_F(MonospaceMetricsTest, TextOfAnyRangeIsNotUniform)
{
    EXPECT_FALSE(metrics->isUniform(CharacterRange::Any));
}

TEST_F(MonospaceMetricsTest, ASpaceHasNothingToDraw)
{
    EXPECT_EQ(metrics->glyph(u' ', FontWeight::Regular).font, -1);
    EXPECT_EQ(metrics->glyph(u'\u00A0', FontWeight::Regular).font, -1);
}

TEST_F(MonospaceMetricsTest, EveryCharacterWithAnAdvanceHasAGlyph)
{
    const QString text = QStringLiteral("aé’…错エОΣ→│©");
    for (const QChar character : text) {
        for (const FontWeight weight : {FontWeight::Regular, FontWeight::Bold}) {
            EXPECT_GE(metrics->glyph(character.unicode(), weight).font, 0)
                << ::testing::PrintToString(QString(character));
        }
    }
}

// What is drawn for a character: glyphs of fonts at places.
using Drawing = std::vector<std::tuple<int, quint32, double, double>>;

Drawing drawingOf(const MonospaceMetrics& metrics, char16_t character, FontWeight weight)
{
    const Glyph glyph = metrics.glyph(character, weight);
    if (glyph.font != Glyph::kSpelled) {
        return {{glyph.font, glyph.index, 0, 0}};
    }
    Drawing drawing;
    for (const PictureLetter& letter : metrics.spelling(character, weight)) {
        drawing.emplace_back(letter.glyph.font, letter.glyph.index, letter.place.x(),
                             letter.place.y());
    }
    return drawing;
}

// Also where no other font lends its pictures, and in a font measured by parts of a point.
TEST(ControlPictures, AreDrawnAndAllDifferentWhateverFontsThereAre)
{
    for (const double size : {13.0, 16.5}) {
        for (const bool isAlone : {false, true}) {
            QFont regular = monospacedSystemFont(size, FontWeight::Regular);
            QFont bold = monospacedSystemFont(size, FontWeight::Bold);
            if (isAlone) {
                regular.setStyleStrategy(QFont::NoFontMerging);
                bold.setStyleStrategy(QFont::NoFontMerging);
            }
            const MonospaceMetrics metrics(regular, bold);
            for (const FontWeight weight : {FontWeight::Regular, FontWeight::Bold}) {
                std::set<Drawing> drawings;
                for (char16_t picture = 0x2400; picture <= 0x2421; ++picture) {
                    const Drawing drawing = drawingOf(metrics, picture, weight);
                    for (const auto& [font, index, x, y] : drawing) {
                        EXPECT_GE(font, 0) << int{picture};
                        EXPECT_NE(index, 0U) << int{picture};
                    }
                    EXPECT_TRUE(drawings.insert(drawing).second) << int{picture};
                }
            }
        }
    }
}

TEST(ControlPictures, AreSpelledWithinOneColumn)
{
    for (const double size : {10.0, 13.0, 16.5, 24.0}) {
        const auto metrics = sampleMetrics(size);
        for (const PictureLetter& letter : metrics->spelling(u'\u2400', FontWeight::Regular)) {
            const QRawFont& font = metrics->glyphFont(letter.glyph.font);
            const double right =
                letter.place.x() + font.advancesForGlyphIndexes({letter.glyph.index}).front().x();
            EXPECT_GE(letter.place.x(), 0.0);
            EXPECT_LE(right, toPoints(metrics->columnAdvance()) + 0.5) << size;
        }
    }
}

TEST_F(MonospaceMetricsTest, BoldGlyphsComeFromAnotherFont)
{
    EXPECT_NE(metrics->glyph(u'a', FontWeight::Bold).font,
              metrics->glyph(u'a', FontWeight::Regular).font);
}

TEST_F(MonospaceMetricsTest, LinesAreHighEnoughForTheFontAndHoldItsBaseline)
{
    for (const double size : {10.0, 13.0, 16.5, 24.0}) {
        const auto sized = sampleMetrics(size);
        const QFontMetricsF font(sized->font(FontWeight::Regular));
        EXPECT_GE(sized->lineHeight(), font.ascent() + font.descent());
        EXPECT_LT(sized->baseline(), sized->lineHeight());
        EXPECT_GE(sized->baseline(), std::floor(font.ascent()));
    }
}

TEST(DisplayedText, IsAsLongAsTheRowWithoutItsLineFeed)
{
    for (const QString& line : unusualLines()) {
        const AttributedRow row = sampleRow(line, 1532);
        EXPECT_EQ(displayedText(row).size(), row.length() - 1);
    }
}

TEST(DisplayedText, ShowsControlCharactersAsTheirPictures)
{
    const QString line = QString(QChar(0)) + QChar(0x1B) + QChar(0x7F) + QStringLiteral("\r\ta");
    EXPECT_EQ(displayedText(sampleRow(line, 7)), QStringLiteral("7\t\u2400\u241B\u2421\u240D\ta"));
}

TEST(DisplayedText, ShowsTheControlCharactersOfLatin1AsReplacementCharacters)
{
    const QString line = QStringLiteral("a\u0080b\u009Fc\u00A0d");
    EXPECT_EQ(displayedText(sampleRow(line, 7)), QStringLiteral("7\ta\uFFFDb\uFFFDc\u00A0d"));
}

TEST(DisplayedText, ShowsQuotesAndDashesAsTheyAre)
{
    const QString line = QStringLiteral("\"a\" -- 'b' ``c'' ... (c) -> --- “d” – ’");
    EXPECT_EQ(displayedText(sampleRow(line)), QStringLiteral("1\t") + line);
}

TEST(DisplayedText, KeepsByteOrderMarksAndReplacementCharacters)
{
    EXPECT_EQ(displayedText(sampleRow(QStringLiteral("\uFEFFa\uFFFD"))),
              QStringLiteral("1\t\uFEFFa\uFFFD"));
}

} // namespace
} // namespace quillon
