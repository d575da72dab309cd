// SPDX-License-Identifier: MIT
#include "render/styled_line.h"
#include "tests/support/log_lines.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

const Color kSecondary = Color::system(SystemColor::SecondaryLabel);
const Color kFatal = Color::rgb(1, 0, 0);
const Color kDate = Color::rgb(0, 0, 1);
const Color kDump = Color::rgb(1, 0, 1);
const Color kText = Color::system(SystemColor::Text);

HighlightColors testColors()
{
    const Color other = Color::rgb(0.5, 0.5, 0.5);
    return HighlightColors{{kFatal, other, other, other, other, other, other, kText, kDate, kDump}};
}

AttributedRow styled(const QString& text, qint64 number = 7, const QString& query = QString())
{
    return styledLine(logLine(text, number),
                      std::make_shared<LogRowStyler>(BaseAttributes{.fontSize = 16.5}, testColors(),
                                                     SearchExpression::make(query)));
}

struct Piece {
    QString text;
    RunAttributes attributes;
    bool operator==(const Piece&) const = default;
};

std::vector<Piece> piecesOf(const AttributedRow& row)
{
    std::vector<Piece> pieces;
    const QString text = row.string();
    for (const AttributeRun& run : row.runs()) {
        pieces.push_back({text.sliced(run.start, run.length), run.attributes});
    }
    return pieces;
}

RunAttributes plain(const Color& color)
{
    return RunAttributes{color, std::nullopt, FontWeight::Regular};
}

RunAttributes bold(const Color& color)
{
    return RunAttributes{color, std::nullopt, FontWeight::Bold};
}

RunAttributes match(FontWeight weight = FontWeight::Regular)
{
    return RunAttributes{.foreground = kText,
                         .background = Color::system(SystemColor::SelectedTextBackground, 0.35),
                         .weight = weight};
}

// The attributes of the whole row, where it has but one run.
RunAttributes onlyAttributesOf(const AttributedRow& row)
{
    EXPECT_EQ(row.runs().size(), 1U);
    return row.runs().front().attributes;
}

TEST(StyledLine, AFatalLineWithATimestampHasEveryPieceInItsColor)
{
    const AttributedRow row =
        styled(QStringLiteral("[05-Mar-2024 10:15:42 UTC] PHP Fatal error: x"));
    EXPECT_EQ(row.string(), QStringLiteral("7\t[05-Mar-2024 10:15:42 UTC] PHP Fatal error: x\n"));
    EXPECT_EQ(piecesOf(row), (std::vector<Piece>{
                                 {QStringLiteral("7"), plain(kSecondary)},
                                 {QStringLiteral("\t"), plain(kFatal)},
                                 {QStringLiteral("[05-Mar-2024 "), plain(kDate)},
                                 {QStringLiteral("10:15:42"), bold(kDate)},
                                 {QStringLiteral(" UTC]"), plain(kDate)},
                                 {QStringLiteral(" PHP Fatal error: x\n"), plain(kFatal)},
                             }));
}

TEST(StyledLine, TheMonthOfATimestampMayBeInEitherCase)
{
    EXPECT_EQ(piecesOf(styled(QStringLiteral("[05-mar-2024 10:15:42 UTC]")))[3],
              (Piece{QStringLiteral("10:15:42"), bold(kDate)}));
}

TEST(StyledLine, ADayOfOneDigitMakesNoTimestamp)
{
    EXPECT_EQ(piecesOf(styled(QStringLiteral("[5-Mar-2024 10:15:42 UTC]"))).size(), 2U);
}

TEST(StyledLine, AnotherZoneMakesNoTimestamp)
{
    EXPECT_EQ(piecesOf(styled(QStringLiteral("[05-Mar-2024 10:15:42 Europe/Paris]"))).size(), 2U);
}

TEST(StyledLine, ATimeOfDayWithoutATimestampStaysAsItIs)
{
    EXPECT_EQ(piecesOf(styled(QStringLiteral("at 12:00:00 sharp"))).size(), 2U);
}

TEST(StyledLine, BoldGoesToTheFirstTimeOfDayEvenBeforeTheTimestamp)
{
    const auto pieces = piecesOf(styled(QStringLiteral("12:00:00 [05-Mar-2024 10:15:42 UTC]")));
    EXPECT_EQ(pieces[2], (Piece{QStringLiteral("12:00:00"), bold(kText)}));
    EXPECT_EQ(pieces[4], (Piece{QStringLiteral("[05-Mar-2024 10:15:42 UTC]"), plain(kDate)}));
}

TEST(StyledLine, ARowWithADumpCallIsAllInTheDumpColor)
{
    EXPECT_EQ(onlyAttributesOf(styled(QStringLiteral("array ("))), plain(kDump));
    EXPECT_EQ(onlyAttributesOf(styled(QStringLiteral("PHP Fatal error: PRINT_R($x)"))),
              plain(kDump));
}

TEST(StyledLine, ALongerWordIsNoDumpCall)
{
    EXPECT_EQ(piecesOf(styled(QStringLiteral("Arrays ("))).size(), 2U);
}

TEST(StyledLine, TheBoldTimeStaysInARowWithADumpCall)
{
    const auto pieces = piecesOf(styled(QStringLiteral("[05-Mar-2024 10:15:42 UTC] Array (")));
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_EQ(pieces[1], (Piece{QStringLiteral("10:15:42"), bold(kDump)}));
}

TEST(StyledLine, AMatchInTheLineNumberIsHighlightedToo)
{
    const auto pieces = piecesOf(styled(QStringLiteral("seven 7"), 7, QStringLiteral("7")));
    EXPECT_EQ(pieces, (std::vector<Piece>{{QStringLiteral("7"), match()},
                                          {QStringLiteral("\tseven "), plain(kText)},
                                          {QStringLiteral("7"), match()},
                                          {QStringLiteral("\n"), plain(kText)}}));
}

TEST(StyledLine, AMatchKeepsTheBoldOfTheTime)
{
    const auto pieces = piecesOf(
        styled(QStringLiteral("[05-Mar-2024 10:15:42 UTC] x"), 1, QStringLiteral("10:15")));
    EXPECT_EQ(pieces[3], (Piece{QStringLiteral("10:15"), match(FontWeight::Bold)}));
    EXPECT_EQ(pieces[4], (Piece{QStringLiteral(":42"), bold(kDate)}));
}

TEST(StyledLine, AMatchOverridesTheDumpColor)
{
    const auto pieces = piecesOf(styled(QStringLiteral("Array ("), 1, QStringLiteral("array")));
    EXPECT_EQ(pieces[1], (Piece{QStringLiteral("Array"), match()}));
}

TEST(StyledLine, AMatchMaySpanTheTabAndTheLineFeed)
{
    const auto pieces = piecesOf(styled(QStringLiteral("ab"), 1, QStringLiteral("\\s")));
    EXPECT_EQ(pieces[1], (Piece{QStringLiteral("\t"), match()}));
    EXPECT_EQ(pieces[3], (Piece{QStringLiteral("\n"), match()}));
}

TEST(StyledLine, EmptyMatchesAreNotSeen)
{
    EXPECT_EQ(piecesOf(styled(QStringLiteral("abc"), 1, QStringLiteral("x*"))),
              piecesOf(styled(QStringLiteral("abc"), 1)));
}

TEST(StyledLine, ManyMatchesAreEachHighlighted)
{
    const AttributedRow row = styled(QStringLiteral("ab").repeated(50'000), 1, QStringLiteral("b"));
    EXPECT_EQ(row.runs().size(), 2U + 2U * 50'000U);
}

TEST(StyledLine, AnEmptyLineHasItsNumberTabAndLineFeed)
{
    EXPECT_EQ(piecesOf(styled(QString(), 12)),
              (std::vector<Piece>{{QStringLiteral("12"), plain(kSecondary)},
                                  {QStringLiteral("\t\n"), plain(kText)}}));
}

TEST(StyledLine, ATabInTheTextDoesNotLengthenTheNumber)
{
    EXPECT_EQ(piecesOf(styled(QStringLiteral("a\tb")))[0].text, QStringLiteral("7"));
}

TEST(StyledLine, ANumberBeyondThirtyTwoBitsIsWrittenWithoutGrouping)
{
    EXPECT_EQ(styled(QStringLiteral("x"), 9'876'543'210).string(),
              QStringLiteral("9876543210\tx\n"));
}

TEST(StyledLine, HasTheBaseAttributesOfItsPass)
{
    EXPECT_EQ(styled(QStringLiteral("x")).baseAttributes().fontSize, 16.5);
}

TEST(StyledLine, ALiteralMatchIsClippedToTheRow)
{
    // Ten characters of which each is one unit longer in lower case.
    const AttributedRow row =
        styled(QString(10, QChar(0x0130)) + QStringLiteral("("), 1, QStringLiteral("("));
    EXPECT_EQ(row.runs().back().end(), row.length());
}

} // namespace
} // namespace quillon
