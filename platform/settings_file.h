// SPDX-License-Identifier: MIT
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstdint>
#include <optional>

namespace quillon {

// A settings file on disk. Only a regular file of at most 256 KiB is read, without ever waiting for
// it, and only such a file, or none, is replaced: whatever else lies there is not ours. A reader
// sees the file as it was or as it is to be, nothing between.
class SettingsFile {
public:
    using Changes = QHash<QString, std::optional<QString>>;

    // The program's own settings take a hundredth of this.
    static constexpr qint64 kMaximumBytes = qint64{256} * 1024;

    enum class Written : std::uint8_t { Yes, No, LaterPerhaps };
    enum class WhenBusy : std::uint8_t { Leave, WriteAnyway };

    explicit SettingsFile(QString path) : m_path(std::move(path)) {}

    [[nodiscard]] const QString& path() const { return m_path; }

    // The values in it, none where there is no file; fails with EFBIG where it is too large.
    [[nodiscard]] Result<QHash<QString, QString>> read() const;

    // Sets values in it, or takes them out, and leaves everything else as it is. LaterPerhaps:
    // another program of ours is writing it at this moment.
    [[nodiscard]] Written change(const Changes& changes, WhenBusy whenBusy) const;

private:
    [[nodiscard]] Result<QByteArray> readBytes() const;
    [[nodiscard]] bool replace(const QByteArray& bytes) const;

    QString m_path;
};

} // namespace quillon
