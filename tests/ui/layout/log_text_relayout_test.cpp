// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/layout/log_text_samples.h"
#include "ui/layout/log_text_layout.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace quillon {
namespace {

// Rows whose characters are of many widths, in scripts that arithmetic does not know.
QString randomUnusualLine(RandomText& random)
{
    static const QStringList pieces{
        QStringLiteral("خطأ "),
        QStringLiteral("قاعدة البيانات "),
        QStringLiteral("الاستثناءات،"),
        QStringLiteral("שגיאה במסד "),
        QStringLiteral("त्रुटि संदेश "),
        QStringLiteral("ข้อผิดพลาด"),
        QStringLiteral("오류 메시지 "),
        QStringLiteral("错误日志，"),
        QStringLiteral("e\u0301te\u0301 "),
        QStringLiteral("🙂 "),
        QStringLiteral("👩‍👩‍👧"),
        QStringLiteral("soft\u00ADhyphen\u00ADated "),
        QStringLiteral("/var/www/html/wp-content/plugins/a-b/class_c.php "),
        QStringLiteral("PHP Warning:  "),
        QStringLiteral("3.8.0 "),
        QStringLiteral("    "),
        QStringLiteral("\t"),
        QStringLiteral("\u3000"),
        QStringLiteral("\u2028"),
        QStringLiteral("\u00A0!"),
        QStringLiteral("f "),
        QString(60, u'w'),
        QStringLiteral("ﷺ "),
        QStringLiteral("ก็ "),
    };
    return random.join(pieces, 18);
}

QStringList linesOfAllKinds(RandomText& random)
{
    QStringList lines = randomPlainLines(random, 60) + unusualLines();
    for (int i = 0; i < 160; ++i) {
        lines.append(randomUnusualLine(random));
    }
    lines.append(QStringLiteral("خطأ في قاعدة البيانات ").repeated(300));
    lines.append(QString(5000, u'x') + QStringLiteral("🙂"));
    lines.append(QStringLiteral("e\u0301") + QString(200, u' '));
    return lines;
}

class LogTextRelayout : public ::testing::Test {
protected:
    // What is known of the rows must lead to the layout that a fresh object makes of them.
    void expectFreshLayout(const AttributedString& text)
    {
        const auto width =
            columns > 0 ? std::optional(widthOfColumns(columns, *metrics)) : std::nullopt;
        layout.layOut(text, metrics, width);
        LogTextLayout fresh;
        fresh.layOut(text, metrics, width);
        EXPECT_EQ(layout.width(), fresh.width());
        for (qsizetype row = 0; row <= text.rows().size(); ++row) {
            ASSERT_EQ(layout.firstLineOf(row), fresh.firstLineOf(row))
                << columns << ' '
                << ::testing::PrintToString(text.rows()[std::max<qsizetype>(row, 1) - 1].text());
        }
    }

    // The rows that a search might leave, with the numbers and texts that they had.
    static AttributedString some(const AttributedString& text, RandomText& random)
    {
        AttributedString left;
        const std::uint32_t share = 1 + random.below(4);
        for (const AttributedRow& row : text.rows()) {
            if (random.below(share) == 0) {
                left.append(row);
            }
        }
        return left;
    }

    std::shared_ptr<const MonospaceMetrics> metrics = sampleMetrics();
    qsizetype columns = 60; // 0: not wrapped
    LogTextLayout layout;
};

TEST_F(LogTextRelayout, GivesAFreshLayoutWhileAWindowIsDragged)
{
    RandomText random(21);
    const AttributedString text = sampleText(linesOfAllKinds(random));
    for (int step = 0; step < 120; ++step) {
        columns = std::clamp<qsizetype>(columns + random.below(9) - 4, 1, 150);
        expectFreshLayout(text);
    }
}

TEST_F(LogTextRelayout, GivesAFreshLayoutAtAnyWidthsAndSizesAndWithRowsLeftOut)
{
    RandomText random(22);
    const AttributedString text = sampleText(linesOfAllKinds(random));
    AttributedString shown = text;
    for (int step = 0; step < 120; ++step) {
        if (random.below(3) == 0) {
            shown = random.below(2) == 0 ? text : some(text, random);
        }
        if (random.below(6) == 0) {
            metrics = sampleMetrics(9.0 + random.below(14));
        }
        if (random.below(2) == 0) {
            columns = random.below(5) == 0 ? 0 : 1 + random.below(220);
        }
        expectFreshLayout(shown);
    }
}

// Widths between whole columns come from tests alone, but must not be mistaken for others.
TEST_F(LogTextRelayout, WidthsOfTheSameColumnsAreNotMistakenForOneAnother)
{
    RandomText random(23);
    const AttributedString text = sampleText(linesOfAllKinds(random));
    const Fixed column = metrics->columnAdvance();
    for (const Fixed part : {column / 2, Fixed{0}, column - 1, column / 2, Fixed{0}}) {
        const Fixed width = 40 * column + part;
        layout.layOut(text, metrics, width);
        LogTextLayout fresh;
        fresh.layOut(text, metrics, width);
        ASSERT_EQ(layout.lineCount(), fresh.lineCount());
    }
}

TEST_F(LogTextRelayout, MeasuringAndLayingOutAgreeOnRowsOfAllKinds)
{
    RandomText random(24);
    const AttributedString text = sampleText(linesOfAllKinds(random));
    for (const qsizetype width : {0, 1, 5, 8, 9, 20, 64, 200}) {
        const std::optional<Fixed> lineWidth =
            width > 0 ? std::optional(widthOfColumns(width, *metrics)) : std::nullopt;
        layout.layOut(text, metrics, lineWidth);
        Fixed widest = 0;
        for (qsizetype row = 0; row < text.rows().size(); ++row) {
            const RowExtent extent = layout.layouter().extentOf(layout.rowLayout(row));
            ASSERT_EQ(layout.firstLineOf(row + 1) - layout.firstLineOf(row), extent.lineCount)
                << width << ::testing::PrintToString(text.rows()[row].text());
            widest = std::max(widest, extent.width);
        }
        EXPECT_EQ(layout.width(), widest);
    }
}

// Where each fragment of a row stands.
std::vector<std::array<qint64, 4>> placesIn(const RowLayout& row)
{
    std::vector<std::array<qint64, 4>> places;
    for (const RowFragment& fragment : row.fragments) {
        places.push_back({fragment.start, fragment.end, fragment.line, fragment.x});
    }
    return places;
}

TEST_F(LogTextRelayout, GivesAFreshLayoutOfALongRowThatStays)
{
    const QString line = QStringLiteral("word after word\t").repeated(6'000);
    const QString other = QStringLiteral("another word for").repeated(6'000);
    struct Step {
        const char* change;
        QString line;
        qint64 number;
        qsizetype columns;
    };
    for (const auto& [change, text, number, width] :
         {Step{"none", line, 7, 60}, Step{"none", line, 7, 60},
          Step{"a longer number", line, 70, 60}, Step{"another width", line, 70, 47},
          Step{"the first width", line, 70, 60}, Step{"the other width", line, 70, 47},
          Step{"another text", other, 70, 47}, Step{"no wrapping", other, 70, 0}}) {
        AttributedString shown;
        shown.append(sampleRow(QStringLiteral("short"), 1));
        shown.append(sampleRow(text, number));
        columns = width;
        expectFreshLayout(shown);
        LogTextLayout fresh;
        fresh.layOut(shown, metrics,
                     width > 0 ? std::optional(widthOfColumns(width, *metrics)) : std::nullopt);
        EXPECT_EQ(layout.rowLayout(1).text, fresh.rowLayout(1).text) << change;
        EXPECT_EQ(placesIn(layout.rowLayout(1)), placesIn(fresh.rowLayout(1))) << change;
    }
}

} // namespace
} // namespace quillon
