// SPDX-License-Identifier: MIT
#pragma once

#include "platform/utf16_block.h"

#include <QStringView>

#include <array>
#include <bitset>
#include <cstddef>

namespace quillon {

// Tells in one pass over a text which of several pairs of adjacent ASCII letters it may contain,
// without regard to their case. "May": characters beyond Latin-1 can look like a pair; a pair that
// is there is never missed. A word that holds one of the pairs needs not be searched for where the
// pair is not.
template <std::size_t Count>
class AsciiPairScan {
public:
    // `pairs` are two small letters each.
    explicit constexpr AsciiPairScan(const std::array<const char*, Count>& pairs)
    {
        for (std::size_t i = 0; i < Count; ++i) {
            m_pairs[i] = joined(static_cast<std::uint16_t>(pairs[i][0]),
                                static_cast<std::uint16_t>(pairs[i][1]));
        }
    }

    // The pairs that the text may contain, by their index.
    [[nodiscard]] std::bitset<Count> findIn(QStringView text) const
    {
        std::bitset<Count> found;
        const char16_t* const units = text.utf16();
        const qsizetype starts = text.size() - 1; // places where a pair may begin
        if (starts < kUtf16BlockSize) {
            for (qsizetype at = 0; at < starts; ++at) {
                const std::uint16_t pair = joined(units[at] | kCaseBit, units[at + 1] | kCaseBit);
                for (std::size_t i = 0; i < Count; ++i) {
                    found[i] = found[i] || pair == m_pairs[i];
                }
            }
            return found;
        }
        std::array<Utf16Block, Count> seen{};
        const auto look = [&](qsizetype at) {
            const Utf16Block first = loadUtf16Block(units + at) | kCaseBit;
            const Utf16Block second = loadUtf16Block(units + at + 1) | kCaseBit;
            const Utf16Block pair = (first << 8) ^ second;
            for (std::size_t i = 0; i < Count; ++i) {
                const auto equal = pair == m_pairs[i];
                seen[i] |= reinterpret_cast<const Utf16Block&>(equal);
            }
        };
        qsizetype at = 0;
        for (; at + kUtf16BlockSize <= starts; at += kUtf16BlockSize) {
            look(at);
        }
        if (at < starts) {
            // The last places, together with some that have been looked at before.
            look(starts - kUtf16BlockSize);
        }
        for (std::size_t i = 0; i < Count; ++i) {
            found[i] = hasAnyBit(seen[i]);
        }
        return found;
    }

private:
    // What tells a small letter from its capital.
    static constexpr std::uint16_t kCaseBit = 0x20;

    // Both in one unit, which for two letters is theirs alone.
    static constexpr std::uint16_t joined(unsigned first, unsigned second)
    {
        return static_cast<std::uint16_t>((first << 8U) ^ second);
    }

    std::array<std::uint16_t, Count> m_pairs{};
};

} // namespace quillon
