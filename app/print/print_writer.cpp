// SPDX-License-Identifier: MIT
#include "app/print/print_writer.h"

#include "app/print/print_output.h"

namespace quillon {

PrintWriter::PrintWriter(std::unique_ptr<PrintFormat> format, Headings headings,
                         PrintOutput& output)
    : m_format(std::move(format)), m_headings(headings), m_output(output)
{
}

void PrintWriter::select(const PrintedInput& input)
{
    if (m_headings == Headings::Written && m_selected != input.place && isOpen()) {
        m_format->appendHeading(input.name, !m_selected, m_output.buffer());
    }
    m_selected = input.place;
}

void PrintWriter::writeRow(const AttributedRow& row, const PrintedInput& input)
{
    if (!isOpen()) {
        return;
    }
    select(input);
    m_format->appendRow(row, input.name, m_output.buffer());
    m_output.flushWhenFull();
}

void PrintWriter::writeCounts(const SeverityCounts& counts, const PrintedInput& input)
{
    if (isOpen()) {
        select(input);
        m_format->appendCounts(counts, input.name, m_output.buffer());
    }
}

void PrintWriter::flush()
{
    m_output.flush();
}

bool PrintWriter::isOpen() const
{
    return m_output.state() == PrintOutput::State::Good;
}

} // namespace quillon
