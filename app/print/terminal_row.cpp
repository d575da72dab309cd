// SPDX-License-Identifier: MIT
#include "app/print/terminal_row.h"

#include "render/attributed_string.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace quillon {

namespace {

constexpr std::size_t kMostStyles = 64;
constexpr QByteArrayView kToPlain("\x1B[0m");

// A search that found its place in the lower-cased row may end between the halves of a character,
// which encoded by themselves would be no text. The first run takes it whole.
qsizetype wholeCharacterEnd(QStringView text, qsizetype end)
{
    const bool isBetween = end > 0 && end < text.size() && text[end - 1].isHighSurrogate() &&
                           text[end].isLowSurrogate();
    return isBetween ? end + 1 : end;
}

} // namespace

TerminalRowFormat::TerminalRowFormat(ColorDepth depth, ControlCharacters controls, RowNumber number)
    : m_depth(depth), m_controls(controls), m_number(number)
{
}

const TerminalRowFormat::TerminalStyle& TerminalRowFormat::styleOf(const RunAttributes& attributes)
{
    for (const TerminalStyle& known : m_styles) {
        if (known.attributes == attributes) {
            return known;
        }
    }
    // Only settings that are changed again and again while a log is followed make so many.
    if (m_styles.size() == kMostStyles) {
        m_styles.clear();
    }
    const QByteArray parameters = graphicRendition(attributes, m_depth);
    if (parameters.isEmpty()) {
        return m_styles.emplace_back(
            TerminalStyle{attributes, parameters, {}, kToPlain.toByteArray()});
    }
    return m_styles.emplace_back(TerminalStyle{attributes, parameters, "\x1B[" + parameters + 'm',
                                               "\x1B[0;" + parameters + 'm'});
}

void TerminalRowFormat::append(const AttributedRow& row, QByteArray& out)
{
    std::array<char, std::numeric_limits<qint64>::digits10 + 3> number{};
    char* const numberEnd =
        std::to_chars(number.data(), number.data() + number.size() - 1, row.number()).ptr;
    *numberEnd = '\t';
    const QByteArrayView prefix(number.data(), numberEnd + 1);
    const QStringView text = row.text();
    QByteArray parameters; // of the style that the terminal has
    qsizetype written = 0; // UTF-16 units of the text
    row.forEachRun([&](const AttributeRun& run) {
        const qsizetype textEnd =
            wholeCharacterEnd(text, std::min(run.end() - prefix.size(), text.size()));
        const bool hasPrefix = m_number == RowNumber::Shown && run.start < prefix.size();
        if (!hasPrefix && textEnd <= written) {
            return;
        }
        const TerminalStyle& style = styleOf(run.attributes);
        if (style.parameters != parameters) {
            out += parameters.isEmpty() ? style.fromPlain : style.fromOther;
            parameters = style.parameters;
        }
        if (hasPrefix) {
            out += prefix.sliced(run.start, std::min(run.end(), prefix.size()) - run.start);
        }
        if (textEnd > written) {
            appendText(text.sliced(written, textEnd - written), m_controls, out);
            written = textEnd;
        }
    });
    if (!parameters.isEmpty()) {
        out += kToPlain;
    }
    out += '\n';
}

} // namespace quillon
