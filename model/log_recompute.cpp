// SPDX-License-Identifier: MIT
#include "model/log_recompute.h"

#include "render/highlight_colors.h"
#include "render/status_text.h"
#include "render/styled_line.h"

namespace quillon {

namespace {

// The lines that the filter shows; none where its search expression costs too much.
std::optional<std::vector<const LogLine*>> shownLines(const LogLines& lines,
                                                      const LineFilter& filter)
{
    std::vector<const LogLine*> shown;
    for (const LogLine& line : lines) {
        if (filter.allows(line)) {
            shown.push_back(&line);
        }
        if (filter.search && filter.search->isExhausted()) {
            return std::nullopt;
        }
    }
    return shown;
}

// Appends the rows of the shown lines to a copy of `output`. A search expression that turns out to
// cost too much is replaced, for the whole pass, by the literal search. No row is appended before
// that is known: rows taken back would leave no room behind `output`, and all of it would be
// copied.
AttributedString appendShownLines(const AttributedString& output, const LogLines& lines,
                                  const DisplayOptions& options, const UserDefaults& defaults)
{
    LineFilter filter = options.filter;
    filter.search = SearchExpression::make(options.query);
    auto shown = shownLines(lines, filter);
    if (!shown) {
        filter.search = SearchExpression::makeLiteral(options.query);
        shown = shownLines(lines, filter);
    }
    const auto styler = std::make_shared<const LogRowStyler>(
        options.baseAttributes, HighlightColors::read(defaults), filter.search);
    AttributedString extended = output;
    for (const LogLine* const line : *shown) {
        extended.append(styledLine(*line, styler));
    }
    return extended;
}

} // namespace

DisplayedLog rebuildDisplay(const LogLines& lines, const DisplayOptions& options,
                            const UserDefaults& defaults)
{
    AttributedString output = appendShownLines(AttributedString(), lines, options, defaults);
    const bool allFiltered = !lines.isEmpty() && output.isEmpty();
    QString status = allFiltered ? allFilteredStatus(lines.size())
                                 : countsStatus(lines.size(), output.rows().size());
    return DisplayedLog{std::move(output), std::move(status)};
}

std::optional<DisplayedLog> extendDisplay(const AttributedString& output, const LogLines& newLines,
                                          qint64 lineCount, const DisplayOptions& options,
                                          const UserDefaults& defaults)
{
    AttributedString extended = appendShownLines(output, newLines, options, defaults);
    if (extended.rows().size() == output.rows().size()) {
        return std::nullopt;
    }
    QString status = countsStatus(lineCount, extended.lineFeedCount());
    return DisplayedLog{std::move(extended), std::move(status)};
}

} // namespace quillon
