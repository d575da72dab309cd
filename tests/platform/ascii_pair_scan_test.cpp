// SPDX-License-Identifier: MIT
#include "platform/ascii_pair_scan.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr std::array kPairs{"fa", "or", "zz"};
constexpr AsciiPairScan kScan(kPairs);

TEST(AsciiPairScan, FindsAPairAtEveryPlaceOfTextsOfEveryLength)
{
    for (qsizetype length = 2; length < 40; ++length) {
        for (qsizetype at = 0; at + 2 <= length; ++at) {
            QString text(length, u'-');
            text.replace(at, 2, at % 2 == 0 ? QStringLiteral("Or") : QStringLiteral("oR"));
            EXPECT_EQ(kScan.findIn(text), 0b010U) << qPrintable(text);
        }
    }
}

TEST(AsciiPairScan, FindsNothingInShortTexts)
{
    EXPECT_TRUE(kScan.findIn(QStringView()).none());
    EXPECT_TRUE(kScan.findIn(u"f").none());
}

TEST(AsciiPairScan, LooksNoFurtherThanTheTextsEnd)
{
    const QString text = QStringLiteral("0123456789abcfa");
    EXPECT_TRUE(kScan.findIn(QStringView(text).chopped(1)).none());
    EXPECT_EQ(kScan.findIn(text), 0b001U);
}

// It may see a pair that is not there, but never miss one that is.
TEST(AsciiPairScan, MissesNoPairOfRandomTexts)
{
    RandomText random(9);
    const QStringList pieces{QStringLiteral("f"),
                             QStringLiteral("A"),
                             QStringLiteral("oR"),
                             QStringLiteral("z"),
                             QStringLiteral("é"),
                             QStringLiteral("日"),
                             QString()};
    for (int i = 0; i < 3000; ++i) {
        const QString text = random.join(pieces, 40);
        const auto found = kScan.findIn(text);
        for (std::size_t pair = 0; pair < kPairs.size(); ++pair) {
            if (text.contains(QLatin1StringView(kPairs[pair]), Qt::CaseInsensitive)) {
                ASSERT_TRUE(found[pair]) << ::testing::PrintToString(text);
            }
        }
    }
}

} // namespace
} // namespace quillon
