// SPDX-License-Identifier: MIT
#pragma once

#include "app/print/json_row.h"
#include "app/print/print_format.h"

#include <cstdint>

namespace quillon {

// One JSON object a line, as docs/json.md has it: for each row, or for the counts of an input.
// There are no headings; where there are several inputs, each object names its own.
class JsonFormat final : public PrintFormat {
public:
    enum class FileField : std::uint8_t { LeftOut, Written };

    JsonFormat(FileField fileField, JsonRuns runs) : m_fileField(fileField), m_runs(runs) {}

    void appendHeading(const QString& input, bool isFirst, QByteArray& out) override;
    void appendRow(const AttributedRow& row, const QString& input, QByteArray& out) override;
    void appendCounts(const SeverityCounts& counts, const QString& input, QByteArray& out) override;

private:
    void appendStart(const QString& input, QByteArray& out) const;

    FileField m_fileField;
    JsonRuns m_runs;
};

} // namespace quillon
