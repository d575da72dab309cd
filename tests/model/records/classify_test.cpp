// SPDX-License-Identifier: MIT
#include "model/records/classify.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(Classify, AnEmptyLineIsUnknown)
{
    EXPECT_EQ(classify(QStringView()), LogSeverity::Unknown);
    EXPECT_EQ(classify(u""), LogSeverity::Unknown);
}

TEST(Classify, AnUncaughtExceptionIsFatal)
{
    EXPECT_EQ(classify(u"PHP Fatal error: Uncaught Exception"), LogSeverity::Fatal);
}

TEST(Classify, AParseErrorIsAnError)
{
    EXPECT_EQ(classify(u"PHP Parse error: syntax error"), LogSeverity::Error);
}

TEST(Classify, ADeprecationIsDeprecated)
{
    EXPECT_EQ(classify(u"PHP Deprecated: Function x is deprecated"), LogSeverity::Deprecated);
}

TEST(Classify, AWarningIsAWarning)
{
    EXPECT_EQ(classify(u"PHP Warning: include(): Failed opening"), LogSeverity::Warning);
}

TEST(Classify, AWarningThatSaysErrorIsAnError)
{
    EXPECT_EQ(classify(u"PHP Warning: Undefined variable $error"), LogSeverity::Error);
}

TEST(Classify, CapitalsCountAsLowerCase)
{
    EXPECT_EQ(classify(u"FATAL ERROR"), LogSeverity::Fatal);
}

TEST(Classify, ANoticeThatSaysInformationIsANotice)
{
    EXPECT_EQ(classify(u"Notice: see the information"), LogSeverity::Notice);
}

TEST(Classify, InfoCountsBeforeDebug)
{
    EXPECT_EQ(classify(u"[info] debug mode"), LogSeverity::Info);
}

TEST(Classify, DebugCountsInsideALongerWord)
{
    EXPECT_EQ(classify(u"debugging"), LogSeverity::Debug);
}

TEST(Classify, InfoCountsInsideALongerWord)
{
    EXPECT_EQ(classify(u"les infos"), LogSeverity::Info);
}

TEST(Classify, ErrorCountsInsideALongerWord)
{
    EXPECT_EQ(classify(u"see error_log"), LogSeverity::Error);
}

TEST(Classify, APhpFatalWithoutErrorIsFatal)
{
    EXPECT_EQ(classify(u"php fatal: x"), LogSeverity::Fatal);
}

TEST(Classify, FatalAloneIsUnknown)
{
    EXPECT_EQ(classify(u"fatal"), LogSeverity::Unknown);
}

TEST(Classify, ADeprecationThatSaysInfoIsDeprecated)
{
    EXPECT_EQ(classify(u"info: deprecated"), LogSeverity::Deprecated);
}

TEST(Classify, AStackTraceIsUnknownWhateverCameBefore)
{
    EXPECT_EQ(classify(u"Stack trace:"), LogSeverity::Unknown);
    EXPECT_EQ(classify(u"#1 {main}"), LogSeverity::Unknown);
}

TEST(Classify, ADottedCapitalIDoesNotBeginInfo)
{
    // Its lower-case form is an i and a combining dot.
    EXPECT_EQ(classify(u"\u0130nfo"), LogSeverity::Unknown);
}

TEST(Classify, ANulDoesNotEndTheText)
{
    EXPECT_EQ(classify(QStringView(u"\0debug", 6)), LogSeverity::Debug);
}

TEST(Classify, AWordCutByTheEndOfTheLineDoesNotCount)
{
    EXPECT_EQ(classify(u"warnin"), LogSeverity::Unknown);
}

} // namespace
} // namespace quillon
