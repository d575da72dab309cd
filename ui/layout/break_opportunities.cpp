// SPDX-License-Identifier: MIT
#include "ui/layout/break_opportunities.h"

#include "platform/ascii.h"
#include "ui/layout/displayed_text.h"

#include <QString>
#include <unicode/uchar.h>

#include <algorithm>

namespace quillon {

namespace {

constexpr char16_t kFirstVisible = u'!';
constexpr char16_t kLastVisible = u'~';

// How far the text is looked at around a pair that does not decide by itself. Only digits and the
// marks inside numbers have such reach, and numbers are shorter.
constexpr qsizetype kReachBefore = 64;
constexpr qsizetype kReachAfter = 16;

// What no number goes on behind or before: letters and the marks that are no part of any.
constexpr bool isNoNumber(QChar character)
{
    constexpr QStringView kMarks = u"!?\"'#&*<=>@^_`~|";
    return isAsciiLetter(character) || kMarks.contains(character);
}

constexpr bool isSeparator(QChar character)
{
    return character == u'.' || character == u',' || character == u':' || character == u';' ||
           character == u'/';
}

constexpr bool isNumeric(QChar character)
{
    return isAsciiDigit(character) || isSeparator(character) || character == u' ';
}

// The most usual case by far, in times, versions and addresses: behind a separator between two
// digits. Brackets next to the number may still break it up, so it has to stand between others.
bool isInsideNumber(QStringView text, qsizetype at)
{
    if (at < 2 || !isAsciiDigit(text[at]) || !isSeparator(text[at - 1]) ||
        !isAsciiDigit(text[at - 2])) {
        return false;
    }
    const qsizetype first = std::max<qsizetype>(0, at - kReachBefore);
    const qsizetype last = std::min(text.size(), at + kReachAfter) - 1;
    qsizetype before = at - 2;
    while (before > first && isNumeric(text[before])) {
        --before;
    }
    qsizetype after = at;
    while (after < last && isNumeric(text[after])) {
        ++after;
    }
    const QChar lead = text[before];
    const bool endsWithText = after == text.size() - 1 && isAsciiDigit(text[after]);
    return (isNoNumber(lead) || lead == u'-' || lead == u'[') &&
           (isNoNumber(text[after]) || endsWithText);
}

} // namespace

BreakOpportunities::BreakOpportunities() : m_answers(std::make_unique<Table>())
{
    m_isBreakableAfter.fill(true);
    for (char16_t before = kFirstVisible; before <= kLastVisible; ++before) {
        m_isBreakableAfter[before] = false;
        for (char16_t after = kFirstVisible; after <= kLastVisible; ++after) {
            const PairAnswer answer = answerForAsciiPair(before, after);
            (*m_answers)[before][after] = answer;
            m_isBreakableAfter[before] |= answer != PairAnswer::No;
        }
    }
}

BreakOpportunities::~BreakOpportunities() = default;

std::size_t BreakOpportunities::keyOf(char16_t character)
{
    if (character < kAscii) {
        return character;
    }
    switch (const int lineBreakClass = u_getIntPropertyValue(character, UCHAR_LINE_BREAK)) {
    // The classes of accented letters and of quotation marks: those of their ASCII like.
    case U_LB_ALPHABETIC:
        return u'a';
    case U_LB_QUOTATION:
        return u'"';
    default:
        return std::min<std::size_t>(kAscii + static_cast<std::size_t>(lineBreakClass), kKeys - 1);
    }
}

std::optional<qsizetype> BreakOpportunities::lastIn(QStringView text, qsizetype start,
                                                    qsizetype limit) const
{
    for (qsizetype at = limit; at > start; --at) {
        if (isBreakableSpace(text[at - 1].unicode()) || isBefore(text, at)) {
            return at;
        }
    }
    return std::nullopt;
}

bool BreakOpportunities::isBeforeUnusual(QStringView text, qsizetype at) const
{
    const char16_t before = displayedCharacter(text[at - 1].unicode());
    const char16_t after = displayedCharacter(text[at].unicode());
    PairAnswer& answer = (*m_answers)[keyOf(before)][keyOf(after)];
    if (answer == PairAnswer::Unknown) {
        answer = findAnswerForPair(before, after);
    }
    if (answer != PairAnswer::AskAboutText) {
        return answer == PairAnswer::Yes;
    }
    if (isInsideNumber(text, at)) {
        return false;
    }
    // Qt takes digits and the marks of a number for one number even across a space.
    const qsizetype start = std::max<qsizetype>(0, at - kReachBefore);
    const qsizetype end = std::min(text.size(), at + kReachAfter);
    const QString lead = QStringLiteral("x ");
    const QString around = text.sliced(start, end - start).toString();
    return mayEndLine(lead + around, lead.size() + at - start);
}

} // namespace quillon
