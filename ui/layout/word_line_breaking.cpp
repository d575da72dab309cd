// SPDX-License-Identifier: MIT
#include "ui/layout/word_line_breaking.h"

#include "platform/ascii.h"
#include "platform/utf16_block.h"
#include "ui/layout/break_opportunities.h"
#include "ui/layout/character_range.h"
#include "ui/layout/monospace_metrics.h"
#include "ui/layout/word_widths.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

// Digits, spaces and marks beside such text come from the monospaced font.
bool isPlain(QChar::Script script)
{
    return script == QChar::Script_Common || script == QChar::Script_Latin;
}

qsizetype contentBefore(QStringView text, qsizetype end)
{
    while (end > 0 && text[end - 1] == u' ') {
        --end;
    }
    return end;
}

// Words are so short that calling a search for their end takes longer than looking.
qsizetype wordEnd(QStringView text, qsizetype at)
{
    while (at < text.size() && text[at] != u' ') {
        ++at;
    }
    return at;
}

qsizetype spacesEnd(QStringView text, qsizetype at)
{
    while (at < text.size() && text[at] == u' ') {
        ++at;
    }
    return at;
}

} // namespace

// One text on its way through: the line at hand and what came before.
class WordLineBreaker::Walk {
public:
    Walk(const WordLineBreaker& breaker, Fixed indent)
        : m_metrics(breaker.m_metrics), m_opportunities(breaker.m_opportunities),
          m_width(breaker.m_lineWidth.value_or(std::numeric_limits<Fixed>::max() / 2)), m_x(indent)
    {
        m_lines.oneLine = indent;
    }

    // False where it takes a text layout.
    bool take(QStringView text, qsizetype asciiLength);
    [[nodiscard]] const WordLines& lines() const { return m_lines; }
    // What the ink of the text's last character adds to its width.
    [[nodiscard]] Fixed lastInk(QStringView text) const;

private:
    [[nodiscard]] qsizetype firstUnusual(QStringView text, qsizetype from) const;
    [[nodiscard]] qsizetype nextLine(QStringView text, qsizetype start, qsizetype limit) const;
    bool addPlain(QStringView text);
    bool addWord(const MeasuredWord& word);
    void beginLine();

    const MonospaceMetrics& m_metrics;
    const BreakOpportunities& m_opportunities;
    Fixed m_width;
    Fixed m_x;                  // where the content of the line ends so far
    Fixed m_spaces = 0;         // what stands behind it, and counts once more content follows
    std::optional<Fixed> m_ink; // of the last word; none where that is plain
    WordLines m_lines;
};

bool WordLineBreaker::Walk::take(QStringView text, qsizetype asciiLength)
{
    WordWidths& words = m_metrics.words();
    QChar::Script script = words.scriptAtStart(text);
    qsizetype at = 0;
    if (!isPlain(script)) {
        at = spacesEnd(text, 0);
        m_spaces = at * words.spaceIn(script);
    }
    while (at < text.size()) {
        if (isPlain(script)) {
            const qsizetype unusual = firstUnusual(text, std::max(at, asciiLength));
            const qsizetype space = text.first(unusual).lastIndexOf(u' ');
            const qsizetype end = unusual == text.size() ? unusual : std::max(at, space + 1);
            if (end > at && !addPlain(text.sliced(at, end - at))) {
                return false;
            }
            at = end;
        }
        if (at < text.size()) {
            const qsizetype end = wordEnd(text, at);
            const MeasuredWord& word = words.measure(text.sliced(at, end - at), script);
            if (!addWord(word)) {
                return false;
            }
            at = spacesEnd(text, end);
            m_spaces = (at - end) * word.space;
            const bool isLatin = at < text.size() && isAsciiLetter(text[at]);
            script = isLatin ? QChar::Script_Latin : word.script;
        }
    }
    return true;
}

qsizetype WordLineBreaker::Walk::firstUnusual(QStringView text, qsizetype from) const
{
    qsizetype at = from;
    qsizetype blockEnd = at;
    while (at == blockEnd && at < text.size()) {
        at += asciiBlocks(text.sliced(at));
        blockEnd = std::min(text.size(), at + kUtf16BlockSize);
        while (at < blockEnd && m_metrics.isUniform(characterRangeOf(text[at]))) {
            ++at;
        }
    }
    return at;
}

void WordLineBreaker::Walk::beginLine()
{
    ++m_lines.count;
    m_x = 0;
    m_spaces = 0;
}

bool WordLineBreaker::Walk::addWord(const MeasuredWord& word)
{
    for (const WordPart& part : word.parts) {
        m_lines.oneLine += m_spaces + part.advance;
        if (m_x > 0 && m_x + m_spaces + part.advance + part.ink > m_width) {
            beginLine();
        }
        m_x += m_spaces + part.advance;
        m_spaces = 0;
        m_lines.widest = std::max(m_lines.widest, m_x + part.ink);
    }
    m_ink = word.parts.empty() ? 0 : word.parts.back().ink;
    return !word.parts.empty() && m_lines.widest <= m_width;
}

bool WordLineBreaker::Walk::addPlain(QStringView text)
{
    const Fixed column = m_metrics.columnAdvance();
    const qsizetype content = contentBefore(text, text.size());
    for (qsizetype start = 0; start < content;) {
        const Fixed left = m_x + m_spaces;
        const qsizetype room = std::max<Fixed>(0, m_width - left) / column;
        const bool fits = content - start <= room;
        const qsizetype next = fits ? content : nextLine(text, start, start + room);
        if (const qsizetype count = contentBefore(text.first(next), next) - start; count > 0) {
            m_x = left + count * column;
            m_lines.widest = std::max(m_lines.widest, m_x + m_metrics.largestInk());
        }
        m_lines.oneLine += (start == 0 ? m_spaces : 0) + (next - start) * column;
        m_spaces = 0;
        if (!fits) {
            beginLine();
        }
        start = next;
    }
    m_spaces += (text.size() - content) * column;
    m_ink.reset();
    return m_lines.widest <= m_width;
}

Fixed WordLineBreaker::Walk::lastInk(QStringView text) const
{
    return m_ink ? *m_ink
                 : m_metrics.words().measure(text.last(1), QChar::Script_Latin).parts.back().ink;
}

// As LineBreaker::breakUniform() has it.
qsizetype WordLineBreaker::Walk::nextLine(QStringView text, qsizetype start, qsizetype limit) const
{
    if (text[limit] == u' ') {
        return spacesEnd(text, limit);
    }
    const qsizetype cut = m_x > 0 ? start : std::max(limit, start + 1);
    return m_opportunities.lastIn(text, start, limit).value_or(cut);
}

WordLineBreaker::WordLineBreaker(const MonospaceMetrics& metrics,
                                 const BreakOpportunities& opportunities,
                                 std::optional<Fixed> lineWidth)
    : m_metrics(metrics), m_opportunities(opportunities), m_lineWidth(lineWidth)
{
}

std::optional<WordLines> WordLineBreaker::measure(QStringView text, Fixed indent,
                                                  qsizetype asciiLength) const
{
    Walk walk(*this, indent);
    if (!walk.take(text, asciiLength) || (!m_lineWidth && text.endsWith(u' '))) {
        return std::nullopt;
    }
    WordLines lines = walk.lines();
    lines.oneLine += m_lineWidth ? 0 : walk.lastInk(text);
    return lines;
}

} // namespace quillon
