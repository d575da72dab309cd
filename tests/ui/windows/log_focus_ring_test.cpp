// SPDX-License-Identifier: MIT
#include "tests/ui/windows/content_view_fixture.h"
#include "ui/controls/style.h"
#include "ui/log_text/log_text_view.h"
#include "ui/theme/contrast.h"

#include <QApplication>
#include <QTest>

namespace quillon {
namespace {

class LogFocusRingTest : public ContentViewFixture {
protected:
    LogFocusRingTest()
    {
        applyAppearance(*qApp, Appearance::Light);
        openLog();
        view.show();
        view.activateWindow();
        EXPECT_TRUE(spinUntil([this] { return view.logView().hasFocus(); }));
        EXPECT_TRUE(
            spinUntil([this] { return view.logView().attributedText().rows().size() == 3; }));
    }
    ~LogFocusRingTest() override { applyAppearance(*qApp, Appearance::Light); }

    [[nodiscard]] QImage picture()
    {
        const QRect log(view.logView().mapTo(&view, QPoint()), view.logView().size());
        return view.grab(log).toImage();
    }
    // Whether the log's four edges have the ring's colour in their middles.
    [[nodiscard]] bool isRinged()
    {
        const QImage shown = picture();
        const QColor ring = view.palette().color(QPalette::Link);
        const QPoint middle = shown.rect().center();
        const int right = shown.width() - 1;
        const int bottom = shown.height() - 1;
        for (const QPoint place : {QPoint(0, middle.y()), QPoint(right, middle.y()),
                                   QPoint(middle.x(), 0), QPoint(middle.x(), bottom)}) {
            if (shown.pixelColor(place) != ring) {
                return false;
            }
        }
        return true;
    }
    void tabInto()
    {
        clear().setFocus();
        QTest::keyClick(&clear(), Qt::Key_Tab);
        ASSERT_TRUE(view.logView().hasFocus());
    }
};

TEST_F(LogFocusRingTest, AtTheStartThereIsNone)
{
    EXPECT_FALSE(isRinged());
}

TEST_F(LogFocusRingTest, TabIntoTheLogShowsIt)
{
    tabInto();
    EXPECT_TRUE(isRinged());
}

TEST_F(LogFocusRingTest, TabOutOfTheLogTakesItAway)
{
    tabInto();
    QTest::keyClick(&view.logView(), Qt::Key_Tab);
    ASSERT_FALSE(view.logView().hasFocus());
    EXPECT_FALSE(isRinged());
}

TEST_F(LogFocusRingTest, AClickIntoTheLogTakesItAway)
{
    tabInto();
    QTest::mouseClick(view.logView().viewport(), Qt::LeftButton);
    EXPECT_FALSE(isRinged());
}

TEST_F(LogFocusRingTest, AMenuThatIsClosedGivesItBack)
{
    tabInto();
    for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent event(type, Qt::PopupFocusReason);
        QApplication::sendEvent(&view.logView(), &event);
    }
    EXPECT_TRUE(isRinged());
}

TEST_F(LogFocusRingTest, ItMovesNoRow)
{
    const QRect before = view.logView().boxOfPosition(TextPosition{1, 0});
    const QSize viewport = view.logView().viewport()->size();
    tabInto();
    EXPECT_EQ(view.logView().boxOfPosition(TextPosition{1, 0}), before);
    EXPECT_EQ(view.logView().viewport()->size(), viewport);
}

TEST_F(LogFocusRingTest, ItCanBeToldFromTheLogInEveryAppearance)
{
    for (const PaletteStyle& style :
         {PaletteStyle(Appearance::Light), PaletteStyle(Appearance::Dark),
          PaletteStyle(Appearance::Light, Contrast::High),
          PaletteStyle(Appearance::Dark, Contrast::High)}) {
        applyAppearance(*qApp, style);
        tabInto();
        EXPECT_TRUE(isRinged());
        const QImage shown = picture();
        const QPoint middle = shown.rect().center();
        EXPECT_GE(contrastRatio(shown.pixelColor(0, middle.y()), shown.pixelColor(5, middle.y())),
                  3.0);
    }
}

} // namespace
} // namespace quillon
