// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace quillon {

// A range of a text, in UTF-16 units.
struct TextRange {
    qsizetype start = 0;
    qsizetype length = 0;

    [[nodiscard]] qsizetype end() const { return start + length; }
    bool operator==(const TextRange&) const = default;
};

} // namespace quillon
