// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/log_text/log_text_view_fixture.h"
#include "ui/layout/hit_testing.h"
#include "ui/log_text/log_text_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

namespace quillon {
namespace {

class LogTextViewTest : public LogTextViewFixture {
protected:
    [[nodiscard]] double clipWidth() const { return view->viewport()->width(); }
    [[nodiscard]] QString shownText() const { return view->attributedText().string(); }
};

TEST_F(LogTextViewTest, BeforeItHasAWidthTheContainerIsOnePointWideNotZero)
{
    const LogTextView created(wrapped(sampleText(manyLines())));
    EXPECT_EQ(created.geometry().container().width, 1.0);
}

TEST_F(LogTextViewTest, AfterTheFirstTurnTheContainerHasTheClipsWidth)
{
    view = std::make_unique<LogTextView>(wrapped(sampleText(manyLines())));
    view->resize(480, 200);
    view->show();
    settle();
    EXPECT_EQ(view->geometry().container().width, clipWidth());
    EXPECT_EQ(view->geometry().frame().width, clipWidth());
}

TEST_F(LogTextViewTest, TheTextComesOneTurnAfterCreation)
{
    view = std::make_unique<LogTextView>(wrapped(sampleText({QStringLiteral("a")})));
    EXPECT_TRUE(view->attributedText().isEmpty());
    settle();
    EXPECT_EQ(shownText(), QStringLiteral("1\ta\n"));
}

TEST_F(LogTextViewTest, AViewThatIsNeverShownIsNotLeftOneCharacterWide)
{
    view = std::make_unique<LogTextView>(wrapped(sampleText({QString(300, u'w')})));
    settle();
    EXPECT_GT(view->geometry().container().width, 100.0);
    EXPECT_LT(view->textLayout().lineCount(), 30);
}

TEST_F(LogTextViewTest, TheWrappingThatIsAppliedASecondTimeIsTheLatest)
{
    view = std::make_unique<LogTextView>(wrapped(sampleText(manyLines())));
    view->update(unwrapped(sampleText(manyLines())));
    settle();
    EXPECT_TRUE(view->geometry().isHorizontallyResizable());
    EXPECT_EQ(view->geometry().container().width, kUnlimited);
}

TEST_F(LogTextViewTest, TheTextNeverChangesInsideAnUpdate)
{
    show(wrapped(sampleText({QStringLiteral("before")})));
    view->update(wrapped(sampleText({QStringLiteral("after")})));
    EXPECT_EQ(shownText(), QStringLiteral("1\tbefore\n"));
    settle();
    EXPECT_EQ(shownText(), QStringLiteral("1\tafter\n"));
}

// The scroll bar that goes away resizes the viewport within the update.
TEST_F(LogTextViewTest, TheTextDoesNotChangeInsideAnUpdateThatRemovesAScrollBar)
{
    show(unwrapped(sampleText({QString(500, u'w')})));
    ASSERT_TRUE(horizontal().isVisible());
    const AttributedString before = view->attributedText();
    view->update(wrapped(sampleText({QStringLiteral("after")})));
    EXPECT_FALSE(horizontal().isVisible());
    EXPECT_EQ(shownText(), before.string());
    settle();
    EXPECT_EQ(shownText(), QStringLiteral("1\tafter\n"));
}

TEST_F(LogTextViewTest, ResizingBeforeTheReplacementDoesNotBringItForward)
{
    show(wrapped(sampleText({QStringLiteral("before")})));
    view->update(wrapped(sampleText({QStringLiteral("after")})));
    view->resize(300, 150);
    EXPECT_EQ(shownText(), QStringLiteral("1\tbefore\n"));
}

TEST_F(LogTextViewTest, WrappingAppliesInsideTheUpdate)
{
    show(wrapped(sampleText(manyLines())));
    view->update(unwrapped(view->attributedText()));
    EXPECT_TRUE(view->geometry().isHorizontallyResizable());
    EXPECT_EQ(view->geometry().container().width, kUnlimited);
    view->update(wrapped(view->attributedText()));
    EXPECT_FALSE(view->geometry().isHorizontallyResizable());
    EXPECT_EQ(view->geometry().container().width, clipWidth());
}

TEST_F(LogTextViewTest, OfSeveralUpdatesInOneTurnTheLastOneWins)
{
    show(wrapped(AttributedString()));
    for (const char16_t letter : {u'a', u'b', u'c'}) {
        view->update(wrapped(sampleText({QString(QChar(letter))})));
    }
    settle();
    EXPECT_EQ(shownText(), QStringLiteral("1\tc\n"));
}

TEST_F(LogTextViewTest, AViewThatGoesAwayBeforeItsReplacementIsNoHarm)
{
    view = std::make_unique<LogTextView>(wrapped(sampleText(manyLines())));
    view.reset();
    settle();
    EXPECT_EQ(view, nullptr);
}

TEST_F(LogTextViewTest, ANewTextIsScrolledToItsEnd)
{
    show(wrapped(sampleText(manyLines())));
    EXPECT_GT(vertical().maximum(), 0);
    EXPECT_TRUE(isAtEnd());
    const QRect last = view->boxOfPosition(TextPosition{200, 0});
    EXPECT_LE(last.bottom(), view->viewport()->height());
    EXPECT_GT(last.bottom(), 0);
}

TEST_F(LogTextViewTest, EveryUpdateScrollsToTheEndAlsoOneOfTheSameText)
{
    const AttributedString text = sampleText(manyLines());
    show(wrapped(text));
    vertical().setValue(0);
    update(wrapped(text));
    EXPECT_TRUE(isAtEnd());
}

TEST_F(LogTextViewTest, ChangingOnlyTheFontSizeReplacesTheTextAndScrollsToTheEnd)
{
    LogTextContent content = wrapped(sampleText(manyLines()));
    show(content);
    const double before = view->geometry().frame().height;
    vertical().setValue(0);
    content.fontSize = 18.0;
    update(content);
    EXPECT_TRUE(isAtEnd());
    EXPECT_GT(view->geometry().frame().height, before);
    EXPECT_EQ(shownText(), content.attributedText.string());
}

TEST_F(LogTextViewTest, ChangingOnlyTheWrappingScrollsToTheEnd)
{
    const AttributedString text = sampleText(manyLines());
    show(wrapped(text));
    vertical().setValue(0);
    update(unwrapped(text));
    EXPECT_TRUE(isAtEnd());
}

TEST_F(LogTextViewTest, AnExtendedTextIsShownWhole)
{
    AttributedString text = sampleText(manyLines(20));
    show(wrapped(text));
    appendRows(text, {QStringLiteral("new"), QStringLiteral("newer")});
    update(wrapped(text));
    EXPECT_EQ(shownText(), text.string());
    EXPECT_TRUE(isAtEnd());
}

TEST_F(LogTextViewTest, WithoutWrappingLongLinesRunUnbrokenUnderAHorizontalScroller)
{
    show(unwrapped(sampleText({QString(500, u'w')})));
    EXPECT_EQ(view->textLayout().lineCount(), 2);
    EXPECT_EQ(view->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    EXPECT_TRUE(horizontal().isVisible());
    EXPECT_EQ(horizontal().maximum(),
              static_cast<int>(std::ceil(view->geometry().frame().width - clipWidth())));
}

TEST_F(LogTextViewTest, WithoutWrappingTheHorizontalScrollerHidesWhenItIsNotNeeded)
{
    show(unwrapped(sampleText({QStringLiteral("short")})));
    EXPECT_FALSE(horizontal().isVisible());
    EXPECT_EQ(horizontal().maximum(), 0);
}

TEST_F(LogTextViewTest, TheVerticalScrollerHidesWhenItIsNotNeeded)
{
    show(wrapped(sampleText({QStringLiteral("short")})));
    EXPECT_FALSE(vertical().isVisible());
    update(wrapped(sampleText(manyLines())));
    EXPECT_TRUE(vertical().isVisible());
}

TEST_F(LogTextViewTest, TurningWrappingOnRemovesTheHorizontalScrollerAndFitsTheFrameToTheClip)
{
    const AttributedString text = sampleText({QString(500, u'w')});
    show(unwrapped(text));
    horizontal().setValue(300);
    update(wrapped(text));
    EXPECT_EQ(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    EXPECT_FALSE(horizontal().isVisible());
    EXPECT_EQ(horizontal().value(), 0);
    EXPECT_EQ(view->geometry().frame().width, clipWidth());
    EXPECT_GT(view->textLayout().lineCount(), 2);
}

TEST_F(LogTextViewTest, TheEndOfTheLongestLineCanBeScrolledTo)
{
    show(unwrapped(sampleText({QString(500, u'w'), QStringLiteral("e\u0301 ").repeated(200)})));
    horizontal().setValue(horizontal().maximum());
    for (const TextPosition end : {TextPosition{0, 502}, TextPosition{1, 602}}) {
        EXPECT_LE(view->boxOfPosition(end).right(), view->viewport()->width());
    }
}

TEST_F(LogTextViewTest, AnEmptyTextShowsAnEmptyViewAndScrollingToTheEndDoesNothing)
{
    show(wrapped(AttributedString()));
    view->scrollToEndOfDocument();
    EXPECT_EQ(vertical().value(), 0);
    EXPECT_EQ(vertical().maximum(), 0);
    EXPECT_EQ(horizontal().maximum(), 0);
}

TEST_F(LogTextViewTest, AnEmptyTextCanBeSelectedAndCopiedWithoutEffect)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    show(wrapped(AttributedString()));
    view->selectAll();
    view->copy();
    EXPECT_FALSE(view->hasSelection());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
}

TEST_F(LogTextViewTest, TheScrollBarComesAndGoesWithTheRoomForTheRows)
{
    show(wrapped(sampleText(manyLines(8))), QSize(900, 400));
    EXPECT_FALSE(vertical().isVisible());
    view->resize(900, 60);
    settle();
    EXPECT_TRUE(vertical().isVisible());
    EXPECT_TRUE(isAtEnd());
    view->resize(900, 400);
    settle();
    EXPECT_FALSE(vertical().isVisible());
    update(wrapped(sampleText(manyLines(100))));
    EXPECT_TRUE(vertical().isVisible());
    EXPECT_TRUE(isAtEnd());
    update(wrapped(sampleText(manyLines(3))));
    EXPECT_FALSE(vertical().isVisible());
    EXPECT_EQ(view->viewport()->width(), 900);
}

TEST_F(LogTextViewTest, AfterAnEmptyTextTheScrollBarsAreBackToNothing)
{
    show(unwrapped(sampleText(QStringList(100, QString(500, u'w')))));
    update(unwrapped(AttributedString()));
    EXPECT_EQ(vertical().maximum(), 0);
    EXPECT_EQ(horizontal().maximum(), 0);
    EXPECT_EQ(view->geometry().frame().width, 2 * textOrigin().x());
}

TEST_F(LogTextViewTest, HasNoBorderAndItsBarsComeOnlyWhenNeeded)
{
    show(wrapped(AttributedString()));
    EXPECT_EQ(view->frameShape(), QFrame::NoFrame);
    EXPECT_EQ(view->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

TEST_F(LogTextViewTest, TypingDoesNotChangeTheText)
{
    show(wrapped(sampleText({QStringLiteral("fixed")})));
    QTest::keyClicks(view.get(), QStringLiteral("abc"));
    QTest::keyClick(view.get(), Qt::Key_Backspace);
    QTest::keyClick(view.get(), Qt::Key_Delete);
    QGuiApplication::clipboard()->setText(QStringLiteral("pasted"));
    QTest::keyClick(view.get(), Qt::Key_V, Qt::ControlModifier);
    view->selectAll();
    QTest::keyClick(view.get(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(shownText(), QStringLiteral("1\tfixed\n"));
    EXPECT_FALSE(view->testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(LogTextViewTest, TheSelectionIsKeptWhenTheTextIsExtended)
{
    AttributedString text = sampleText(manyLines(20));
    show(wrapped(text));
    view->setTextSelection(TextPosition{3, 0}, TextPosition{5, 4});
    const QString selected = view->selectedText();
    appendRows(text, {QStringLiteral("new")});
    update(wrapped(text));
    EXPECT_EQ(view->selectedText(), selected);
}

TEST_F(LogTextViewTest, TheSelectionIsClearedWhenTheTextIsReplaced)
{
    show(wrapped(sampleText(manyLines(20))));
    view->selectAll();
    QSignalSpy changed(view.get(), &LogTextView::selectionChanged);
    update(wrapped(sampleText(manyLines(20))));
    EXPECT_FALSE(view->hasSelection());
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(LogTextViewTest, ThePositionWithinALongLineIsKeptWhenTheTextIsExtended)
{
    AttributedString text = sampleText({QString(500, u'w')});
    show(unwrapped(text));
    horizontal().setValue(700);
    appendRows(text, {QStringLiteral("new")});
    update(unwrapped(text));
    EXPECT_EQ(horizontal().value(), 700);
}

TEST_F(LogTextViewTest, AReplacedTextIsShownFromTheBeginningsOfItsLines)
{
    show(unwrapped(sampleText({QString(500, u'w')})));
    horizontal().setValue(700);
    update(unwrapped(sampleText({QString(500, u'm')})));
    EXPECT_EQ(horizontal().value(), 0);
}

} // namespace
} // namespace quillon
