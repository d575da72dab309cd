// SPDX-License-Identifier: MIT
#include "tests/support/random_text.h"

namespace quillon {

std::uint32_t RandomText::below(std::uint32_t limit)
{
    // Not std::uniform_int_distribution, whose numbers are each library's own.
    return static_cast<std::uint32_t>(m_engine()) % limit;
}

QString RandomText::join(const QStringList& pieces, std::uint32_t maximumPieces)
{
    QString text;
    const std::uint32_t count = below(maximumPieces + 1);
    for (std::uint32_t i = 0; i < count; ++i) {
        const QString& piece = pieces[below(static_cast<std::uint32_t>(pieces.size()))];
        if (piece.isEmpty()) {
            text += QChar(static_cast<char16_t>(below(0x10000)));
        } else {
            text += piece;
        }
    }
    return text;
}

} // namespace quillon
