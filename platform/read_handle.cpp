// SPDX-License-Identifier: MIT
#include "platform/read_handle.h"

#include "platform/file_path.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

std::optional<SystemError> refusalOf(const struct stat& status)
{
    if (S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    return SystemError{S_ISDIR(status.st_mode) ? EISDIR : EOPNOTSUPP};
}

} // namespace

Result<quint64> fileSizeAt(const QString& path)
{
    struct stat status {};
    if (::stat(bytesOfPath(path).constData(), &status) != 0) {
        return SystemError{errno};
    }
    if (const auto refusal = refusalOf(status)) {
        return *refusal;
    }
    return static_cast<quint64>(status.st_size);
}

Result<ReadHandle> ReadHandle::open(const QString& path)
{
    // Without O_NONBLOCK, opening a pipe would wait for somebody to write to it; on the regular
    // files that are let through it changes nothing.
    int descriptor = -1;
    do {
        descriptor =
            ::open(bytesOfPath(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    } while (descriptor < 0 && errno == EINTR);
    if (descriptor < 0) {
        return SystemError{errno};
    }
    ReadHandle handle(descriptor);
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) {
        return SystemError{errno};
    }
    if (const auto refusal = refusalOf(status)) {
        return *refusal;
    }
    return handle;
}

ReadHandle::ReadHandle(ReadHandle&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
{
}

ReadHandle& ReadHandle::operator=(ReadHandle&& other) noexcept
{
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

ReadHandle::~ReadHandle()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

std::optional<SystemError> ReadHandle::seek(quint64 offset)
{
    if (offset > static_cast<quint64>(std::numeric_limits<off_t>::max())) {
        return SystemError{EOVERFLOW};
    }
    if (::lseek(m_descriptor, static_cast<off_t>(offset), SEEK_SET) < 0) {
        return SystemError{errno};
    }
    return std::nullopt;
}

Result<QByteArray> ReadHandle::readToEnd()
{
    struct stat status {};
    const off_t position = ::lseek(m_descriptor, 0, SEEK_CUR);
    if (position < 0 || ::fstat(m_descriptor, &status) != 0) {
        return SystemError{errno};
    }
    // One byte more than is expected: a read that leaves room has seen the end of the file.
    const qint64 expected = std::max<qint64>(0, qint64{status.st_size} - position) + 1;
    if (expected > kMaximumReadBytes) {
        return SystemError{EFBIG};
    }
    QByteArray bytes(expected, Qt::Uninitialized);
    qint64 filled = 0;
    for (;;) {
        auto result = fill(bytes, filled);
        if (!result) {
            return result.error();
        }
        filled = result.value();
        if (filled < bytes.size()) {
            bytes.truncate(filled);
            return bytes;
        }
        if (bytes.size() >= kMaximumReadBytes) {
            return SystemError{EFBIG};
        }
        bytes.resize(std::min(bytes.size() * 2, kMaximumReadBytes));
    }
}

Result<QByteArray> ReadHandle::readUpTo(qint64 count)
{
    QByteArray bytes(count, Qt::Uninitialized);
    auto result = fill(bytes, 0);
    if (!result) {
        return result.error();
    }
    bytes.truncate(result.value());
    return bytes;
}

Result<qint64> ReadHandle::fill(QByteArray& bytes, qint64 filled)
{
    char* const data = bytes.data();
    while (filled < bytes.size()) {
        const ssize_t count =
            ::read(m_descriptor, data + filled, static_cast<std::size_t>(bytes.size() - filled));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return SystemError{errno};
        }
        if (count == 0) {
            break;
        }
        filled += count;
    }
    return filled;
}

} // namespace quillon
