// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quillon {

// The two letters of ISO 2047 for the control character that a picture (U+2400 to U+2421) stands
// for, such as "EC" for U+241B, escape; no two are alike. Empty for any other character.
std::u16string_view controlLetters(char16_t picture);

} // namespace quillon
