// SPDX-License-Identifier: MIT
#include "render/line_filter.h"
#include "tests/support/log_lines.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

const std::vector<LogSeverity> kAlwaysShown{LogSeverity::Fatal, LogSeverity::Error,
                                            LogSeverity::Info, LogSeverity::Debug,
                                            LogSeverity::Unknown};

LineFilter filterFor(const QString& query)
{
    LineFilter filter;
    filter.search = SearchExpression::make(query);
    return filter;
}

bool shows(const QString& query, const QString& text)
{
    return filterFor(query).allows(logLine(text));
}

TEST(LineFilter, ShowsEverythingByDefault)
{
    for (const LogSeverity severity : kAllSeverities) {
        EXPECT_TRUE(LineFilter().allows(severity));
    }
}

TEST(LineFilter, EachSwitchHidesItsOwnLevel)
{
    EXPECT_FALSE(LineFilter{.showWarning = false}.allows(LogSeverity::Warning));
    EXPECT_FALSE(LineFilter{.showNotice = false}.allows(LogSeverity::Notice));
    EXPECT_FALSE(LineFilter{.showDeprecated = false}.allows(LogSeverity::Deprecated));
    EXPECT_TRUE(LineFilter{.showWarning = false}.allows(LogSeverity::Notice));
    EXPECT_TRUE(LineFilter{.showNotice = false}.allows(LogSeverity::Deprecated));
    EXPECT_TRUE(LineFilter{.showDeprecated = false}.allows(LogSeverity::Warning));
}

TEST(LineFilter, OnlyErrorsShowsFatalAndErrorLinesAlone)
{
    const LineFilter filter{.onlyErrors = true};
    for (const LogSeverity severity : kAllSeverities) {
        EXPECT_EQ(filter.allows(severity),
                  severity == LogSeverity::Fatal || severity == LogSeverity::Error);
    }
}

TEST(LineFilter, OnlyErrorsHidesWarningsEvenWhenWarningsAreShown)
{
    const LineFilter filter{.onlyErrors = true, .showWarning = true};
    EXPECT_FALSE(filter.allows(LogSeverity::Warning));
}

TEST(LineFilter, OnlyErrorsHidesInfoDebugAndUnknownLines)
{
    const LineFilter filter{.onlyErrors = true};
    EXPECT_FALSE(filter.allows(LogSeverity::Info));
    EXPECT_FALSE(filter.allows(LogSeverity::Debug));
    EXPECT_FALSE(filter.allows(LogSeverity::Unknown));
}

TEST(LineFilter, TheOtherLevelsPassWhateverTheSwitchesSay)
{
    const LineFilter filter{.showWarning = false, .showNotice = false, .showDeprecated = false};
    for (const LogSeverity severity : kAlwaysShown) {
        EXPECT_TRUE(filter.allows(severity));
    }
}

TEST(LineFilter, ALineMustPassBothTheLevelAndTheSearch)
{
    LineFilter filter = filterFor(QStringLiteral("foo"));
    filter.showWarning = false;
    EXPECT_TRUE(filter.allows(logLine(QStringLiteral("foo"))));
    EXPECT_FALSE(filter.allows(logLine(QStringLiteral("foo warning"))));
    EXPECT_FALSE(filter.allows(logLine(QStringLiteral("bar"))));
}

TEST(LineFilter, SlashesAroundAQueryMakeNoDifference)
{
    EXPECT_TRUE(shows(QStringLiteral("/FOO/"), QStringLiteral("a fOo b")));
    EXPECT_TRUE(shows(QStringLiteral("foo"), QStringLiteral("a fOo b")));
    EXPECT_FALSE(shows(QStringLiteral("/FOO/"), QStringLiteral("bar")));
}

TEST(LineFilter, ASingleSlashShowsLinesWithASlash)
{
    EXPECT_TRUE(shows(QStringLiteral("/"), QStringLiteral("a/b")));
    EXPECT_FALSE(shows(QStringLiteral("/"), QStringLiteral("ab")));
}

TEST(LineFilter, ASlashAtOneEndOnlyIsPartOfThePattern)
{
    EXPECT_TRUE(shows(QStringLiteral("/abc"), QStringLiteral("x/ABCd")));
    EXPECT_FALSE(shows(QStringLiteral("/abc"), QStringLiteral("abc")));
}

TEST(LineFilter, TwoSlashesAreSearchedForAsTheyAre)
{
    EXPECT_TRUE(shows(QStringLiteral("//"), QStringLiteral("http://x")));
    EXPECT_FALSE(shows(QStringLiteral("//"), QStringLiteral("a/b")));
}

TEST(LineFilter, ASingleSpaceIsNotTrimmedAway)
{
    EXPECT_TRUE(shows(QStringLiteral(" "), QStringLiteral("a b")));
    EXPECT_FALSE(shows(QStringLiteral(" "), QStringLiteral("ab")));
}

TEST(LineFilter, AnOpeningBracketIsSearchedForAsItIs)
{
    EXPECT_TRUE(shows(QStringLiteral("["), QStringLiteral("a[0]")));
    EXPECT_FALSE(shows(QStringLiteral("["), QStringLiteral("a(0)")));
}

TEST(LineFilter, TheLineNumberIsNotSearched)
{
    const LineFilter filter = filterFor(QStringLiteral("42"));
    EXPECT_FALSE(filter.allows(logLine(QStringLiteral("text"), 42)));
    EXPECT_TRUE(filter.allows(logLine(QStringLiteral("text 42"), 1)));
}

} // namespace
} // namespace quillon
