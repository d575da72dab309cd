// SPDX-License-Identifier: MIT
#include "render/attributed_string.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>
#include <limits>

namespace quillon {
namespace {

class PlainStyler : public RowStyler {
public:
    [[nodiscard]] const BaseAttributes& baseAttributes() const override { return m_base; }
    [[nodiscard]] Color severityColor(LogSeverity /*severity*/) const override
    {
        return Color::system(SystemColor::Text);
    }
    [[nodiscard]] std::vector<AttributeRun> runsOf(const AttributedRow& row) const override
    {
        return {AttributeRun{0, row.length(), RunAttributes()}};
    }

private:
    BaseAttributes m_base{.fontSize = 16.5};
};

AttributedRow row(qint64 number, const QString& text)
{
    return AttributedRow(number, text, LogSeverity::Info, std::make_shared<PlainStyler>());
}

TEST(AttributedRow, IsTheNumberATabTheTextAndALineFeed)
{
    EXPECT_EQ(row(1532, QStringLiteral("texte")).string(), QStringLiteral("1532\ttexte\n"));
}

TEST(AttributedRow, KnowsItsLengthsForEveryNumberOfDigits)
{
    for (qint64 number :
         {qint64{0}, qint64{9}, qint64{10}, qint64{99}, qint64{100}, qint64{4'294'967'296},
          std::numeric_limits<qint64>::max(), qint64{-1}, std::numeric_limits<qint64>::min()}) {
        const AttributedRow made = row(number, QStringLiteral("é🌞"));
        EXPECT_EQ(made.length(), made.string().size()) << number;
        EXPECT_EQ(made.prefixLength(), made.string().indexOf(u'\t') + 1) << number;
    }
}

TEST(AttributedRow, HasOneLineFeed)
{
    EXPECT_EQ(row(1, QStringLiteral("text")).lineFeedCount(), 1);
    EXPECT_EQ(row(1, QString()).lineFeedCount(), 1);
}

TEST(AttributedRow, ACarriageReturnAtItsEndMakesItsLineFeedNone)
{
    EXPECT_EQ(row(1, QStringLiteral("text\r")).lineFeedCount(), 0);
}

TEST(AttributedRow, CountsLineFeedsInsideItsText)
{
    EXPECT_EQ(row(1, QStringLiteral("\na\nb\r\nc")).lineFeedCount(), 3);
}

TEST(AttributedRow, GivesTheStyleOfItsStyler)
{
    EXPECT_EQ(row(1, QStringLiteral("text")).baseAttributes().fontSize, 16.5);
    EXPECT_EQ(row(1, QStringLiteral("text")).runs().front().length, 7);
}

TEST(AttributedString, StartsEmpty)
{
    const AttributedString text;
    EXPECT_TRUE(text.isEmpty());
    EXPECT_EQ(text.length(), 0);
    EXPECT_EQ(text.lineFeedCount(), 0);
    EXPECT_EQ(text.string(), QString());
}

TEST(AttributedString, IsItsRowsOneAfterTheOther)
{
    AttributedString text;
    text.append(row(1, QStringLiteral("a")));
    text.append(row(20, QStringLiteral("b\r")));
    EXPECT_EQ(text.string(), QStringLiteral("1\ta\n20\tb\r\n"));
    EXPECT_EQ(text.length(), text.string().size());
    EXPECT_EQ(text.lineFeedCount(), 1);
}

TEST(AttributedString, ACopyDoesNotGrowWithTheOther)
{
    AttributedString text;
    text.append(row(1, QStringLiteral("a")));
    const AttributedString copy = text;
    text.append(row(2, QStringLiteral("b")));
    EXPECT_EQ(copy.string(), QStringLiteral("1\ta\n"));
    EXPECT_EQ(copy.length(), 4);
    EXPECT_EQ(copy.lineFeedCount(), 1);
}

TEST(AttributedString, KnowsThatItExtendsAFormerCopy)
{
    AttributedString text;
    text.append(row(1, QStringLiteral("a")));
    const AttributedString former = text;
    text.append(row(2, QStringLiteral("b")));
    EXPECT_TRUE(text.isExtensionOf(former));
    EXPECT_FALSE(former.isExtensionOf(text));
}

} // namespace
} // namespace quillon
