// SPDX-License-Identifier: MIT
#pragma once

#include "render/attributed_string.h"

#include <array>
#include <vector>

namespace quillon {

class LogTextLayout;

// Severities whose rows are worth a mark beside a text, the worst first.
inline constexpr std::array kMarkedSeverities{LogSeverity::Fatal, LogSeverity::Error};

// Which rows of a text have one of those severities. A text that extends the one before costs what
// is new in it; any other one a look at each row.
class SevereRows {
public:
    // Finds them in another text, or in what is new in the same one.
    void follow(const AttributedString& text);

    // By severity, in the order of kMarkedSeverities; ascending.
    using Rows = std::vector<qsizetype>;
    [[nodiscard]] const std::array<Rows, kMarkedSeverities.size()>& bySeverity() const
    {
        return m_rows;
    }

private:
    AttributedString m_text;
    std::array<Rows, kMarkedSeverities.size()> m_rows;
};

// A mark on a track, at a pixel from its beginning, for a row of the text.
struct SeverityMark {
    int pixel = 0;
    qsizetype row = 0;
    bool operator==(const SeverityMark&) const = default;
};

// Where the first lines of those rows, which are of the text that is laid out, stand on a track of
// so many pixels that stands for the text's whole height. Ascending, one for each pixel that has
// any: for the first of the worst rows there. Costs no more than the track has pixels, and the
// logarithm of the rows, however many rows there are.
std::vector<SeverityMark> marksOnTrack(const SevereRows& rows, const LogTextLayout& layout,
                                       int trackHeight);

} // namespace quillon
