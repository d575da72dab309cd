// SPDX-License-Identifier: MIT
#include "ui/layout/break_opportunities.h"
#include "ui/layout/break_pairs.h"

#include <QString>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(BreakPairs, TheTableAnswersAsTheBoundaryFinderDoes)
{
    for (char16_t before = u'!'; before <= u'~'; ++before) {
        for (char16_t after = u'!'; after <= u'~'; ++after) {
            ASSERT_EQ(answerForAsciiPair(before, after), findAnswerForPair(before, after))
                << static_cast<char>(before) << static_cast<char>(after);
        }
    }
}

TEST(BreakPairs, APairThatStandsForItselfIsAnsweredAtOnce)
{
    EXPECT_EQ(answerForAsciiPair(u'a', u'b'), PairAnswer::No);
    EXPECT_EQ(answerForAsciiPair(u'-', u'b'), PairAnswer::Yes);
    EXPECT_EQ(answerForAsciiPair(u'/', u'1'), PairAnswer::AskAboutText);
}

TEST(BreakOpportunities, AccentedLettersAndQuotationMarksBreakAsTheBoundaryFinderHasIt)
{
    const BreakOpportunities opportunities;
    const QString others = QStringLiteral("éÀçœ“”‘’«»–—…•€§±×¡¿ß°");
    for (const QChar other : others) {
        for (char16_t ascii = u'!'; ascii <= u'~'; ++ascii) {
            for (const QString& pair :
                 {QString(other) + QChar(ascii), QChar(ascii) + QString(other)}) {
                const QString text = QStringLiteral("x ") + pair + QStringLiteral(" x");
                ASSERT_EQ(opportunities.isBefore(text, 3), mayEndLine(text, 3)) << qPrintable(text);
            }
        }
    }
}

} // namespace
} // namespace quillon
