// SPDX-License-Identifier: MIT
#include "ui/layout/severity_marks.h"

#include "ui/layout/log_text_layout.h"
#include "ui/layout/text_geometry.h"

#include <algorithm>
#include <cstddef>

namespace quillon {

void SevereRows::follow(const AttributedString& text)
{
    qsizetype row = m_text.rows().size();
    if (!text.isExtensionOf(m_text)) {
        row = 0;
        for (Rows& rows : m_rows) {
            rows.clear();
        }
    }
    for (; row < text.rows().size(); ++row) {
        const auto* const marked = std::find(kMarkedSeverities.begin(), kMarkedSeverities.end(),
                                             text.rows()[row].severity());
        if (marked != kMarkedSeverities.end()) {
            m_rows[static_cast<std::size_t>(marked - kMarkedSeverities.begin())].push_back(row);
        }
    }
    m_text = text;
}

std::vector<SeverityMark> marksOnTrack(const SevereRows& rows, const LogTextLayout& layout,
                                       int trackHeight)
{
    const double lineHeight = layout.metrics().lineHeight();
    const double height =
        static_cast<double>(layout.lineCount()) * lineHeight + 2 * kTextInsetHeight;
    const auto pixelOf = [&](qsizetype row) {
        const double top =
            kTextInsetHeight + static_cast<double>(layout.firstLineOf(row)) * lineHeight;
        return static_cast<int>(top * trackHeight / height);
    };
    std::vector<SeverityMark> marks;
    for (const SevereRows::Rows& ofOne : rows.bySeverity()) {
        for (auto row = ofOne.begin(); row != ofOne.end();) {
            const int pixel = pixelOf(*row);
            marks.push_back(SeverityMark{pixel, *row});
            row = std::partition_point(row, ofOne.end(),
                                       [&](qsizetype next) { return pixelOf(next) <= pixel; });
        }
    }
    // Those of the worst severity came first, and stay before others on their pixel.
    std::stable_sort(marks.begin(), marks.end(),
                     [](const auto& one, const auto& other) { return one.pixel < other.pixel; });
    const auto isOnSamePixel = [](const auto& one, const auto& other) {
        return one.pixel == other.pixel;
    };
    marks.erase(std::unique(marks.begin(), marks.end(), isOnSamePixel), marks.end());
    return marks;
}

} // namespace quillon
