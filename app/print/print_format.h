// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_severity.h"

#include <QByteArray>
#include <QString>

#include <array>

namespace quillon {

class AttributedRow;

// How many rows there are of each severity, in the order of LogSeverity.
using SeverityCounts = std::array<qint64, kAllSeverities.size()>;

// How what is printed is written down. Each function appends to `out`, in UTF-8, whole lines with
// their line feeds.
class PrintFormat {
public:
    virtual ~PrintFormat() = default;
    // The beginning of what comes from the input of that name; `isFirst` when nothing was before.
    virtual void appendHeading(const QString& input, bool isFirst, QByteArray& out) = 0;
    // What follows comes from that input, whether or not that is seen.
    virtual void appendRow(const AttributedRow& row, const QString& input, QByteArray& out) = 0;
    virtual void appendCounts(const SeverityCounts& counts, const QString& input,
                              QByteArray& out) = 0;
};

} // namespace quillon
