// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace quillon {

class AttributedString;

// Text that has gone from a place of a text, or has come there.
struct LogTextChange {
    enum class Kind : std::uint8_t { Removed, Inserted };
    Kind kind{};
    int offset = 0; // UTF-16 units from the start of the whole text
    QString text;
    bool operator==(const LogTextChange&) const = default;
};

// UTF-16 units that one change holds at most, some hundred rows.
inline constexpr qsizetype kLongestLogTextChange = qsizetype{16} * 1024;

// What to tell somebody who was told of `former` and is now to hear of `current`: the rows that
// were appended; or, of a text that was replaced, the end of the one that has gone and of the one
// that has come. Of a longer text only the end is told, at its place. Costs no more than that,
// however long the texts are. Nothing where both end alike and are as long.
std::vector<LogTextChange> changesOfLogText(const AttributedString& former,
                                            const AttributedString& current);

} // namespace quillon
