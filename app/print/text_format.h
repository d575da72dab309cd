// SPDX-License-Identifier: MIT
#pragma once

#include "app/print/print_format.h"
#include "app/print/terminal_row.h"

#include <optional>

namespace quillon {

// Rows as text, in colour or not; headings as tail(1) gives them; counts as a number, a tab and
// the level's name.
class TextFormat final : public PrintFormat {
public:
    // Without `colors` nothing is coloured.
    TextFormat(std::optional<ColorDepth> colors, ControlCharacters controls, RowNumber number);

    void appendHeading(const QString& input, bool isFirst, QByteArray& out) override;
    void appendRow(const AttributedRow& row, const QString& input, QByteArray& out) override;
    void appendCounts(const SeverityCounts& counts, const QString& input, QByteArray& out) override;

private:
    std::optional<TerminalRowFormat> m_colored;
    ControlCharacters m_controls;
    RowNumber m_number;
};

} // namespace quillon
