// SPDX-License-Identifier: MIT
#include "tests/app/print/print_words.h"
#include "tests/app/print/quillon_process.h"
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace quillon {

namespace {

// Longer than two polls and the model's first own pass together.
constexpr auto kSeveralPolls = std::chrono::milliseconds(1300);

class PrintFollow : public testing::Test {
protected:
    // Starts following the log and waits until its first rows have been printed.
    void follow(QuillonProcess& quillon, const QByteArray& firstRows)
    {
        quillon.start();
        ASSERT_TRUE(spinUntil([&] { return quillon.output() == firstRows; }));
    }

    QStringList arguments(const QStringList& options = {}) const
    {
        return QStringList{QStringLiteral("--print"), QStringLiteral("--follow")} + options +
               QStringList{m_folder.path(kLog)};
    }

    const TemporaryFolder m_folder;
};

} // namespace

TEST_F(PrintFollow, RowsThatAnotherProcessAppendsArePrinted)
{
    m_folder.write(kLog, "a\n");
    QuillonProcess quillon(arguments());
    follow(quillon, "1\ta\n");
    QProcess writer;
    writer.start(QStringLiteral("sh"),
                 {QStringLiteral("-c"),
                  QStringLiteral("for line in b c d; do echo $line >> \"$0\"; sleep 0.3; done"),
                  m_folder.path(kLog)});
    EXPECT_TRUE(spinUntil([&] { return quillon.output() == "1\ta\n2\tb\n3\tc\n4\td\n"; }));
    EXPECT_TRUE(spinUntil([&] { return writer.state() == QProcess::NotRunning; }));
}

TEST_F(PrintFollow, AnEmptyLogIsFollowedFromItsFirstRow)
{
    m_folder.write(kLog, QByteArray());
    QuillonProcess quillon(arguments());
    quillon.start();
    spinFor(kSeveralPolls);
    m_folder.append(kLog, "a\nb\n");
    EXPECT_TRUE(spinUntil([&] { return quillon.output() == "1\ta\n2\tb\n"; }));
}

TEST_F(PrintFollow, AppendedRowsAreFiltered)
{
    m_folder.write(kLog, "a\n");
    QuillonProcess quillon(arguments({QStringLiteral("--query=b")}));
    quillon.start();
    spinFor(kSeveralPolls);
    m_folder.append(kLog, "b1\nc\nb2\n");
    EXPECT_TRUE(spinUntil([&] { return quillon.output() == "2\tb1\n4\tb2\n"; }));
}

TEST_F(PrintFollow, ChangedSettingsColourLaterRowsAndRepeatNone)
{
    m_folder.write(kLog, "info a\n");
    QuillonProcess quillon(arguments({QStringLiteral("--color=always")}),
                           {{QStringLiteral("COLORTERM"), QStringLiteral("24bit")}});
    const QByteArray first("\x1B[90m1\x1B[0;38;2;10;132;255m\tinfo a\x1B[0m\n");
    follow(quillon, first);
    quillon.writeSettings("[General]\nprefs.color.info=#010203\n");
    spinFor(kSeveralPolls);
    EXPECT_EQ(quillon.output(), first);
    m_folder.append(kLog, "info b\n");
    const QByteArray second("\x1B[90m2\x1B[0;38;2;1;2;3m\tinfo b\x1B[0m\n");
    EXPECT_TRUE(spinUntil([&] { return quillon.output() == first + second; }));
}

TEST_F(PrintFollow, AVanishedFileIsReportedOnceAndFollowedAgainWhenItIsBack)
{
    m_folder.write(kLog, "a\n");
    QuillonProcess quillon(arguments());
    follow(quillon, "1\ta\n");
    const QString away = m_folder.path(QStringLiteral("away.log"));
    const QByteArray complaint =
        "quillon: " + m_folder.path(kLog).toLocal8Bit() + ": " + std::strerror(ENOENT) + '\n';
    ASSERT_TRUE(QFile::rename(m_folder.path(kLog), away));
    EXPECT_TRUE(spinUntil([&] { return quillon.errors() == complaint; }));
    spinFor(kSeveralPolls);
    EXPECT_EQ(quillon.errors(), complaint);
    ASSERT_TRUE(QFile::rename(away, m_folder.path(kLog)));
    m_folder.append(kLog, "b\n");
    EXPECT_TRUE(spinUntil([&] { return quillon.output() == "1\ta\n2\tb\n"; }));
    EXPECT_EQ(quillon.errors(), complaint);
}

TEST_F(PrintFollow, AnInterruptEndsItAsShellsExpect)
{
    m_folder.write(kLog, "a\n");
    QuillonProcess quillon(arguments());
    follow(quillon, "1\ta\n");
    ::kill(static_cast<pid_t>(quillon.process().processId()), SIGINT);
    EXPECT_EQ(quillon.wait(), 128 + SIGINT);
    EXPECT_EQ(quillon.errors(), QByteArray());
}

TEST_F(PrintFollow, ATerminationSignalEndsItAsShellsExpect)
{
    m_folder.write(kLog, "a\n");
    QuillonProcess quillon(arguments());
    follow(quillon, "1\ta\n");
    ::kill(static_cast<pid_t>(quillon.process().processId()), SIGTERM);
    EXPECT_EQ(quillon.wait(), 128 + SIGTERM);
}

TEST_F(PrintFollow, AnInterruptEndsItAlsoWhileNobodyReads)
{
    m_folder.write(kLog, "a\n");
    // A pipe that nobody empties.
    int ends[2] = {-1, -1};
    ASSERT_EQ(::pipe(ends), 0);
    QuillonProcess quillon(arguments());
    quillon.process().setChildProcessModifier([&ends] { ::dup2(ends[1], STDOUT_FILENO); });
    quillon.start();
    ::close(ends[1]);
    m_folder.append(kLog, QByteArray(1 << 20, 'x') + '\n');
    // In pages, of which one that a short write has begun need not be filled up.
    const auto isFull = [&ends] {
        int bytes = 0;
        return ::ioctl(ends[0], FIONREAD, &bytes) == 0 &&
               ::fcntl(ends[0], F_GETPIPE_SZ) - bytes < ::sysconf(_SC_PAGESIZE);
    };
    EXPECT_TRUE(spinUntil(isFull));
    ::kill(static_cast<pid_t>(quillon.process().processId()), SIGINT);
    EXPECT_EQ(quillon.wait(), 128 + SIGINT);
    ::close(ends[0]);
}

TEST_F(PrintFollow, AReaderThatLeavesEndsItThoughTheLogIsSilent)
{
    m_folder.write(kLog, "a\n");
    int ends[2] = {-1, -1};
    ASSERT_EQ(::pipe(ends), 0);
    ::fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    QuillonProcess quillon(arguments());
    quillon.process().setChildProcessModifier([&ends] { ::dup2(ends[1], STDOUT_FILENO); });
    quillon.start();
    ::close(ends[1]);
    char byte = 0;
    EXPECT_EQ(::read(ends[0], &byte, 1), 1);
    ::close(ends[0]);
    EXPECT_EQ(quillon.wait(), 0);
    EXPECT_EQ(quillon.errors(), QByteArray());
}

} // namespace quillon
