// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/log_text/log_text_input_fixture.h"

namespace quillon {
namespace {

using LogTextKeyboard = LogTextInputFixture;

TEST_F(LogTextKeyboard, TheCopyKeyCopiesTheSelection)
{
    show(wrapped(sampleText({QStringLiteral("first line")})));
    view->setTextSelection({0, 2}, {0, 7});
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), QStringLiteral("first"));
}

TEST_F(LogTextKeyboard, TheCopyKeyWithoutASelectionLeavesTheClipboardAlone)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    show(wrapped(sampleText({QStringLiteral("first line")})));
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), QStringLiteral("kept"));
}

TEST_F(LogTextKeyboard, CopyingWithoutNumbersTakesTheWholeLinesOfTheFile)
{
    show(wrapped(sampleText({QStringLiteral("first line"), QStringLiteral("second")})));
    view->setTextSelection({0, 5}, {1, 3});
    key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(clipboard(), QStringLiteral("first line\nsecond\n"));
}

TEST_F(LogTextKeyboard, CopyingWithoutNumbersLeavesTheClipboardAloneWithoutASelection)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    show(wrapped(sampleText({QStringLiteral("first line")})));
    key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(clipboard(), QStringLiteral("kept"));
}

TEST_F(LogTextKeyboard, WhatIsCopiedIsTheFilesTextWithNumbersAndTabs)
{
    const QStringList lines = QStringList{QStringLiteral("a\tb  "), QString(),
                                          QStringLiteral("c") + QChar(0x1B) + QChar(0x7F)} +
                              unusualLines();
    show(wrapped(sampleText(lines)));
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    QString expected;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        expected += QString::number(i + 1) + u'\t' + lines[i] + u'\n';
    }
    EXPECT_EQ(clipboard(), expected);
}

TEST_F(LogTextKeyboard, TheSelectAllKeySelectsEverything)
{
    show(wrapped(sampleText(manyLines(5))));
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view->selectedText(), view->attributedText().string());
}

TEST_F(LogTextKeyboard, ShiftAndArrowsMoveTheCaretByCharactersAndLines)
{
    show(wrapped(sampleText({QStringLiteral("first line"), QStringLiteral("second")})));
    clicks(leftOf({0, 4}), 1);
    key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("rs"));
    key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("r"));
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(view->textSelection().caret() == (TextPosition{1, 5}));
    key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_TRUE(view->textSelection().caret() == (TextPosition{0, 5}));
}

TEST_F(LogTextKeyboard, ShiftAndArrowsCrossTheEndsOfRows)
{
    show(wrapped(sampleText({QStringLiteral("ab"), QStringLiteral("cd")})));
    clicks(leftOf({1, 0}), 1);
    key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("\n"));
    key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("2"));
}

TEST_F(LogTextKeyboard, ShiftAndArrowsTakeWholeCharacters)
{
    show(wrapped(sampleText({QStringLiteral("🙂e\u0301x")})));
    clicks(leftOf({0, 2}), 1);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("🙂"));
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("🙂e\u0301"));
    key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("🙂"));
}

TEST_F(LogTextKeyboard, ShiftAndDownVisitEveryLineOfAWrappedRow)
{
    show(wrapped(sampleText({QStringLiteral("x"), QStringLiteral("many words ").repeated(40)})));
    vertical().setValue(0);
    clicks(leftOf({0, 0}), 1);
    clicks(QPoint(view->viewport()->width() - 5, leftOf({1, 0}).y()), 1);
    const auto lines = view->textLayout().lineCount();
    for (qint64 line = 0; line + 1 < lines; ++line) {
        key(Qt::Key_Up, Qt::ShiftModifier);
    }
    EXPECT_EQ(view->textSelection().caret().row, 0);
    for (qint64 line = 1; line < lines; ++line) {
        EXPECT_LT(view->textSelection().caret().row, 2);
        key(Qt::Key_Down, Qt::ShiftModifier);
    }
    EXPECT_TRUE(view->textSelection().caret() == (TextPosition{2, 0}));
}

TEST_F(LogTextKeyboard, ShiftAndVerticalKeysKeepTheirColumnAcrossShorterLines)
{
    const QString line = QStringLiteral("a line of some length");
    show(wrapped(sampleText({line, QStringLiteral("x"), QString(), line})));
    clicks(leftOf({0, 15}), 1);
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(view->textSelection().caret() == (TextPosition{1, 3}));
    key(Qt::Key_Down, Qt::ShiftModifier);
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(view->textSelection().caret() == (TextPosition{3, 15}));
    key(Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_TRUE(view->textSelection().caret() == (TextPosition{4, 0}));
    key(Qt::Key_PageUp, Qt::ShiftModifier);
    EXPECT_TRUE(view->textSelection().caret() == (TextPosition{0, 15}));
}

TEST_F(LogTextKeyboard, AMoveAlongTheLineOrAClickSetsTheColumnAnew)
{
    const QString line = QStringLiteral("a line of some length");
    show(wrapped(sampleText({line, QStringLiteral("x"), line})));
    clicks(leftOf({0, 15}), 1);
    key(Qt::Key_Down, Qt::ShiftModifier);
    key(Qt::Key_Left, Qt::ShiftModifier);
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(view->textSelection().caret() == (TextPosition{2, 2}));
    clicks(leftOf({0, 15}), 1);
    key(Qt::Key_Down, Qt::ShiftModifier);
    clicks(leftOf({1, 1}), 1);
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(view->textSelection().caret() == (TextPosition{2, 1}));
}

TEST_F(LogTextKeyboard, AReplacedTextHasNoColumnToKeepTo)
{
    const QStringList lines(3, QStringLiteral("a line of some length"));
    show(wrapped(sampleText(lines)));
    clicks(leftOf({0, 15}), 1);
    key(Qt::Key_Down, Qt::ShiftModifier);
    update(wrapped(sampleText(lines)));
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(view->textSelection().caret() == (TextPosition{1, 0}));
}

TEST_F(LogTextKeyboard, ShiftAndControlWithArrowsMoveTheCaretByWords)
{
    show(wrapped(sampleText({QStringLiteral("PHP Fatal error:  boom")})));
    clicks(leftOf({0, 8}), 1);
    key(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("tal "));
    key(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("tal error"));
    for (int i = 0; i < 3; ++i) {
        key(Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
    }
    EXPECT_EQ(view->selectedText(), QStringLiteral("PHP Fa"));
}

TEST_F(LogTextKeyboard, ShiftHomeAndEndReachTheEndsOfTheRowAndWithControlOfTheText)
{
    show(wrapped(sampleText({QStringLiteral("ab"), QStringLiteral("cdef"), QStringLiteral("g")})));
    clicks(leftOf({1, 4}), 1);
    key(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("2\tcd"));
    key(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("ef"));
    key(Qt::Key_End, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("ef\n3\tg\n"));
    key(Qt::Key_Home, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(view->selectedText(), QStringLiteral("1\tab\n2\tcd"));
}

TEST_F(LogTextKeyboard, ShiftAndPageKeysSelectAPageAndFollowTheCaret)
{
    show(wrapped(sampleText(manyLines())));
    key(Qt::Key_Home);
    clicks(leftOf({1, 0}), 1);
    key(Qt::Key_PageDown, Qt::ShiftModifier);
    const TextPosition caret = view->textSelection().caret();
    EXPECT_GT(caret.row, 3);
    EXPECT_TRUE(view->viewport()->rect().contains(view->boxOfPosition(caret).center()));
    key(Qt::Key_PageUp, Qt::ShiftModifier);
    EXPECT_TRUE(view->textSelection().caret() == (TextPosition{1, 0}));
}

TEST_F(LogTextKeyboard, ShiftAndArrowsAtTheEndsOfTheTextStayThere)
{
    show(wrapped(sampleText({QStringLiteral("ab")})));
    view->setTextSelection({0, 1}, {0, 0});
    for (const int code : {Qt::Key_Left, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Home}) {
        key(code, Qt::ShiftModifier);
        EXPECT_TRUE(view->textSelection().caret() == TextPosition()) << code;
    }
    view->setTextSelection({0, 1}, {1, 0});
    for (const int code : {Qt::Key_Right, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End}) {
        key(code, Qt::ShiftModifier);
        EXPECT_TRUE(view->textSelection().caret() == (TextPosition{1, 0})) << code;
    }
}

TEST_F(LogTextKeyboard, KeysInAnEmptyTextDoNothing)
{
    show(wrapped(AttributedString()));
    for (const int code : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp,
                           Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End, Qt::Key_Space}) {
        key(code);
        key(code, Qt::ShiftModifier);
    }
    drag(QPoint(5, 5), QPoint(50, 50));
    clicks(QPoint(5, 5), 3);
    EXPECT_FALSE(view->hasSelection());
}

TEST_F(LogTextKeyboard, HomeAndEndScrollToTheEndsOfTheText)
{
    show(wrapped(sampleText(manyLines())));
    key(Qt::Key_Home);
    EXPECT_EQ(vertical().value(), 0);
    key(Qt::Key_End);
    EXPECT_TRUE(isAtEnd());
}

TEST_F(LogTextKeyboard, PageKeysScrollByAPageLessALine)
{
    show(wrapped(sampleText(manyLines())));
    const int lineHeight = view->textLayout().metrics().lineHeight();
    const int page = view->viewport()->height() - lineHeight;
    vertical().setValue(1000);
    key(Qt::Key_PageDown);
    EXPECT_EQ(vertical().value(), 1000 + page);
    key(Qt::Key_PageUp);
    EXPECT_EQ(vertical().value(), 1000);
    key(Qt::Key_Space);
    EXPECT_EQ(vertical().value(), 1000 + page);
    key(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(vertical().value(), 1000);
}

TEST_F(LogTextKeyboard, ArrowsScrollByALineAndSideways)
{
    show(unwrapped(sampleText(QStringList(100, QString(300, u'w')))));
    const int lineHeight = view->textLayout().metrics().lineHeight();
    vertical().setValue(400);
    key(Qt::Key_Down);
    EXPECT_EQ(vertical().value(), 400 + lineHeight);
    key(Qt::Key_Up);
    EXPECT_EQ(vertical().value(), 400);
    key(Qt::Key_Right);
    EXPECT_GT(horizontal().value(), 0);
    key(Qt::Key_Left);
    EXPECT_EQ(horizontal().value(), 0);
}

TEST_F(LogTextKeyboard, ControlAndArrowsScrollSidewaysAsArrowsDo)
{
    show(unwrapped(sampleText({QString(300, u'w')})));
    key(Qt::Key_Right);
    const int step = horizontal().value();
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(horizontal().value(), 2 * step);
    key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(horizontal().value(), step);
    EXPECT_FALSE(view->hasSelection());
}

TEST_F(LogTextKeyboard, ScrollingKeysLeaveTheSelectionAlone)
{
    show(wrapped(sampleText(manyLines())));
    view->setTextSelection({3, 0}, {4, 0});
    key(Qt::Key_Home);
    key(Qt::Key_PageDown);
    EXPECT_EQ(view->selectedText().count(u'\n'), 1);
}

} // namespace
} // namespace quillon
