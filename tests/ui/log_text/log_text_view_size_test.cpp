// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/log_text/log_text_view_fixture.h"

#include <QPixmap>

#include <limits>

namespace quillon {
namespace {

using LogTextViewSize = LogTextViewFixture;

TEST_F(LogTextViewSize, ResizingWhileAtTheEndStaysAtTheEnd)
{
    show(wrapped(sampleText(manyLines())));
    for (const int width : {300, 200, 700}) {
        view->resize(width, 180);
        settle();
        EXPECT_TRUE(isAtEnd()) << width;
    }
}

TEST_F(LogTextViewSize, ResizingElsewhereKeepsTheTopmostRow)
{
    show(wrapped(sampleText(manyLines())));
    vertical().setValue(1000);
    const qsizetype row = view->positionAtPoint(QPoint(0, 0)).row;
    for (const int width : {300, 420, 700, 250}) {
        view->resize(width, 200);
        settle();
        EXPECT_EQ(view->positionAtPoint(QPoint(0, 0)).row, row) << width;
    }
}

TEST_F(LogTextViewSize, ResizingWithoutEffectOnTheLinesDoesNotCreep)
{
    show(wrapped(sampleText(manyLines())));
    vertical().setValue(1003);
    for (int width = 481; width < 500; ++width) {
        view->resize(width, 200);
        settle();
    }
    view->resize(480, 200);
    settle();
    EXPECT_EQ(vertical().value(), 1003);
}

TEST_F(LogTextViewSize, AResizedViewIsLaidOutForItsNewClip)
{
    show(wrapped(sampleText(manyLines())));
    view->resize(333, 222);
    settle();
    EXPECT_EQ(view->geometry().container().width, view->viewport()->width());
    LogTextLayout fresh;
    const auto metrics = sampleMetrics();
    const Fixed columns = toFixed(view->geometry().lineWidth()) / metrics->columnAdvance();
    fresh.layOut(view->attributedText(), metrics, widthOfColumns(columns, *metrics));
    EXPECT_EQ(view->textLayout().lineCount(), fresh.lineCount());
}

TEST_F(LogTextViewSize, AWindowNarrowerThanOneCharacterStillShowsOnePerLine)
{
    show(wrapped(sampleText({QStringLiteral("abc")})), QSize(20, 100));
    EXPECT_GE(view->textLayout().lineCount(), 4);
}

TEST_F(LogTextViewSize, FontSizesNobodyCanReadDoNoHarm)
{
    LogTextContent content = wrapped(sampleText(manyLines(5)));
    show(content);
    for (const double size :
         {0.0, -5.0, 0.01, 1e-300, 5000.0, 1e300, std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        content.fontSize = size;
        update(content);
        EXPECT_EQ(view->textLayout().text().rows().size(), 5) << size;
        EXPECT_GT(view->geometry().frame().height, 0.0) << size;
        EXPECT_FALSE(view->viewport()->grab().isNull()) << size;
    }
}

TEST_F(LogTextViewSize, ScrollingToAPositionBringsItIntoView)
{
    show(unwrapped(sampleText(QStringList(100, QString(300, u'w')))));
    for (const TextPosition place :
         {TextPosition{50, 200}, TextPosition{0, 0}, TextPosition{99, 302}, TextPosition{100, 0}}) {
        view->scrollToPosition(place);
        const QRect box = view->boxOfPosition(place);
        EXPECT_TRUE(view->viewport()->rect().contains(box.center())) << place.row;
    }
}

TEST_F(LogTextViewSize, ScrollingToAVisiblePositionScrollsNothing)
{
    show(wrapped(sampleText(manyLines())));
    vertical().setValue(500);
    view->scrollToPosition(view->positionAtPoint(QPoint(100, 100)));
    EXPECT_EQ(vertical().value(), 500);
}

} // namespace
} // namespace quillon
