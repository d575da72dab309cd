// SPDX-License-Identifier: MIT
#include "render/row_patterns.h"

#include "platform/ascii.h"

#include <QString>

#include <array>

namespace quillon {

namespace {

// The expressions are compiled once, on first use, and only ever needed for unusual rows.
const RegularExpression& timestampExpression()
{
    static const auto expression = RegularExpression::compile(
        QStringLiteral(R"(\[\d{2}-[A-Za-z]{3}-\d{4} (\d{2}:\d{2}:\d{2}) UTC\])"),
        CaseSensitivity::Sensitive, PatternSource::Program);
    return *expression;
}

const RegularExpression& timeOfDayExpression()
{
    static const auto expression = RegularExpression::compile(
        QStringLiteral(R"(\d{2}:\d{2}:\d{2})"), CaseSensitivity::Sensitive, PatternSource::Program);
    return *expression;
}

const RegularExpression& dumpExpression()
{
    static const auto expression = RegularExpression::compile(
        QStringLiteral(R"((?:\bArray\b\s*\(|\bprint_r\s*\(|\bvar_dump\s*\())"),
        CaseSensitivity::Insensitive, PatternSource::Program);
    return *expression;
}

bool isAsciiWordCharacter(QChar character)
{
    return isAsciiLetter(character) || character == u'_' || isAsciiDigit(character);
}

bool isAsciiSpace(QChar character)
{
    return character == u' ' || (character >= u'\t' && character <= u'\r');
}

// Whether `text` has the shape given by a pattern of its length, in which '0' stands for a digit,
// 'a' for an ASCII letter and every other character for itself.
bool hasShape(QStringView text, QLatin1StringView shape)
{
    for (qsizetype i = 0; i < shape.size(); ++i) {
        const QChar wanted = shape[i];
        const bool fits = wanted == u'0'   ? text[i].isDigit()
                          : wanted == u'a' ? isAsciiLetter(text[i])
                                           : text[i] == wanted;
        if (!fits) {
            return false;
        }
    }
    return true;
}

bool hasSurrogate(QStringView text)
{
    unsigned found = 0;
    for (const QChar character : text) {
        found |= unsigned{(character.unicode() & 0xF800U) == 0xD800U};
    }
    return found != 0;
}

bool endsWithWord(QStringView text, QLatin1StringView word)
{
    return text.endsWith(word, Qt::CaseInsensitive);
}

constexpr QLatin1StringView kTimestampShape("[00-aaa-0000 00:00:00 UTC]");
constexpr QLatin1StringView kTimeShape("00:00:00");

enum class Answer { No, Yes, AskExpression };

// Looks at what stands before the parenthesis at `parenthesis`.
Answer dumpCallBefore(QStringView row, qsizetype parenthesis)
{
    static constexpr std::array kWords{QLatin1StringView("array"), QLatin1StringView("print_r"),
                                       QLatin1StringView("var_dump")};
    qsizetype end = parenthesis;
    while (end > 0 && isAsciiSpace(row[end - 1])) {
        --end;
    }
    if (end == 0) {
        return Answer::No;
    }
    if (row[end - 1].unicode() >= 0x80) {
        return Answer::AskExpression; // other kinds of space, or letters that fold to ASCII
    }
    const QStringView before = row.first(end);
    for (const QLatin1StringView word : kWords) {
        if (!endsWithWord(before, word)) {
            continue;
        }
        if (word.size() == end) {
            return Answer::Yes;
        }
        const QChar previous = row[end - word.size() - 1];
        if (previous.unicode() >= 0x80) {
            return Answer::AskExpression;
        }
        if (!isAsciiWordCharacter(previous)) {
            return Answer::Yes;
        }
    }
    return Answer::No;
}

} // namespace

std::optional<TextRange> findTimestamp(QStringView row)
{
    static constexpr QLatin1StringView kZone(" UTC");
    for (qsizetype at = row.indexOf(u']'); at >= 0; at = row.indexOf(u']', at + 1)) {
        if (!row.first(at).endsWith(kZone)) {
            continue;
        }
        const qsizetype end = at + 1;
        const qsizetype start = end - kTimestampShape.size();
        if (start >= 0 && hasShape(row.sliced(start, kTimestampShape.size()), kTimestampShape)) {
            return TextRange{start, kTimestampShape.size()};
        }
        // Digits outside the basic plane take two units each, so the shape does not fit them.
        const qsizetype reach = std::min(end, 2 * kTimestampShape.size());
        if (hasSurrogate(row.sliced(end - reach, reach))) {
            return timestampExpression().firstMatch(row);
        }
    }
    return std::nullopt;
}

std::optional<TextRange> findTimeOfDay(QStringView row)
{
    if (hasSurrogate(row)) {
        return timeOfDayExpression().firstMatch(row);
    }
    for (qsizetype at = row.indexOf(u':'); at >= 0; at = row.indexOf(u':', at + 1)) {
        const qsizetype start = at - 2;
        if (start >= 0 && start + kTimeShape.size() <= row.size() &&
            hasShape(row.sliced(start, kTimeShape.size()), kTimeShape)) {
            return TextRange{start, kTimeShape.size()};
        }
    }
    return std::nullopt;
}

bool hasDumpCall(QStringView row)
{
    for (qsizetype at = row.indexOf(u'('); at >= 0; at = row.indexOf(u'(', at + 1)) {
        switch (dumpCallBefore(row, at)) {
        case Answer::Yes:
            return true;
        case Answer::AskExpression:
            return dumpExpression().firstMatch(row).has_value();
        case Answer::No:
            break;
        }
    }
    return false;
}

} // namespace quillon
