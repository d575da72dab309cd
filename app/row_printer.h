// SPDX-License-Identifier: MIT
#pragma once

#include "render/attributed_string.h"

#include <QByteArray>

#include <functional>

namespace quillon {

class PrintOutput;

// Prints a text that changes as rows are appended: each row once. A text made anew shows rows that
// have been printed, perhaps in other colours, and paper cannot be taken back; only what is
// appended to it later is printed.
class RowPrinter {
public:
    using AppendRow = std::function<void(const AttributedRow&, QByteArray&)>;

    // `appendRow` formats a row. The output must outlive the object.
    RowPrinter(AppendRow appendRow, PrintOutput& output);

    // Prints what is new in the text and flushes the output.
    void show(const AttributedString& text);

private:
    AppendRow m_appendRow;
    PrintOutput& m_output;
    AttributedString m_shown;
};

} // namespace quillon
