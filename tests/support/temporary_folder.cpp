// SPDX-License-Identifier: MIT
#include "tests/support/temporary_folder.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillon {

namespace {

void writeWith(const QString& path, const QByteArray& bytes, QIODevice::OpenMode mode)
{
    QFile file(path);
    ASSERT_TRUE(file.open(mode)) << qPrintable(file.errorString());
    ASSERT_EQ(file.write(bytes), bytes.size()) << qPrintable(file.errorString());
}

} // namespace

TemporaryFolder::TemporaryFolder()
{
    EXPECT_TRUE(m_folder.isValid()) << qPrintable(m_folder.errorString());
}

QString TemporaryFolder::path(const QString& name) const
{
    return m_folder.filePath(name);
}

QUrl TemporaryFolder::url(const QString& name) const
{
    return QUrl::fromLocalFile(path(name));
}

QString TemporaryFolder::write(const QString& name, const QByteArray& bytes) const
{
    writeWith(path(name), bytes, QIODevice::WriteOnly | QIODevice::Truncate);
    return path(name);
}

void TemporaryFolder::append(const QString& name, const QByteArray& bytes) const
{
    writeWith(path(name), bytes, QIODevice::Append | QIODevice::ExistingOnly);
}

void TemporaryFolder::resize(const QString& name, qint64 size) const
{
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite)) << qPrintable(file.errorString());
    ASSERT_TRUE(file.resize(size)) << qPrintable(file.errorString());
}

} // namespace quillon
