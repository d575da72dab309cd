// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/log_text_samples.h"
#include "ui/break_opportunities.h"
#include "ui/line_breaking.h"
#include "ui/line_thresholds.h"
#include "ui/monospace_metrics.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillon {
namespace {

class LineThresholds : public ::testing::Test {
protected:
    // The plain answer: the text broken into lines of so many columns.
    [[nodiscard]] qsizetype linesAt(const QString& text, qsizetype indent, qsizetype columns) const
    {
        const LineBreaker breaker(*metrics, opportunities, widthOfColumns(columns, *metrics));
        return breaker.breakUniform(text, indent * metrics->columnAdvance(), nullptr).count;
    }

    // The narrowest width, of those that leave room behind the number, at which the text takes no
    // more than so many lines.
    [[nodiscard]] qsizetype narrowest(const QString& text, qsizetype indent, qsizetype lines) const
    {
        qsizetype columns = indent + text.size();
        while (columns > indent + 1 && linesAt(text, indent, columns - 1) <= lines) {
            --columns;
        }
        return columns;
    }

    void expectRight(const QString& text, qsizetype indent) const
    {
        const qsizetype two = narrowest(text, indent, 2);
        ASSERT_EQ(fewestColumnsForTwoLines(text, indent, opportunities), two)
            << ::testing::PrintToString(text) << " behind " << indent;
        ASSERT_GE(columnsForTwoLines(text, indent, opportunities), two)
            << ::testing::PrintToString(text) << " behind " << indent;
        ASSERT_GE(columnsForThreeLines(text, indent, opportunities), narrowest(text, indent, 3))
            << ::testing::PrintToString(text) << " behind " << indent;
    }

    // Whether the thresholds say anything of the text.
    [[nodiscard]] bool isFit(const QString& text) const
    {
        return !text.isEmpty() && !text.endsWith(u' ') && metrics->isUniform(text);
    }

    std::shared_ptr<const MonospaceMetrics> metrics = sampleMetrics();
    BreakOpportunities opportunities;
};

TEST_F(LineThresholds, RowsOfTheExcerptsTakeAsManyLinesAsForetold)
{
    QStringList lines = excerptLines();
    lines.removeDuplicates();
    for (const QString& line : lines) {
        if (isFit(line) && line.size() < 400) {
            expectRight(line, 8);
        }
    }
}

TEST_F(LineThresholds, RandomRowsTakeAsManyLinesAsForetold)
{
    RandomText random(61);
    int checked = 0;
    for (const QString& line : randomPlainLines(random, 6000)) {
        if (isFit(line)) {
            expectRight(line, random.below(4) == 0 ? 16 : 8);
            ++checked;
        }
    }
    EXPECT_GT(checked, 1000);
}

TEST_F(LineThresholds, RandomSpacesAndBreaksTakeAsManyLinesAsForetold)
{
    RandomText random(62);
    const QStringList pieces{QStringLiteral(" "),  QStringLiteral("   "), QStringLiteral("a"),
                             QStringLiteral("-"),  QStringLiteral("/"),   QStringLiteral("wort"),
                             QStringLiteral("1,2")};
    int checked = 0;
    for (int i = 0; i < 4000; ++i) {
        const QString line = random.join(pieces, 20);
        if (isFit(line)) {
            expectRight(line, 8);
            ++checked;
        }
    }
    EXPECT_GT(checked, 1000);
}

TEST_F(LineThresholds, TwoWordsTakeTwoLinesAsLongAsTheLongerOneFits)
{
    EXPECT_EQ(fewestColumnsForTwoLines(u"short longerlonger", 8, opportunities), 13);
    EXPECT_EQ(fewestColumnsForTwoLines(u"longerlongerlonger shorter", 8, opportunities), 26);
}

TEST_F(LineThresholds, AWordThatCannotBeBrokenMovesBelowItsNumber)
{
    const QString word(50, u'w');
    EXPECT_EQ(fewestColumnsForTwoLines(word, 8, opportunities), 50);
    EXPECT_EQ(columnsForTwoLines(word, 8, opportunities), 50);
    EXPECT_EQ(columnsForThreeLines(word, 8, opportunities), 50);
}

} // namespace
} // namespace quillon
