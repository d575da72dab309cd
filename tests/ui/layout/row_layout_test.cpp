// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/layout/log_text_samples.h"
#include "ui/layout/break_opportunities.h"
#include "ui/layout/displayed_text.h"
#include "ui/layout/monospace_metrics.h"
#include "ui/layout/row_engine.h"

#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <array>
#include <cstdlib>
#include <gtest/gtest.h>

namespace quillon {
namespace {

class RowLayoutTest : public ::testing::Test {
protected:
    [[nodiscard]] RowEngine wrapping(qsizetype columns) const
    {
        return RowEngine(*metrics, opportunities, widthOfColumns(columns, *metrics));
    }
    [[nodiscard]] RowEngine unbroken() const
    {
        return RowEngine(*metrics, opportunities, std::nullopt);
    }

    [[nodiscard]] static RowExtent extentOf(const RowEngine& engine, const AttributedRow& row)
    {
        RowMeasure measure = engine.measurer.initialMeasure(row);
        return engine.measurer.measure(row, measure);
    }

    // Fragments must cover the row in order, without gaps, and number its lines one by one.
    static void expectWholeRow(const RowLayout& layout)
    {
        ASSERT_FALSE(layout.fragments.empty());
        EXPECT_EQ(layout.fragments.front().start, 0);
        EXPECT_EQ(layout.fragments.front().line, 0);
        EXPECT_EQ(layout.fragments.back().end, layout.text.size());
        EXPECT_EQ(layout.fragments.back().line, layout.lineCount - 1);
        for (std::size_t i = 1; i < layout.fragments.size(); ++i) {
            const RowFragment& before = layout.fragments[i - 1];
            const RowFragment& after = layout.fragments[i];
            EXPECT_EQ(before.end, after.start);
            EXPECT_LE(before.start, before.end);
            EXPECT_TRUE(after.line == before.line || after.line == before.line + 1);
            if (after.line == before.line) {
                EXPECT_GE(after.x, before.x);
            } else {
                EXPECT_EQ(after.x, 0);
            }
        }
    }

    [[nodiscard]] double referenceWidth(const QString& displayed) const
    {
        QTextLayout layout(displayed, metrics->font(FontWeight::Regular));
        QTextOption option(Qt::AlignLeft);
        option.setTextDirection(Qt::LeftToRight);
        option.setTabStopDistance(toPoints(metrics->tabDistance()));
        option.setWrapMode(QTextOption::NoWrap);
        option.setFlags(QTextOption::IncludeTrailingSpaces);
        layout.setTextOption(option);
        layout.beginLayout();
        const QTextLine line = layout.createLine();
        layout.endLayout();
        return line.naturalTextWidth();
    }

    std::shared_ptr<const MonospaceMetrics> metrics = sampleMetrics();
    BreakOpportunities opportunities;
};

TEST_F(RowLayoutTest, MeasuringAndLayingOutAgreeOnTheNumberOfLines)
{
    RandomText random(99);
    const QStringList lines = randomPlainLines(random, 500) + unusualLines();
    for (const int columns : {1, 6, 9, 16, 31, 80}) {
        const RowEngine engine = wrapping(columns);
        for (const QString& line : lines) {
            const AttributedRow row = sampleRow(line, 1 + random.below(99999));
            const RowLayout layout = engine.layouter.layOut(row);
            ASSERT_EQ(extentOf(engine, row).lineCount, layout.lineCount)
                << columns << ::testing::PrintToString(row.string());
            EXPECT_EQ(extentOf(engine, row).width, 0);
            expectWholeRow(layout);
        }
    }
}

TEST_F(RowLayoutTest, MeasuringAndLayingOutAgreeOnTheWidthOfAnUnbrokenRow)
{
    RandomText random(98);
    const QStringList lines = randomPlainLines(random, 500) + unusualLines();
    const RowEngine engine = unbroken();
    for (const QString& line : lines) {
        const AttributedRow row = sampleRow(line, 1 + random.below(99999));
        const RowLayout layout = engine.layouter.layOut(row);
        const RowFragment& last = layout.fragments.back();
        EXPECT_EQ(layout.lineCount, 1);
        EXPECT_EQ(extentOf(engine, row).lineCount, 1);
        ASSERT_EQ(extentOf(engine, row).width, engine.places.xOf(layout, last, last.end))
            << ::testing::PrintToString(row.string());
        expectWholeRow(layout);
    }
}

TEST_F(RowLayoutTest, AnUnbrokenRowIsAsWideAsATextLayoutMakesIt)
{
    RandomText random(97);
    const QStringList lines = randomPlainLines(random, 500) + unusualLines();
    const RowEngine engine = unbroken();
    for (const QString& line : lines) {
        const AttributedRow row = sampleRow(line);
        // A text layout adds what the last glyph's ink reaches past its advance.
        ASSERT_NEAR(toPoints(extentOf(engine, row).width), referenceWidth(displayedText(row)),
                    toPoints(metrics->columnAdvance()) / 4)
            << ::testing::PrintToString(row.string());
    }
}

TEST_F(RowLayoutTest, NoLineButItsTrailingSpaceReachesPastTheWidth)
{
    RandomText random(96);
    for (const QString& line : randomPlainLines(random, 300) + unusualLines()) {
        for (const int columns : {20, 47}) {
            const RowEngine engine = wrapping(columns);
            const RowLayout layout = engine.layouter.layOut(sampleRow(line));
            for (const RowFragment& fragment : layout.fragments) {
                qsizetype end = fragment.end;
                while (end > fragment.start && isBreakableSpace(layout.text[end - 1].unicode())) {
                    --end;
                }
                EXPECT_LE(engine.places.xOf(layout, fragment, end),
                          widthOfColumns(columns, *metrics));
            }
        }
    }
}

TEST_F(RowLayoutTest, EveryOffsetOfAPlainRowMapsToAPlaceAndBack)
{
    RandomText random(95);
    for (const QString& line : randomPlainLines(random, 150)) {
        for (const RowEngine& engine : {wrapping(30), unbroken()}) {
            const RowLayout layout = engine.layouter.layOut(sampleRow(line, 42));
            for (qsizetype offset = 0; offset < layout.text.size(); ++offset) {
                const RowFragment& fragment = layout.fragments[layout.fragmentAt(offset)];
                ASSERT_LE(fragment.start, offset);
                ASSERT_LT(offset, fragment.end);
                const Fixed x = engine.places.xOf(layout, fragment, offset);
                EXPECT_EQ(engine.places.offsetAt(layout, fragment, x), offset);
            }
        }
    }
}

TEST_F(RowLayoutTest, EveryCharacterOfAShapedLeftToRightRowMapsToAPlaceAndBack)
{
    const QString line =
        QStringLiteral("🙂 cafe\u0301 त्रुटि ข้อผิด é 12");
    for (const RowEngine& engine : {wrapping(14), unbroken()}) {
        const RowLayout layout = engine.layouter.layOut(sampleRow(line, 42));
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, layout.text);
        for (qsizetype offset = 0; offset < layout.text.size(); offset = finder.toNextBoundary()) {
            const RowFragment& fragment = layout.fragments[layout.fragmentAt(offset)];
            const Fixed x = engine.places.xOf(layout, fragment, offset);
            EXPECT_EQ(engine.places.offsetAt(layout, fragment, x), offset);
        }
    }
}

TEST_F(RowLayoutTest, PlacesGrowWithTheOffsetInALeftToRightRow)
{
    RandomText random(94);
    const RowEngine engine = unbroken();
    for (const QString& line : randomPlainLines(random, 60)) {
        const RowLayout layout =
            engine.layouter.layOut(sampleRow(line + QStringLiteral("🙂 é")));
        Fixed before = 0;
        for (qsizetype offset = 0; offset <= layout.text.size(); ++offset) {
            const RowFragment& fragment = layout.fragments[layout.fragmentAt(offset)];
            const Fixed x = engine.places.xOf(layout, fragment, offset);
            EXPECT_GE(x, before);
            before = x;
        }
    }
}

TEST_F(RowLayoutTest, ATabMovesTheTextToTheNextMultipleOfEightColumns)
{
    const RowEngine engine = unbroken();
    for (const qint64 number : {1, 1234567, 12345678, 123456789}) {
        const AttributedRow row = sampleRow(QStringLiteral("x"), number);
        const RowLayout layout = engine.layouter.layOut(row);
        const Fixed x = engine.places.xOf(layout, layout.fragments.front(), row.prefixLength());
        EXPECT_EQ(x % (8 * metrics->columnAdvance()), 0);
        EXPECT_GT(x, (row.prefixLength() - 1) * metrics->columnAdvance());
    }
}

TEST_F(RowLayoutTest, AnEmptyLineStillHasItsNumberAndOneVisualLine)
{
    const AttributedRow row = sampleRow(QString(), 42);
    for (const RowEngine& engine : {wrapping(80), wrapping(2), unbroken()}) {
        EXPECT_EQ(extentOf(engine, row).lineCount, 1);
        EXPECT_EQ(engine.layouter.layOut(row).text, QStringLiteral("42\t"));
    }
}

TEST_F(RowLayoutTest, ALongRowWithOneEmojiIsShapedOnlyAroundIt)
{
    const QString line = QString(200'000, u'a') + QStringLiteral("🙂") + QString(200'000, u'b');
    for (const RowEngine& engine : {wrapping(100), unbroken()}) {
        const RowLayout layout = engine.layouter.layOut(sampleRow(line));
        expectWholeRow(layout);
        qsizetype shaped = 0;
        for (const RowFragment& fragment : layout.fragments) {
            shaped += fragment.needsShaping() ? fragment.end - fragment.start : 0;
        }
        EXPECT_GT(shaped, 0);
        EXPECT_LE(shaped, 4096);
    }
}

TEST_F(RowLayoutTest, NoFragmentBeginsInsideASurrogatePair)
{
    QString line;
    for (int i = 0; i < 9000; ++i) {
        line += i % 3 == 0 ? QStringLiteral("a🙂") : QStringLiteral("🙂");
    }
    for (const RowEngine& engine : {wrapping(33), unbroken()}) {
        const RowLayout layout = engine.layouter.layOut(sampleRow(line));
        expectWholeRow(layout);
        for (const RowFragment& fragment : layout.fragments) {
            EXPECT_FALSE(fragment.start < layout.text.size() &&
                         layout.text[fragment.start].isLowSurrogate());
        }
    }
}

TEST_F(RowLayoutTest, PiecesOfALongShapedRowStandSideBySide)
{
    QString line;
    for (int i = 0; i < 3000; ++i) {
        line += QStringLiteral("e\u0301t\u00E9 ");
    }
    const AttributedRow row = sampleRow(line);
    const RowEngine engine = unbroken();
    ASSERT_GT(engine.layouter.layOut(row).fragments.size(), 2U);
    EXPECT_NEAR(toPoints(extentOf(engine, row).width), referenceWidth(displayedText(row)),
                toPoints(metrics->columnAdvance()));
}

TEST_F(RowLayoutTest, AShapedFragmentEndsBehindItsTrailingSpaces)
{
    const RowEngine engine = unbroken();
    const RowLayout layout = engine.layouter.layOut(sampleRow(QStringLiteral("e\u0301   ")));
    const RowFragment& fragment = layout.fragments.back();
    const Fixed text = engine.places.xOf(layout, fragment, fragment.end - 3);
    const Fixed end = engine.places.xOf(layout, fragment, fragment.end);
    EXPECT_EQ(end - text, 3 * metrics->columnAdvance());
}

TEST_F(RowLayoutTest, AnOffsetBetweenTwoFragmentsBelongsToTheLaterOne)
{
    const RowLayout layout =
        wrapping(12).layouter.layOut(sampleRow(QStringLiteral("some words that wrap around")));
    ASSERT_GE(layout.fragments.size(), 2U);
    EXPECT_EQ(layout.fragmentAt(layout.fragments[1].start), 1U);
    EXPECT_EQ(layout.fragmentAt(layout.fragments[1].start - 1), 0U);
    EXPECT_EQ(layout.fragmentAt(layout.text.size()), layout.fragments.size() - 1);
}

} // namespace
} // namespace quillon
