// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

namespace quillon {

class MonospaceMetrics;

// The metrics of the log's font at the 16 sizes last used. Looking a font up at a new size takes as
// long as laying a large log out; whoever tries sizes out comes back to the same few.
class MetricsCache {
public:
    MetricsCache();
    ~MetricsCache();
    MetricsCache(const MetricsCache&) = delete;
    MetricsCache& operator=(const MetricsCache&) = delete;

    // The metrics of the monospaced system font at a size in points, the same object as long as the
    // size is among the 16 last used.
    std::shared_ptr<const MonospaceMetrics> atSize(double points);

private:
    struct Entry {
        double points;
        std::shared_ptr<const MonospaceMetrics> metrics;
    };

    std::vector<Entry> m_entries; // most recently used last
};

} // namespace quillon
