// SPDX-License-Identifier: MIT
#include "app/print/text_format.h"

#include "platform/file_path.h"
#include "render/attributed_string.h"

namespace quillon {

TextFormat::TextFormat(std::optional<ColorDepth> colors, ControlCharacters controls,
                       RowNumber number)
    : m_controls(controls), m_number(number)
{
    if (colors) {
        m_colored.emplace(*colors, controls, number);
    }
}

void TextFormat::appendHeading(const QString& input, bool isFirst, QByteArray& out)
{
    out += isFirst ? "==> " : "\n==> ";
    appendUtf8(displayedPath(input), out);
    out += " <==\n";
}

void TextFormat::appendRow(const AttributedRow& row, const QString& /*input*/, QByteArray& out)
{
    if (m_colored) {
        m_colored->append(row, out);
    } else {
        appendPlainRow(row, m_controls, m_number, out);
    }
}

void TextFormat::appendCounts(const SeverityCounts& counts, const QString& /*input*/,
                              QByteArray& out)
{
    for (const LogSeverity severity : kAllSeverities) {
        const QLatin1StringView name = rawValue(severity);
        out += QByteArray::number(counts[static_cast<std::size_t>(severity)]) + '\t';
        out.append(name.data(), name.size());
        out += '\n';
    }
}

} // namespace quillon
