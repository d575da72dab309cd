// SPDX-License-Identifier: MIT
// Random expressions on random and genuine lines, against ICU alone.
#include "tests/support/random_expression.h"
#include "tests/support/search_comparison.h"
#include "tests/support/test_data.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr qsizetype kLongestLine = 4'000;

class Differential : public testing::Test {
protected:
    // Lines of the excerpts, the long ones as far as they are compared.
    static QStringList genuineLines()
    {
        QStringList lines;
        for (const QString& name : testDataNames()) {
            for (const QString& line : QString::fromUtf8(testData(name)).split(u'\n')) {
                lines.append(line.left(kLongestLine));
            }
        }
        return lines;
    }

    QString randomLine()
    {
        static const QStringList pieces{
            QStringLiteral("error"), QStringLiteral("a"),  QStringLiteral("E"),
            QStringLiteral("php"),   QStringLiteral(" "),  QStringLiteral("PHP Warning:  "),
            QStringLiteral("line "), QStringLiteral("17"), QStringLiteral("ß"),
            QStringLiteral("ſs"),    QStringLiteral("é"),  QStringLiteral("日本"),
            QStringLiteral("🌞"),     QStringLiteral("\n"), QStringLiteral("\r"),
            QStringLiteral("\t"),    QStringLiteral("/"),  QStringLiteral("\""),
            QStringLiteral("(|)"),   QStringLiteral("x"),  QStringLiteral("array ("),
            QStringLiteral("K"),     QStringLiteral("#1"), QString(),
        };
        // Most lines are short.
        return m_random.join(pieces, 4U << m_random.below(8)).left(kLongestLine);
    }

    RandomText m_random{2611};
};

TEST_F(Differential, RandomExpressionsFindWhatIcuFinds)
{
    const QStringList genuine = genuineLines();
    RandomExpression expressions(m_random);
    int compared = 0;
    int undecided = 0;
    for (int i = 0; i < 3'000; ++i) {
        const QString expression = expressions.next();
        if (!BareIcu(expression, 1).isValid()) {
            continue;
        }
        SearchComparer comparer(expression);
        for (int line = 0; line < 4; ++line) {
            const QString text = line % 2 == 0
                                     ? randomLine()
                                     : genuine[m_random.below(std::uint32_t(genuine.size()))];
            const SearchComparison comparison = comparer.compare(text);
            ASSERT_EQ(comparison.difference, nullptr)
                << comparison.difference << ": " << qPrintable(expression) << " in "
                << qPrintable(text);
            ++compared;
            undecided += comparison.isUndecided ? 1 : 0;
        }
    }
    EXPECT_GT(compared, 8'000);
    RecordProperty("undecided", undecided);
    RecordProperty("compared", compared);
    EXPECT_LE(undecided * 100, compared * 2) << undecided << " of " << compared;
}

} // namespace
} // namespace quillon
