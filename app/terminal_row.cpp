// SPDX-License-Identifier: MIT
#include "app/terminal_row.h"

#include "render/attributed_string.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::size_t kMostRenditions = 64;

// Moves the terminal from one look to another, by way of plain text.
void appendChange(const QByteArray& from, const QByteArray& to, QByteArray& out)
{
    if (from == to) {
        return;
    }
    out += "\x1B[";
    if (!from.isEmpty()) {
        out += to.isEmpty() ? "0" : "0;";
    }
    out += to;
    out += 'm';
}

} // namespace

TerminalRowFormat::TerminalRowFormat(ColorDepth depth, ControlCharacters controls)
    : m_depth(depth), m_controls(controls)
{
}

const QByteArray& TerminalRowFormat::rendition(const RunAttributes& attributes)
{
    for (const auto& [known, parameters] : m_renditions) {
        if (known == attributes) {
            return parameters;
        }
    }
    // Only settings that are changed again and again while a log is followed make so many.
    if (m_renditions.size() == kMostRenditions) {
        m_renditions.clear();
    }
    return m_renditions.emplace_back(attributes, graphicRendition(attributes, m_depth)).second;
}

void TerminalRowFormat::append(const AttributedRow& row, QByteArray& out)
{
    const QByteArray prefix = QByteArray::number(row.number()) + '\t';
    const QStringView text = row.text();
    QByteArray look;
    const std::vector<AttributeRun> runs = row.runs();
    for (const AttributeRun& run : runs) {
        const qsizetype end = std::min(run.end(), prefix.size() + text.size());
        if (end <= run.start) {
            continue;
        }
        const QByteArray& wanted = rendition(run.attributes);
        appendChange(look, wanted, out);
        look = wanted;
        if (run.start < prefix.size()) {
            out +=
                QByteArrayView(prefix).sliced(run.start, std::min(end, prefix.size()) - run.start);
        }
        const qsizetype textStart = std::max(run.start, prefix.size());
        if (end > textStart) {
            appendText(text.sliced(textStart - prefix.size(), end - textStart), m_controls, out);
        }
    }
    appendChange(look, QByteArray(), out);
    out += '\n';
}

} // namespace quillon
