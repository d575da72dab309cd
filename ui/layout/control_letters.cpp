// SPDX-License-Identifier: MIT
#include "ui/layout/control_letters.h"

namespace quillon {

namespace {

constexpr char16_t kFirstPicture = 0x2400;
constexpr std::u16string_view kLetters = u"NUSHSXEXETEQAKBLBSHTLFVTFFCRSOSI"
                                         u"DLD1D2D3D4NKSYEBCNEMSBECFSGSRSUS"
                                         u"SPDT";

} // namespace

std::u16string_view controlLetters(char16_t picture)
{
    const std::size_t at = 2 * (std::size_t{picture} - kFirstPicture);
    return picture >= kFirstPicture && at < kLetters.size() ? kLetters.substr(at, 2)
                                                            : std::u16string_view();
}

} // namespace quillon
