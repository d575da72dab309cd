// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/layout/log_text_samples.h"
#include "ui/layout/break_opportunities.h"
#include "ui/layout/character_range.h"
#include "ui/layout/displayed_text.h"
#include "ui/layout/line_breaking.h"
#include "ui/layout/monospace_metrics.h"

#include <QLibraryInfo>
#include <QTextLayout>
#include <QVersionNumber>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace quillon {
namespace {

using Starts = std::vector<qsizetype>;

class LineBreaking : public ::testing::Test {
protected:
    // Where a text layout begins its lines, the first one included.
    [[nodiscard]] Starts reference(const QString& displayed, Fixed width) const
    {
        QTextLayout layout(displayed, metrics->font(FontWeight::Regular));
        QTextOption option(Qt::AlignLeft);
        option.setTextDirection(Qt::LeftToRight);
        option.setTabStopDistance(toPoints(metrics->tabDistance()));
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        Starts starts;
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(toPoints(width));
            starts.push_back(line.textStart());
        }
        layout.endLayout();
        return starts;
    }

    [[nodiscard]] Starts mixed(const QString& displayed, Fixed width) const
    {
        Starts starts{0};
        const qsizetype lines =
            LineBreaker(*metrics, opportunities, width).breakMixed(displayed, &starts);
        EXPECT_EQ(static_cast<std::size_t>(lines), starts.size());
        return starts;
    }

    // By the short cut for rows of one advance; offsets from the start of the row.
    [[nodiscard]] Starts uniform(const AttributedRow& row, Fixed width) const
    {
        const Fixed indent =
            nextTabStop((row.prefixLength() - 1) * metrics->columnAdvance(), *metrics);
        Starts starts{-row.prefixLength()};
        const BrokenLines lines =
            LineBreaker(*metrics, opportunities, width).breakUniform(row.text(), indent, &starts);
        EXPECT_EQ(static_cast<std::size_t>(lines.count), starts.size());
        for (qsizetype& start : starts) {
            start += row.prefixLength();
        }
        return starts;
    }

    // Checks one row at one width, both ways where both apply.
    [[nodiscard]] ::testing::AssertionResult breaksLikeATextLayout(const AttributedRow& row,
                                                                   qsizetype columns) const
    {
        const Fixed width = widthOfColumns(columns, *metrics);
        const QString displayed = displayedText(row);
        // Later ones let some tabs hang after spaces that already do.
        const bool isOfAnotherQt = QLibraryInfo::version() > QVersionNumber(6, 5);
        if (isOfAnotherQt && row.text().contains(QStringLiteral(" \t"))) {
            return ::testing::AssertionSuccess();
        }
        const Starts expected = reference(displayed, width);
        const Starts found = mixed(displayed, width);
        if (found != expected) {
            return failure("breakMixed", row, columns, expected, found);
        }
        const Fixed indent =
            nextTabStop((row.prefixLength() - 1) * metrics->columnAdvance(), *metrics);
        if (metrics->isUniform(characterRangeOf(row.text())) && indent < width) {
            const Starts fast = uniform(row, width);
            if (fast != expected) {
                return failure("breakUniform", row, columns, expected, fast);
            }
        }
        return ::testing::AssertionSuccess();
    }

    static ::testing::AssertionResult failure(const char* what, const AttributedRow& row,
                                              qsizetype columns, const Starts& expected,
                                              const Starts& found)
    {
        return ::testing::AssertionFailure()
               << what << " of " << ::testing::PrintToString(row.string()) << " at " << columns
               << " columns: " << ::testing::PrintToString(found) << ", a text layout has "
               << ::testing::PrintToString(expected);
    }

    [[nodiscard]] bool needsShapingAnywhere(const QString& text) const
    {
        return std::any_of(text.begin(), text.end(),
                           [](QChar character) { return needsShaping(character.unicode()); });
    }

    std::shared_ptr<const MonospaceMetrics> metrics = sampleMetrics();
    BreakOpportunities opportunities;
};

constexpr std::array kColumns{1, 2, 3, 5, 7, 8, 9, 10, 13, 17, 24, 33, 40, 80, 132};

TEST_F(LineBreaking, RowsOfTheExcerptsBreakLikeATextLayout)
{
    qint64 number = 1;
    for (const QString& line : excerptLines()) {
        const AttributedRow row = sampleRow(line, number++);
        if (needsShapingAnywhere(line)) {
            continue;
        }
        for (const int columns : {20, 57, 100}) {
            ASSERT_TRUE(breaksLikeATextLayout(row, columns));
        }
    }
}

TEST_F(LineBreaking, RandomRowsBreakLikeATextLayout)
{
    RandomText random(20240722);
    for (const QString& line : randomPlainLines(random, 1500)) {
        ASSERT_FALSE(needsShapingAnywhere(line));
        static constexpr std::array<qint64, 5> kNumbers{1, 42, 1532, 1234567, 123456789};
        const qint64 number = kNumbers[random.below(kNumbers.size())];
        const int columns = kColumns[random.below(kColumns.size())];
        ASSERT_TRUE(breaksLikeATextLayout(sampleRow(line, number), columns));
    }
}

TEST_F(LineBreaking, RandomAsciiCharactersBreakLikeATextLayout)
{
    RandomText random(7);
    for (int i = 0; i < 3000; ++i) {
        QString line;
        const std::uint32_t length = random.below(40);
        for (std::uint32_t at = 0; at < length; ++at) {
            line += QChar(static_cast<char16_t>(0x20 + random.below(0x5F)));
        }
        const int columns = kColumns[random.below(kColumns.size())];
        ASSERT_TRUE(breaksLikeATextLayout(sampleRow(line, 1 + random.below(99999)), columns));
    }
}

TEST_F(LineBreaking, NumbersWithSignsAndBracketsBreakLikeATextLayout)
{
    RandomText random(11);
    const QString characters = QStringLiteral("0123456789.,/:$%()+- ");
    for (int i = 0; i < 3000; ++i) {
        QString line;
        const std::uint32_t length = random.below(30);
        for (std::uint32_t at = 0; at < length; ++at) {
            line += characters[random.below(static_cast<std::uint32_t>(characters.size()))];
        }
        const int columns = kColumns[random.below(kColumns.size())];
        ASSERT_TRUE(breaksLikeATextLayout(sampleRow(line, 1 + random.below(99)), columns));
    }
}

TEST_F(LineBreaking, NumbersBetweenMarksBreakLikeATextLayout)
{
    RandomText random(12);
    const QString digits = QStringLiteral("0123456789.,:;/ ");
    const QString marks = QStringLiteral("aZ!?\"'#&*<=>@^_`~|-[ ");
    for (int i = 0; i < 6000; ++i) {
        QString line;
        const std::uint32_t length = random.below(40);
        for (std::uint32_t at = 0; at < length; ++at) {
            const QString& characters = random.below(4) == 0 ? marks : digits;
            line += characters[random.below(static_cast<std::uint32_t>(characters.size()))];
        }
        const int columns = kColumns[random.below(kColumns.size())];
        ASSERT_TRUE(breaksLikeATextLayout(sampleRow(line, 1 + random.below(99)), columns));
    }
}

TEST_F(LineBreaking, RunsOfSpacesHangPastTheWidth)
{
    for (qsizetype spaces = 0; spaces < 30; ++spaces) {
        for (const int columns : kColumns) {
            const QString blank(spaces, u' ');
            ASSERT_TRUE(breaksLikeATextLayout(sampleRow(blank), columns));
            ASSERT_TRUE(breaksLikeATextLayout(sampleRow(blank + u'x'), columns));
            ASSERT_TRUE(
                breaksLikeATextLayout(sampleRow(QStringLiteral("ab") + blank + u'c'), columns));
        }
    }
}

TEST_F(LineBreaking, AWordLongerThanALineIsCutWhereTheLineIsFull)
{
    for (const int columns : kColumns) {
        ASSERT_TRUE(breaksLikeATextLayout(sampleRow(QString(200, u'w')), columns));
        ASSERT_TRUE(breaksLikeATextLayout(
            sampleRow(QStringLiteral("a ") + QString(200, u'w') + QStringLiteral(" b")), columns));
    }
}

TEST_F(LineBreaking, ARowOfOneCharacterBreaksLikeATextLayout)
{
    for (char16_t character = 0x20; character < 0x250; ++character) {
        const QString line{QChar(character)};
        if (character == 0x85 || needsShapingAnywhere(line)) {
            continue;
        }
        for (const int columns : {1, 8, 9, 40}) {
            ASSERT_TRUE(breaksLikeATextLayout(sampleRow(line, 12345), columns));
        }
    }
}

// Next to kana a text layout may take spaces and digits from the Japanese font, where they have
// another width; the log keeps its columns. The Japanese itself is where both must agree.
TEST_F(LineBreaking, JapaneseBreaksLikeATextLayout)
{
    RandomText random(5);
    const QStringList japanese{QStringLiteral("ファイル"),   QStringLiteral("がッ"),
                               QStringLiteral("「エラー」"), QStringLiteral("です。"),
                               QStringLiteral("ー"),         QStringLiteral("行目")};
    for (int i = 0; i < 400; ++i) {
        const QString line = random.join(japanese, 20);
        const int columns = 8 + static_cast<int>(random.below(60));
        ASSERT_TRUE(breaksLikeATextLayout(sampleRow(line), columns));
    }
}

TEST_F(LineBreaking, OtherFontSizesBreakLikeATextLayout)
{
    for (const double size : {10.0, 11.5, 16.0, 24.0}) {
        metrics = sampleMetrics(size);
        RandomText random(3);
        for (const QString& line : randomPlainLines(random, 200)) {
            const int columns = kColumns[random.below(kColumns.size())];
            ASSERT_TRUE(breaksLikeATextLayout(sampleRow(line), columns)) << size;
        }
    }
}

TEST_F(LineBreaking, ATabReachesTheNextMultipleOfEightColumns)
{
    const Fixed column = metrics->columnAdvance();
    EXPECT_EQ(nextTabStop(0, *metrics), 8 * column);
    EXPECT_EQ(nextTabStop(7 * column, *metrics), 8 * column);
    EXPECT_EQ(nextTabStop(8 * column, *metrics), 16 * column);
}

} // namespace
} // namespace quillon
