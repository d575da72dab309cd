// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/layout/log_text_samples.h"
#include "ui/layout/hit_testing.h"
#include "ui/layout/log_text_layout.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace quillon {
namespace {

class LogTextLayoutTest : public ::testing::Test {
protected:
    [[nodiscard]] std::optional<Fixed> columns(qsizetype count) const
    {
        return widthOfColumns(count, *metrics);
    }

    // The layout must be the one that a fresh object makes of the same text.
    static void expectFresh(const LogTextLayout& layout,
                            const std::shared_ptr<const MonospaceMetrics>& usedMetrics,
                            std::optional<Fixed> width)
    {
        LogTextLayout fresh;
        fresh.layOut(layout.text(), usedMetrics, width);
        ASSERT_EQ(layout.lineCount(), fresh.lineCount());
        EXPECT_EQ(layout.width(), fresh.width());
        const qsizetype rows = layout.text().rows().size();
        for (qsizetype row = 0; row <= rows; ++row) {
            ASSERT_EQ(layout.firstLineOf(row), fresh.firstLineOf(row));
        }
        for (qint64 line = 0; line + 1 < layout.lineCount(); ++line) {
            const VisualLine found = layout.visualLine(line);
            const VisualLine expected = fresh.visualLine(line);
            ASSERT_EQ(found.row, expected.row);
            ASSERT_EQ(found.lineInRow, expected.lineInRow);
        }
    }

    static QStringList randomLines(RandomText& random, int count)
    {
        QStringList lines = randomPlainLines(random, count);
        const QStringList unusual = unusualLines();
        for (QString& line : lines) {
            if (random.below(4) == 0) {
                line = unusual[random.below(static_cast<std::uint32_t>(unusual.size()))];
            }
        }
        return lines;
    }

    std::shared_ptr<const MonospaceMetrics> metrics = sampleMetrics();
    LogTextLayout layout;
};

TEST_F(LogTextLayoutTest, AnEmptyTextHasOneEmptyLine)
{
    layout.layOut(AttributedString(), metrics, columns(80));
    EXPECT_EQ(layout.lineCount(), 1);
    EXPECT_EQ(layout.width(), 0);
    EXPECT_EQ(layout.firstLineOf(0), 0);
}

TEST_F(LogTextLayoutTest, AfterTheLastLineFeedComesAnEmptyLine)
{
    layout.layOut(sampleText({QStringLiteral("a"), QStringLiteral("b")}), metrics, columns(80));
    EXPECT_EQ(layout.lineCount(), 3);
    EXPECT_EQ(layout.firstLineOf(2), 2);
}

TEST_F(LogTextLayoutTest, EveryVisualLineBelongsToARowAndEachRowToItsLines)
{
    RandomText random(1);
    layout.layOut(sampleText(randomLines(random, 200)), metrics, columns(24));
    for (qint64 line = 0; line + 1 < layout.lineCount(); ++line) {
        const VisualLine visual = layout.visualLine(line);
        EXPECT_EQ(layout.firstLineOf(visual.row) + visual.lineInRow, line);
        EXPECT_LT(visual.lineInRow, layout.rowLayout(visual.row).lineCount);
    }
}

TEST_F(LogTextLayoutTest, ExtendingGivesTheLayoutOfTheWholeText)
{
    for (const bool isWrapped : {true, false}) {
        RandomText random(2);
        const auto width = isWrapped ? columns(30) : std::nullopt;
        LogTextLayout grown;
        AttributedString text;
        for (int batch = 0; batch < 25; ++batch) {
            appendRows(text, randomLines(random, static_cast<int>(random.below(12))));
            grown.layOut(text, metrics, width);
            expectFresh(grown, metrics, width);
        }
    }
}

TEST_F(LogTextLayoutTest, LayingOutAtAnotherWidthOrSizeGivesAFreshLayout)
{
    RandomText random(3);
    AttributedString text;
    for (int step = 0; step < 30; ++step) {
        if (random.below(2) == 0) {
            appendRows(text, randomLines(random, static_cast<int>(random.below(8))));
        }
        if (random.below(3) == 0) {
            metrics = sampleMetrics(10.0 + random.below(12));
        }
        const auto width = random.below(4) == 0 ? std::nullopt : columns(1 + random.below(60));
        layout.layOut(text, metrics, width);
        expectFresh(layout, metrics, width);
    }
}

// What was found out at one width answers for others; it must never answer wrongly.
TEST_F(LogTextLayoutTest, AWindowDraggedToAndFroGivesFreshLayouts)
{
    RandomText random(5);
    const QStringList lines =
        excerptLines() + randomLines(random, 300) +
        QStringList{QStringLiteral("two words   "), QString(40, u'w') + QString(30, u' '),
                    QString(30, u' ') + QString(40, u'w'),
                    QStringLiteral("a ") + QString(90, u'w')};
    const AttributedString text = sampleText(lines);
    qsizetype width = 60;
    for (int step = 0; step < 200; ++step) {
        if (step % 40 == 0) {
            layout.layOut(AttributedString(), metrics, columns(width));
        }
        width = random.below(8) == 0 ? 1 + random.below(150) : width + random.below(9) - 4;
        width = std::clamp<qsizetype>(width, 1, 150);
        layout.layOut(text, metrics, columns(width));
        expectFresh(layout, metrics, columns(width));
    }
}

TEST_F(LogTextLayoutTest, OtherTextsAfterAnotherAreLaidOutAnew)
{
    RandomText random(4);
    for (int step = 0; step < 30; ++step) {
        layout.layOut(sampleText(randomLines(random, 20)), metrics, columns(30));
        expectFresh(layout, metrics, columns(30));
    }
}

// Rows that need shaping are remembered by their text, but where they break depends on the number
// before it too.
TEST_F(LogTextLayoutTest, TheSameTextAfterALongerNumberIsMeasuredAnew)
{
    const QString line = QStringLiteral("cafe\u0301 noir ou the\u0301");
    for (const qint64 number : {qint64{1}, qint64{123456789012}}) {
        AttributedString text;
        text.append(sampleRow(line, number));
        layout.layOut(text, metrics, columns(26));
        expectFresh(layout, metrics, columns(26));
    }
}

TEST_F(LogTextLayoutTest, RowsInDetailFollowAChangedText)
{
    layout.layOut(sampleText({QStringLiteral("before")}), metrics, columns(80));
    EXPECT_EQ(layout.rowLayout(0).text, QStringLiteral("1\tbefore"));
    layout.layOut(sampleText({QStringLiteral("after")}), metrics, columns(80));
    EXPECT_EQ(layout.rowLayout(0).text, QStringLiteral("1\tafter"));
}

TEST_F(LogTextLayoutTest, RowsInDetailStayTheSameHoweverManyAreAskedFor)
{
    QStringList lines;
    for (int i = 0; i < 2000; ++i) {
        lines.append(QString::number(i));
    }
    layout.layOut(sampleText(lines), metrics, columns(80));
    for (int i = 0; i < 2000; ++i) {
        const int row = (i * 37) % 2000;
        EXPECT_EQ(layout.rowLayout(row).text,
                  QString::number(row + 1) + u'\t' + QString::number(row));
        const auto [runs, isComplete] = layout.runsIn(row, TextRange{0, 1}, [] { return false; });
        EXPECT_TRUE(isComplete);
        EXPECT_EQ(runs.back().end(), layout.text().rows()[row].length());
    }
}

TEST_F(LogTextLayoutTest, TwoHundredThousandEmptyRowsAreAsManyLines)
{
    const AttributedString text = sampleText(QStringList(200'000, QString()));
    layout.layOut(text, metrics, columns(80));
    EXPECT_EQ(layout.lineCount(), 200'001);
    EXPECT_EQ(layout.visualLine(199'999).row, 199'999);
}

struct LongLine {
    const char* name;
    QString text;
};

std::vector<LongLine> longLines()
{
    constexpr qsizetype kHalf = 1 << 20;
    return {
        {"ascii", QString(2 * kHalf, u'x')},
        {"words", QStringLiteral("word ").repeated(2 * kHalf / 5)},
        {"emoji in the middle",
         QString(kHalf, u'x') + QStringLiteral("🙂") + QString(kHalf, u'y')},
        {"tabs", QString(kHalf / 8, u'\t')},
        {"spaces", QString(2 * kHalf, u' ')},
        {"Chinese", QStringLiteral("错误日志，").repeated(kHalf / 25)},
        {"Arabic", QStringLiteral("خطأ في قاعدة البيانات ").repeated(kHalf / 16 / 22)},
        {"control characters", QString(kHalf / 8, QChar(0x01))},
    };
}

TEST_F(LogTextLayoutTest, ASingleVeryLongLineIsLaidOutWholeWrappedOrNot)
{
    for (const LongLine& line : longLines()) {
        for (const auto& width : {columns(100), std::optional<Fixed>()}) {
            LogTextLayout single;
            single.layOut(sampleText({line.text}), metrics, width);
            const RowLayout& row = single.rowLayout(0);
            EXPECT_EQ(single.lineCount(), row.lineCount + 1) << line.name;
            EXPECT_EQ(row.fragments.back().end, line.text.size() + 2) << line.name;
            EXPECT_EQ(single.width() > 0, !width.has_value()) << line.name;
        }
    }
}

TEST_F(LogTextLayoutTest, PlacesFarIntoAVeryLongLineMapBack)
{
    for (const LongLine& line : longLines()) {
        if (line.text.contains(QChar(0x0642)) || line.text.contains(u'\t')) {
            continue; // places run backwards there, or are so far apart that points lose track
        }
        for (const auto& width : {columns(100), std::optional<Fixed>()}) {
            LogTextLayout single;
            single.layOut(sampleText({line.text}), metrics, width);
            const qsizetype length = line.text.size();
            for (const qsizetype offset : {qsizetype{2}, length / 3, length / 2 - 5, length - 1}) {
                const QRectF box = boxAt(single, TextPosition{0, offset});
                const TextPosition found =
                    positionAt(single, QPointF(box.left(), box.center().y()));
                if (line.text.at(offset - 2) != u' ' || !width) {
                    EXPECT_EQ(found.offset, offset) << line.name;
                }
            }
        }
    }
}

} // namespace
} // namespace quillon
