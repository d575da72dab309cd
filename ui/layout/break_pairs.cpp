// SPDX-License-Identifier: MIT
#include "ui/layout/break_pairs.h"

#include <QString>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <string_view>

namespace quillon {

namespace {

// The answers for the characters from '!' to '~' after one of `before`: '.' no, 'Y' yes, '?' ask.
struct TableRow {
    std::u16string_view before;
    std::string_view answers;
};

constexpr char16_t kFirst = u'!';
constexpr char16_t kLast = u'~';

// After all other characters there is no break. (By the Unicode line breaking algorithm, of which
// Qt applies a version of its own; a test compares the table with Qt.)
constexpr std::array kTable{
    TableRow{u"!?|", "..YYYY.Y.YY....YYYYYYYYYY..YYY.YYYYYYYYYYYYYYYYYYYYYYYYYYYYY.YYYYYYYYYYYYY"
                     "YYYYYYYYYYYYYYYYY..Y"},
    TableRow{u"-", "..YYYY.Y.YY................YYY.YYYYYYYYYYYYYYYYYYYYYYYYYYYYY.YYYYYYYYYYYYYYYY"
                   "YYYYYYYYYYYYYY..Y"},
    TableRow{u"/", "..YYYY.Y.YY....??????????..???.YYYYYYYYYYYYYYYYYYYYYYYYYYYYY.YYYYYYYYYYYYYYYY"
                   "YYYYYYYYYYYYYY..?"},
    TableRow{u"}", "..Y??Y.Y.Y?....YYYYYYYYYY..YYY.YYYYYYYYYYYYYYYYYYYYYYYYYYYY?.YYYYYYYYYYYYYYYY"
                   "YYYYYYYYYYYYYY..Y"},
    TableRow{u",.:;", "...YY..Y..Y....??????????.................................YY.............."
                      "................Y..."},
    TableRow{u"$%+\\", "...YY..?..Y...............................................?Y............."
                       ".................?..."},
    TableRow{u")]", "...??..Y..?...............................................Y?................"
                    "..............Y..."},
};
constexpr std::size_t kCount = kLast - kFirst + 1;
static_assert(std::all_of(kTable.begin(), kTable.end(),
                          [](const TableRow& row) { return row.answers.size() == kCount; }));

constexpr PairAnswer answerOf(char letter)
{
    return letter == 'Y'   ? PairAnswer::Yes
           : letter == '?' ? PairAnswer::AskAboutText
                           : PairAnswer::No;
}

using AnswersAfter = std::array<PairAnswer, kCount>;

constexpr std::array<AnswersAfter, kCount> unfoldedTable()
{
    std::array<AnswersAfter, kCount> answers{};
    for (AnswersAfter& row : answers) {
        row.fill(PairAnswer::No);
    }
    for (const TableRow& row : kTable) {
        for (const char16_t before : row.before) {
            std::transform(row.answers.begin(), row.answers.end(), answers[before - kFirst].begin(),
                           answerOf);
        }
    }
    return answers;
}

constexpr auto kAnswers = unfoldedTable();

// Neighbourhoods in which a pair can fare differently: parts of numbers with their signs,
// brackets and separators. None begins the text, where Qt 6.4 overlooks a number.
constexpr std::array kBefore{u"x ",  u"x",    u"x 1",  u"x (",  u"x 1)",
                             u"x $", u"x (1", u"x $1", u"x 1,", u"x -"};
constexpr std::array kAfter{u"", u"x", u"1", u"(", u",1", u"(1", u"$"};

} // namespace

bool mayEndLine(const QString& text, qsizetype at)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    finder.setPosition(at);
    return finder.isAtBoundary();
}

PairAnswer answerForAsciiPair(char16_t before, char16_t after)
{
    return kAnswers[before - kFirst][after - kFirst];
}

PairAnswer findAnswerForPair(char16_t before, char16_t after)
{
    const QString pair = QString(QChar(before)) + QChar(after);
    std::size_t breaks = 0;
    for (const char16_t* const prefix : kBefore) {
        const QString start = QString::fromUtf16(prefix);
        for (const char16_t* const suffix : kAfter) {
            breaks +=
                mayEndLine(start + pair + QString::fromUtf16(suffix), start.size() + 1) ? 1 : 0;
        }
    }
    if (breaks == 0) {
        return PairAnswer::No;
    }
    return breaks == kBefore.size() * kAfter.size() ? PairAnswer::Yes : PairAnswer::AskAboutText;
}

} // namespace quillon
