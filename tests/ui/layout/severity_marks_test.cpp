// SPDX-License-Identifier: MIT
#include "tests/ui/layout/log_text_samples.h"
#include "ui/layout/severity_marks.h"
#include "ui/layout/text_geometry.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <ostream>

namespace quillon {

void PrintTo(const SeverityMark& mark, std::ostream* stream)
{
    *stream << "pixel " << mark.pixel << " for row " << mark.row;
}

namespace {

constexpr LogSeverity kFatal = LogSeverity::Fatal;
constexpr LogSeverity kError = LogSeverity::Error;
constexpr LogSeverity kInfo = LogSeverity::Info;

class SeverityMarks : public ::testing::Test {
protected:
    // Adds `count` rows of that severity.
    void add(LogSeverity severity, int count = 1, const QString& line = QStringLiteral("x"))
    {
        for (int i = 0; i < count; ++i) {
            text.append(AttributedRow(text.rows().size() + 1, line, severity,
                                      std::make_shared<const SampleStyler>()));
        }
    }
    // The marks of the text as it is now.
    std::vector<SeverityMark> marks(int trackHeight, std::optional<Fixed> lineWidth = std::nullopt)
    {
        layout.layOut(text, metrics, lineWidth);
        rows.follow(text);
        return marksOnTrack(rows, layout, trackHeight);
    }
    // A track on which each pixel is one of the text.
    [[nodiscard]] int wholeHeight(qint64 lines) const
    {
        return static_cast<int>(lines) * metrics->lineHeight() +
               static_cast<int>(2 * kTextInsetHeight);
    }
    [[nodiscard]] int topOfLine(qint64 line) const
    {
        return static_cast<int>(kTextInsetHeight) + static_cast<int>(line) * metrics->lineHeight();
    }
    [[nodiscard]] std::vector<int> pixelsOf(const std::vector<SeverityMark>& found) const
    {
        std::vector<int> pixels;
        std::transform(found.begin(), found.end(), std::back_inserter(pixels),
                       [](const SeverityMark& mark) { return mark.pixel; });
        return pixels;
    }

    std::shared_ptr<const MonospaceMetrics> metrics = sampleMetrics();
    AttributedString text;
    LogTextLayout layout;
    SevereRows rows;
};

TEST_F(SeverityMarks, AnEmptyTextHasNone)
{
    EXPECT_EQ(marks(100), std::vector<SeverityMark>());
}

TEST_F(SeverityMarks, OnlyFatalAndErrorRowsHaveOne)
{
    for (const LogSeverity severity : kAllSeverities) {
        add(severity);
    }
    const std::vector<SeverityMark> expected{{topOfLine(0), 0}, {topOfLine(1), 1}};
    EXPECT_EQ(marks(wholeHeight(9)), expected);
}

TEST_F(SeverityMarks, TheyStandWhereTheRowsDoInTheTextsHeight)
{
    add(kInfo, 50);
    add(kError);
    add(kInfo, 48);
    add(kFatal);
    // The empty line after the last row belongs to the height.
    const int whole = wholeHeight(101);
    const std::vector<SeverityMark> expected{{topOfLine(50), 50}, {topOfLine(99), 99}};
    EXPECT_EQ(marks(whole), expected);
    EXPECT_EQ(pixelsOf(marks(300)),
              (std::vector<int>{topOfLine(50) * 300 / whole, topOfLine(99) * 300 / whole}));
}

TEST_F(SeverityMarks, TheLastRowsMarkIsOnTheTrack)
{
    add(kInfo, 100'000);
    add(kFatal);
    EXPECT_EQ(pixelsOf(marks(300)), (std::vector<int>{299}));
}

TEST_F(SeverityMarks, ManyRowsOnOnePixelHaveOneMark)
{
    add(kError, 10'000);
    std::vector<int> everyPixel;
    for (int pixel = 0; pixel < 300; ++pixel) {
        everyPixel.push_back(pixel);
    }
    EXPECT_EQ(pixelsOf(marks(300)), everyPixel);
}

TEST_F(SeverityMarks, TheWorstRowOfAPixelHasItsMark)
{
    add(kInfo, 1050);
    add(kError, 3);
    add(kFatal, 2);
    add(kError, 3);
    add(kInfo, 950);
    const std::vector<SeverityMark> expected{{10, 1053}};
    EXPECT_EQ(marks(20), expected);
}

TEST_F(SeverityMarks, AWrappedRowsMarkStandsAtItsFirstLine)
{
    const Fixed tenColumns = widthOfColumns(10, *metrics);
    add(kInfo, 1, QString(100, u'x'));
    add(kFatal, 1, QString(100, u'x'));
    layout.layOut(text, metrics, tenColumns);
    ASSERT_GT(layout.firstLineOf(1), 5);
    EXPECT_EQ(pixelsOf(marks(wholeHeight(layout.lineCount()), tenColumns)),
              (std::vector<int>{topOfLine(layout.firstLineOf(1))}));
}

TEST_F(SeverityMarks, RowsThatAreAppendedAreMarkedToo)
{
    add(kError);
    add(kInfo, 3);
    marks(100);
    add(kFatal);
    add(kInfo, 5);
    const std::vector<SeverityMark> expected{{topOfLine(0), 0}, {topOfLine(4), 4}};
    EXPECT_EQ(marks(wholeHeight(11)), expected);
}

TEST_F(SeverityMarks, NothingIsLeftOfATextThatWasReplaced)
{
    add(kFatal, 20);
    add(kError, 20);
    marks(100);
    text = AttributedString();
    add(kInfo, 3);
    add(kError);
    const std::vector<SeverityMark> expected{{topOfLine(3), 3}};
    EXPECT_EQ(marks(wholeHeight(5)), expected);
}

TEST_F(SeverityMarks, ATrackWithoutRoomHasNoneButAtItsBeginning)
{
    add(kError, 5);
    add(kFatal, 5);
    EXPECT_EQ(pixelsOf(marks(0)), (std::vector<int>{0}));
}

} // namespace
} // namespace quillon
