// SPDX-License-Identifier: MIT
#include "ui/layout/metrics_cache.h"

#include "ui/layout/monospace_metrics.h"
#include "ui/theme/theme.h"

#include <algorithm>

namespace quillon {

namespace {

// The sizes that the slider offers, and one more that the settings may have brought.
constexpr std::size_t kMostEntries = 16;

} // namespace

MetricsCache::MetricsCache() = default;
MetricsCache::~MetricsCache() = default;

std::shared_ptr<const MonospaceMetrics> MetricsCache::atSize(double points)
{
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(),
                     [points](const Entry& entry) { return entry.points == points; });
    if (found != m_entries.end()) {
        std::rotate(found, found + 1, m_entries.end());
        return m_entries.back().metrics;
    }
    if (m_entries.size() == kMostEntries) {
        m_entries.erase(m_entries.begin());
    }
    m_entries.push_back(Entry{points, std::make_shared<const MonospaceMetrics>(
                                          monospacedSystemFont(points, FontWeight::Regular),
                                          monospacedSystemFont(points, FontWeight::Bold))});
    return m_entries.back().metrics;
}

} // namespace quillon
