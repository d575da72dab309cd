// SPDX-License-Identifier: MIT
#include "model/tail_reading.h"

#include "model/line_builder.h"

namespace quillon {

Result<std::optional<TailGrowth>> readTailGrowth(const QString& path, quint64 lastFileSize,
                                                 std::optional<ReadHandle>& handle)
{
    const auto size = fileSizeAt(path);
    if (!size) {
        return size.error();
    }
    if (size.value() <= lastFileSize || !handle) {
        return std::optional<TailGrowth>();
    }
    if (const auto error = handle->seek(lastFileSize)) {
        return *error;
    }
    auto bytes = handle->readToEnd();
    if (!bytes) {
        return bytes.error();
    }
    return std::optional(TailGrowth{size.value(), std::move(bytes.value())});
}

LogLines parseTail(const QByteArray& bytes, const LogLines& lines)
{
    const qint64 base = lines.isEmpty() ? 0 : lines.last().number();
    LogLines appended;
    appendParsedBytes(bytes, base, appended);
    return appended;
}

} // namespace quillon
