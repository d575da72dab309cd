// SPDX-License-Identifier: MIT
#pragma once

#include "app/print/print_format.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace quillon {

class PrintOutput;

// One of the inputs of the command line.
struct PrintedInput {
    int place = 0; // among all of them
    QString name;  // as it was given
};

// Writes what comes from one or several inputs in a format, with a heading where the input changes.
class PrintWriter {
public:
    // Only several inputs need headings.
    enum class Headings : std::uint8_t { LeftOut, Written };

    PrintWriter(std::unique_ptr<PrintFormat> format, Headings headings, PrintOutput& output);

    // What is written next comes from that input.
    void select(const PrintedInput& input);
    void writeRow(const AttributedRow& row, const PrintedInput& input);
    void writeCounts(const SeverityCounts& counts, const PrintedInput& input);
    // Hands over to the output what has been written.
    void flush();

    // False once nothing more can be written; the output tells why.
    [[nodiscard]] bool isOpen() const;

private:
    std::unique_ptr<PrintFormat> m_format;
    Headings m_headings;
    PrintOutput& m_output;
    std::optional<int> m_selected; // its place
};

} // namespace quillon
