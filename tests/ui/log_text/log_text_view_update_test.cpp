// SPDX-License-Identifier: MIT
#include "tests/support/paint_watch.h"
#include "tests/ui/log_text/log_text_view_fixture.h"

#include <QSignalSpy>

namespace quillon {
namespace {

// What an update costs besides laying out what is new.
class LogTextViewUpdate : public LogTextViewFixture {
protected:
    // The paintings that showing other content takes.
    int paintingsOf(const LogTextContent& content)
    {
        PaintWatch watch(*view->viewport());
        update(content);
        return watch.takePaintings();
    }
};

TEST_F(LogTextViewUpdate, ToWhatIsShownAlreadyPaintsNothing)
{
    const AttributedString text = sampleText(manyLines());
    show(wrapped(text));
    EXPECT_EQ(paintingsOf(wrapped(text)), 0);
}

TEST_F(LogTextViewUpdate, ToWhatIsShownAlreadyPaintsOnceWhenThatScrolls)
{
    const AttributedString text = sampleText(manyLines());
    show(wrapped(text));
    vertical().setValue(0);
    EXPECT_EQ(paintingsOf(wrapped(text)), 1);
    EXPECT_TRUE(isAtEnd());
}

TEST_F(LogTextViewUpdate, PaintsAnotherTextOnce)
{
    show(wrapped(sampleText(manyLines())));
    EXPECT_EQ(paintingsOf(wrapped(sampleText(manyLines()))), 1) << "as high";
    EXPECT_EQ(paintingsOf(wrapped(sampleText(manyLines(2)))), 1) << "the scroll bar goes";
    EXPECT_EQ(paintingsOf(wrapped(sampleText(manyLines()))), 1) << "it comes back";
    EXPECT_EQ(paintingsOf(unwrapped(sampleText(manyLines()))), 1) << "another one comes";
}

TEST_F(LogTextViewUpdate, PaintsOnceForAnotherSizeAndForRowsThatCome)
{
    AttributedString text = sampleText(manyLines());
    show(wrapped(text));
    LogTextContent larger = wrapped(text);
    larger.fontSize = 18;
    EXPECT_EQ(paintingsOf(larger), 1);
    appendRows(text, {QStringLiteral("new")});
    EXPECT_EQ(paintingsOf(wrapped(text)), 1);
}

TEST_F(LogTextViewUpdate, ManyInOneTurnPaintOnce)
{
    show(wrapped(sampleText(manyLines())));
    PaintWatch watch(*view->viewport());
    for (int i = 0; i < 5; ++i) {
        view->update(wrapped(sampleText(manyLines(100 + i))));
    }
    settle();
    EXPECT_EQ(watch.takePaintings(), 1);
}

TEST_F(LogTextViewUpdate, TellsOfAnotherTextAndNotOfTheSameOne)
{
    const AttributedString text = sampleText(manyLines());
    show(wrapped(text));
    QSignalSpy replaced(view.get(), &LogTextView::textReplaced);
    update(wrapped(text));
    EXPECT_EQ(replaced.count(), 0);
    update(wrapped(sampleText(manyLines())));
    EXPECT_EQ(replaced.count(), 1);
}

} // namespace
} // namespace quillon
