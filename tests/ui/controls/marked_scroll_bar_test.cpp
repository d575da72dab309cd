// SPDX-License-Identifier: MIT
#include "ui/controls/marked_scroll_bar.h"
#include "ui/controls/style.h"

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>

#include <gtest/gtest.h>

namespace quillon {
namespace {

const QColor kMarkColor(1, 2, 200);

// A bar that is 12 pixels wide and 300 high, with a slider at its end.
class MarkedScrollBarTest : public ::testing::Test {
protected:
    MarkedScrollBarTest()
    {
        applyAppearance(*qApp, Appearance::Light);
        bar.setRange(0, 1000);
        bar.setPageStep(100);
        bar.setValue(1000);
        bar.resize(bar.sizeHint().width(), 300);
        bar.show();
    }
    QImage picture() { return bar.grab().toImage(); }
    // The lines of the picture that have a mark at the outer edge, beyond the slider.
    [[nodiscard]] std::vector<int> markedLines()
    {
        const QImage shown = picture();
        std::vector<int> lines;
        for (int y = 0; y < shown.height(); ++y) {
            if (shown.pixelColor(shown.width() - 2, y) == kMarkColor) {
                lines.push_back(y);
            }
        }
        return lines;
    }
    void click(int y)
    {
        const QPoint place(bar.width() / 2, y);
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, bar.mapToGlobal(place), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QApplication::sendEvent(&bar, &event);
        }
    }

    std::vector<ScrollBarMark> marks{{40, kMarkColor}};
    int timesAsked = 0;
    MarkedScrollBar bar{[this](int trackLength) {
        ++timesAsked;
        EXPECT_EQ(trackLength, bar.height());
        return marks;
    }};
};

TEST_F(MarkedScrollBarTest, ShowsItsMarksAtTheTracksEdge)
{
    EXPECT_EQ(markedLines(), (std::vector<int>{40, 41}));
}

TEST_F(MarkedScrollBarTest, ShowsAMarkAtTheTracksEndWhole)
{
    marks = {{299, kMarkColor}};
    EXPECT_EQ(markedLines(), (std::vector<int>{298, 299}));
}

TEST_F(MarkedScrollBarTest, AMarkAndTheSliderOverItAreBothSeen)
{
    marks = {{290, kMarkColor}};
    const QImage shown = picture();
    const QColor both = shown.pixelColor(shown.width() - 5, 290);
    EXPECT_NE(both, kMarkColor);
    EXPECT_GT(both.blue(), both.red() + 60);
    // Where the slider is alone.
    const QColor slider = shown.pixelColor(shown.width() / 2 - 2, 290);
    EXPECT_EQ(slider, shown.pixelColor(shown.width() / 2 - 2, 285));
    EXPECT_NE(slider, shown.pixelColor(shown.width() / 2 - 2, 100));
    EXPECT_EQ(markedLines(), (std::vector<int>{290, 291}));
}

TEST_F(MarkedScrollBarTest, ShowsNoneWhereThereIsNothingToScroll)
{
    bar.setRange(0, 0);
    EXPECT_EQ(markedLines(), std::vector<int>());
}

TEST_F(MarkedScrollBarTest, AsksForMarksOnceForAsLongAsNothingChanges)
{
    timesAsked = 0;
    bar.forgetMarks();
    picture();
    bar.setValue(20);
    picture();
    EXPECT_EQ(timesAsked, 1);
}

TEST_F(MarkedScrollBarTest, ShowsOtherMarksOnceTheFormerAreForgotten)
{
    picture();
    marks = {{80, kMarkColor}};
    bar.forgetMarks();
    EXPECT_EQ(markedLines(), (std::vector<int>{80, 81}));
}

TEST_F(MarkedScrollBarTest, AsksAnewForATrackOfAnotherLength)
{
    picture();
    timesAsked = 0;
    bar.resize(bar.width(), 200);
    picture();
    EXPECT_EQ(timesAsked, 1);
}

TEST_F(MarkedScrollBarTest, AsksAnewForAnotherAppearance)
{
    picture();
    timesAsked = 0;
    applyAppearance(*qApp, Appearance::Dark);
    QCoreApplication::processEvents();
    picture();
    EXPECT_EQ(timesAsked, 1);
    applyAppearance(*qApp, Appearance::Light);
}

TEST_F(MarkedScrollBarTest, AClickOnAMarkPagesAsOnAnyTrack)
{
    click(41);
    EXPECT_EQ(bar.value(), 900);
}

TEST_F(MarkedScrollBarTest, IsAnyScrollBarToScreenReaders)
{
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&bar);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::ScrollBar);
    QScrollBar plain(Qt::Vertical);
    plain.setRange(0, 1000);
    QAccessibleInterface* const other = QAccessible::queryAccessibleInterface(&plain);
    EXPECT_EQ(accessible->childCount(), other->childCount());
    EXPECT_EQ(accessible->text(QAccessible::Name), other->text(QAccessible::Name));
}

} // namespace
} // namespace quillon
