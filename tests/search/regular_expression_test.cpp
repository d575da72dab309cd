// SPDX-License-Identifier: MIT
#include "search/regular_expression.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

std::unique_ptr<RegularExpression> insensitive(const QString& pattern)
{
    return RegularExpression::compile(pattern, CaseSensitivity::Insensitive);
}

TEST(RegularExpression, FindsTheFirstMatch)
{
    const auto expression = insensitive(QStringLiteral("\\d+"));
    EXPECT_EQ(expression->firstMatch(u"ab 12 345"), (TextRange{3, 2}));
}

TEST(RegularExpression, GivesNothingWhereNothingMatches)
{
    const auto expression = insensitive(QStringLiteral("\\d+"));
    EXPECT_EQ(expression->firstMatch(u"abc"), std::nullopt);
    EXPECT_FALSE(expression->hasMatch(u"abc"));
    EXPECT_TRUE(expression->allMatches(u"abc").empty());
}

TEST(RegularExpression, FindsEveryMatchInOrder)
{
    const auto expression = insensitive(QStringLiteral("aa"));
    EXPECT_EQ(expression->allMatches(u"aaaaa"), (std::vector<TextRange>{{0, 2}, {2, 2}}));
}

TEST(RegularExpression, GivesEmptyMatchesToo)
{
    const auto expression = insensitive(QStringLiteral("x*"));
    EXPECT_EQ(expression->allMatches(u"axb"),
              (std::vector<TextRange>{{0, 0}, {1, 1}, {2, 0}, {3, 0}}));
}

TEST(RegularExpression, MatchesInAnEmptyText)
{
    EXPECT_EQ(insensitive(QStringLiteral("^$"))->firstMatch(QStringView()), (TextRange{0, 0}));
}

TEST(RegularExpression, CountsInUtf16Units)
{
    EXPECT_EQ(insensitive(QStringLiteral("b"))->firstMatch(u"a🌞b"), (TextRange{3, 1}));
}

TEST(RegularExpression, TellsCapitalsApartOnlyWhereAsked)
{
    const QString pattern = QStringLiteral("é");
    EXPECT_TRUE(insensitive(pattern)->hasMatch(u"É"));
    EXPECT_FALSE(RegularExpression::compile(pattern, CaseSensitivity::Sensitive)->hasMatch(u"É"));
}

TEST(RegularExpression, DoesNotCompileAnInvalidPattern)
{
    for (const char16_t* pattern : {u"[", u"foo(", u"*", u"a{2", u"(?<n", u"\\"}) {
        EXPECT_EQ(insensitive(QString::fromUtf16(pattern)), nullptr)
            << qPrintable(QString::fromUtf16(pattern));
    }
}

TEST(RegularExpression, DoesNotCompileAnEmptyPattern)
{
    EXPECT_EQ(insensitive(QString()), nullptr);
}

TEST(RegularExpression, KnowsUnicodeProperties)
{
    EXPECT_TRUE(insensitive(QStringLiteral("\\p{Han}{2}"))->hasMatch(u"le 日本"));
}

TEST(RegularExpressionBudget, IsNotTouchedByOrdinaryMatching)
{
    const auto expression = insensitive(QStringLiteral("\\bfoo\\w*"));
    const QString line = QStringLiteral("a line with a foobar in it").repeated(10);
    for (int i = 0; i < 20'000; ++i) {
        ASSERT_EQ(expression->decide(line), Verdict::Match);
    }
}

TEST(RegularExpressionBudget, EndsACatastrophicMatch)
{
    const auto expression = insensitive(QStringLiteral("(a+)+$"));
    EXPECT_EQ(expression->decide(QString(60, u'a') + u'b'), Verdict::Undecided);
}

TEST(RegularExpressionBudget, EndsAMatchThatNestsTooDeep)
{
    // One try takes some millions of steps, far fewer than there are; but it keeps them all.
    const auto expression = insensitive(QStringLiteral("^(?:a|b)*c"));
    EXPECT_EQ(expression->decide(QString(1'000'000, u'a')), Verdict::Undecided);
}

TEST(RegularExpressionBudget, IsEachTextsOwn)
{
    const auto expression = insensitive(QStringLiteral("(a+)+$"));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(expression->decide(QString(60, u'a') + u'b'), Verdict::Undecided);
        EXPECT_EQ(expression->decide(u"a"), Verdict::Match);
        EXPECT_EQ(expression->firstMatch(u"xa"), (TextRange{1, 1}));
    }
}

TEST(RegularExpressionBudget, IsAHundredThousandStepsForAnOrdinaryLine)
{
    // Each place of the text takes two steps for each that follows it.
    const auto expression = insensitive(QStringLiteral("a*b"));
    EXPECT_EQ(expression->decide(QString(300, u'a')), Verdict::NoMatch);
    EXPECT_EQ(expression->decide(QString(600, u'a')), Verdict::Undecided);
}

TEST(RegularExpressionBudget, OfAllMatchesIsEachTextsOwn)
{
    const auto expression = insensitive(QStringLiteral("x|(a+)+c"));
    const QString costly = u'x' + QString(60, u'a') + u'x';
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(expression->allMatches(costly), (std::vector<TextRange>{{0, 1}}));
    }
    EXPECT_EQ(expression->allMatches(u"xaacx"), (std::vector<TextRange>{{0, 1}, {1, 3}, {4, 1}}));
}

TEST(RegularExpressionBudget, OfALongTextEndsScanningThatTakesNoSteps)
{
    // Nearly a minute, were it let.
    const auto expression = insensitive(QStringLiteral("(?>[^b]*)b"));
    EXPECT_EQ(expression->decide(QString(320'000, u'a')), Verdict::Undecided);
}

TEST(RegularExpressionBudget, OfALongTextEndsAPlaceWhereEachStepReadsItAll)
{
    // Hours, were it let.
    const auto expression = insensitive(QStringLiteral("(?:(?=(?>[^b]*)c)|a)*b"));
    EXPECT_EQ(expression->decide(QString(100'000, u'a')), Verdict::Undecided);
}

TEST(RegularExpressionBudget, LetsEachPlaceOfALongLineReadTheRestOfIt)
{
    const auto expression = insensitive(QStringLiteral("a(?>[^q]*)c|bq"));
    EXPECT_EQ(expression->decide(QString(30'000, u'a') + QStringLiteral("bq")), Verdict::Match);
}

TEST(RegularExpressionBudget, IsNotTouchedByALineThatIsLong)
{
    const auto expression = insensitive(QStringLiteral("\\w+\\d\\s+x"));
    EXPECT_EQ(expression->decide(QStringLiteral("some words, 17 and more ").repeated(80'000)),
              Verdict::NoMatch);
}

TEST(RegularExpressionBudget, DoesNotLimitTheProgramsOwnPatterns)
{
    const QString pattern = QStringLiteral("x|(a+)+c");
    const QString costly = u'x' + QString(18, u'a') + u'x';
    const auto users = RegularExpression::compile(pattern, CaseSensitivity::Sensitive);
    EXPECT_EQ(users->allMatches(costly), (std::vector<TextRange>{{0, 1}}));
    const auto own =
        RegularExpression::compile(pattern, CaseSensitivity::Sensitive, PatternSource::Program);
    EXPECT_EQ(own->allMatches(costly), (std::vector<TextRange>{{0, 1}, {19, 1}}));
}

// Texts that are searched in pieces and spans.
class LongText : public testing::Test {
protected:
    // Places at and around the borders of pieces and spans, and others.
    static std::vector<qsizetype> places()
    {
        std::vector<qsizetype> places{0, 1, 4'000, 100'001, 199'990};
        for (const qsizetype border : {64, 128, 4'096, 65'536, 131'072}) {
            for (qsizetype around = -3; around <= 3; ++around) {
                places.push_back(border + around);
            }
        }
        return places;
    }
};

TEST_F(LongText, HasTheMatchesThatAShortOneHas)
{
    const QString word = QStringLiteral("x🌞(Straße) 日本");
    for (const char16_t* pattern :
         {u"x.\\(", u"🌞", u"\\bstrasse\\b", u"(?<=🌞.)STRASSE", u"日(?=本)", u"(ß|s)\\w\\) .",
          u"[^a]+", u"(?<=a)[^a]", u"\\(.*\\)", u"\\X\\(", u"(.)\\(\\w+(?!\\1)"}) {
        const auto expression = insensitive(QString::fromUtf16(pattern));
        const QString few(100, u'a');
        const auto expected = expression->allMatches(few + word + few);
        ASSERT_FALSE(expected.empty());
        for (const qsizetype place : places()) {
            const QString text = QString(place, u'a') + word + QString(200'000 - place, u'a');
            const auto found = expression->firstMatch(text);
            ASSERT_TRUE(found) << qPrintable(QString::fromUtf16(pattern)) << " at " << place;
            if (place > 0) {
                EXPECT_EQ(found->start, expected.front().start - few.size() + place);
            }
            EXPECT_EQ(found->length, expected.front().length)
                << qPrintable(QString::fromUtf16(pattern)) << " at " << place;
        }
    }
}

TEST_F(LongText, HasAllTheMatchesInOrder)
{
    QString text;
    std::vector<TextRange> expected;
    while (text.size() < 300'000) {
        text += QString(700 + expected.size(), u'-');
        expected.push_back({text.size(), 5});
        text += QStringLiteral("ab🌞c");
    }
    EXPECT_EQ(insensitive(QStringLiteral("a\\w🌞\\w"))->allMatches(text), expected);
}

TEST_F(LongText, KnowsItsBeginningAndItsEnd)
{
    const QString text(200'000, u'a');
    EXPECT_EQ(insensitive(QStringLiteral("^a"))->allMatches(text),
              (std::vector<TextRange>{{0, 1}}));
    EXPECT_EQ(insensitive(QStringLiteral("a$"))->allMatches(text),
              (std::vector<TextRange>{{199'999, 1}}));
    EXPECT_EQ(insensitive(QStringLiteral("a\\z"))->firstMatch(text), (TextRange{199'999, 1}));
    EXPECT_EQ(insensitive(QStringLiteral("a\\b"))->firstMatch(text), (TextRange{199'999, 1}));
}

TEST_F(LongText, KnowsWhereTheLastMatchEnded)
{
    QString text(200'000, u'a');
    text[150'000] = u'b';
    EXPECT_EQ(insensitive(QStringLiteral("\\Ga"))->allMatches(text).size(), 150'000U);
}

TEST_F(LongText, HasAPlaceForAnEmptyMatchBehindEachCharacter)
{
    const QString text = QStringLiteral("a🌞").repeated(50'000);
    const auto matches = insensitive(QStringLiteral("x*"))->allMatches(text);
    EXPECT_EQ(matches.size(), 100'001U);
    EXPECT_EQ(matches.back(), (TextRange{150'000, 0}));
}

} // namespace
} // namespace quillon
