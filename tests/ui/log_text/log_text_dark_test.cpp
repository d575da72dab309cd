// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"
#include "tests/ui/log_text/log_text_painting_fixture.h"
#include "ui/log_text/log_text_colors.h"

namespace quillon {
namespace {

class LogTextInTheDark : public LogTextPainting {
protected:
    LogTextView& showDark(const LogTextContent& content)
    {
        show(content);
        view->setPalette(paletteFor(Appearance::Dark));
        settle();
        return *view;
    }
};

TEST_F(LogTextInTheDark, TheBackgroundIsDarkAndTheTextLight)
{
    showDark(wrapped(sampleText({QStringLiteral("xxxx")})));
    const QImage image = painted();
    EXPECT_LT(qGray(image.pixel(image.width() - 3, image.height() - 3)), 60);
    EXPECT_GT(count(image, boxOf(0, 2, 6), [](QRgb pixel) { return qGray(pixel) > 150; }), 10);
}

TEST_F(LogTextInTheDark, TheTextAndBackgroundAreTheSystemsColours)
{
    const QPalette dark = paletteFor(Appearance::Dark);
    EXPECT_EQ(textColorOn(Color::system(SystemColor::Text), dark),
              resolvedColor(Color::system(SystemColor::Text), dark));
    showDark(wrapped(AttributedString()));
    EXPECT_EQ(painted().pixel(5, 5), background());
}

TEST_F(LogTextInTheDark, AColourTooDarkToReadIsLightenedAndKeepsItsHue)
{
    const QPalette dark = paletteFor(Appearance::Dark);
    const QColor blue = textColorOn(Color::rgb(0.0, 0.0, 0.4), dark);
    EXPECT_GE(blue.lightnessF(), 0.54F);
    EXPECT_NEAR(blue.hslHueF(), QColor(0, 0, 102).hslHueF(), 0.01);
    EXPECT_GE(textColorOn(Color::rgb(0.0, 0.0, 0.0), dark).lightnessF(), 0.54F);
}

TEST_F(LogTextInTheDark, AColourThatCanBeReadStaysAsItIs)
{
    const QPalette dark = paletteFor(Appearance::Dark);
    EXPECT_EQ(textColorOn(Color::rgb(1.0, 0.8, 0.6), dark).rgb(), qRgb(255, 204, 153));
}

TEST_F(LogTextInTheDark, InTheLightEveryColourStaysAsItIs)
{
    const QPalette light = paletteFor(Appearance::Light);
    EXPECT_EQ(textColorOn(Color::rgb(0.0, 0.0, 0.4), light).rgb(), qRgb(0, 0, 102));
}

// Grabbing a picture would paint anyway, so what counts is that somebody asks for one.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    int paints = 0;
};

TEST_F(LogTextInTheDark, AChangeOfAppearanceRepaintsTheText)
{
    show(wrapped(sampleText({QStringLiteral("xxxx")})));
    const PaintCounter counter(*view->viewport());
    settle();
    ASSERT_EQ(counter.paints, 0);
    view->setPalette(paletteFor(Appearance::Dark));
    EXPECT_TRUE(spinUntil([&counter] { return counter.paints > 0; }));
}

} // namespace
} // namespace quillon
