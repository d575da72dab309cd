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

} // namespace

bool hasCharacterFoldingToAscii(QStringView text)
{
    const char16_t* const units = text.utf16();
    // Most lines are ASCII, which a look at eight units at a time tells.
    return !isAscii(units, text.size()) && std::any_of(units, units + text.size(), foldsToAscii);
}

} // namespace quillon
