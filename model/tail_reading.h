// SPDX-License-Identifier: MIT
#pragma once

#include "model/log_line.h"
#include "platform/read_handle.h"

#include <QString>

#include <optional>

namespace quillon {

// What a look at a followed file found new.
struct TailGrowth {
    // The file's size in bytes when the look began, at which the next look starts. Bytes written
    // during the look may be read now and again then.
    quint64 fileSize = 0;
    QByteArray bytes;
};

// Reads what the file has past `lastFileSize` bytes. No growth where it is not longer, also when it
// has become shorter: a truncated file shows nothing new until it outgrows its old size. The growth
// is without value, and nothing is read, where there is no handle.
Result<std::optional<TailGrowth>> readTailGrowth(const QString& path, quint64 lastFileSize,
                                                 std::optional<ReadHandle>& handle);

// The records of the appended bytes, numbered after the last of `lines`. The bytes are taken as
// they are: a line that was written in two halves makes two records.
LogLines parseTail(const QByteArray& bytes, const LogLines& lines);

} // namespace quillon
