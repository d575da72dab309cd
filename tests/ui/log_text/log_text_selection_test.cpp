// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/layout/log_text_samples.h"
#include "ui/log_text/log_text_selection.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

class LogTextSelectionTest : public ::testing::Test {
protected:
    QString begin(TextPosition position, SelectionGranularity granularity)
    {
        selection.begin(text, position, granularity);
        return selection.textIn(text);
    }

    AttributedString text = sampleText({QStringLiteral("PHP Fatal error:  boom"),
                                        QStringLiteral("second row"), QStringLiteral("third")});
    LogTextSelection selection;
};

TEST_F(LogTextSelectionTest, BeginsEmpty)
{
    EXPECT_TRUE(selection.isEmpty());
    EXPECT_EQ(selection.textIn(text), QString());
    EXPECT_EQ(begin(TextPosition{1, 3}, SelectionGranularity::Character), QString());
    EXPECT_TRUE(selection.isEmpty());
}

TEST_F(LogTextSelectionTest, ExtendsForwardsAndBackwardsFromItsAnchor)
{
    selection.begin(text, TextPosition{1, 4});
    selection.extendTo(text, TextPosition{1, 8});
    EXPECT_EQ(selection.textIn(text), QStringLiteral("cond"));
    selection.extendTo(text, TextPosition{1, 2});
    EXPECT_EQ(selection.textIn(text), QStringLiteral("se"));
    EXPECT_TRUE(selection.caret() == (TextPosition{1, 2}));
}

TEST_F(LogTextSelectionTest, ReachesAcrossRowsWithTheirLineFeeds)
{
    selection.select(TextPosition{0, 20}, TextPosition{2, 1});
    EXPECT_EQ(selection.textIn(text), QStringLiteral("boom\n2\tsecond row\n3"));
}

struct SelectedLines {
    const char* reason;
    TextPosition start;
    TextPosition end;
    QString lines;
};

TEST_F(LogTextSelectionTest, HoldsWholeLinesOfTheFileWithoutTheirNumbers)
{
    const QString first = QStringLiteral("PHP Fatal error:  boom\n");
    const QString second = QStringLiteral("second row\n");
    const QString third = QStringLiteral("third\n");
    for (const SelectedLines& expected :
         {SelectedLines{"a part of one row", {1, 4}, {1, 6}, second},
          SelectedLines{"a number and no more", {1, 0}, {1, 1}, second},
          SelectedLines{"a line feed and no more", {0, 24}, {1, 0}, first},
          SelectedLines{"a row up to the next", {0, 0}, {1, 0}, first},
          SelectedLines{"from within a row into another", {0, 20}, {1, 1}, first + second},
          SelectedLines{"everything", {0, 0}, {3, 0}, first + second + third},
          SelectedLines{"nothing", {1, 0}, {1, 0}, QString()},
          SelectedLines{"nothing at the very start", {0, 0}, {0, 0}, QString()}}) {
        selection.select(expected.start, expected.end);
        EXPECT_EQ(selection.linesIn(text), expected.lines) << expected.reason;
    }
}

TEST_F(LogTextSelectionTest, HoldsLinesAsTheyStandInTheFile)
{
    const QStringList lines =
        unusualLines() + QStringList{QString(), QStringLiteral("a\tb\rc\u0001")};
    const AttributedString unusual = sampleText(lines);
    selection.selectAll(unusual);
    EXPECT_EQ(selection.linesIn(unusual), lines.join(u'\n') + u'\n');
}

TEST_F(LogTextSelectionTest, OfEverythingIsTheWholeText)
{
    selection.selectAll(text);
    EXPECT_EQ(selection.textIn(text), text.string());
}

TEST_F(LogTextSelectionTest, OfEverythingInAnEmptyTextIsEmpty)
{
    selection.selectAll(AttributedString());
    EXPECT_TRUE(selection.isEmpty());
    EXPECT_EQ(selection.textIn(AttributedString()), QString());
}

TEST_F(LogTextSelectionTest, IsTheSameWhicheverEndIsGivenFirst)
{
    selection.select(TextPosition{2, 1}, TextPosition{0, 20});
    EXPECT_EQ(selection.textIn(text), QStringLiteral("boom\n2\tsecond row\n3"));
    EXPECT_TRUE(selection.caret() == (TextPosition{0, 20}));
}

TEST_F(LogTextSelectionTest, ByWordTakesTheWordAtThePlace)
{
    for (const qsizetype offset : {6, 8, 10}) {
        EXPECT_EQ(begin(TextPosition{0, offset}, SelectionGranularity::Word),
                  QStringLiteral("Fatal"));
    }
}

TEST_F(LogTextSelectionTest, ByWordTakesTheNumberOrTheTabAtThePlace)
{
    EXPECT_EQ(begin(TextPosition{0, 0}, SelectionGranularity::Word), QStringLiteral("1"));
    EXPECT_EQ(begin(TextPosition{0, 1}, SelectionGranularity::Word), QStringLiteral("\t"));
}

TEST_F(LogTextSelectionTest, ByWordAtARowsEndTakesItsLastWord)
{
    EXPECT_EQ(begin(TextPosition{0, 24}, SelectionGranularity::Word), QStringLiteral("boom"));
}

TEST_F(LogTextSelectionTest, ByWordExtendsByWholeWordsInBothDirections)
{
    selection.begin(text, TextPosition{0, 8}, SelectionGranularity::Word);
    selection.extendTo(text, TextPosition{0, 13});
    EXPECT_EQ(selection.textIn(text), QStringLiteral("Fatal error"));
    selection.extendTo(text, TextPosition{0, 3});
    EXPECT_EQ(selection.textIn(text), QStringLiteral("PHP Fatal"));
}

TEST_F(LogTextSelectionTest, ByRowTakesTheWholeRow)
{
    EXPECT_EQ(begin(TextPosition{1, 5}, SelectionGranularity::Row),
              QStringLiteral("2\tsecond row\n"));
}

TEST_F(LogTextSelectionTest, ByRowExtendsByWholeRowsInBothDirections)
{
    selection.begin(text, TextPosition{1, 5}, SelectionGranularity::Row);
    selection.extendTo(text, TextPosition{2, 0});
    EXPECT_EQ(selection.textIn(text), QStringLiteral("2\tsecond row\n3\tthird\n"));
    selection.extendTo(text, TextPosition{0, 24});
    EXPECT_EQ(selection.textIn(text), QStringLiteral("1\tPHP Fatal error:  boom\n2\tsecond row\n"));
}

TEST_F(LogTextSelectionTest, AfterTheLastRowIsEmptyByAnyMeasure)
{
    for (const auto granularity :
         {SelectionGranularity::Character, SelectionGranularity::Word, SelectionGranularity::Row}) {
        EXPECT_EQ(begin(TextPosition{3, 0}, granularity), QString());
    }
}

TEST_F(LogTextSelectionTest, ByWordStaysShortInAVeryLongWord)
{
    text = sampleText({QString(2'000'000, u'w')});
    EXPECT_LT(begin(TextPosition{0, 1'000'000}, SelectionGranularity::Word).size(), 10'000);
    EXPECT_LE(selection.start().offset, 1'000'000);
    EXPECT_GT(selection.end().offset, 1'000'000);
}

TEST_F(LogTextSelectionTest, AfterClearingIsEmpty)
{
    selection.selectAll(text);
    selection.clear();
    EXPECT_TRUE(selection.isEmpty());
}

} // namespace
} // namespace quillon
