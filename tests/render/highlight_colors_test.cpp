// SPDX-License-Identifier: MIT
#include "render/color_codec.h"
#include "render/highlight_colors.h"
#include "render/preference_keys.h"
#include "tests/support/printing.h"
#include "tests/support/temporary_defaults.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace preference_keys;

struct SeverityColor {
    LogSeverity severity;
    QLatin1StringView key;
    Color fallback;
};

const std::vector<SeverityColor>& severityColors()
{
    static const std::vector<SeverityColor> rows{
        {LogSeverity::Fatal, kColorFatal, Color::system(SystemColor::Red)},
        {LogSeverity::Error, kColorError, Color::system(SystemColor::Red)},
        {LogSeverity::Warning, kColorWarning, Color::system(SystemColor::Orange)},
        {LogSeverity::Notice, kColorNotice, Color::system(SystemColor::Yellow)},
        {LogSeverity::Deprecated, kColorDeprecated, Color::rgb(0.96, 0.77, 0.38)},
        {LogSeverity::Info, kColorInfo, Color::system(SystemColor::Blue)},
        {LogSeverity::Debug, kColorDebug, Color::system(SystemColor::Gray)},
    };
    return rows;
}

class HighlightColorsTest : public testing::Test {
protected:
    HighlightColorsTest() { m_temporary.defaults.registerDefaults(defaultPreferences()); }
    UserDefaults& defaults() { return m_temporary.defaults; }

private:
    TemporaryDefaults m_temporary;
};

TEST_F(HighlightColorsTest, EachSeverityReadsItsOwnKey)
{
    int value = 0x10;
    for (const SeverityColor& row : severityColors()) {
        const QString hex = QString::asprintf("#%02X0000", value++);
        defaults().setObject(hex, row.key);
        EXPECT_EQ(colorForSeverity(row.severity, defaults()), colorFromHex(hex));
    }
}

TEST_F(HighlightColorsTest, AnUnreadableColorFallsBackToTheSeveritysOwn)
{
    for (const SeverityColor& row : severityColors()) {
        defaults().setObject(QStringLiteral("#FFF"), row.key);
        EXPECT_EQ(colorForSeverity(row.severity, defaults()), row.fallback) << row.key.data();
    }
}

TEST_F(HighlightColorsTest, WithoutAnyValueTheFallbackIsUsed)
{
    TemporaryDefaults unregistered;
    for (const SeverityColor& row : severityColors()) {
        EXPECT_EQ(colorForSeverity(row.severity, unregistered.defaults), row.fallback);
    }
}

TEST_F(HighlightColorsTest, ADeletedWarningColorIsTheRegisteredOne)
{
    defaults().setObject(QStringLiteral("#000001"), kColorWarning);
    defaults().removeObject(kColorWarning);
    EXPECT_EQ(colorForSeverity(LogSeverity::Warning, defaults()),
              colorFromHex(QStringLiteral("#FF9500")));
}

TEST_F(HighlightColorsTest, AWarningColorSaidInWordsFallsBackToTheSystemsOrange)
{
    defaults().setObject(QStringLiteral("orange"), kColorWarning);
    EXPECT_EQ(colorForSeverity(LogSeverity::Warning, defaults()),
              Color::system(SystemColor::Orange));
}

TEST_F(HighlightColorsTest, UnknownLinesIgnoreEveryPreference)
{
    for (const auto& [key, value] : defaultPreferences()) {
        defaults().setObject(QStringLiteral("#123456"), key);
    }
    EXPECT_EQ(colorForSeverity(LogSeverity::Unknown, defaults()), Color::system(SystemColor::Text));
}

TEST_F(HighlightColorsTest, AnInvalidDateColorIsTheSystemsBlue)
{
    defaults().setObject(QStringLiteral("blue"), kColorDate);
    EXPECT_EQ(HighlightColors::read(defaults())[HighlightRole::Date],
              Color::system(SystemColor::Blue));
}

TEST_F(HighlightColorsTest, AnInvalidDumpColorIsTheSystemsPurple)
{
    defaults().setObject(QStringLiteral("purple"), kColorArrayDump);
    EXPECT_EQ(HighlightColors::read(defaults())[HighlightRole::ArrayDump],
              Color::system(SystemColor::Purple));
}

TEST_F(HighlightColorsTest, AreReadAllTogetherInOrderOfSeverity)
{
    const HighlightColors colors = HighlightColors::read(defaults());
    for (const LogSeverity severity : kAllSeverities) {
        EXPECT_EQ(colors[roleOf(severity)], colorForSeverity(severity, defaults()));
    }
    EXPECT_EQ(colors[HighlightRole::Date], colorFromHex(QStringLiteral("#0A84FF")));
    EXPECT_EQ(colors[HighlightRole::ArrayDump], colorFromHex(QStringLiteral("#BF5AF2")));
}

TEST_F(HighlightColorsTest, ANumberIsNoColor)
{
    defaults().setObject(12, kColorInfo);
    EXPECT_EQ(colorForSeverity(LogSeverity::Info, defaults()), Color::system(SystemColor::Blue));
}

} // namespace
} // namespace quillon
