// SPDX-License-Identifier: MIT
#include "platform/read_handle.h"
#include "tests/support/dropped_privileges.h"
#include "tests/support/printing.h"
#include "tests/support/temporary_folder.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {
namespace {

const QString kLogFile = QStringLiteral("file.log");
constexpr qint64 kHundredGigabytes = qint64{100} * 1024 * 1024 * 1024;

ReadHandle openOrFail(const QString& path)
{
    auto handle = ReadHandle::open(path);
    EXPECT_TRUE(handle) << qPrintable(path);
    return std::move(handle.value());
}

// The error number with which both ways of reaching a path refuse it, 0 where they let it through.
int refusalOf(const QString& path)
{
    const auto size = fileSizeAt(path);
    const auto handle = ReadHandle::open(path);
    EXPECT_EQ(bool(size), bool(handle));
    const int number = handle ? 0 : handle.error().number;
    EXPECT_EQ(size ? 0 : size.error().number, number);
    return number;
}

TEST(ReadHandle, ReadsAWholeFile)
{
    const TemporaryFolder folder;
    const QByteArray bytes("abc\0def", 7);
    ReadHandle handle = openOrFail(folder.write(kLogFile, bytes));
    EXPECT_EQ(handle.readToEnd().value(), bytes);
}

TEST(ReadHandle, ReadsNothingFromAnEmptyFile)
{
    const TemporaryFolder folder;
    ReadHandle handle = openOrFail(folder.write(kLogFile, QByteArray()));
    EXPECT_EQ(handle.readToEnd().value(), QByteArray());
}

TEST(ReadHandle, ReadsFromWhereItWasMovedTo)
{
    const TemporaryFolder folder;
    ReadHandle handle = openOrFail(folder.write(kLogFile, "abcdef"));
    ASSERT_FALSE(handle.seek(4));
    EXPECT_EQ(handle.readToEnd().value(), "ef");
}

TEST(ReadHandle, ReadsNothingAtTheEnd)
{
    const TemporaryFolder folder;
    ReadHandle handle = openOrFail(folder.write(kLogFile, "abc"));
    EXPECT_EQ(handle.readToEnd().value(), "abc");
    EXPECT_EQ(handle.readToEnd().value(), QByteArray());
}

TEST(ReadHandle, ReadsNothingPastTheEnd)
{
    const TemporaryFolder folder;
    ReadHandle handle = openOrFail(folder.write(kLogFile, "abc"));
    ASSERT_FALSE(handle.seek(1'000));
    EXPECT_EQ(handle.readToEnd().value(), QByteArray());
}

TEST(ReadHandle, ReadsWhatWasAppendedSinceTheFileWasOpened)
{
    const TemporaryFolder folder;
    ReadHandle handle = openOrFail(folder.write(kLogFile, "abc"));
    EXPECT_EQ(handle.readToEnd().value(), "abc");
    folder.append(kLogFile, "def");
    EXPECT_EQ(handle.readToEnd().value(), "def");
}

TEST(ReadHandle, ReadsAtMostTheCountAskedFor)
{
    const TemporaryFolder folder;
    ReadHandle handle = openOrFail(folder.write(kLogFile, "abcdef"));
    EXPECT_EQ(handle.readUpTo(4).value(), "abcd");
    EXPECT_EQ(handle.readUpTo(4).value(), "ef");
    EXPECT_EQ(handle.readUpTo(4).value(), QByteArray());
}

TEST(ReadHandle, ReadsTheEndOfAHundredGigabytes)
{
    const TemporaryFolder folder;
    folder.write(kLogFile, "start");
    folder.resize(kLogFile, kHundredGigabytes);
    folder.append(kLogFile, "end");
    ReadHandle handle = openOrFail(folder.path(kLogFile));
    EXPECT_EQ(fileSizeAt(folder.path(kLogFile)).value(), quint64{kHundredGigabytes} + 3);
    ASSERT_FALSE(handle.seek(quint64{kHundredGigabytes} - 1));
    EXPECT_EQ(handle.readToEnd().value(), QByteArray("\0end", 4));
}

TEST(ReadHandle, RefusesToReadMoreThanItsLimitInOnePiece)
{
    const TemporaryFolder folder;
    folder.write(kLogFile, "start");
    folder.resize(kLogFile, kHundredGigabytes);
    ReadHandle handle = openOrFail(folder.path(kLogFile));
    EXPECT_EQ(handle.readToEnd().error(), SystemError{EFBIG});
}

TEST(ReadHandle, RefusesAnOffsetThatNoFileCanHave)
{
    const TemporaryFolder folder;
    ReadHandle handle = openOrFail(folder.write(kLogFile, "abc"));
    EXPECT_EQ(handle.seek(std::numeric_limits<quint64>::max()), SystemError{EOVERFLOW});
}

TEST(ReadHandle, KeepsReadingWhenItIsMoved)
{
    const TemporaryFolder folder;
    ReadHandle handle = openOrFail(folder.write(kLogFile, "abc"));
    ReadHandle moved = std::move(handle);
    EXPECT_EQ(moved.readToEnd().value(), "abc");
}

TEST(ReadHandle, ClosesItsFileWithTheObject)
{
    const TemporaryFolder folder;
    const QString path = folder.write(kLogFile, "abc");
    const int before = ::dup(STDERR_FILENO);
    ::close(before);
    {
        const ReadHandle handle = openOrFail(path);
    }
    const int after = ::dup(STDERR_FILENO);
    ::close(after);
    EXPECT_EQ(before, after);
}

TEST(ReadHandle, KeepsReadingAFileThatWasDeleted)
{
    const TemporaryFolder folder;
    ReadHandle handle = openOrFail(folder.write(kLogFile, "abc"));
    ASSERT_TRUE(QFile::remove(folder.path(kLogFile)));
    EXPECT_EQ(handle.readToEnd().value(), "abc");
}

TEST(ReadHandle, OpensAFileWhoseNameIsNotAscii)
{
    const TemporaryFolder folder;
    ReadHandle handle = openOrFail(folder.write(QStringLiteral("journal d’été 日本.log"), "abc"));
    EXPECT_EQ(handle.readToEnd().value(), "abc");
}

TEST(ReadHandle, FollowsASymbolicLink)
{
    const TemporaryFolder folder;
    const QString link = folder.path(QStringLiteral("link.log"));
    ASSERT_TRUE(QFile::link(folder.write(kLogFile, "abc"), link));
    EXPECT_EQ(openOrFail(link).readToEnd().value(), "abc");
}

TEST(ReadHandleRefusal, OfAMissingFile)
{
    const TemporaryFolder folder;
    EXPECT_EQ(refusalOf(folder.path(kLogFile)), ENOENT);
}

TEST(ReadHandleRefusal, OfAnEmptyPath)
{
    EXPECT_EQ(refusalOf(QString()), ENOENT);
}

TEST(ReadHandleRefusal, OfADirectory)
{
    const TemporaryFolder folder;
    EXPECT_EQ(refusalOf(folder.path(QString())), EISDIR);
}

TEST(ReadHandleRefusal, OfAPipeThatNobodyWritesTo)
{
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.path(kLogFile)).constData(), 0600), 0);
    EXPECT_EQ(refusalOf(folder.path(kLogFile)), EOPNOTSUPP);
}

TEST(ReadHandleRefusal, OfADeviceThatNeverEnds)
{
    EXPECT_EQ(refusalOf(QStringLiteral("/dev/zero")), EOPNOTSUPP);
}

TEST(ReadHandleRefusal, OfALinkThatLeadsNowhere)
{
    const TemporaryFolder folder;
    ASSERT_TRUE(QFile::link(folder.path(kLogFile), folder.path(QStringLiteral("link.log"))));
    EXPECT_EQ(refusalOf(folder.path(QStringLiteral("link.log"))), ENOENT);
}

TEST(ReadHandleRefusal, OfAFileThatMayNotBeRead)
{
    const TemporaryFolder folder;
    const QString path = folder.write(kLogFile, "abc");
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path(QString())).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0000), 0);
    const DroppedPrivileges nobody;
    EXPECT_TRUE(fileSizeAt(path));
    const auto handle = ReadHandle::open(path);
    ASSERT_FALSE(handle);
    EXPECT_EQ(handle.error(), SystemError{EACCES});
}

TEST(ReadHandleRefusal, OfAFileInAFolderThatMayNotBeEntered)
{
    const TemporaryFolder folder;
    const QString path = folder.write(kLogFile, "abc");
    const QByteArray encoded = QFile::encodeName(folder.path(QString()));
    ASSERT_EQ(::chmod(encoded.constData(), 0000), 0);
    {
        const DroppedPrivileges nobody;
        EXPECT_EQ(refusalOf(path), EACCES);
    }
    ASSERT_EQ(::chmod(encoded.constData(), 0700), 0);
}

} // namespace
} // namespace quillon
