// SPDX-License-Identifier: MIT
#include "tests/app/quillon_process.h"
#include "tests/support/printing.h"

#include <QDir>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

QByteArray openErrorLine(int number)
{
    return QByteArray("Erreur d’ouverture: ") + std::strerror(number) + '\n';
}

// The file is refused with the status that the window would show.
void expectRefusal(const QString& path, int number)
{
    QuillonProcess quillon({QStringLiteral("--print"), path});
    EXPECT_EQ(quillon.run(), 1);
    EXPECT_EQ(quillon.output(), QByteArray());
    EXPECT_EQ(quillon.errors(), openErrorLine(number));
}

} // namespace

TEST(PrintFailure, AMissingFileIsRefused)
{
    const TemporaryFolder folder;
    expectRefusal(folder.path(QStringLiteral("nothing.log")), ENOENT);
}

TEST(PrintFailure, ADirectoryIsRefused)
{
    const TemporaryFolder folder;
    expectRefusal(folder.path(QString()), EISDIR);
}

TEST(PrintFailure, APipeThatNobodyWritesToIsRefusedWithoutWaiting)
{
    const TemporaryFolder folder;
    const QString path = folder.path(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(path.toLocal8Bit().constData(), 0600), 0);
    expectRefusal(path, EOPNOTSUPP);
}

TEST(PrintFailure, ADeviceIsRefused)
{
    expectRefusal(QStringLiteral("/dev/zero"), EOPNOTSUPP);
}

TEST(PrintFailure, AFileWithoutPermissionIsRefused)
{
    const TemporaryFolder folder;
    const QString path = folder.write(QStringLiteral("secret.log"), "a\n");
    ASSERT_EQ(::chmod(path.toLocal8Bit().constData(), 0), 0);
    QuillonProcess quillon({QStringLiteral("--print"), path});
    // The superuser, as which tests run in containers, may read everything.
    quillon.process().setChildProcessModifier([] {
        if (::geteuid() == 0 && ::setuid(65534) != 0) {
            ::_exit(99);
        }
    });
    EXPECT_EQ(quillon.run(), 1);
    EXPECT_EQ(quillon.errors(), openErrorLine(EACCES));
}

TEST(PrintFailure, FollowingAMissingFileEndsAtOnce)
{
    QuillonProcess quillon(
        {QStringLiteral("--print"), QStringLiteral("--follow"), QStringLiteral("/nothing.log")});
    EXPECT_EQ(quillon.run(), 1);
    EXPECT_EQ(quillon.errors(), openErrorLine(ENOENT));
}

TEST(PrintFailure, WrongUsageIsExplainedOnStandardError)
{
    QuillonProcess quillon({QStringLiteral("--print")});
    EXPECT_EQ(quillon.run(), 2);
    EXPECT_EQ(quillon.output(), QByteArray());
    EXPECT_TRUE(quillon.errors().startsWith("quillon: --print demande un fichier\nUsage: "));
}

TEST(PrintFailure, HelpGoesToStandardOutput)
{
    QuillonProcess quillon({QStringLiteral("--help")});
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_TRUE(quillon.output().startsWith("Usage: quillon"));
}

TEST(PrintFailure, TheVersionIsOneLine)
{
    QuillonProcess quillon({QStringLiteral("--version")});
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_EQ(quillon.output(), QByteArray("Quillon " QUILLON_VERSION "\n"));
}

TEST(PrintFailure, AReaderThatLeavesEndsItQuietly)
{
    const TemporaryFolder folder;
    // More than a pipe holds.
    const QString path = folder.write(QStringLiteral("a.log"), QByteArray(1 << 20, '\n'));
    QProcess shell;
    shell.start(QStringLiteral("bash"),
                {QStringLiteral("-c"),
                 QStringLiteral("\"$1\" --print \"$2\" | head -1; exit ${PIPESTATUS[0]}"),
                 QStringLiteral("bash"), QStringLiteral(QUILLON_PROGRAM), path});
    ASSERT_TRUE(shell.waitForFinished());
    EXPECT_EQ(shell.readAllStandardOutput(), QByteArray("1\t\n"));
    EXPECT_EQ(shell.readAllStandardError(), QByteArray());
    EXPECT_EQ(shell.exitCode(), 0);
}

TEST(PrintFailure, AFullDiskIsReported)
{
    const TemporaryFolder folder;
    const QString path = folder.write(QStringLiteral("a.log"), "a\n");
    QuillonProcess quillon({QStringLiteral("--print"), path});
    quillon.process().setStandardOutputFile(QStringLiteral("/dev/full"));
    EXPECT_EQ(quillon.run(), 1);
    EXPECT_EQ(quillon.errors(), QByteArray("Erreur d’écriture: ") + std::strerror(ENOSPC) + '\n');
}

TEST(PrintFailure, AClosedStandardOutputIsReported)
{
    const TemporaryFolder folder;
    const QString path = folder.write(QStringLiteral("a.log"), "a\n");
    QuillonProcess quillon({QStringLiteral("--print"), path});
    quillon.process().setChildProcessModifier([] { ::close(STDOUT_FILENO); });
    EXPECT_EQ(quillon.run(), 1);
    EXPECT_EQ(quillon.errors(), QByteArray("Erreur d’écriture: ") + std::strerror(EBADF) + '\n');
}

} // namespace quillon
