// SPDX-License-Identifier: MIT
#include "model/records/decode_text.h"
#include "model/records/line_enumeration.h"
#include "render/row_patterns.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"
#include "tests/support/test_data.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

const RegularExpression& timestampExpression()
{
    static const auto expression = RegularExpression::compile(
        QStringLiteral(R"(\[\d{2}-[A-Za-z]{3}-\d{4} (\d{2}:\d{2}:\d{2}) UTC\])"),
        CaseSensitivity::Sensitive);
    return *expression;
}

const RegularExpression& timeExpression()
{
    static const auto expression = RegularExpression::compile(
        QStringLiteral(R"(\d{2}:\d{2}:\d{2})"), CaseSensitivity::Sensitive);
    return *expression;
}

const RegularExpression& dumpExpression()
{
    static const auto expression = RegularExpression::compile(
        QStringLiteral(R"((?:\bArray\b\s*\(|\bprint_r\s*\(|\bvar_dump\s*\())"),
        CaseSensitivity::Insensitive);
    return *expression;
}

void expectLikeTheExpressions(const QString& row)
{
    ASSERT_EQ(findTimestamp(row), timestampExpression().firstMatch(row)) << qPrintable(row);
    ASSERT_EQ(findTimeOfDay(row), timeExpression().firstMatch(row)) << qPrintable(row);
    ASSERT_EQ(hasDumpCall(row), dumpExpression().firstMatch(row).has_value())
        << qPrintable(row) << " = " << row.toUtf8().toHex(' ').constData();
}

TEST(FindTimestamp, FindsAPhpDate)
{
    EXPECT_EQ(findTimestamp(u"7\t[05-Mar-2024 10:15:42 UTC] x"), (TextRange{2, 26}));
}

TEST(FindTimestamp, TakesTheMonthInEitherCase)
{
    EXPECT_TRUE(findTimestamp(u"[05-mar-2024 10:15:42 UTC]"));
    EXPECT_TRUE(findTimestamp(u"[05-MAR-2024 10:15:42 UTC]"));
}

TEST(FindTimestamp, DoesNotTakeADayOfOneDigit)
{
    EXPECT_FALSE(findTimestamp(u"[5-Mar-2024 10:15:42 UTC]"));
}

TEST(FindTimestamp, DoesNotTakeAnotherZone)
{
    EXPECT_FALSE(findTimestamp(u"[05-Mar-2024 10:15:42 Europe/Paris]"));
    EXPECT_FALSE(findTimestamp(u"[05-Mar-2024 10:15:42 utc]"));
}

TEST(FindTimestamp, FindsTheFirstOfSeveral)
{
    EXPECT_EQ(findTimestamp(u"x UTC] [05-Mar-2024 10:15:42 UTC] [06-Mar-2024 10:15:42 UTC]"),
              (TextRange{7, 26}));
}

TEST(FindTimeOfDay, FindsTheFirst)
{
    EXPECT_EQ(findTimeOfDay(u"a 12:00:00 [05-Mar-2024 10:15:42 UTC]"), (TextRange{2, 8}));
}

TEST(FindTimeOfDay, MayStandInsideLongerDigits)
{
    EXPECT_EQ(findTimeOfDay(u"123:45:678"), (TextRange{1, 8}));
}

TEST(HasDumpCall, FindsAPrintedArrayAndTheCallsInAnyCase)
{
    for (const char16_t* row :
         {u"array (", u"Array(", u"x Array \t(", u"PRINT_R(", u"var_dump  (", u"=print_r("}) {
        EXPECT_TRUE(hasDumpCall(row)) << qPrintable(QString::fromUtf16(row));
    }
}

TEST(HasDumpCall, DoesNotFindLongerWords)
{
    for (const char16_t* row : {u"Arrays (", u"xarray (", u"my_print_r(", u"var_dumps(", u"Array",
                                u"éarray (", u"(Array)"}) {
        EXPECT_FALSE(hasDumpCall(row)) << qPrintable(QString::fromUtf16(row));
    }
}

TEST(HasDumpCall, FindsAParenthesisAfterAnyKindOfSpace)
{
    for (const char16_t* row : {u"Array\v(", u"Array\f(", u"Array\r(", u"Array\n(", u"Array\u0085(",
                                u"Array\u00A0(", u"Array\u3000("}) {
        EXPECT_TRUE(hasDumpCall(row)) << qPrintable(QString::fromUtf16(row));
    }
}

TEST(RowPatternsProperty, AgreeWithTheExpressionsOnRandomRows)
{
    const QStringList pieces{
        QStringLiteral("[05-Mar-2024 10:15:42 UTC]"),
        QStringLiteral("["),
        QStringLiteral("05"),
        QStringLiteral("-mar-"),
        QStringLiteral("2024"),
        QStringLiteral(" "),
        QStringLiteral("10"),
        QStringLiteral(":"),
        QStringLiteral("15:42"),
        QStringLiteral("1"),
        QStringLiteral(" UTC]"),
        QStringLiteral("-"),
        QStringLiteral("٣"),
        QStringLiteral("\U0001D7DA"),
        QStringLiteral("🌞"),
        QStringLiteral("é"),
        QString(),
    };
    RandomText random(21);
    for (int i = 0; i < 60'000 && !testing::Test::HasFailure(); ++i) {
        expectLikeTheExpressions(random.join(pieces, 16));
    }
}

TEST(RowPatternsProperty, AgreeWithTheExpressionsOnDatesWithCharactersReplaced)
{
    const QString row = QStringLiteral("7\t[05-Mar-2024 10:15:42 UTC] x");
    const QStringList others{
        QStringLiteral("0"), QStringLiteral("z"),
        QStringLiteral("Z"), QStringLiteral("["),
        QStringLiteral(":"), QStringLiteral("\U0001D7DA"),
        QStringLiteral("٣"), QStringLiteral("`"),
        QStringLiteral("@"), QStringLiteral("\u0301"),
        QStringLiteral("é"), QString(QChar(0xD835)),
        QString(),
    };
    RandomText random(22);
    for (int i = 0; i < 20'000 && !testing::Test::HasFailure(); ++i) {
        QString changed = row;
        for (std::uint32_t change = random.below(3); change > 0; --change) {
            changed.replace(qsizetype(random.below(std::uint32_t(changed.size()))), 1,
                            others[random.below(std::uint32_t(others.size()))]);
        }
        expectLikeTheExpressions(changed);
    }
}

TEST(RowPatternsProperty, AgreeWithTheExpressionsOnEveryKindOfDigit)
{
    for (int unit = 0; unit <= 0xFFFF && !testing::Test::HasFailure(); ++unit) {
        const QString digit = QString(QChar(unit));
        expectLikeTheExpressions(digit + QStringLiteral("2:34:56"));
        expectLikeTheExpressions(QStringLiteral("[0") + digit +
                                 QStringLiteral("-Mar-2024 10:15:42 UTC]"));
    }
}

TEST(RowPatternsProperty, AgreeWithTheExpressionsOnEveryCharacterAroundADumpWord)
{
    for (int unit = 0; unit <= 0xFFFF && !testing::Test::HasFailure(); ++unit) {
        const QString other = QString(QChar(unit));
        expectLikeTheExpressions(other + QStringLiteral("Array("));
        expectLikeTheExpressions(QStringLiteral("Array") + other + QStringLiteral("("));
        expectLikeTheExpressions(QStringLiteral("-print_r ") + other + QStringLiteral(" ("));
        expectLikeTheExpressions(QStringLiteral("a") + other + QStringLiteral("var_dump("));
    }
}

TEST(RowPatternsProperty, AgreeWithTheExpressionsOnRandomDumpCalls)
{
    const QStringList pieces{
        QStringLiteral("array"),      QStringLiteral("Array"),  QStringLiteral("print_r"),
        QStringLiteral("VAR_DUMP"),   QStringLiteral("var"),    QStringLiteral("_"),
        QStringLiteral("("),          QStringLiteral("("),      QStringLiteral(" "),
        QStringLiteral("\t"),         QStringLiteral("\v"),     QStringLiteral("\f"),
        QStringLiteral("\r"),         QStringLiteral("\n"),     QStringLiteral("\u00A0"),
        QStringLiteral("\u2003"),     QStringLiteral("\u200B"), QStringLiteral("\u200D"),
        QStringLiteral("\u0301"),     QStringLiteral("\u00AD"), QStringLiteral("s"),
        QStringLiteral("é"),          QStringLiteral("\u212A"), QStringLiteral("ﬁ"),
        QStringLiteral("\U0001D7DA"), QStringLiteral("-"),      QStringLiteral("1"),
    };
    RandomText random(23);
    for (int i = 0; i < 100'000 && !testing::Test::HasFailure(); ++i) {
        expectLikeTheExpressions(random.join(pieces, 7));
    }
}

TEST(RowPatternsProperty, AgreeWithTheExpressionsOnGenuineLogs)
{
    int timestamps = 0;
    for (const QString& name : testDataNames()) {
        const QString text = decodeText(testData(name));
        LineEnumeration enumeration(text);
        while (const auto line = enumeration.next()) {
            expectLikeTheExpressions(QStringLiteral("12\t%1\n").arg(*line));
            timestamps += findTimestamp(*line) ? 1 : 0;
        }
    }
    EXPECT_GT(timestamps, 100);
}

} // namespace
} // namespace quillon
