// SPDX-License-Identifier: MIT
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillon {

// The size in bytes of the file at `path`. Fails where the path names no regular file: a directory
// with EISDIR, a pipe, socket or device with EOPNOTSUPP, since none of them has an end to show.
Result<quint64> fileSizeAt(const QString& path);

// An open file to read from, closed with the object. Opening never waits, and gives only regular
// files (for the others see fileSizeAt).
class ReadHandle {
public:
    // The most that one read gives. A file can grow by any amount between two polls (a sparse
    // hundred gigabytes at once, say); more than this in one piece fails with EFBIG instead of
    // taking the machine's memory.
    static constexpr qint64 kMaximumReadBytes = qint64{512} * 1024 * 1024;

    static Result<ReadHandle> open(const QString& path);

    ReadHandle(ReadHandle&& other) noexcept;
    ReadHandle& operator=(ReadHandle&& other) noexcept;
    ReadHandle(const ReadHandle&) = delete;
    ReadHandle& operator=(const ReadHandle&) = delete;
    ~ReadHandle();

    // Moves to `offset` bytes from the start; an offset past the end is allowed.
    [[nodiscard]] std::optional<SystemError> seek(quint64 offset);

    // Every byte from the current position to the end, none at the end.
    Result<QByteArray> readToEnd();

    // At most `count` bytes from the current position.
    Result<QByteArray> readUpTo(qint64 count);

private:
    explicit ReadHandle(int descriptor) : m_descriptor(descriptor) {}
    // Reads into `bytes` from `filled` until it is full or the file ends; gives the new fill.
    Result<qint64> fill(QByteArray& bytes, qint64 filled);

    int m_descriptor = -1;
};

} // namespace quillon
