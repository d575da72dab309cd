// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/log_text/log_text_view_fixture.h"
#include "ui/log_text/log_text_accessible.h"

#include <QAccessible>
#include <QAccessibleTextInterface>

#include <array>

namespace quillon {
namespace {

class LogTextAccessibility : public LogTextViewFixture {
protected:
    struct Piece {
        QString text;
        int start = -1;
        int end = -1;
        bool operator==(const Piece&) const = default;
    };
    void prepare(LogTextView& created) override { makeAccessible(created); }
    friend void PrintTo(const Piece& piece, std::ostream* stream)
    {
        *stream << ::testing::PrintToString(piece.text) << ' ' << piece.start << ' ' << piece.end;
    }

    [[nodiscard]] QAccessibleInterface& interface() const
    {
        return *QAccessible::queryAccessibleInterface(view.get());
    }
    [[nodiscard]] QAccessibleTextInterface& text() const { return *interface().textInterface(); }
    [[nodiscard]] Piece at(int offset, QAccessible::TextBoundaryType boundary) const
    {
        Piece piece;
        piece.text = text().textAtOffset(offset, boundary, &piece.start, &piece.end);
        return piece;
    }
    [[nodiscard]] Piece before(int offset, QAccessible::TextBoundaryType boundary) const
    {
        Piece piece;
        piece.text = text().textBeforeOffset(offset, boundary, &piece.start, &piece.end);
        return piece;
    }
    [[nodiscard]] Piece after(int offset, QAccessible::TextBoundaryType boundary) const
    {
        Piece piece;
        piece.text = text().textAfterOffset(offset, boundary, &piece.start, &piece.end);
        return piece;
    }

    static constexpr auto kCharacter = QAccessible::CharBoundary;
    static constexpr auto kWord = QAccessible::WordBoundary;
    static constexpr auto kLine = QAccessible::LineBoundary;
};

TEST_F(LogTextAccessibility, TheViewIsAReadOnlyDocumentOfSelectableText)
{
    show(wrapped(sampleText({QStringLiteral("a")})));
    EXPECT_EQ(interface().role(), QAccessible::Document);
    const QAccessible::State state = interface().state();
    EXPECT_TRUE(state.readOnly);
    EXPECT_TRUE(state.multiLine);
    EXPECT_TRUE(state.selectableText);
    EXPECT_FALSE(state.editable);
    EXPECT_TRUE(state.focusable);
}

TEST_F(LogTextAccessibility, ItsTextIsTheWholeText)
{
    const AttributedString shown = sampleText(unusualLines());
    show(wrapped(shown));
    EXPECT_EQ(text().characterCount(), shown.length());
    EXPECT_EQ(text().text(0, text().characterCount()), shown.string());
}

TEST_F(LogTextAccessibility, ItsTextGrowsWithTheLog)
{
    AttributedString shown = sampleText({QStringLiteral("one")});
    show(wrapped(shown));
    EXPECT_EQ(text().characterCount(), 6);
    appendRows(shown, {QStringLiteral("two"), QStringLiteral("three")});
    update(wrapped(shown));
    EXPECT_EQ(text().characterCount(), shown.length());
    EXPECT_EQ(at(7, kLine), (Piece{QStringLiteral("2\ttwo\n"), 6, 12}));
}

TEST_F(LogTextAccessibility, ItsTextFollowsAReplacement)
{
    show(wrapped(sampleText({QStringLiteral("one"), QStringLiteral("two")})));
    EXPECT_EQ(text().characterCount(), 12);
    update(wrapped(sampleText({QStringLiteral("other")})));
    EXPECT_EQ(text().text(0, text().characterCount()), QStringLiteral("1\tother\n"));
}

TEST_F(LogTextAccessibility, AnyRangeOfTheTextCanBeRead)
{
    const AttributedString shown =
        sampleText({QStringLiteral("one"), QString(), QStringLiteral("three")});
    show(wrapped(shown));
    const QString whole = shown.string();
    for (int start = 0; start <= whole.size(); ++start) {
        for (int end = start; end <= whole.size(); ++end) {
            ASSERT_EQ(text().text(start, end), whole.sliced(start, end - start));
        }
    }
}

TEST_F(LogTextAccessibility, RangesBeyondTheTextAreCutToIt)
{
    show(wrapped(sampleText({QStringLiteral("one")})));
    EXPECT_EQ(text().text(-5, 1000), QStringLiteral("1\tone\n"));
    EXPECT_EQ(text().text(100, 200), QString());
}

TEST_F(LogTextAccessibility, TheCharacterAtAnOffsetIsAWholeOne)
{
    show(wrapped(sampleText({QStringLiteral("a🙂e\u0301")})));
    EXPECT_EQ(at(2, kCharacter), (Piece{QStringLiteral("a"), 2, 3}));
    for (const int offset : {3, 4}) {
        EXPECT_EQ(at(offset, kCharacter), (Piece{QStringLiteral("🙂"), 3, 5})) << offset;
    }
    EXPECT_EQ(at(5, kCharacter), (Piece{QStringLiteral("e\u0301"), 5, 7}));
    EXPECT_EQ(at(7, kCharacter), (Piece{QStringLiteral("\n"), 7, 8}));
}

TEST_F(LogTextAccessibility, TheWordAtAnOffsetIsTheOneAroundIt)
{
    show(wrapped(sampleText({QStringLiteral("PHP Fatal error")})));
    for (const int offset : {6, 8, 10}) {
        EXPECT_EQ(at(offset, kWord), (Piece{QStringLiteral("Fatal"), 6, 11})) << offset;
    }
    EXPECT_EQ(at(17, kWord), (Piece{QStringLiteral("\n"), 17, 18}));
}

TEST_F(LogTextAccessibility, TheLineAtAnOffsetIsTheRow)
{
    show(wrapped(sampleText({QStringLiteral("one"), QString(200, u'w')})));
    EXPECT_EQ(at(3, kLine), (Piece{QStringLiteral("1\tone\n"), 0, 6}));
    EXPECT_EQ(at(150, kLine).text.size(), 203);
}

TEST_F(LogTextAccessibility, WithoutABoundaryItIsTheWholeText)
{
    show(wrapped(sampleText({QStringLiteral("one"), QStringLiteral("two")})));
    EXPECT_EQ(at(3, QAccessible::NoBoundary), (Piece{QStringLiteral("1\tone\n2\ttwo\n"), 0, 12}));
}

TEST_F(LogTextAccessibility, NeighbouringPiecesAreFoundInBothDirections)
{
    show(wrapped(sampleText({QStringLiteral("one two"), QStringLiteral("x")})));
    EXPECT_EQ(before(10, kLine), (Piece{QStringLiteral("1\tone two\n"), 0, 10}));
    EXPECT_EQ(after(3, kLine), (Piece{QStringLiteral("2\tx\n"), 10, 14}));
    EXPECT_EQ(before(3, kCharacter), (Piece{QStringLiteral("o"), 2, 3}));
    EXPECT_EQ(after(3, kCharacter), (Piece{QStringLiteral("e"), 4, 5}));
    EXPECT_EQ(after(3, kWord), (Piece{QStringLiteral(" "), 5, 6}));
    EXPECT_EQ(before(0, kLine), (Piece{QString(), 0, 0}));
    EXPECT_EQ(after(12, kLine), (Piece{QString(), 14, 14}));
}

TEST_F(LogTextAccessibility, AtTheVeryEndThereIsNothingMore)
{
    show(wrapped(sampleText({QStringLiteral("one")})));
    for (const auto boundary : {kCharacter, kWord, kLine}) {
        EXPECT_EQ(at(6, boundary), (Piece{QString(), 6, 6}));
        EXPECT_EQ(after(6, boundary), (Piece{QString(), 6, 6}));
    }
    EXPECT_EQ(before(6, kCharacter), (Piece{QStringLiteral("\n"), 5, 6}));
    EXPECT_EQ(before(6, kLine), (Piece{QStringLiteral("1\tone\n"), 0, 6}));
}

TEST_F(LogTextAccessibility, OffsetsOutsideTheTextDoNoHarm)
{
    show(wrapped(sampleText({QStringLiteral("one")})));
    for (const auto boundary : {kCharacter, kWord, kLine}) {
        for (const int offset : {-2, -1, 7, 1'000'000}) {
            const Piece piece = at(offset, boundary);
            EXPECT_EQ(piece.text, text().text(piece.start, piece.end)) << offset;
            static_cast<void>(before(offset, boundary));
            static_cast<void>(after(offset, boundary));
        }
    }
}

TEST_F(LogTextAccessibility, AnEmptyTextHasNoCharactersAndAnswersEverything)
{
    show(wrapped(AttributedString()));
    EXPECT_EQ(text().characterCount(), 0);
    EXPECT_EQ(text().text(0, 0), QString());
    for (const auto boundary : {kCharacter, kWord, kLine, QAccessible::NoBoundary}) {
        EXPECT_EQ(at(0, boundary), (Piece{QString(), 0, 0}));
        EXPECT_EQ(before(0, boundary), (Piece{QString(), 0, 0}));
        EXPECT_EQ(after(0, boundary), (Piece{QString(), 0, 0}));
    }
    EXPECT_EQ(text().selectionCount(), 0);
    EXPECT_EQ(text().cursorPosition(), 0);
    EXPECT_GT(text().characterRect(0).height(), 0);
    int start = -1;
    int end = -1;
    EXPECT_EQ(text().attributes(0, &start, &end), QString());
}

TEST_F(LogTextAccessibility, TheCharacterInTheMiddleOfACharactersRectangleIsThatOne)
{
    const AttributedString shown = sampleText(
        {QStringLiteral("one two"), QString(), QStringLiteral("x\ty"), QString(90, u'w')});
    show(wrapped(shown));
    vertical().setValue(0);
    const QString whole = shown.string();
    for (int offset = 0; offset < whole.size(); ++offset) {
        const QRect box = text().characterRect(offset);
        if (whole[offset] != u'\n') {
            EXPECT_EQ(text().offsetAtPoint(box.center()), offset);
        }
    }
}

TEST_F(LogTextAccessibility, ACharactersRectangleIsOnTheScreenWhereItIsPainted)
{
    show(wrapped(sampleText(manyLines())));
    const TextPosition place{150, 5};
    view->scrollToPosition(place);
    const int offset = static_cast<int>(
        view->attributedText().string().indexOf(QStringLiteral("\n151\t")) + 1 + place.offset);
    const QRect box = view->boxOfPosition(place);
    EXPECT_EQ(text().characterRect(offset),
              QRect(view->viewport()->mapToGlobal(box.topLeft()), box.size()));
}

TEST_F(LogTextAccessibility, TheSelectionCanBeRead)
{
    show(wrapped(sampleText({QStringLiteral("one"), QStringLiteral("two")})));
    EXPECT_EQ(text().selectionCount(), 0);
    view->setTextSelection(TextPosition{0, 3}, TextPosition{1, 3});
    ASSERT_EQ(text().selectionCount(), 1);
    int start = 0;
    int end = 0;
    text().selection(0, &start, &end);
    EXPECT_EQ(start, 3);
    EXPECT_EQ(end, 9);
    EXPECT_EQ(text().cursorPosition(), 9);
}

TEST_F(LogTextAccessibility, TheSelectionCanBeSetChangedAndRemoved)
{
    show(wrapped(sampleText({QStringLiteral("one"), QStringLiteral("two")})));
    text().addSelection(2, 5);
    EXPECT_EQ(view->selectedText(), QStringLiteral("one"));
    text().setSelection(0, 3, 7);
    EXPECT_EQ(view->selectedText(), QStringLiteral("ne\n2"));
    text().removeSelection(0);
    EXPECT_FALSE(view->hasSelection());
}

TEST_F(LogTextAccessibility, MovingTheCursorBringsItsPlaceIntoView)
{
    show(wrapped(sampleText(manyLines())));
    text().setCursorPosition(0);
    EXPECT_EQ(text().cursorPosition(), 0);
    EXPECT_TRUE(view->viewport()->rect().contains(view->boxOfPosition(TextPosition()).center()));
    text().scrollToSubstring(text().characterCount() - 3, text().characterCount());
    EXPECT_TRUE(
        view->viewport()->rect().contains(view->boxOfPosition(TextPosition{199, 3}).center()));
}

class LogTextAttributes : public LogTextAccessibility {
protected:
    // What is told of the character at an offset, and of which characters besides.
    [[nodiscard]] Piece attributesAt(int offset) const
    {
        Piece piece;
        piece.text = text().attributes(offset, &piece.start, &piece.end);
        return piece;
    }
    // Shows a row whose characters 2 to 5 look like this, and gives what is told of them.
    [[nodiscard]] QString told(const RunAttributes& attributes)
    {
        show(
            wrapped(sampleText({QStringLiteral("one two")}, [attributes](const AttributedRow& row) {
                return std::vector<AttributeRun>{
                    {0, 2, {}}, {2, 3, attributes}, {5, row.length() - 5, {}}};
            })));
        return attributesAt(3).text;
    }
    static QString rgb(const QColor& color)
    {
        return QStringLiteral("rgb(%1,%2,%3);")
            .arg(QString::number(color.red()), QString::number(color.green()),
                 QString::number(color.blue()));
    }
};

TEST_F(LogTextAttributes, EachRunIsToldApart)
{
    const auto runs = [](const AttributedRow& row) {
        RunAttributes bold;
        bold.weight = FontWeight::Bold;
        return std::vector<AttributeRun>{{0, 2, {}}, {2, 3, bold}, {5, row.length() - 5, {}}};
    };
    show(wrapped(sampleText({QStringLiteral("one two"), QStringLiteral("one two")}, runs)));
    const QString color = QStringLiteral("color:") +
                          rgb(resolvedColor(Color::system(SystemColor::Text), view->palette()));
    const QString severity = QStringLiteral("severity:unknown;");
    EXPECT_EQ(attributesAt(13),
              (Piece{color + QStringLiteral("font-weight:bold;") + severity, 12, 15}));
    EXPECT_EQ(attributesAt(16), (Piece{color + severity, 15, 20}));
    EXPECT_EQ(attributesAt(20), (Piece{QString(), 20, 20})) << "behind the text";
}

TEST_F(LogTextAttributes, TheColourIsTheOneThatIsPainted)
{
    RunAttributes run;
    run.foreground = Color::rgb(1.0, 0.0, 0.5);
    EXPECT_EQ(told(run), QStringLiteral("color:rgb(255,0,128);severity:unknown;"));
}

TEST_F(LogTextAttributes, ABackgroundIsWhatItLeavesOnTheLogs)
{
    RunAttributes run;
    run.background = Color::rgb(0.0, 0.0, 0.0, 0.6);
    const QColor under = resolvedColor(Color::system(SystemColor::TextBackground),
                                       QPalette(paletteFor(Appearance::Light)));
    ASSERT_EQ(under, QColor(Qt::white));
    EXPECT_TRUE(told(run).contains(QStringLiteral("background-color:rgb(102,102,102);")))
        << qPrintable(told(run));
}

TEST_F(LogTextAttributes, EveryRowTellsItsSeverity)
{
    const auto styler = std::make_shared<const SampleStyler>();
    AttributedString shown;
    for (const LogSeverity severity : kAllSeverities) {
        shown.append(AttributedRow(shown.rows().size() + 1, QStringLiteral("x"), severity, styler));
    }
    show(wrapped(shown));
    const int rowLength = 4;
    for (std::size_t row = 0; row < kAllSeverities.size(); ++row) {
        const QString told = attributesAt(static_cast<int>(row) * rowLength + 2).text;
        EXPECT_TRUE(
            told.endsWith(QStringLiteral(";severity:") + rawValue(kAllSeverities[row]) + u';'))
            << qPrintable(told);
    }
}

} // namespace
} // namespace quillon
