// SPDX-License-Identifier: MIT
#pragma once

#include "app/command_line/command_line.h"
#include "app/print/print_format.h"
#include "app/print/print_writer.h"
#include "render/attributed_string.h"

#include <deque>

namespace quillon {

// What is printed of one input: its rows, as they come; or only the last ones of those that there
// are to begin with, and then those that come; or how many there are. The writer must outlive the
// object.
class InputPrinter {
public:
    InputPrinter(PrintedInput input, const PrintOptions& options, PrintWriter& writer);

    [[nodiscard]] const PrintedInput& input() const { return m_input; }

    // The input could be opened.
    void begin();
    // The next row that is shown.
    void add(const AttributedRow& row);
    // All rows that there are to begin with have been added.
    void endBeginning();
    // Writes out what has been added. False where nothing can be written any more.
    bool flush();

private:
    const PrintedInput m_input;
    PrintWriter& m_writer;
    bool m_isCount;
    SeverityCounts m_counts{};
    // How many rows are kept back to be the last ones, while it is not known that they are.
    std::optional<qint64> m_lastRows;
    std::deque<AttributedRow> m_held;
};

} // namespace quillon
