// SPDX-License-Identifier: MIT
#include "search/case_folding.h"

#include "platform/utf16_block.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr bool foldsToAscii(char16_t unit)
{
    return unit == 0x00DF || unit == 0x0130 || unit == 0x0149 || unit == 0x017F || unit == 0x01F0 ||
           (unit >= 0x1E96 && unit <= 0x1E9A) || unit == 0x1E9E || unit == 0x212A ||
           (unit >= 0xFB00 && unit <= 0xFB06);
}

constexpr qsizetype kUnitsAtATime = 64;

} // namespace

bool hasCharacterFoldingToAscii(QStringView text)
{
    const char16_t* const units = text.utf16();
    const qsizetype size = text.size();
    // Most of most lines is ASCII, which a look at many units at a time tells.
    for (qsizetype at = 0; at < size; at += kUnitsAtATime) {
        const qsizetype count = std::min(kUnitsAtATime, size - at);
        if (!isAscii(units + at, count) &&
            std::any_of(units + at, units + at + count, foldsToAscii)) {
            return true;
        }
    }
    return false;
}

} // namespace quillon
