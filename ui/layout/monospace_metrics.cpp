// SPDX-License-Identifier: MIT
#include "ui/layout/monospace_metrics.h"

#include "platform/utf16_block.h"
#include "ui/layout/control_letters.h"
#include "ui/layout/design_advances.h"
#include "ui/layout/displayed_text.h"
#include "ui/layout/word_widths.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

// U+2026, the last character of the ranges that may be uniform.
constexpr char16_t kLastOfRanges = 0x2026;
// Between these the ranges have no characters.
constexpr char16_t kGapStart = 0x180;
constexpr char16_t kGapEnd = 0x2010;
// Room between lines of a log, as a part of the font's own height.
constexpr double kLineSpacing = 1.15;
// The letters that spell out a picture, to those of the font; the baselines of the first one above
// that of the row and of the second one below it, as parts of the font's size. Capitals are three
// quarters of it high, so that the letters stand clear of each other and of the neighbouring lines.
constexpr double kLetterScale = 0.62;
constexpr double kRise = 0.35;
constexpr double kDrop = 0.14;

// The characters of a range, without those of the smaller ranges.
QString charactersOf(CharacterRange range)
{
    QString characters;
    for (char16_t character = 0x20; character <= kLastOfRanges; ++character) {
        if (character == kGapStart) {
            character = kGapEnd;
        }
        const QChar unit(character);
        if (characterRangeOf(QStringView(&unit, 1)) == range) {
            characters += unit;
        }
    }
    return characters;
}

QFont letterFont(QFont font)
{
    if (font.pixelSize() > 0) {
        font.setPixelSize(
            std::max(1, static_cast<int>(std::round(font.pixelSize() * kLetterScale))));
    } else {
        font.setPointSizeF(font.pointSizeF() * kLetterScale);
    }
    return font;
}

} // namespace

MonospaceMetrics::MonospaceMetrics(const QFont& regular, const QFont& bold)
    : m_faces{Face{regular, QRawFont::fromFont(regular), {}},
              Face{bold, QRawFont::fromFont(bold), {}}},
      m_words(std::make_unique<WordWidths>(regular))
{
    const QFontMetricsF metrics(regular);
    m_columnAdvance = std::max<Fixed>(1, toFixed(metrics.horizontalAdvance(u'0')));
    const double fontHeight = metrics.ascent() + metrics.descent();
    m_lineHeight = static_cast<int>(std::ceil(fontHeight * kLineSpacing));
    m_baseline = std::round((m_lineHeight - fontHeight) / 2 + metrics.ascent());
}

MonospaceMetrics::~MonospaceMetrics() = default;

bool MonospaceMetrics::examineUpTo(CharacterRange range) const
{
    for (const CharacterRange next :
         {CharacterRange::Ascii, CharacterRange::Latin, CharacterRange::Typographic}) {
        if (next > range || next >= m_mixedRange) {
            break;
        }
        if (next <= m_uniformRange) {
            continue;
        }
        if (haveColumnAdvance(next)) {
            m_uniformRange = next;
        } else {
            m_mixedRange = next;
        }
    }
    return range <= m_uniformRange;
}

// Asks the font itself, not a layout for each character: this runs whenever the size changes. What
// has the design advance of a digit has the column advance at any size; asking for that of each
// letter of Europe would load their outlines, which no log shows all (3 ms of a start).
bool MonospaceMetrics::haveColumnAdvance(CharacterRange range) const
{
    const QRawFont& raw = m_faces[0].raw;
    const QString characters = charactersOf(range);
    const QList<quint32> glyphs = raw.glyphIndexesForString(characters);
    if (glyphs.size() != characters.size() || glyphs.contains(0)) {
        return false;
    }
    const DesignAdvances design(raw);
    const auto column = design.of(raw.glyphIndexesForString(QStringLiteral("0")).front());
    if (range != CharacterRange::Ascii && column) {
        return std::all_of(glyphs.begin(), glyphs.end(),
                           [&](quint32 glyph) { return design.of(glyph) == column; });
    }
    const QList<QPointF> advances = raw.advancesForGlyphIndexes(glyphs, QRawFont::SeparateAdvances);
    return std::all_of(advances.begin(), advances.end(), [this](const QPointF& advance) {
        return toFixed(advance.x()) == m_columnAdvance;
    });
}

const QFont& MonospaceMetrics::font(FontWeight weight) const
{
    return m_faces[static_cast<std::size_t>(weight)].font;
}

std::optional<Fixed> MonospaceMetrics::findAdvance(char16_t character) const
{
    auto& page = m_advances[character / kPageSize];
    if (!page) {
        page = std::make_unique<AdvancePage>();
    }
    std::int32_t& kept = (*page)[character % kPageSize];
    if (quillon::needsShaping(character) || character == u'\t') {
        kept = kNeedsShaping;
        return std::nullopt;
    }
    const QChar shown(displayedCharacter(character));
    const Fixed advance = toFixed(QFontMetricsF(m_faces[0].font).horizontalAdvance(QString(shown)));
    kept = static_cast<std::int32_t>(std::max<Fixed>(1, advance));
    return kept;
}

Fixed MonospaceMetrics::largestInk() const
{
    if (!m_largestInk) {
        const QFontMetricsF metrics(m_faces[0].font);
        double farthest = 0;
        for (const CharacterRange range :
             {CharacterRange::Ascii, CharacterRange::Latin, CharacterRange::Typographic}) {
            for (const QChar character : charactersOf(range)) {
                farthest = std::max(farthest, -metrics.rightBearing(character));
            }
        }
        m_largestInk = toFixed(farthest) + 1;
    }
    return *m_largestInk;
}

bool MonospaceMetrics::needsShaping(QStringView text) const
{
    while (true) {
        text = text.sliced(asciiBlocks(text));
        if (text.isEmpty()) {
            return false;
        }
        const QStringView block = text.first(std::min(text.size(), kUtf16BlockSize));
        for (const QChar character : block) {
            if (character != u'\t' && !advance(character.unicode())) {
                return true;
            }
        }
        text = text.sliced(block.size());
    }
}

Glyph MonospaceMetrics::glyphIn(Face& face, char16_t character) const
{
    auto& page = face.pages[character / kPageSize];
    if (!page) {
        page = std::make_unique<GlyphPage>();
    }
    const std::size_t position = character % kPageSize;
    if (!page->isKnown[position]) {
        page->glyphs[position] = findGlyph(character, face);
        page->isKnown[position] = true;
    }
    return page->glyphs[position];
}

Glyph MonospaceMetrics::findGlyph(char16_t character, const Face& face) const
{
    const QString text{QChar(displayedCharacter(character))};
    if (text.front().isSpace()) {
        return Glyph{};
    }
    const QList<quint32> own = face.raw.glyphIndexesForString(text);
    if (own.size() == 1 && own.front() != 0) {
        return Glyph{own.front(), indexOfFont(face.raw)};
    }
    QTextLayout layout(text, face.font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    if (runs.isEmpty() || runs.front().glyphIndexes().isEmpty()) {
        return Glyph{};
    }
    const quint32 index = runs.front().glyphIndexes().front();
    // A font has the same box, or nothing, for all the characters that it lacks.
    if (index == 0 && !controlLetters(text.front().unicode()).empty()) {
        return Glyph{index, Glyph::kSpelled};
    }
    return Glyph{index, indexOfFont(runs.front().rawFont())};
}

std::array<PictureLetter, 2> MonospaceMetrics::spelling(char16_t picture, FontWeight weight) const
{
    auto& face = m_letterFaces[static_cast<std::size_t>(weight)];
    if (!face) {
        const QFont font = letterFont(this->font(weight));
        face = std::make_unique<Face>(Face{font, QRawFont::fromFont(font), {}});
    }
    const std::u16string_view letters = controlLetters(picture);
    const double size = QFontInfo(font(weight)).pixelSize();
    const double right = toPoints(m_columnAdvance) * (1 - kLetterScale);
    return {PictureLetter{glyphIn(*face, letters[0]), QPointF(0, -std::round(kRise * size))},
            PictureLetter{glyphIn(*face, letters[1]), QPointF(right, std::round(kDrop * size))}};
}

int MonospaceMetrics::indexOfFont(const QRawFont& font) const
{
    const auto found = std::find(m_fonts.begin(), m_fonts.end(), font);
    if (found == m_fonts.end()) {
        m_fonts.push_back(font);
        return static_cast<int>(m_fonts.size()) - 1;
    }
    return static_cast<int>(found - m_fonts.begin());
}

const QRawFont& MonospaceMetrics::glyphFont(int font) const
{
    return m_fonts[static_cast<std::size_t>(font)];
}

} // namespace quillon
