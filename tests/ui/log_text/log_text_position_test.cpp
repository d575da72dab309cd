// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/layout/log_text_samples.h"
#include "ui/layout/hit_testing.h"
#include "ui/log_text/log_text_selection.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

class LogTextPositions : public ::testing::Test {
protected:
    void layOut(const QStringList& lines, qsizetype columns)
    {
        layout.layOut(sampleText(lines), metrics,
                      columns > 0 ? std::optional(widthOfColumns(columns, *metrics))
                                  : std::nullopt);
    }

    std::shared_ptr<const MonospaceMetrics> metrics = sampleMetrics();
    LogTextLayout layout;
};

TEST_F(LogTextPositions, EveryPlaceOfThePlainRowsMapsToABoxAndBack)
{
    RandomText random(55);
    const QStringList lines = randomPlainLines(random, 60);
    for (const qsizetype columns : {0, 11, 40}) {
        layOut(lines, columns);
        const auto& rows = layout.text().rows();
        for (qsizetype row = 0; row < rows.size(); ++row) {
            for (qsizetype offset = 0; offset < rows[row].length(); ++offset) {
                const TextPosition place{row, offset};
                const QRectF box = boxAt(layout, place);
                const QPointF point(box.left() + 0.01, box.center().y());
                ASSERT_TRUE(positionAt(layout, point) == place)
                    << columns << ' ' << offset << ::testing::PrintToString(rows[row].string());
                EXPECT_EQ(box.top(), textOrigin().y() + static_cast<double>(lineOf(layout, place)) *
                                                            metrics->lineHeight());
            }
        }
    }
}

TEST_F(LogTextPositions, ThePointAboveTheTextIsOnItsFirstLineAndTheOneBelowAtItsEnd)
{
    layOut({QStringLiteral("abc"), QStringLiteral("def")}, 40);
    EXPECT_TRUE(positionAt(layout, QPointF(0, -100)) == (TextPosition{0, 0}));
    EXPECT_TRUE(positionAt(layout, QPointF(1000, -100)) == (TextPosition{0, 5}));
    EXPECT_TRUE(positionAt(layout, QPointF(50, 1e9)) == (TextPosition{2, 0}));
}

TEST_F(LogTextPositions, ThePointRightOfAWrappedLineIsTheLinesEnd)
{
    layOut({QString(30, u'w')}, 12);
    const TextPosition end = positionAt(layout, QPointF(1000, textOrigin().y() + 1));
    EXPECT_EQ(end.offset, layout.rowLayout(0).fragments[1].start);
}

TEST_F(LogTextPositions, TheCharacterRightOfAWrappedLineIsItsLast)
{
    layOut({QString(30, u'w')}, 12);
    const TextPosition last = characterAt(layout, QPointF(1000, textOrigin().y() + 1));
    EXPECT_EQ(last.offset, layout.rowLayout(0).fragments[1].start - 1);
}

TEST_F(LogTextPositions, TheCharacterAtAPointIsTheOneWhoseBoxHoldsIt)
{
    layOut({QStringLiteral("abcdef")}, 0);
    const QRectF box = boxAt(layout, TextPosition{0, 4});
    for (const double part : {0.1, 0.4, 0.6, 0.9}) {
        const QPointF point(box.left() + part * box.width(), box.center().y());
        EXPECT_TRUE(characterAt(layout, point) == (TextPosition{0, 4})) << part;
    }
}

TEST_F(LogTextPositions, ThePlaceNearestToTheRightHalfOfACharacterIsBehindIt)
{
    layOut({QStringLiteral("abcdef")}, 0);
    const QRectF box = boxAt(layout, TextPosition{0, 4});
    const QPointF right(box.left() + 0.6 * box.width(), box.center().y());
    EXPECT_TRUE(positionAt(layout, right) == (TextPosition{0, 5}));
}

TEST_F(LogTextPositions, ABoxAtARowsEndHasNoWidth)
{
    layOut({QStringLiteral("abc"), QStringLiteral("e\u0301")}, 40);
    EXPECT_EQ(boxAt(layout, TextPosition{0, 5}).width(), 0);
    EXPECT_EQ(boxAt(layout, TextPosition{1, 4}).width(), 0);
    EXPECT_EQ(boxAt(layout, TextPosition{2, 0}).width(), 0);
    EXPECT_GT(boxAt(layout, TextPosition{2, 0}).top(), boxAt(layout, TextPosition{1, 0}).top());
}

TEST_F(LogTextPositions, ABoxHoldsAWholeLetterWithItsMarks)
{
    layOut({QStringLiteral("e\u0301x")}, 0);
    EXPECT_NEAR(boxAt(layout, TextPosition{0, 2}).width(), toPoints(metrics->columnAdvance()), 0.1);
}

TEST_F(LogTextPositions, BoxesOfARightToLeftWordRunFromRightToLeft)
{
    layOut({QStringLiteral("שגיאה")}, 0);
    double before = 1e9;
    for (qsizetype offset = 2; offset < 7; ++offset) {
        const QRectF box = boxAt(layout, TextPosition{0, offset});
        EXPECT_GT(box.width(), 0);
        EXPECT_LE(box.right(), before + 0.1);
        before = box.left();
    }
}

TEST_F(LogTextPositions, APointInAnEmptyTextIsItsOnlyPlace)
{
    layOut({}, 40);
    EXPECT_TRUE(positionAt(layout, QPointF(50, 50)) == TextPosition());
    EXPECT_TRUE(characterAt(layout, QPointF(50, 50)) == TextPosition());
    EXPECT_EQ(lineOf(layout, TextPosition()), 0);
}

class CharacterSteps : public ::testing::Test {
protected:
    // The places that stepping visits, in one row, from its start to its line feed.
    [[nodiscard]] static std::vector<qsizetype> forward(const AttributedString& text)
    {
        std::vector<qsizetype> offsets;
        for (TextPosition at; at.row == 0; at = positionAfter(text, at)) {
            offsets.push_back(at.offset);
        }
        return offsets;
    }
    [[nodiscard]] static std::vector<qsizetype> backward(const AttributedString& text)
    {
        std::vector<qsizetype> offsets;
        TextPosition at{1, 0};
        while (at != TextPosition()) {
            at = positionBefore(text, at);
            offsets.insert(offsets.begin(), at.offset);
        }
        return offsets;
    }
};

TEST_F(CharacterSteps, AreSingleUnitsInPlainText)
{
    EXPECT_EQ(forward(sampleText({QStringLiteral("ab")})), (std::vector<qsizetype>{0, 1, 2, 3, 4}));
}

TEST_F(CharacterSteps, NeverStopInsideAnEmojiOrBeforeAMark)
{
    const AttributedString text = sampleText({QStringLiteral("e\u0301🙂👩‍👩‍👧x")});
    EXPECT_EQ(forward(text), (std::vector<qsizetype>{0, 1, 2, 4, 6, 14, 15}));
}

TEST_F(CharacterSteps, AreTheSameInBothDirections)
{
    for (const QString& line : unusualLines()) {
        const AttributedString text = sampleText({line});
        EXPECT_EQ(forward(text), backward(text)) << ::testing::PrintToString(line);
    }
}

TEST_F(CharacterSteps, StayWhereTheTextBeginsAndEnds)
{
    const AttributedString text = sampleText({QStringLiteral("a")});
    EXPECT_TRUE(positionBefore(text, TextPosition()) == TextPosition());
    EXPECT_TRUE(positionAfter(text, TextPosition{1, 0}) == (TextPosition{1, 0}));
    EXPECT_TRUE(positionAfter(AttributedString(), TextPosition()) == TextPosition());
}

} // namespace
} // namespace quillon
