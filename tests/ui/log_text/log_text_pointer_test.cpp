// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"
#include "tests/ui/log_text/log_text_input_fixture.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QMenu>
#include <QTimer>
#include <QWheelEvent>

namespace quillon {
namespace {

using LogTextPointer = LogTextInputFixture;

TEST_F(LogTextPointer, DraggingSelectsFromPressToRelease)
{
    show(wrapped(sampleText({QStringLiteral("first line"), QStringLiteral("second")})));
    drag(leftOf({0, 2}), leftOf({0, 7}));
    EXPECT_EQ(view->selectedText(), QStringLiteral("first"));
    drag(leftOf({1, 5}), leftOf({0, 8}));
    EXPECT_EQ(view->selectedText(), QStringLiteral("line\n2\tsec"));
}

TEST_F(LogTextPointer, DraggingPastTheEndOfAWrappedLineTakesItsLastCharacter)
{
    show(wrapped(sampleText({QString(200, u'w')})));
    // The first line holds the number only, since the word has no room behind it.
    const RowFragment line = view->textLayout().rowLayout(0).fragments[1];
    const QPoint from = leftOf({0, line.start + 3});
    drag(from, QPoint(view->viewport()->width() - 1, from.y()));
    EXPECT_EQ(view->selectedText().size(), line.end - line.start - 3);
}

TEST_F(LogTextPointer, AClickSelectsNothingAndClearsWhatWasSelected)
{
    show(wrapped(sampleText({QStringLiteral("first line")})));
    view->selectAll();
    clicks(centerOf({0, 3}), 1);
    EXPECT_FALSE(view->hasSelection());
}

TEST_F(LogTextPointer, ADoubleClickSelectsAWord)
{
    show(wrapped(sampleText({QStringLiteral("PHP Fatal error:  boom")})));
    for (const qsizetype offset : {6, 8, 10}) {
        clicks(centerOf({0, offset}), 2);
        EXPECT_EQ(view->selectedText(), QStringLiteral("Fatal")) << offset;
    }
}

TEST_F(LogTextPointer, ADoubleClickAndDragSelectsWholeWords)
{
    show(wrapped(sampleText({QStringLiteral("PHP Fatal error:  boom")})));
    clicks(centerOf({0, 8}), 1);
    mouse(QEvent::MouseButtonDblClick, centerOf({0, 8}));
    move(centerOf({0, 13}));
    EXPECT_EQ(view->selectedText(), QStringLiteral("Fatal error"));
    release(centerOf({0, 13}));
    EXPECT_EQ(view->selectedText(), QStringLiteral("Fatal error"));
}

TEST_F(LogTextPointer, ATripleClickSelectsARow)
{
    show(wrapped(sampleText({QStringLiteral("first"), QStringLiteral("second row")})));
    clicks(centerOf({1, 4}), 3);
    EXPECT_EQ(view->selectedText(), QStringLiteral("2\tsecond row\n"));
}

TEST_F(LogTextPointer, TwoClicksFarApartInTimeOrPlaceAreNoDoubleClick)
{
    show(wrapped(sampleText({QStringLiteral("some words in a row")})));
    clicks(centerOf({0, 4}), 1);
    clicks(centerOf({0, 4}), 1);
    EXPECT_FALSE(view->hasSelection());
    press(centerOf({0, 18}));
    EXPECT_FALSE(view->hasSelection());
}

TEST_F(LogTextPointer, AShiftClickExtendsTheSelection)
{
    show(wrapped(sampleText({QStringLiteral("first line"), QStringLiteral("second")})));
    clicks(leftOf({0, 2}), 1);
    clicks(leftOf({0, 7}), 1, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("first"));
    clicks(leftOf({1, 2}), 1, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("first line\n2\t"));
}

TEST_F(LogTextPointer, TheRightButtonLeavesTheSelectionAlone)
{
    show(wrapped(sampleText({QStringLiteral("first line")})));
    view->selectAll();
    QTest::mouseClick(view->viewport(), Qt::RightButton, Qt::NoModifier, centerOf({0, 3}));
    EXPECT_EQ(view->selectedText(), QStringLiteral("1\tfirst line\n"));
}

TEST_F(LogTextPointer, DraggingBelowTheViewScrollsDownAndSelectsOn)
{
    show(wrapped(sampleText(manyLines())));
    vertical().setValue(0);
    press(leftOf({2, 2}));
    move(QPoint(100, view->viewport()->height() + 40));
    ASSERT_TRUE(spinUntil([this] { return vertical().value() > 300; }));
    EXPECT_GT(view->textSelection().end().row, 8);
    EXPECT_TRUE(view->textSelection().start() == (TextPosition{2, 2}));
    release(QPoint(100, view->viewport()->height() + 40));
    const int stopped = vertical().value();
    spinFor(std::chrono::milliseconds(200));
    EXPECT_EQ(vertical().value(), stopped);
}

TEST_F(LogTextPointer, DraggingAboveTheViewScrollsUp)
{
    show(wrapped(sampleText(manyLines())));
    press(QPoint(100, 50));
    move(QPoint(100, -60));
    EXPECT_TRUE(spinUntil([this] { return vertical().value() < vertical().maximum() - 300; }));
    release(QPoint(100, -60));
}

TEST_F(LogTextPointer, DraggingBesideTheViewScrollsAlongALongLine)
{
    show(unwrapped(sampleText({QString(2000, u'w')})));
    press(leftOf({0, 2}));
    move(QPoint(view->viewport()->width() + 50, 15));
    EXPECT_TRUE(spinUntil([this] { return horizontal().value() > 300; }));
    EXPECT_GT(view->textSelection().end().offset, 60);
    release(QPoint(view->viewport()->width() + 50, 15));
}

TEST_F(LogTextPointer, ComingBackIntoTheViewStopsTheScrolling)
{
    show(wrapped(sampleText(manyLines())));
    vertical().setValue(0);
    press(leftOf({2, 2}));
    move(QPoint(100, view->viewport()->height() + 40));
    ASSERT_TRUE(spinUntil([this] { return vertical().value() > 100; }));
    move(QPoint(100, 50));
    const int stopped = vertical().value();
    spinFor(std::chrono::milliseconds(200));
    EXPECT_EQ(vertical().value(), stopped);
}

// The button is then released over a window that is not told, or over none.
TEST_F(LogTextPointer, ADialogThatOpensEndsADrag)
{
    show(wrapped(sampleText(manyLines())));
    vertical().setValue(0);
    press(leftOf({2, 2}));
    move(leftOf({3, 2}));
    move(QPoint(100, view->viewport()->height() + 40));
    ASSERT_TRUE(spinUntil([this] { return vertical().value() > 100; }));
    QDialog dialog(view.get());
    dialog.open();
    const int stopped = vertical().value();
    const TextPosition end = view->textSelection().end();
    spinFor(std::chrono::milliseconds(200));
    EXPECT_EQ(vertical().value(), stopped);
    dialog.close();
    move(leftOf({3, 2}));
    EXPECT_TRUE(view->textSelection().end() == end);
}

TEST_F(LogTextPointer, HidingTheViewEndsADrag)
{
    show(wrapped(sampleText({QStringLiteral("first line")})));
    press(leftOf({0, 2}));
    move(leftOf({0, 4}));
    view->hide();
    view->show();
    move(leftOf({0, 7}));
    EXPECT_EQ(view->selectedText(), QStringLiteral("fi"));
}

// Its anchor was a place of the text that is gone.
TEST_F(LogTextPointer, ReplacingTheTextEndsADrag)
{
    show(wrapped(sampleText(manyLines())));
    press(QPoint(100, 50));
    move(QPoint(100, 90));
    update(wrapped(sampleText(manyLines(100))));
    move(QPoint(200, 120));
    EXPECT_FALSE(view->hasSelection());
}

TEST_F(LogTextPointer, ADragGoesOnWhenTheTextIsExtended)
{
    AttributedString text = sampleText(manyLines(3));
    show(wrapped(text));
    press(leftOf({0, 2}));
    appendRows(text, {QStringLiteral("new")});
    update(wrapped(text));
    move(leftOf({1, 2}));
    EXPECT_TRUE(view->textSelection().end() == (TextPosition{1, 2}));
    release(leftOf({1, 2}));
}

TEST_F(LogTextPointer, TheWheelScrollsByWholeLines)
{
    show(wrapped(sampleText(manyLines())));
    vertical().setValue(1000);
    const QPointF place(50, 50);
    QWheelEvent event(place, view->viewport()->mapToGlobal(place), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view->viewport(), &event);
    EXPECT_EQ(vertical().value(),
              1000 + QApplication::wheelScrollLines() * view->textLayout().metrics().lineHeight());
}

struct MenuEntry {
    QString text;
    bool isEnabled;
};

class LogTextMenu : public LogTextInputFixture {
protected:
    // Opens the context menu, notes its entries, and triggers the one with that text, if any.
    std::vector<MenuEntry> openMenu(const QString& choice = QString())
    {
        std::vector<MenuEntry> entries;
        QTimer::singleShot(0, view.get(), [&entries, choice] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* const action : menu->actions()) {
                entries.push_back(MenuEntry{action->text(), action->isEnabled()});
                if (action->text() == choice) {
                    action->trigger();
                }
            }
            menu->close();
        });
        const QPoint place(50, 20);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                view->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view->viewport(), &event);
        return entries;
    }
};

TEST_F(LogTextMenu, OffersToCopyAndToSelectAll)
{
    show(wrapped(sampleText({QStringLiteral("a")})));
    const auto entries = openMenu();
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].text, QStringLiteral("Copier"));
    EXPECT_EQ(entries[1].text, QStringLiteral("Copier sans les numéros"));
    EXPECT_EQ(entries[2].text, QStringLiteral("Tout sélectionner"));
}

TEST_F(LogTextMenu, CopyingNeedsASelection)
{
    show(wrapped(sampleText({QStringLiteral("a")})));
    for (const std::size_t copying : {0U, 1U}) {
        EXPECT_FALSE(openMenu()[copying].isEnabled);
    }
    view->selectAll();
    for (const std::size_t copying : {0U, 1U}) {
        EXPECT_TRUE(openMenu()[copying].isEnabled);
    }
}

TEST_F(LogTextMenu, SelectingAllNeedsAText)
{
    show(wrapped(AttributedString()));
    EXPECT_FALSE(openMenu()[2].isEnabled);
}

TEST_F(LogTextMenu, ItsEntriesDoWhatTheySay)
{
    show(wrapped(sampleText({QStringLiteral("a")})));
    openMenu(QStringLiteral("Tout sélectionner"));
    EXPECT_EQ(view->selectedText(), QStringLiteral("1\ta\n"));
    openMenu(QStringLiteral("Copier"));
    EXPECT_EQ(clipboard(), QStringLiteral("1\ta\n"));
    openMenu(QStringLiteral("Copier sans les numéros"));
    EXPECT_EQ(clipboard(), QStringLiteral("a\n"));
}

} // namespace
} // namespace quillon
