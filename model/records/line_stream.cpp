// SPDX-License-Identifier: MIT
#include "model/records/line_stream.h"

#include "model/records/decode_text.h"
#include "model/records/line_builder.h"
#include "model/records/line_enumeration.h"

#include <unicode/utf8.h>

#include <algorithm>

namespace quillon {

namespace {

constexpr bool endsLine(QChar character)
{
    const char16_t unit = character.unicode();
    return unit == u'\n' || unit == u'\r' || unit == u'\u0085' || unit == u'\u2028' ||
           unit == u'\u2029';
}

// How many of the bytes there are before a character that is not complete. Bytes that no character
// can begin with count as complete, having their replacement.
qsizetype completeLength(QByteArrayView bytes)
{
    constexpr qsizetype kMostPartBytes = 3;
    const QByteArrayView tail = bytes.last(std::min(bytes.size(), kMostPartBytes));
    const char* const units = tail.data();
    auto length = static_cast<int>(tail.size());
    U8_TRUNCATE_IF_INCOMPLETE(units, 0, length);
    return bytes.size() - tail.size() + length;
}

// The length of the text up to and with its last line terminator.
qsizetype finishedLength(QStringView text)
{
    const auto last = std::find_if(text.rbegin(), text.rend(), endsLine);
    return text.rend() - last;
}

} // namespace

void LineStream::append(QByteArrayView bytes, LogLines& lines)
{
    if (m_undecoded.isEmpty()) {
        const qsizetype complete = completeLength(bytes);
        appendText(decodeText(bytes.first(complete)), lines);
        m_undecoded = bytes.sliced(complete).toByteArray();
        return;
    }
    const QByteArray joined = std::exchange(m_undecoded, QByteArray()).append(bytes);
    append(joined, lines);
}

void LineStream::finish(LogLines& lines)
{
    appendText(decodeText(std::exchange(m_undecoded, QByteArray())), lines);
    m_isFirstLineHeld = false;
    if (!m_unfinished.isEmpty()) {
        appendUnfinished(lines);
    }
}

void LineStream::appendText(QStringView text, LogLines& lines)
{
    if (text.isEmpty()) {
        return;
    }
    if (std::exchange(m_isAfterCarriageReturn, false) && text.front() == u'\n') {
        text = text.sliced(1);
        if (text.isEmpty()) {
            return;
        }
    }
    m_isAfterCarriageReturn = text.back() == u'\r';
    if (std::exchange(m_isFirstLineHeld, false)) {
        appendLine({}, lines);
    } else if (m_counter == 0 && m_unfinished.isEmpty() &&
               (text == u"\r\n" || (text.size() == 1 && endsLine(text.front())))) {
        m_isFirstLineHeld = true;
        return;
    }
    const qsizetype finished = finishedLength(text);
    LineEnumeration enumeration(text.first(finished), LineEnumeration::Scope::Part);
    while (const auto line = enumeration.next()) {
        appendLine(*line, lines);
    }
    holdUnfinished(text.sliced(finished), lines);
}

// `line` goes on with what is unfinished, if anything is.
void LineStream::appendLine(QStringView line, LogLines& lines)
{
    if (m_unfinished.isEmpty() && line.size() <= kMostLineUnits) {
        appendParsedLine(line, m_counter, lines);
        return;
    }
    holdUnfinished(line, lines);
    appendUnfinished(lines);
}

void LineStream::holdUnfinished(QStringView text, LogLines& lines)
{
    while (m_unfinished.size() + text.size() > kMostLineUnits) {
        qsizetype room = kMostLineUnits - m_unfinished.size();
        if (room > 0 && text[room - 1].isHighSurrogate()) {
            --room;
        }
        m_unfinished += text.first(room);
        appendUnfinished(lines);
        text = text.sliced(room);
    }
    m_unfinished += text;
}

void LineStream::appendUnfinished(LogLines& lines)
{
    appendParsedLine(m_unfinished, m_counter, lines);
    m_unfinished = QString();
}

} // namespace quillon
