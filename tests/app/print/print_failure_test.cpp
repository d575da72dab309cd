// SPDX-License-Identifier: MIT
#include "tests/app/print/quillon_process.h"
#include "tests/support/printing.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

QByteArray openErrorLine(const QString& path, int number)
{
    return "quillon: " + path.toUtf8() + ": " + std::strerror(number) + '\n';
}

// The file is refused as other tools refuse it.
void expectRefusal(const QString& path, int number)
{
    QuillonProcess quillon({QStringLiteral("--print"), path});
    EXPECT_EQ(quillon.run(), 1);
    EXPECT_EQ(quillon.output(), QByteArray());
    EXPECT_EQ(quillon.errors(), openErrorLine(path, number));
}

// The line after that which says that the file at `path` may not be read, once its own or its
// folder's mode has been changed; plain spaces stand for narrow ones.
QByteArray hintAbout(const QString& path, mode_t mode, const QString& closed)
{
    const QByteArray closedPath = QDir::cleanPath(closed).toLocal8Bit();
    EXPECT_EQ(::chmod(QFileInfo(path).path().toLocal8Bit().constData(), 0755), 0);
    EXPECT_EQ(::chmod(closedPath.constData(), mode), 0);
    QuillonProcess quillon({QStringLiteral("--print"), path});
    // The superuser, as which tests run in containers, may read everything.
    quillon.process().setChildProcessModifier([] {
        if (::geteuid() == 0 &&
            (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0)) {
            ::_exit(99);
        }
    });
    EXPECT_EQ(quillon.run(), 1);
    ::chmod(closedPath.constData(), 0700);
    const QByteArray refusal = openErrorLine(path, EACCES);
    EXPECT_TRUE(quillon.errors().startsWith(refusal));
    QByteArray hint = quillon.errors().sliced(refusal.size()).replace("\u202F", " ");
    EXPECT_TRUE(hint.startsWith("quillon: " + closedPath + " : propriétaire "));
    EXPECT_EQ(hint.count('\n'), 1);
    return hint;
}

} // namespace

TEST(PrintFailure, AMissingFileIsRefused)
{
    const TemporaryFolder folder;
    expectRefusal(folder.path(QStringLiteral("nothing.log")), ENOENT);
}

TEST(PrintFailure, AFileWhoseNameIsNoTextIsNamedInOneLineOrPrinted)
{
    const TemporaryFolder folder;
    const QByteArray name = QFile::encodeName(folder.path(QString())) + "/caf\xE9\n.log";
    // The arguments of QProcess are texts; a shell makes the bytes.
    const auto print = [&name] {
        QuillonProcess quillon({});
        quillon.process().setProgram(QStringLiteral("/bin/sh"));
        quillon.process().setArguments(
            {QStringLiteral("-c"), QStringLiteral("exec \"$0\" --print \"$(printf \"$1\")\""),
             QStringLiteral(QUILLON_PROGRAM),
             QString::fromLatin1(QByteArray(name).replace("\xE9\n", "\\351\\n"))});
        quillon.run();
        return quillon.output() + quillon.errors();
    };
    EXPECT_EQ(print(), openErrorLine(folder.path(QStringLiteral("caf\uFFFD\u240A.log")), ENOENT));
    std::FILE* const file = std::fopen(name.constData(), "w");
    ASSERT_NE(file, nullptr);
    std::fputs("un\n", file);
    std::fclose(file);
    EXPECT_EQ(print(), QByteArray("1\tun\n"));
    // The toolkit, which removes the folder, does not find it.
    EXPECT_EQ(std::remove(name.constData()), 0);
}

TEST(PrintFailure, ADirectoryIsRefused)
{
    const TemporaryFolder folder;
    expectRefusal(folder.path(QString()), EISDIR);
}

TEST(PrintFailure, ADeviceIsRefused)
{
    expectRefusal(QStringLiteral("/dev/zero"), EOPNOTSUPP);
}

TEST(PrintFailure, AFileWithoutPermissionIsRefused)
{
    const TemporaryFolder folder;
    const QString path = folder.write(QStringLiteral("secret.log"), "a\n");
    const QByteArray hint = hintAbout(path, 0, path);
    EXPECT_TRUE(hint.contains(", mode --------- ; le groupe n’y a pas accès ; passez par sudo"));
}

TEST(PrintFailure, AFileOfAGroupSaysHowToGetIntoIt)
{
    const TemporaryFolder folder;
    const QString path = folder.write(QStringLiteral("secret.log"), "a\n");
    const QByteArray group = ::getgrgid(::getegid())->gr_name;
    const QByteArray hint = hintAbout(path, 0240, path);
    EXPECT_TRUE(hint.contains(", groupe " + group + ", mode -w-r----- ; entrez dans le groupe " +
                              group + " (« sudo adduser $USER " + group + " »"));
}

TEST(PrintFailure, AClosedFolderOnTheWayIsNamed)
{
    const TemporaryFolder folder;
    const QString path = folder.write(QStringLiteral("secret.log"), "a\n");
    const QByteArray hint = hintAbout(path, 0, folder.path(QString()));
    EXPECT_TRUE(hint.contains(", mode --------- ; le groupe n’y a pas accès"));
}

TEST(PrintFailure, FollowingAMissingFileEndsAtOnce)
{
    QuillonProcess quillon(
        {QStringLiteral("--print"), QStringLiteral("--follow"), QStringLiteral("/nothing.log")});
    EXPECT_EQ(quillon.run(), 1);
    EXPECT_EQ(quillon.errors(), openErrorLine(QStringLiteral("/nothing.log"), ENOENT));
}

TEST(PrintFailure, WrongUsageIsExplainedOnStandardError)
{
    QuillonProcess quillon({QStringLiteral("--print"), QStringLiteral("--jsn")});
    EXPECT_EQ(quillon.run(), 2);
    EXPECT_EQ(quillon.output(), QByteArray());
    EXPECT_TRUE(quillon.errors().startsWith("quillon: option inconnue\u202F: --jsn"));
    EXPECT_TRUE(quillon.errors().contains("\nUsage\u202F: quillon "));
}

TEST(PrintFailure, HelpGoesToStandardOutput)
{
    QuillonProcess quillon({QStringLiteral("--help")});
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_TRUE(quillon.output().startsWith("Usage\u202F: quillon"));
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
    EXPECT_EQ(quillon.errors(),
              QByteArray("quillon: erreur d’écriture\u202F: ") + std::strerror(ENOSPC) + '\n');
}

TEST(PrintFailure, AClosedStandardOutputIsReported)
{
    const TemporaryFolder folder;
    const QString path = folder.write(QStringLiteral("a.log"), "a\n");
    QuillonProcess quillon({QStringLiteral("--print"), path});
    quillon.process().setChildProcessModifier([] { ::close(STDOUT_FILENO); });
    EXPECT_EQ(quillon.run(), 1);
    EXPECT_EQ(quillon.errors(),
              QByteArray("quillon: erreur d’écriture\u202F: ") + std::strerror(EBADF) + '\n');
}

} // namespace quillon
