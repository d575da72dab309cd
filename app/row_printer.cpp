// SPDX-License-Identifier: MIT
#include "app/row_printer.h"

#include "app/print_output.h"

namespace quillon {

RowPrinter::RowPrinter(AppendRow appendRow, PrintOutput& output)
    : m_appendRow(std::move(appendRow)), m_output(output)
{
}

void RowPrinter::show(const AttributedString& text)
{
    const auto& rows = text.rows();
    const bool isContinued = m_shown.isEmpty() || text.isExtensionOf(m_shown);
    qsizetype next = isContinued ? m_shown.rows().size() : rows.size();
    for (; next < rows.size() && m_output.state() == PrintOutput::State::Good; ++next) {
        m_appendRow(rows[next], m_output.buffer());
        m_output.flushWhenFull();
    }
    m_output.flush();
    m_shown = text;
}

} // namespace quillon
