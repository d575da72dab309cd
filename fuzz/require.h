// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <cstdlib>

namespace quillon {

// What a fuzz target promises of every input: the fuzzer keeps the input that breaks it.
inline void require(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

// Takes a number below `limit` from the front of the bytes, 0 when there are none left.
inline int takeBelow(QByteArrayView& bytes, int limit)
{
    if (bytes.isEmpty()) {
        return 0;
    }
    const int number = static_cast<unsigned char>(bytes.front()) % limit;
    bytes = bytes.sliced(1);
    return number;
}

// Takes as many bytes as the first of them says, or what there is.
inline QByteArrayView takePiece(QByteArrayView& bytes)
{
    const qsizetype wanted = takeBelow(bytes, 256);
    const qsizetype length = qMin(wanted, bytes.size());
    const QByteArrayView piece = bytes.first(length);
    bytes = bytes.sliced(length);
    return piece;
}

} // namespace quillon
