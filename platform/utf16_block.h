// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <array>
#include <cstdint>
#include <cstring>

namespace quillon {

// Eight UTF-16 units at a time, compared by the processor's vector instructions (GCC's and
// Clang's vector extension, which both turn into what the processor has). The whole log is looked
// at several times for each key press; one unit at a time that takes several times as long.
using Utf16Block = std::uint16_t __attribute__((vector_size(16)));

inline constexpr qsizetype kUtf16BlockSize = 8;

inline Utf16Block loadUtf16Block(const char16_t* units)
{
    Utf16Block block;
    std::memcpy(&block, units, sizeof block);
    return block;
}

// Whether any bit of the block is set, which after a comparison means that any unit satisfied it.
inline bool hasAnyBit(const Utf16Block& block)
{
    std::array<std::uint64_t, sizeof(Utf16Block) / sizeof(std::uint64_t)> words{};
    std::memcpy(words.data(), &block, sizeof block);
    return (words[0] | words[1]) != 0;
}

// Whether all of [units, units + size) is below U+0080.
inline bool isAscii(const char16_t* units, qsizetype size)
{
    Utf16Block seen{};
    qsizetype at = 0;
    for (; at + kUtf16BlockSize <= size; at += kUtf16BlockSize) {
        seen |= loadUtf16Block(units + at);
    }
    std::uint16_t rest = 0;
    for (; at < size; ++at) {
        rest = static_cast<std::uint16_t>(rest | units[at]);
    }
    const auto beyond = static_cast<std::uint16_t>(0xFF80);
    return !hasAnyBit(seen & beyond) && (rest & beyond) == 0;
}

} // namespace quillon
