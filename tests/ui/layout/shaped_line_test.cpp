// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/layout/log_text_samples.h"
#include "ui/layout/break_opportunities.h"
#include "ui/layout/displayed_text.h"
#include "ui/layout/row_engine.h"

#include <QTextLayout>

#include <algorithm>
#include <gtest/gtest.h>

namespace quillon {
namespace {

// Rows of several scripts, each as one paragraph of a text layout with the row's number in it.
class ShapedLineTest : public ::testing::Test {
protected:
    [[nodiscard]] RowEngine engine(qsizetype columns) const
    {
        return RowEngine(*metrics, opportunities,
                         columns > 0 ? std::optional(widthOfColumns(columns, *metrics))
                                     : std::nullopt);
    }

    [[nodiscard]] std::unique_ptr<QTextLayout> paragraph(const QString& text,
                                                         qsizetype columns) const
    {
        auto layout = std::make_unique<QTextLayout>(text, metrics->font(FontWeight::Regular));
        QTextOption option(Qt::AlignLeft);
        option.setTextDirection(Qt::LeftToRight);
        option.setTabStopDistance(toPoints(metrics->tabDistance()));
        option.setWrapMode(columns > 0 ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                       : QTextOption::NoWrap);
        layout->setTextOption(option);
        layout->setCacheEnabled(true);
        layout->beginLayout();
        for (QTextLine line = layout->createLine(); columns > 0 && line.isValid();
             line = layout->createLine()) {
            line.setLineWidth(toPoints(widthOfColumns(columns, *metrics)));
        }
        layout->endLayout();
        return layout;
    }

    // Every character of the row's text is where the paragraph has it.
    void expectAsInParagraph(const QString& line, qint64 number, qsizetype columns) const
    {
        const AttributedRow row = sampleRow(line, number);
        const RowEngine used = engine(columns);
        const RowLayout layout = used.layouter.layOut(row);
        const auto whole = paragraph(layout.text, columns);
        ASSERT_EQ(layout.lineCount, whole->lineCount()) << ::testing::PrintToString(line);
        for (qsizetype offset = row.prefixLength(); offset < layout.text.size(); ++offset) {
            const RowFragment& fragment = layout.fragments[layout.fragmentAt(offset)];
            const int at = static_cast<int>(offset);
            const QTextLine expected = whole->lineForTextPosition(at);
            ASSERT_EQ(fragment.line, expected.lineNumber()) << ::testing::PrintToString(line);
            const auto glyphs = expected.glyphRuns(at, 1);
            if (!fragment.needsShaping() || glyphs.isEmpty()) {
                continue;
            }
            const auto spans = used.places.shapedLine(layout, fragment).spansOf(offset, offset + 1);
            ASSERT_EQ(spans.size(), static_cast<std::size_t>(glyphs.size()));
            const QRectF box = glyphs.front().boundingRect();
            ASSERT_NEAR(spans.front().left, box.left(), 0.05)
                << offset << ::testing::PrintToString(line);
            ASSERT_NEAR(spans.front().right, box.right(), 0.05)
                << offset << ::testing::PrintToString(line);
        }
    }

    std::shared_ptr<const MonospaceMetrics> metrics = sampleMetrics();
    BreakOpportunities opportunities;
};

QString randomMixedLine(RandomText& random)
{
    static const QStringList pieces{
        QStringLiteral("خطأ "),     QStringLiteral("في "),       QStringLiteral("قاعدة البيانات "),
        QStringLiteral("שגיאה "),   QStringLiteral("במסד-"),     QStringLiteral("הנתונים. "),
        QStringLiteral("line "),    QStringLiteral("wp-config"), QStringLiteral("34 "),
        QStringLiteral("3.8.0 "),   QStringLiteral("(12)"),      QStringLiteral("[x] "),
        QStringLiteral("  "),       QStringLiteral("\t"),        QStringLiteral("! "),
        QStringLiteral("٣٤ "),      QStringLiteral("/var/www/"), QStringLiteral("e\u0301t "),
        QStringLiteral("100% "),    QStringLiteral("– "),        QStringLiteral(", "),
        QStringLiteral("لاحتمالات")};
    return random.join(pieces, 16) + QStringLiteral("אب");
}

TEST_F(ShapedLineTest, ANumberInAContinuationLineKeepsItsPlaceBesideRightToLeftWords)
{
    const QString line = QStringLiteral("خطأ في قاعدة البيانات 34 خطأ");
    const RowEngine used = engine(29);
    const RowLayout layout = used.layouter.layOut(sampleRow(line));
    ASSERT_EQ(layout.lineCount, 2);
    const RowFragment& last = layout.fragments.back();
    const qsizetype number = layout.text.indexOf(QStringLiteral("34"));
    ASSERT_EQ(last.start, number);
    const double column = toPoints(metrics->columnAdvance());
    const ShapedLine shaped = used.places.shapedLine(layout, last);
    EXPECT_NEAR(shaped.spansOf(number, number + 1).front().left, 4 * column, 0.1);
    EXPECT_NEAR(shaped.spansOf(last.end - 1, last.end).front().left, 0, 0.1);
}

TEST_F(ShapedLineTest, MixedScriptsAreWhereAParagraphOfTheWholeRowHasThem)
{
    RandomText random(41);
    for (int i = 0; i < 400; ++i) {
        const QString line = randomMixedLine(random);
        for (const qsizetype columns : {0, 12, 17, 29, 60}) {
            expectAsInParagraph(line, 1 + random.below(9'999), columns);
        }
    }
}

TEST_F(ShapedLineTest, ALongNumberMovesTheTextToALaterTabStop)
{
    RandomText random(42);
    for (int i = 0; i < 100; ++i) {
        const QString line = randomMixedLine(random);
        for (const qsizetype columns : {0, 26, 45}) {
            // Arabic, in whose font the number's digits are as wide as elsewhere.
            expectAsInParagraph(QStringLiteral("خطأ ") + line, 123'456'789, columns);
        }
    }
}

TEST_F(ShapedLineTest, ATextThatDoesNotFitBesideItsNumberBeginsBelowIt)
{
    const RowLayout layout =
        engine(16).layouter.layOut(sampleRow(QStringLiteral("البياناتالبيانات 34")));
    ASSERT_GE(layout.fragments.size(), 2U);
    EXPECT_EQ(layout.fragments[0].end, 2);
    EXPECT_EQ(layout.fragments[1].start, 2);
    EXPECT_EQ(layout.fragments[1].line, 1);
    EXPECT_EQ(layout.fragments[1].x, 0);
}

// Beside Devanagari, for which there may be no font, a text layout makes boxes of the digits.
TEST_F(ShapedLineTest, ANumberIsAColumnADigitWhateverScriptFollows)
{
    for (const QString& line : unusualLines()) {
        for (const qsizetype columns : {0, 30}) {
            const RowEngine used = engine(columns);
            const RowLayout layout = used.layouter.layOut(sampleRow(line, 1234));
            const RowFragment& number = layout.fragments.front();
            EXPECT_FALSE(number.needsShaping());
            EXPECT_EQ(used.places.xOf(layout, number, 4), 4 * metrics->columnAdvance());
            EXPECT_EQ(used.places.xOf(layout, number, 5), metrics->tabDistance());
        }
    }
}

TEST_F(ShapedLineTest, SpacesThatHangStandAtTheLinesEndAColumnEach)
{
    const RowEngine used = engine(16);
    const RowLayout layout = used.layouter.layOut(sampleRow(QStringLiteral("خطأ خطأ   خطأ")));
    ASSERT_EQ(layout.lineCount, 2);
    const RowFragment& first = layout.fragments[1];
    EXPECT_EQ(first.end, 12);
    const double column = toPoints(metrics->columnAdvance());
    const ShapedLine shaped = used.places.shapedLine(layout, first);
    for (const qsizetype offset : {9, 10, 11, 12}) {
        const double x = static_cast<double>(15 + offset - 9) * column;
        EXPECT_NEAR(shaped.xOf(offset), x, 0.1);
        EXPECT_EQ(shaped.offsetAt(x), offset);
    }
    EXPECT_EQ(shaped.offsetAt(1e9), 12);
}

} // namespace
} // namespace quillon
