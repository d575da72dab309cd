// SPDX-License-Identifier: MIT
#include "model/log_loading.h"

#include "model/records/line_builder.h"
#include "model/records/line_estimate.h"
#include "platform/file_path.h"

namespace quillon {

Result<LoadedLog> loadLog(const QUrl& fileURL, quint64 maximumBytes,
                          std::optional<ReadHandle>& handle)
{
    const QString path = pathOfFileUrl(fileURL);
    const auto size = fileSizeAt(path);
    if (!size) {
        return size.error();
    }
    auto opened = ReadHandle::open(path);
    if (!opened) {
        return opened.error();
    }
    handle = std::move(opened.value());
    const quint64 start = size.value() <= maximumBytes ? 0 : size.value() - maximumBytes;
    if (const auto error = handle->seek(start)) {
        return *error;
    }
    const auto bytes = handle->readToEnd();
    if (!bytes) {
        return bytes.error();
    }
    const qint64 base = start != 0 ? estimateSkippedLines(fileURL, start) : 0;
    LoadedLog log{.lines = {}, .fileSize = size.value()};
    appendParsedBytes(bytes.value(), base, log.lines);
    return log;
}

} // namespace quillon
