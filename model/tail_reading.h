// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_line.h"
#include "platform/read_handle.h"

#include <QString>

#include <optional>

namespace quillon {

// What a poll of a followed file found new.
struct TailGrowth {
    // Where the next poll starts: the file's size in bytes when this one began, at which bytes that
    // were written meanwhile may have been read already, or, where there is more, the end of the
    // bytes.
    quint64 nextOffset = 0;
    QByteArray bytes;
    // Whether the file had more than a poll takes at once. The bytes end where a line does, so that
    // the polls that follow make the lines that one poll of all of it would have made.
    bool hasMore = false;
};

// How much a poll takes at once, in bytes: what is read, shown and painted before anybody feels
// that a key waits for it.
inline constexpr qint64 kPollBytes = qint64{2} * 1024 * 1024;

// Reads what the file has past `lastFileSize` bytes. No growth where it is not longer, also when it
// has become shorter: a truncated file shows nothing new until it outgrows its old size. The growth
// is without value, and nothing is read, where there is no handle. A line is read whole, however
// long, but fails with EFBIG where it is longer than ReadHandle::kMaximumReadBytes.
Result<std::optional<TailGrowth>> readTailGrowth(const QString& path, quint64 lastFileSize,
                                                 std::optional<ReadHandle>& handle);

// The records of the appended bytes, numbered after the last of `lines`. The bytes are taken as
// they are: a line that was written in two halves makes two records.
LogLines parseTail(const QByteArray& bytes, const LogLines& lines);

} // namespace quillon
