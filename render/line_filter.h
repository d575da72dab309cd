// SPDX-License-Identifier: MIT
#pragma once

#include "model/log_line.h"
#include "render/search_expression.h"

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

    // Whether the line is shown. Only its text is searched, never its number.
    [[nodiscard]] bool allows(const LogLine& line) const;
};

} // namespace quillon
