// SPDX-License-Identifier: MIT
#include "ui/layout/design_advances.h"

#include <QRawFont>
#include <QtEndian>

#include <algorithm>

namespace quillon {

namespace {

// Bytes: where the number of entries stands in “hhea”, and what an entry of “hmtx” takes, which
// begins with the advance.
constexpr qsizetype kCountOffset = 34;
constexpr qsizetype kEntrySize = 4;

} // namespace

DesignAdvances::DesignAdvances(const QRawFont& font) : m_entries(font.fontTable("hmtx"))
{
    const QByteArray header = font.fontTable("hhea");
    if (header.size() >= kCountOffset + qsizetype{sizeof(quint16)}) {
        m_count = std::min<qsizetype>(qFromBigEndian<quint16>(header.constData() + kCountOffset),
                                      m_entries.size() / kEntrySize);
    }
}

// The glyphs behind the last entry have its advance.
std::optional<quint16> DesignAdvances::of(quint32 glyph) const
{
    if (m_count == 0) {
        return std::nullopt;
    }
    const qsizetype entry = std::min<qsizetype>(glyph, m_count - 1);
    return qFromBigEndian<quint16>(m_entries.constData() + entry * kEntrySize);
}

} // namespace quillon
