// SPDX-License-Identifier: MIT
#include "render/status_text.h"
#include "tests/support/printing.h"

#include <QLocale>

#include <gtest/gtest.h>
#include <limits>

namespace quillon {
namespace {

class StatusText : public testing::Test {
protected:
    StatusText() { QLocale::setDefault(QLocale(QLocale::French, QLocale::France)); }
    ~StatusText() override { QLocale::setDefault(m_before); }

private:
    const QLocale m_before;
};

TEST_F(StatusText, GivesBothCounts)
{
    EXPECT_EQ(countsStatus(120, 7), QStringLiteral("Lignes: 120 • Affichées: 7"));
}

TEST_F(StatusText, GivesZeroForAnEmptyLog)
{
    EXPECT_EQ(countsStatus(0, 0), QStringLiteral("Lignes: 0 • Affichées: 0"));
}

TEST_F(StatusText, SaysThatEveryLineIsFiltered)
{
    EXPECT_EQ(allFilteredStatus(120), QStringLiteral("Lignes: 120 • Affichées: 0 (filtrées)"));
}

TEST_F(StatusText, GivesTheNumberOfLines)
{
    EXPECT_EQ(lineCountStatus(12), QStringLiteral("Lignes: 12"));
}

TEST_F(StatusText, GroupsThousandsAsInFrance)
{
    EXPECT_EQ(countsStatus(1'234'567, 1'234),
              QStringLiteral("Lignes: 1\u202F234\u202F567 • Affichées: 1\u202F234"));
    EXPECT_EQ(allFilteredStatus(1'234),
              QStringLiteral("Lignes: 1\u202F234 • Affichées: 0 (filtrées)"));
    EXPECT_EQ(lineCountStatus(1'234), QStringLiteral("Lignes: 1\u202F234"));
}

TEST_F(StatusText, GroupsThousandsAsInAmerica)
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(lineCountStatus(1'234'567), QStringLiteral("Lignes: 1,234,567"));
}

TEST_F(StatusText, CountsBeyondThirtyTwoBits)
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(lineCountStatus(std::numeric_limits<qint64>::max()),
              QStringLiteral("Lignes: 9,223,372,036,854,775,807"));
}

} // namespace
} // namespace quillon
