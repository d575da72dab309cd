// SPDX-License-Identifier: MIT
#include "search/row_marks.h"
#include "tests/search/search_of_query.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"
#include "tests/support/search_comparison.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using Ranges = std::vector<TextRange>;

// The marks in the row of a line that is numbered 1532.
Ranges marksOfLine(const SearchExpression& expression, const QString& text)
{
    static const QString number = QStringLiteral("1532\t");
    const QString row = number + text + u'\n';
    return marksOf(expression, row, TextRange{number.size(), text.size()});
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

// Queries of every kind that marks are found in another way for.
constexpr const char16_t* kKinds[]{
    u"a",  u"aa",      u"abab", u"\\w+ \\d+", u"(.*)up|\\d+", u"[^w]+",     u"a[",
    u"é[", u"\\Gw?o?", u"x*",   u".*up",      u"(?<=b)ab",    u"up used|u", u"1"};

TEST(RowMarks, AreTheSameHoweverFarOneAsks)
{
    const QString row = (QStringLiteral("word 12, ab: é[ a[") + filling(300)).repeated(700);
    for (const char16_t* query : kKinds) {
        const auto made = search(query);
        const Ranges all = marksOf(*made, row);
        RowMarks bitByBit(*made, row, TextRange{0, row.size()});
        for (qsizetype end = 0; end < row.size(); end += 10'007) {
            while (!bitByBit.advance(end)) {
            }
            const Ranges some = bitByBit.in(TextRange{0, end});
            ASSERT_LE(some.size(), all.size());
            ASSERT_TRUE(std::equal(some.begin(), some.end(), all.begin()));
            ASSERT_TRUE(some.size() == all.size() || all[some.size()].start >= end);
        }
        EXPECT_EQ(marksOf(*made, row), all) << qPrintable(QString::fromUtf16(query));
    }
}

TEST(RowMarks, OfAPartAreThoseOfTheRowThatTouchIt)
{
    const QStringList pieces{
        QStringLiteral("a"),      QStringLiteral("b"),   QStringLiteral("ab"),
        QStringLiteral("aaaa"),   QStringLiteral("up"),  QStringLiteral(" 12 "),
        QStringLiteral("w"),      QStringLiteral("["),   QStringLiteral("é["),
        QStringLiteral("\u0130"), QStringLiteral("used")};
    RandomText random(52);
    for (int i = 0; i < 3'000 && !testing::Test::HasFailure(); ++i) {
        const auto made = search(kKinds[random.below(std::size(kKinds))]);
        const QString row = random.join(pieces, 40);
        Ranges expected = marksOf(*made, row);
        const auto start = qsizetype(random.below(quint32(row.size()) + 1));
        const TextRange part{start, qsizetype(random.below(20))};
        std::erase_if(expected, [&part](const TextRange& mark) {
            return mark.end() <= part.start || mark.start >= part.end();
        });
        RowMarks marks(*made, row, TextRange{0, row.size()});
        while (!marks.advance(part.end())) {
        }
        EXPECT_EQ(marks.in(part), expected) << qPrintable(row) << " from " << part.start;
    }
}

TEST(RowMarks, AreNotWorkedOutBehindWhatIsAskedFor)
{
    const auto made = search(u"[a]");
    const QString row(2'000'000, u'a');
    RowMarks marks(*made, row, TextRange{0, row.size()});
    while (!marks.advance(1'000)) {
    }
    EXPECT_LE(marks.in(TextRange{0, row.size()}).size(), 65'536U);
}

TEST(RowMarks, OfAWordAreKnownEverywhereAtOnce)
{
    const auto made = search(u"a");
    const QString row(2'000'000, u'a');
    RowMarks marks(*made, row, TextRange{0, row.size()});
    EXPECT_TRUE(marks.advance(row.size()));
    EXPECT_EQ(marks.in(TextRange{1'999'990, 100}).size(), 10U);
}

TEST(RowMarks, AreLookedForInStepsThatEachTakeLittle)
{
    // Each place reads a span's worth of the row, and no two find the same.
    const auto made = search(u"b(?>[^q]*)c|[a]");
    const QString row(300'000, u'a');
    RowMarks marks(*made, row, TextRange{0, row.size()});
    int steps = 1;
    while (!marks.advance(row.size())) {
        ++steps;
    }
    EXPECT_GE(steps, 5);
    EXPECT_EQ(marks.in(TextRange{0, row.size()}).size(), 300'000U);
}

} // namespace
} // namespace quillon
