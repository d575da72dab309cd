// SPDX-License-Identifier: MIT
#include "app/terminal_row.h"

#include "render/attributed_string.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace quillon {

namespace {

constexpr std::size_t kMostLooks = 64;
constexpr QByteArrayView kToPlain("\x1B[0m");

} // namespace

TerminalRowFormat::TerminalRowFormat(ColorDepth depth, ControlCharacters controls)
    : m_depth(depth), m_controls(controls)
{
}

const TerminalRowFormat::Look& TerminalRowFormat::lookOf(const RunAttributes& attributes)
{
    for (const Look& known : m_looks) {
        if (known.attributes == attributes) {
            return known;
        }
    }
    // Only settings that are changed again and again while a log is followed make so many.
    if (m_looks.size() == kMostLooks) {
        m_looks.clear();
    }
    const QByteArray parameters = graphicRendition(attributes, m_depth);
    if (parameters.isEmpty()) {
        return m_looks.emplace_back(Look{attributes, parameters, {}, kToPlain.toByteArray()});
    }
    return m_looks.emplace_back(
        Look{attributes, parameters, "\x1B[" + parameters + 'm', "\x1B[0;" + parameters + 'm'});
}

void TerminalRowFormat::append(const AttributedRow& row, QByteArray& out)
{
    std::array<char, std::numeric_limits<qint64>::digits10 + 3> number{};
    char* const numberEnd =
        std::to_chars(number.data(), number.data() + number.size() - 1, row.number()).ptr;
    *numberEnd = '\t';
    const QByteArrayView prefix(number.data(), numberEnd + 1);
    const QStringView text = row.text();
    QByteArray parameters; // of the look that the terminal has
    const std::vector<AttributeRun> runs = row.runs();
    for (const AttributeRun& run : runs) {
        const qsizetype end = std::min(run.end(), prefix.size() + text.size());
        if (end <= run.start) {
            continue;
        }
        const Look& look = lookOf(run.attributes);
        if (look.parameters != parameters) {
            out += parameters.isEmpty() ? look.fromPlain : look.fromOther;
            parameters = look.parameters;
        }
        if (run.start < prefix.size()) {
            out += prefix.sliced(run.start, std::min(end, prefix.size()) - run.start);
        }
        const qsizetype textStart = std::max(run.start, prefix.size());
        if (end > textStart) {
            appendText(text.sliced(textStart - prefix.size(), end - textStart), m_controls, out);
        }
    }
    if (!parameters.isEmpty()) {
        out += kToPlain;
    }
    out += '\n';
}

} // namespace quillon
