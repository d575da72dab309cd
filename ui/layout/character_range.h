// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <cstdint>

namespace quillon {

inline constexpr QChar kSoftHyphen(0xAD);

// The smallest of these sets that holds all characters of a text. Each contains the ones before it.
// In most monospaced fonts all characters of the first three are equally wide.
enum class CharacterRange : std::uint8_t {
    Ascii,       // U+0020 to U+007E
    Latin,       // and U+00A1 to U+017F without the soft hyphen: the accented letters of Europe
    Typographic, // and U+2012 to U+2022 and U+2026: dashes, quotation marks, bullet, ellipsis
    Any,
};

// The range of a text. Behind the eight units that make it Any, a text is not read.
CharacterRange characterRangeOf(QStringView text);
CharacterRange characterRangeOf(QChar character);

// The length of the text's beginning that is of range Ascii, in whole blocks of eight UTF-16 units,
// which are looked at together.
qsizetype asciiBlocks(QStringView text);

} // namespace quillon
