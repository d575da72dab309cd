// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_line.h"
#include "platform/read_handle.h"

#include <QUrl>

#include <optional>

namespace quillon {

// The end of a log file, as it was when it was opened.
struct LoadedLog {
    LogLines lines;
    // Size of the whole file in bytes, whatever part of it was read.
    quint64 fileSize = 0;
};

// Reads the last `maximumBytes` of the file, or all of it when it has no more, and makes its lines.
// The numbers start at 1, or at an estimate where the beginning was left out. The handle that the
// file is read through is stored in `handle` as soon as it is open, also when a later step fails,
// and is left at the end of what was read; `handle` keeps what it holds when the file cannot be
// opened.
Result<LoadedLog> loadLog(const QUrl& fileURL, quint64 maximumBytes,
                          std::optional<ReadHandle>& handle);

} // namespace quillon
