// SPDX-License-Identifier: MIT
#include "ui/layout/character_range.h"

#include "platform/utf16_block.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr char16_t kFirstAscii = 0x20;
constexpr char16_t kLastAscii = 0x7E;
constexpr char16_t kFirstLatin = 0xA1;
constexpr char16_t kLastLatin = 0x17F;
constexpr char16_t kFirstTypographic = 0x2012;
constexpr char16_t kLastTypographic = 0x2022;
constexpr char16_t kEllipsis = 0x2026;

// One comparison for both ends: what is below the first wraps around to a large number.
constexpr bool isWithin(char16_t character, char16_t first, char16_t last)
{
    return static_cast<char16_t>(character - first) <= static_cast<char16_t>(last - first);
}

} // namespace

qsizetype asciiBlocks(QStringView text)
{
    const char16_t* const units = text.utf16();
    qsizetype at = 0;
    for (; at + kUtf16BlockSize <= text.size(); at += kUtf16BlockSize) {
        const auto beyond = (loadUtf16Block(units + at) - std::uint16_t{kFirstAscii}) >
                            static_cast<std::uint16_t>(kLastAscii - kFirstAscii);
        if (hasAnyBit(reinterpret_cast<const Utf16Block&>(beyond))) {
            break;
        }
    }
    return at;
}

CharacterRange characterRangeOf(QChar of)
{
    const char16_t character = of.unicode();
    if (isWithin(character, kFirstAscii, kLastAscii)) {
        return CharacterRange::Ascii;
    }
    if (isWithin(character, kFirstLatin, kLastLatin) && character != kSoftHyphen) {
        return CharacterRange::Latin;
    }
    if (isWithin(character, kFirstTypographic, kLastTypographic) || character == kEllipsis) {
        return CharacterRange::Typographic;
    }
    return CharacterRange::Any;
}

CharacterRange characterRangeOf(QStringView text)
{
    CharacterRange range = CharacterRange::Ascii;
    QStringView rest = text.sliced(asciiBlocks(text));
    while (!rest.isEmpty() && range != CharacterRange::Any) {
        const qsizetype count = std::min(rest.size(), kUtf16BlockSize);
        for (const QChar character : rest.first(count)) {
            range = std::max(range, characterRangeOf(character));
        }
        rest = rest.sliced(count);
        rest = rest.sliced(asciiBlocks(rest));
    }
    return range;
}

} // namespace quillon
