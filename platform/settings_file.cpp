// SPDX-License-Identifier: MIT
#include "platform/settings_file.h"

#include "platform/read_handle.h"
#include "platform/settings_text.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace quillon {

namespace {

// Reading, changing and replacing a file are three steps, over which another window's setting
// could be lost. A lock on the folder needs no file of its own and ends with its holder.
class FolderLock {
public:
    explicit FolderLock(const QString& folder)
        : m_descriptor(::open(QFile::encodeName(folder).constData(),
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK))
    {
        m_isBusy = m_descriptor >= 0 && ::flock(m_descriptor, LOCK_EX | LOCK_NB) != 0 &&
                   errno == EWOULDBLOCK;
    }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock()
    {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }

    [[nodiscard]] bool isBusy() const { return m_isBusy; }

private:
    int m_descriptor;
    bool m_isBusy = false;
};

} // namespace

Result<QHash<QString, QString>> SettingsFile::read() const
{
    auto bytes = readBytes();
    if (!bytes) {
        return bytes.error();
    }
    return SettingsText(std::move(bytes.value())).values();
}

SettingsFile::Written SettingsFile::change(const Changes& changes, WhenBusy whenBusy) const
{
    const QString folder = QFileInfo(m_path).absolutePath();
    if (!QDir().mkpath(folder)) {
        return Written::No;
    }
    const FolderLock lock(folder);
    if (lock.isBusy() && whenBusy == WhenBusy::Leave) {
        return Written::LaterPerhaps;
    }
    auto bytes = readBytes();
    if (!bytes) {
        return Written::No;
    }
    SettingsText text(bytes.value());
    for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
        text.set(it.key(), it.value());
    }
    return text.bytes() == bytes.value() || replace(text.bytes()) ? Written::Yes : Written::No;
}

Result<QByteArray> SettingsFile::readBytes() const
{
    auto handle = ReadHandle::open(m_path);
    if (!handle) {
        return handle.error().number == ENOENT ? Result<QByteArray>(QByteArray())
                                               : Result<QByteArray>(handle.error());
    }
    auto bytes = handle.value().readUpTo(kMaximumBytes + 1);
    if (bytes && bytes.value().size() > kMaximumBytes) {
        return SystemError{EFBIG};
    }
    return bytes;
}

bool SettingsFile::replace(const QByteArray& bytes) const
{
    const bool isNew = !QFileInfo::exists(m_path);
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    if (isNew) {
        // It names folders that are nobody else's business.
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }
    return file.write(bytes) == bytes.size() && file.commit();
}

} // namespace quillon
