// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_line.h"
#include "render/attributed_string.h"
#include "render/highlight_colors.h"
#include "search/search_expression.h"

#include <memory>

namespace quillon {

// The style of log rows in one pass: what the pass has found in the settings, the text size and the
// search, fixed when the pass begins.
class LogRowStyler final : public RowStyler {
public:
    // `search` may be null: nothing is searched for.
    LogRowStyler(const BaseAttributes& baseAttributes, const HighlightColors& colors,
                 std::shared_ptr<const SearchExpression> search);

    [[nodiscard]] const BaseAttributes& baseAttributes() const override { return m_baseAttributes; }

    [[nodiscard]] Color severityColor(LogSeverity severity) const override
    {
        return m_colors[roleOf(severity)];
    }

    // From weakest to strongest: the severity's colour on the whole row; the timestamp's colour on
    // the first PHP timestamp and, in a row that has one, bold on the first time of day; the
    // secondary label colour on the line number; the dump colour on the whole row where it holds a
    // dump call; text colour on a light selection colour for each match of the search, which is
    // looked for in the number too.
    [[nodiscard]] std::vector<AttributeRun> runsOf(const AttributedRow& row) const override;
    [[nodiscard]] std::unique_ptr<RowStyle> styleOf(const AttributedRow& row) const override;

private:
    [[nodiscard]] std::vector<AttributeRun> unmarkedRunsOf(const AttributedRow& row) const;

    BaseAttributes m_baseAttributes;
    HighlightColors m_colors;
    std::shared_ptr<const SearchExpression> m_search;
};

// The row that shows the line: its number without grouping, a tab, its text and a line feed.
AttributedRow styledLine(const LogLine& line, std::shared_ptr<const LogRowStyler> styler);

} // namespace quillon
