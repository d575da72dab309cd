// SPDX-License-Identifier: MIT
#include "model/records/decode_text.h"

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace quillon {

namespace {

// Logs are ASCII for the most part: this many bytes at a time are tested and widened in a loop of
// fixed length, which the compiler turns into vector instructions.
constexpr qsizetype kBlock = 16;

bool isAsciiBlock(const char* bytes)
{
    std::uint64_t halves[2];
    std::memcpy(halves, bytes, sizeof halves);
    return ((halves[0] | halves[1]) & 0x8080'8080'8080'8080U) == 0;
}

// The macro's own conversions are not ours to mend.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
UChar32 nextCharacter(const char* bytes, std::int64_t& at, std::int64_t size)
{
    UChar32 character = 0;
    U8_NEXT_OR_FFFD(bytes, at, size, character);
    return character;
}
#pragma GCC diagnostic pop

} // namespace

QString decodeText(QByteArrayView bytes)
{
    // A text never has more UTF-16 units than it has bytes in UTF-8.
    QString text(bytes.size(), Qt::Uninitialized);
    auto* const start = reinterpret_cast<char16_t*>(text.data());
    char16_t* out = start;
    const char* const in = bytes.data();
    const auto size = static_cast<std::int64_t>(bytes.size());
    std::int64_t i = 0;
    while (i < size) {
        while (i + kBlock <= size && isAsciiBlock(in + i)) {
            for (qsizetype k = 0; k < kBlock; ++k) {
                out[k] = static_cast<unsigned char>(in[i + k]);
            }
            out += kBlock;
            i += kBlock;
        }
        // One character outside the fast path costs at most one block of them.
        const std::int64_t stop = std::min<std::int64_t>(size, i + kBlock);
        while (i < stop) {
            const UChar32 character = nextCharacter(in, i, size);
            if (U_IS_BMP(character)) {
                *out++ = static_cast<char16_t>(character);
            } else {
                *out++ = U16_LEAD(character);
                *out++ = U16_TRAIL(character);
            }
        }
    }
    text.truncate(out - start);
    return text;
}

} // namespace quillon
