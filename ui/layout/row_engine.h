// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/line_breaking.h"
#include "ui/layout/piece_shaper.h"
#include "ui/layout/row_layouter.h"
#include "ui/layout/row_measurer.h"
#include "ui/layout/row_places.h"
#include "ui/layout/word_line_breaking.h"

#include <limits>
#include <optional>

namespace quillon {

// What measures, lays out and hit-tests rows for one font and one width.
struct RowEngine {
    // The references must outlive the engine; `lineWidth` as for RowLayouter.
    RowEngine(const MonospaceMetrics& metrics, const BreakOpportunities& opportunities,
              std::optional<Fixed> lineWidth)
        : breaker(metrics, opportunities, lineWidth.value_or(std::numeric_limits<Fixed>::max())),
          shaper(metrics, lineWidth), places(metrics, shaper),
          layouter(metrics, breaker, shaper, places, lineWidth),
          words(metrics, opportunities, lineWidth),
          measurer(metrics, breaker, words, shaper, layouter, lineWidth)
    {
    }
    RowEngine(const RowEngine&) = delete;
    RowEngine& operator=(const RowEngine&) = delete;
    ~RowEngine() = default;

    LineBreaker breaker;
    PieceShaper shaper;
    RowPlaces places;
    RowLayouter layouter;
    WordLineBreaker words;
    RowMeasurer measurer;
};

} // namespace quillon
