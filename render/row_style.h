// SPDX-License-Identifier: MIT
#pragma once

#include "render/text_attributes.h"
#include "search/text_range.h"

#include <utility>
#include <vector>

namespace quillon {

// The style of one row, for those who want to see a part of it. A row can be as long as a whole log
// and have a million matches of a search, which take seconds to find; so its style is worked out as
// far as somebody asks, a bit at a time.
class RowStyle {
public:
    virtual ~RowStyle() = default;
    // Works out a span of the search more (see MatchingBudget), unless the runs that begin before
    // `end` are known. Whether they are now.
    virtual bool advance(qsizetype end) = 0;
    // The runs of that part of the row, in order, covering it without gaps; adjacent runs differ.
    // Matches that are not known yet are missing.
    [[nodiscard]] virtual std::vector<AttributeRun> runsIn(const TextRange& part) const = 0;
};

// A style that is known from the beginning: the runs of a whole row.
class SettledStyle final : public RowStyle {
public:
    explicit SettledStyle(std::vector<AttributeRun> runs) : m_runs(std::move(runs)) {}

    bool advance(qsizetype /*end*/) override { return true; }
    [[nodiscard]] std::vector<AttributeRun> runsIn(const TextRange& part) const override;

private:
    std::vector<AttributeRun> m_runs;
};

} // namespace quillon
