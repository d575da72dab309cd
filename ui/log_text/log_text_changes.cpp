// SPDX-License-Identifier: MIT
#include "ui/log_text/log_text_changes.h"

#include "render/attributed_string.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

// The end of a text, from `firstRow` on or later.
LogTextChange endOf(const AttributedString& text, qsizetype firstRow, LogTextChange::Kind kind)
{
    const auto& rows = text.rows();
    qsizetype row = rows.size();
    for (qsizetype length = 0; row > firstRow && length < kLongestLogTextChange;) {
        length += rows[--row].length();
    }
    QString end;
    for (; row < rows.size(); ++row) {
        end += rows[row].string();
    }
    end = end.right(kLongestLogTextChange);
    if (!end.isEmpty() && end.front().isLowSurrogate()) {
        end.remove(0, 1);
    }
    const qint64 offset = text.length() - end.size();
    return LogTextChange{
        kind, static_cast<int>(std::min<qint64>(offset, std::numeric_limits<int>::max())), end};
}

} // namespace

std::vector<LogTextChange> changesOfLogText(const AttributedString& former,
                                            const AttributedString& current)
{
    const bool isExtension = current.isExtensionOf(former);
    const LogTextChange came =
        endOf(current, isExtension ? former.rows().size() : 0, LogTextChange::Kind::Inserted);
    std::vector<LogTextChange> changes;
    if (!isExtension) {
        const LogTextChange went = endOf(former, 0, LogTextChange::Kind::Removed);
        // A change of colours makes the same text anew.
        if (went.text == came.text && went.offset == came.offset) {
            return changes;
        }
        changes.push_back(went);
    }
    changes.push_back(came);
    changes.erase(std::remove_if(changes.begin(), changes.end(),
                                 [](const LogTextChange& change) { return change.text.isEmpty(); }),
                  changes.end());
    return changes;
}

} // namespace quillon
