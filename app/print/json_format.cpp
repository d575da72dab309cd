// SPDX-License-Identifier: MIT
#include "app/print/json_format.h"

namespace quillon {

void JsonFormat::appendHeading(const QString& /*input*/, bool /*isFirst*/, QByteArray& /*out*/) {}

void JsonFormat::appendStart(const QString& input, QByteArray& out) const
{
    out += '{';
    if (m_fileField == FileField::Written) {
        out += "\"file\":";
        appendJsonString(input, out);
        out += ',';
    }
}

void JsonFormat::appendRow(const AttributedRow& row, const QString& input, QByteArray& out)
{
    appendStart(input, out);
    appendJsonRowFields(row, m_runs, out);
    out += "}\n";
}

void JsonFormat::appendCounts(const SeverityCounts& counts, const QString& input, QByteArray& out)
{
    appendStart(input, out);
    for (const LogSeverity severity : kAllSeverities) {
        const QLatin1StringView name = rawValue(severity);
        const auto index = static_cast<std::size_t>(severity);
        out += index == 0 ? "\"" : ",\"";
        out.append(name.data(), name.size());
        out += "\":" + QByteArray::number(counts[index]);
    }
    out += "}\n";
}

} // namespace quillon
