// SPDX-License-Identifier: MIT
#pragma once

#include "render/text_attributes.h"
#include "ui/layout/character_range.h"
#include "ui/layout/text_units.h"

#include <QFont>
#include <QPointF>
#include <QRawFont>
#include <QStringView>

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

class WordWidths;

// A glyph to draw: its index in one of MonospaceMetrics' fonts.
struct Glyph {
    static constexpr int kNothing = -1;
    static constexpr int kSpelled = -2;

    quint32 index = 0;
    // kNothing where there is nothing to draw; kSpelled for the picture of a control character that
    // no font has, which MonospaceMetrics::spelling() takes the place of.
    int font = kNothing;
};

// One of the small letters of a picture that is spelled out.
struct PictureLetter {
    Glyph glyph;
    QPointF place; // points from where the character's glyph would stand on the baseline
};

// Advances and glyphs of one monospaced font (regular and bold) at one size, each looked up once
// and then kept per character. Rows are set on lines of one height, whatever fonts their characters
// are borrowed from, as in a terminal.
class MonospaceMetrics {
public:
    MonospaceMetrics(const QFont& regular, const QFont& bold);
    ~MonospaceMetrics();
    MonospaceMetrics(const MonospaceMetrics&) = delete;
    MonospaceMetrics& operator=(const MonospaceMetrics&) = delete;

    [[nodiscard]] const QFont& font(FontWeight weight) const;

    // The advance that every ASCII character has.
    [[nodiscard]] Fixed columnAdvance() const { return m_columnAdvance; }
    // Tab stops stand at multiples of so many columns.
    static constexpr qsizetype kTabColumns = 8;
    [[nodiscard]] Fixed tabDistance() const { return kTabColumns * m_columnAdvance; }
    // Points, a whole number.
    [[nodiscard]] int lineHeight() const { return m_lineHeight; }
    // Points from the top of a line to its baseline.
    [[nodiscard]] double baseline() const { return m_baseline; }

    // The advance of a character, none where it needs shaping or is a tab.
    [[nodiscard]] std::optional<Fixed> advance(char16_t character) const
    {
        const auto& page = m_advances[character / kPageSize];
        const std::int32_t kept = page ? (*page)[character % kPageSize] : kUnknown;
        if (kept == kNeedsShaping) {
            return std::nullopt;
        }
        return kept != kUnknown ? std::optional<Fixed>(kept) : findAdvance(character);
    }

    // The widths of words that need shaping.
    [[nodiscard]] WordWidths& words() const { return *m_words; }
    // The farthest that the ink of any character of range Typographic reaches past its advance.
    [[nodiscard]] Fixed largestInk() const;

    // Whether a text has a character that needs shaping.
    [[nodiscard]] bool needsShaping(QStringView text) const;

    // Whether every character of the range has the column advance.
    [[nodiscard]] bool isUniform(CharacterRange range) const
    {
        return range <= m_uniformRange || (range < m_mixedRange && examineUpTo(range));
    }
    [[nodiscard]] bool isUniform(QStringView text) const
    {
        return isUniform(characterRangeOf(text));
    }

    // The glyph of a character that needs no shaping. The bold one is drawn at the places of the
    // regular one.
    [[nodiscard]] Glyph glyph(char16_t character, FontWeight weight) const
    {
        return glyphIn(m_faces[static_cast<std::size_t>(weight)], character);
    }
    // What to draw within one column for a picture whose glyph is kSpelled: two small letters, the
    // second one lower than the first, so that they are not taken for text of the log.
    [[nodiscard]] std::array<PictureLetter, 2> spelling(char16_t picture, FontWeight weight) const;
    // The font of a glyph; `font` as Glyph has it, 0 or more.
    [[nodiscard]] const QRawFont& glyphFont(int font) const;

private:
    static constexpr std::size_t kPageSize = 256;
    static constexpr std::int32_t kUnknown = 0;
    static constexpr std::int32_t kNeedsShaping = -1;

    using AdvancePage = std::array<std::int32_t, kPageSize>;
    struct GlyphPage {
        std::array<Glyph, kPageSize> glyphs{};
        std::array<bool, kPageSize> isKnown{};
    };
    struct Face {
        QFont font;
        QRawFont raw;
        std::array<std::unique_ptr<GlyphPage>, kPageSize> pages;
    };

    // Finds out about the ranges up to this one, and tells whether it is uniform.
    bool examineUpTo(CharacterRange range) const;
    [[nodiscard]] bool haveColumnAdvance(CharacterRange range) const;
    [[nodiscard]] std::optional<Fixed> findAdvance(char16_t character) const;
    Glyph glyphIn(Face& face, char16_t character) const;
    [[nodiscard]] Glyph findGlyph(char16_t character, const Face& face) const;
    int indexOfFont(const QRawFont& font) const;

    mutable std::array<Face, 2> m_faces;
    // Made once a text has a picture to be spelled out.
    mutable std::array<std::unique_ptr<Face>, 2> m_letterFaces;
    mutable std::vector<QRawFont> m_fonts;
    // By UTF-16 unit; a character without width of its own is kept as the narrowest.
    mutable std::array<std::unique_ptr<AdvancePage>, kPageSize> m_advances;
    std::unique_ptr<WordWidths> m_words;
    mutable std::optional<Fixed> m_largestInk; // asked from the font once a row needs shaping
    Fixed m_columnAdvance;
    int m_lineHeight;
    double m_baseline;
    // The largest range known to be uniform, and the smallest known not to be. Asked from the font
    // only once a text has such characters.
    mutable std::optional<CharacterRange> m_uniformRange;
    mutable CharacterRange m_mixedRange = CharacterRange::Any;
};

} // namespace quillon
