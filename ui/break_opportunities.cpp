// SPDX-License-Identifier: MIT
#include "ui/break_opportunities.h"

#include "ui/displayed_text.h"

#include <QString>
#include <QTextBoundaryFinder>
#include <unicode/uchar.h>

#include <algorithm>

namespace quillon {

namespace {

// How far the text is looked at around a pair that does not decide by itself. Only digits and the
// marks inside numbers have such reach, and numbers are shorter.
constexpr qsizetype kReachBefore = 64;
constexpr qsizetype kReachAfter = 16;

// Neighbourhoods in which a pair can fare differently: parts of numbers with their signs,
// brackets and separators. None begins the text, where Qt 6.4 overlooks a number.
constexpr std::array kBefore{u"x ",  u"x",    u"x 1",  u"x (",  u"x 1)",
                             u"x $", u"x (1", u"x $1", u"x 1,", u"x -"};
constexpr std::array kAfter{u"", u"x", u"1", u"(", u",1", u"(1", u"$"};

constexpr bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

constexpr bool isLetter(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

constexpr bool isSeparator(QChar character)
{
    return character == u'.' || character == u',' || character == u':' || character == u';' ||
           character == u'/';
}

constexpr bool isNumeric(QChar character)
{
    return isDigit(character) || isSeparator(character) || character == u' ';
}

// The most usual case by far, in times, versions and addresses: behind a separator between two
// digits. Brackets next to the number may still break it up, so it has to stand between letters.
bool isInsideNumber(QStringView text, qsizetype at)
{
    if (at < 2 || !isDigit(text[at]) || !isSeparator(text[at - 1]) || !isDigit(text[at - 2])) {
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
    const bool endsWithText = after == text.size() - 1 && isDigit(text[after]);
    return (isLetter(lead) || lead == u'-' || lead == u'[') &&
           (isLetter(text[after]) || endsWithText);
}

bool isBoundary(const QString& text, qsizetype at)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    finder.setPosition(at);
    return finder.isAtBoundary();
}

} // namespace

BreakOpportunities::BreakOpportunities() : m_answers(std::make_unique<Table>()) {}

BreakOpportunities::~BreakOpportunities() = default;

std::size_t BreakOpportunities::keyOf(char16_t character)
{
    if (character < 128) {
        return character;
    }
    const auto lineBreakClass = u_getIntPropertyValue(character, UCHAR_LINE_BREAK);
    return std::min<std::size_t>(128 + static_cast<std::size_t>(lineBreakClass), kKeys - 1);
}

BreakOpportunities::Answer BreakOpportunities::probe(char16_t before, char16_t after)
{
    const QString pair = QString(QChar(before)) + QChar(after);
    std::size_t breaks = 0;
    for (const char16_t* const prefix : kBefore) {
        const QString start = QString::fromUtf16(prefix);
        for (const char16_t* const suffix : kAfter) {
            breaks +=
                isBoundary(start + pair + QString::fromUtf16(suffix), start.size() + 1) ? 1 : 0;
        }
    }
    if (breaks == 0) {
        return Answer::No;
    }
    return breaks == kBefore.size() * kAfter.size() ? Answer::Yes : Answer::AskAboutText;
}

bool BreakOpportunities::isBeforeUnusual(QStringView text, qsizetype at) const
{
    const char16_t before = displayedCharacter(text[at - 1].unicode());
    const char16_t after = displayedCharacter(text[at].unicode());
    Answer& answer = (*m_answers)[keyOf(before)][keyOf(after)];
    if (answer == Answer::Unknown) {
        answer = probe(before, after);
    }
    if (answer != Answer::AskAboutText) {
        return answer == Answer::Yes;
    }
    if (isInsideNumber(text, at)) {
        return false;
    }
    // Qt takes digits and the marks of a number for one number even across a space.
    const qsizetype start = std::max<qsizetype>(0, at - kReachBefore);
    const qsizetype end = std::min(text.size(), at + kReachAfter);
    const QString lead = QStringLiteral("x ");
    const QString around = text.sliced(start, end - start).toString();
    return isBoundary(lead + around, lead.size() + at - start);
}

} // namespace quillon
