// SPDX-License-Identifier: MIT
#include "search/row_marks.h"
#include "search/search_expression.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using Ranges = std::vector<TextRange>;

std::shared_ptr<const SearchExpression> search(const char16_t* query)
{
    return SearchExpression::make(QString::fromUtf16(query));
}

// The marks in the row of a line that is numbered 1532.
Ranges marksOfLine(const SearchExpression& expression, const QString& text)
{
    static const QString number = QStringLiteral("1532\t");
    const QString row = number + text + u'\n';
    return RowMarks(expression, row, TextRange{number.size(), text.size()}).upTo(row.size());
}

// A line without the words that are searched for, of about so many characters.
QString filling(qsizetype length)
{
    return QStringLiteral("memory of 134217728 bytes used up (tried for 20480 more) in /srv/a.php ")
        .repeated(length / 72 + 1);
}

TEST(RowMarks, AreThereInEveryLineThatIsShown)
{
    for (const char16_t* query : {u"(.*)exhausted|line \\d+", u".*Fatal|line \\d+",
                                  u"line \\d+|.*Fatal", u".+?exhausted|(.*)Fatal|line"}) {
        const auto made = search(query);
        for (const qsizetype length : {100, 400, 1'500, 4'000, 20'000}) {
            const QString text = filling(length) + QStringLiteral("on line 17 ") + filling(length);
            ASSERT_TRUE(made->matches(text)) << qPrintable(QString::fromUtf16(query));
            EXPECT_FALSE(marksOfLine(*made, text).empty())
                << qPrintable(QString::fromUtf16(query)) << " in " << text.size();
        }
    }
}

TEST(RowMarks, AreThoseOfTheExpressionBehindTheLastWildcardsToo)
{
    const auto made = search(u"(.*)exhausted|line \\d+");
    const QString text = QStringLiteral("memory exhausted on line 12, line 13 ") + filling(2'000);
    EXPECT_EQ(marksOfLine(*made, text), (Ranges{{0, 21}, {25, 7}, {34, 7}}));
}

TEST(RowMarks, AreThoseOfTheTextWhereTheNumberMakesTheRowTooCostly)
{
    // The number is one more word that can be divided in many ways.
    const auto made = search(u"(\\w+\\s?)+:$");
    const QString text = QStringLiteral("abcdefghijklm: no:");
    ASSERT_TRUE(made->matches(text));
    EXPECT_FALSE(marksOfLine(*made, text).empty());
}

TEST(RowMarks, AreTheShortcutsWhereOnlyThatSeesAMatch)
{
    // From the end backwards, as the wildcard has it, each place is one too many.
    const auto made = search(u".*(?:a+)+b");
    const QString text = QStringLiteral("xab ") + QString(2'000, u'a');
    ASSERT_TRUE(made->matches(text));
    EXPECT_FALSE(marksOfLine(*made, text).empty());
}

TEST(RowMarks, AreTheSameHoweverFarOneAsks)
{
    const QString row = (QStringLiteral("word 12, ab: ") + filling(300)).repeated(900);
    for (const char16_t* query :
         {u"a", u"\\w+ \\d+", u"(.*)up|\\d+", u"[^w]+", u"a[", u"\\Gw?o?"}) {
        const auto made = search(query);
        RowMarks atOnce(*made, row, TextRange{0, row.size()});
        const Ranges all = atOnce.upTo(row.size());
        RowMarks bitByBit(*made, row, TextRange{0, row.size()});
        for (qsizetype end = 0; end < row.size(); end += 10'007) {
            const Ranges& some = bitByBit.upTo(end);
            ASSERT_LE(some.size(), all.size());
            ASSERT_TRUE(std::equal(some.begin(), some.end(), all.begin()));
        }
        EXPECT_EQ(bitByBit.upTo(row.size()), all) << qPrintable(QString::fromUtf16(query));
    }
}

TEST(RowMarks, AreNotWorkedOutBehindWhatIsAskedFor)
{
    const auto made = search(u"a");
    const QString row(2'000'000, u'a');
    RowMarks marks(*made, row, TextRange{0, row.size()});
    EXPECT_EQ(marks.upTo(1'000).size(), 65'536U);
}

} // namespace
} // namespace quillon
