// SPDX-License-Identifier: MIT
#include "render/styled_line.h"

#include "render/row_patterns.h"
#include "search/row_marks.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr double kMatchBackgroundAlpha = 0.35;
// Number, text, timestamp before, at and after its bold time, text.
constexpr std::size_t kUsualRuns = 6;

// Cuts a row into runs. Later settings override earlier ones where they overlap.
class RunBuilder {
public:
    explicit RunBuilder(std::vector<AttributeRun> runs) : m_runs(std::move(runs)) {}
    RunBuilder(qsizetype length, const Color& foreground)
    {
        m_runs.reserve(kUsualRuns);
        m_runs.push_back(
            AttributeRun{0, length, RunAttributes{foreground, std::nullopt, FontWeight::Regular}});
    }

    // Applies `change` to the attributes of every run within the range.
    template <typename Change>
    void apply(const TextRange& range, Change change)
    {
        if (range.length <= 0) {
            return;
        }
        const std::size_t first = splitAt(range.start);
        const std::size_t last = splitAt(range.end());
        for (std::size_t i = first; i < last; ++i) {
            change(m_runs[i].attributes);
        }
    }

    // Applies the style of a match to many ranges at once, in order and without overlap. One walk
    // over runs and ranges together: splitting for each would cost the square of their number.
    void mark(const std::vector<TextRange>& ranges)
    {
        std::vector<AttributeRun> runs;
        runs.reserve(m_runs.size() + 2 * ranges.size());
        auto range = ranges.begin();
        for (const AttributeRun& run : m_runs) {
            qsizetype at = run.start;
            while (at < run.end()) {
                while (range != ranges.end() && range->end() <= at) {
                    ++range;
                }
                const bool inside = range != ranges.end() && range->start <= at;
                qsizetype end = run.end();
                if (range != ranges.end()) {
                    end = std::min(end, inside ? range->end() : range->start);
                }
                AttributeRun piece{at, end - at, run.attributes};
                if (inside) {
                    piece.attributes.background =
                        Color::system(SystemColor::SelectedTextBackground, kMatchBackgroundAlpha);
                    piece.attributes.foreground = Color::system(SystemColor::Text);
                }
                runs.push_back(piece);
                at = end;
            }
        }
        m_runs = std::move(runs);
    }

    // The runs, adjacent equal ones joined.
    [[nodiscard]] std::vector<AttributeRun> take()
    {
        std::size_t kept = 0;
        for (std::size_t i = 1; i < m_runs.size(); ++i) {
            if (m_runs[i].attributes == m_runs[kept].attributes) {
                m_runs[kept].length += m_runs[i].length;
            } else {
                m_runs[++kept] = m_runs[i];
            }
        }
        m_runs.resize(kept + 1);
        return std::move(m_runs);
    }

private:
    // The index of the run that begins at `position`, after cutting one in two where needed.
    std::size_t splitAt(qsizetype position)
    {
        std::size_t index = 0;
        while (index < m_runs.size() && m_runs[index].end() <= position) {
            ++index;
        }
        if (index == m_runs.size() || m_runs[index].start == position) {
            return index;
        }
        AttributeRun tail = m_runs[index];
        m_runs[index].length = position - tail.start;
        tail.length = tail.end() - position;
        tail.start = position;
        m_runs.insert(m_runs.begin() + static_cast<std::ptrdiff_t>(index) + 1, tail);
        return index + 1;
    }

    std::vector<AttributeRun> m_runs;
};

// A row with the matches of a search.
class MarkedStyle final : public RowStyle {
public:
    MarkedStyle(std::vector<AttributeRun> unmarked, std::shared_ptr<const SearchExpression> search,
                const AttributedRow& row)
        : m_unmarked(std::move(unmarked)), m_search(std::move(search)),
          m_marks(*m_search, row.string(), TextRange{row.prefixLength(), row.text().size()})
    {
    }

    bool advance(qsizetype end) override { return m_marks.advance(end); }
    [[nodiscard]] std::vector<AttributeRun> runsIn(const TextRange& part) const override
    {
        RunBuilder runs(m_unmarked.runsIn(part));
        runs.mark(m_marks.in(part));
        return runs.take();
    }

private:
    SettledStyle m_unmarked;
    std::shared_ptr<const SearchExpression> m_search;
    RowMarks m_marks;
};

} // namespace

LogRowStyler::LogRowStyler(const BaseAttributes& baseAttributes, const HighlightColors& colors,
                           std::shared_ptr<const SearchExpression> search)
    : m_baseAttributes(baseAttributes), m_colors(colors), m_search(std::move(search))
{
}

std::vector<AttributeRun> LogRowStyler::runsOf(const AttributedRow& row) const
{
    if (!m_search) {
        return unmarkedRunsOf(row);
    }
    MarkedStyle style(unmarkedRunsOf(row), m_search, row);
    while (!style.advance(row.length())) {
    }
    return style.runsIn(TextRange{0, row.length()});
}

std::unique_ptr<RowStyle> LogRowStyler::styleOf(const AttributedRow& row) const
{
    if (!m_search) {
        return std::make_unique<SettledStyle>(unmarkedRunsOf(row));
    }
    return std::make_unique<MarkedStyle>(unmarkedRunsOf(row), m_search, row);
}

std::vector<AttributeRun> LogRowStyler::unmarkedRunsOf(const AttributedRow& row) const
{
    // The number and the tab before the text can be part of none of the fixed patterns, and a tab
    // delimits words as the start of a text does.
    const QString& text = row.text();
    const qsizetype textStart = row.prefixLength();
    const auto inRow = [textStart](const TextRange& range) {
        return TextRange{range.start + textStart, range.length};
    };
    const auto foreground = [](const Color& color) {
        return [color](RunAttributes& attributes) {
            attributes.foreground = color;
        };
    };
    RunBuilder runs(row.length(), m_colors[roleOf(row.severity())]);
    if (const auto timestamp = findTimestamp(text)) {
        runs.apply(inRow(*timestamp), foreground(m_colors[HighlightRole::Date]));
        if (const auto time = findTimeOfDay(text)) {
            runs.apply(inRow(*time),
                       [](RunAttributes& attributes) { attributes.weight = FontWeight::Bold; });
        }
    }
    runs.apply(TextRange{0, textStart - 1}, foreground(Color::system(SystemColor::SecondaryLabel)));
    if (hasDumpCall(text)) {
        runs.apply(TextRange{0, row.length()}, foreground(m_colors[HighlightRole::ArrayDump]));
    }
    return runs.take();
}

AttributedRow styledLine(const LogLine& line, std::shared_ptr<const LogRowStyler> styler)
{
    return AttributedRow(line.number(), line.text(), line.severity(), std::move(styler));
}

} // namespace quillon
