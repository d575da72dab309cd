// SPDX-License-Identifier: MIT
#include "model/tail_reading.h"

#include "model/records/line_builder.h"

#include <algorithm>
#include <cerrno>

namespace quillon {

namespace {

// What a poll leaves for the next one must be more than a line terminator, which has three bytes at
// most: all by itself it would be no line there.
constexpr quint64 kLeastRestBytes = 4;

// Reads on from `position` to the end of the line that goes on there, and gives it, or the end of
// the file. Keeps nothing of what it reads: what has no line end may be a hole of any size.
Result<qint64> findLineEnd(ReadHandle& handle, qint64 position, quint64 grownBytes)
{
    while (position <= ReadHandle::kMaximumReadBytes) {
        const auto piece = handle.readUpTo(kPollBytes);
        if (!piece) {
            return piece.error();
        }
        const qint64 lineFeed = piece.value().indexOf('\n');
        const qint64 end = position + lineFeed + 1;
        if (lineFeed >= 0 && quint64(end) + kLeastRestBytes <= grownBytes) {
            return end;
        }
        position += piece.value().size();
        if (piece.value().size() < kPollBytes) {
            return position;
        }
    }
    return SystemError{EFBIG};
}

// Cuts the first bytes of a growth after the last line that they end, or reads the rest of the line
// that is all they have.
std::optional<SystemError> endWithLine(QByteArray& bytes, quint64 offset, quint64 grownBytes,
                                       ReadHandle& handle)
{
    const auto least = static_cast<qsizetype>(grownBytes - kLeastRestBytes);
    const qsizetype end =
        QByteArrayView(bytes).first(std::min(bytes.size(), least)).lastIndexOf('\n') + 1;
    if (end > 0) {
        bytes.truncate(end);
        return std::nullopt;
    }
    const auto lineEnd = findLineEnd(handle, bytes.size(), grownBytes);
    if (!lineEnd) {
        return lineEnd.error();
    }
    if (const auto error = handle.seek(offset + static_cast<quint64>(bytes.size()))) {
        return error;
    }
    const auto rest = handle.readUpTo(lineEnd.value() - bytes.size());
    if (!rest) {
        return rest.error();
    }
    bytes.append(rest.value());
    return std::nullopt;
}

} // namespace

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
    auto bytes = handle->readUpTo(kPollBytes);
    if (!bytes) {
        return bytes.error();
    }
    TailGrowth growth{.nextOffset = size.value(), .bytes = std::move(bytes.value())};
    const quint64 grownBytes = size.value() - lastFileSize;
    if (growth.bytes.size() < kPollBytes || grownBytes <= quint64(kPollBytes)) {
        return std::optional(std::move(growth));
    }
    if (const auto error = endWithLine(growth.bytes, lastFileSize, grownBytes, *handle)) {
        return *error;
    }
    const auto takenBytes = static_cast<quint64>(growth.bytes.size());
    growth.hasMore = takenBytes + kLeastRestBytes <= grownBytes;
    if (growth.hasMore) {
        growth.nextOffset = lastFileSize + takenBytes;
    }
    return std::optional(std::move(growth));
}

LogLines parseTail(const QByteArray& bytes, const LogLines& lines)
{
    const qint64 base = lines.isEmpty() ? 0 : lines.last().number();
    LogLines appended;
    appendParsedBytes(bytes, base, appended);
    return appended;
}

} // namespace quillon
