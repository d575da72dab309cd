// SPDX-License-Identifier: MIT
#include "app/print/input_printer.h"

namespace quillon {

InputPrinter::InputPrinter(PrintedInput input, const PrintOptions& options, PrintWriter& writer)
    : m_input(std::move(input)), m_writer(writer), m_isCount(options.isCount),
      m_lastRows(options.lastRows)
{
}

void InputPrinter::begin()
{
    m_writer.select(m_input);
}

void InputPrinter::add(const AttributedRow& row)
{
    if (m_lastRows) {
        m_held.push_back(row);
        if (static_cast<qint64>(m_held.size()) > *m_lastRows) {
            m_held.pop_front();
        }
    } else if (m_isCount) {
        ++m_counts[static_cast<std::size_t>(row.severity())];
    } else {
        m_writer.writeRow(row, m_input);
    }
}

void InputPrinter::endBeginning()
{
    m_lastRows.reset();
    for (const AttributedRow& row : std::exchange(m_held, {})) {
        add(row);
    }
    if (m_isCount) {
        m_writer.writeCounts(m_counts, m_input);
    }
}

bool InputPrinter::flush()
{
    m_writer.flush();
    return m_writer.isOpen();
}

} // namespace quillon
