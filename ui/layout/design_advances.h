// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <optional>

class QRawFont;

namespace quillon {

// The advances of a font's glyphs as its designer wrote them into its file: what they are at any
// size before they are fitted to pixels. Looking one up loads no outline.
// Source: OpenType 1.9, tables “hhea” and “hmtx”.
class DesignAdvances {
public:
    explicit DesignAdvances(const QRawFont& font);

    // In the font's own units; none where the font does not tell, as one of bitmaps.
    [[nodiscard]] std::optional<quint16> of(quint32 glyph) const;

private:
    QByteArray m_entries;
    qsizetype m_count = 0;
};

} // namespace quillon
