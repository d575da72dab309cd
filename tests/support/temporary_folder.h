// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>

namespace quillon {

// A folder of files that a test makes up, removed with the object. Failing to write is the test's
// failure.
class TemporaryFolder {
public:
    TemporaryFolder();

    // The path and URL that a file of that name has in the folder, whether it is there or not.
    [[nodiscard]] QString path(const QString& name) const;
    [[nodiscard]] QUrl url(const QString& name) const;

    // Writes the file anew and gives its path.
    QString write(const QString& name, const QByteArray& bytes) const;
    // Adds to the end of a file that is there.
    void append(const QString& name, const QByteArray& bytes) const;
    // Makes the file that long in place; bytes past its former end are holes that take no space.
    void resize(const QString& name, qint64 size) const;

private:
    QTemporaryDir m_folder;
};

} // namespace quillon
