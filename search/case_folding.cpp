// SPDX-License-Identifier: MIT
#include "search/case_folding.h"

#include "platform/utf16_block.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr bool foldsToAscii(char16_t unit)
{
    return unit == 0x00DF || unit == 0x0130 || unit == 0x0149 || unit == 0x017F || unit == 0x01F0 ||
           (unit >= 0x1E96 && unit <= 0x1E9A) || unit == 0x1E9E || unit == 0x212A ||
           (unit >= 0xFB00 && unit <= 0xFB06);
}

// What whole characters fold to, without those that contain another one of them: "ss", "st", "ffi"
// and "ffl".
constexpr std::array kFoldings{QLatin1StringView("s"), QLatin1StringView("k"),
                               QLatin1StringView("ff"), QLatin1StringView("fi"),
                               QLatin1StringView("fl")};

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

bool isFoldedTo(QLatin1StringView word)
{
    return std::any_of(kFoldings.begin(), kFoldings.end(), [word](QLatin1StringView folding) {
        return word.contains(folding, Qt::CaseInsensitive);
    });
}

} // namespace quillon
