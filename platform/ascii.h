// SPDX-License-Identifier: MIT
#pragma once

#include <QChar>

namespace quillon {

constexpr bool isAsciiDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

constexpr bool isAsciiLetter(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

// Space to tilde.
constexpr bool isPrintableAscii(QChar character)
{
    return character >= u' ' && character <= u'~';
}

} // namespace quillon
