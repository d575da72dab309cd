// SPDX-License-Identifier: MIT
#include "ui/layout/control_letters.h"

#include "platform/displayed_character.h"

namespace quillon {

namespace {

constexpr std::u16string_view kLetters = u"NUSHSXEXETEQAKBLBSHTLFVTFFCRSOSI"
                                         u"DLD1D2D3D4NKSYEBCNEMSBECFSGSRSUS"
                                         u"SPDT";

} // namespace

std::u16string_view controlLetters(char16_t picture)
{
    const std::size_t at = 2 * (std::size_t{picture} - kFirstControlPicture);
    return picture >= kFirstControlPicture && at < kLetters.size() ? kLetters.substr(at, 2)
                                                                   : std::u16string_view();
}

} // namespace quillon
