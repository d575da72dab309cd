// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_line.h"
#include "search/search_expression.h"

#include <memory>

namespace quillon {

// Which lines the user wants to see.
struct LineFilter {
    bool onlyErrors = false;
    bool showWarning = true;
    bool showNotice = true;
    bool showDeprecated = true;
    // Null shows every line that the levels let through.
    std::shared_ptr<const SearchExpression> search = nullptr;

    // Whether a line of that severity may be shown. Only fatal and error lines where only errors
    // are wanted, whatever the other switches say.
    [[nodiscard]] bool allows(LogSeverity severity) const;

    // Whether the line is one to be shown. Only its text is searched, never its number. A line of
    // which that is undecided is not shown.
    [[nodiscard]] Verdict decide(const LogLine& line) const;
    [[nodiscard]] bool allows(const LogLine& line) const { return decide(line) == Verdict::Match; }
};

} // namespace quillon
