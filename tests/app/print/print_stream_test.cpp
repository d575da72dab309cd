// SPDX-License-Identifier: MIT
// Standard input and pipes.
#include "tests/app/print/print_words.h"
#include "tests/app/print/quillon_process.h"
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"
#include "tests/support/test_data.h"

#include <QFile>
#include <QRegularExpression>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

// The program with its standard input in our hands.
class PipedQuillon : public QuillonProcess {
public:
    explicit PipedQuillon(const QStringList& options = {}, const Environment& environment = {})
        : QuillonProcess(QStringList{kPrint} + options, environment)
    {
    }

    void give(const QByteArray& bytes)
    {
        process().write(bytes);
        EXPECT_TRUE(spinUntil([this] { return process().bytesToWrite() == 0; }));
    }
    // Gives the exit status.
    int end()
    {
        process().closeWriteChannel();
        return wait();
    }
    bool hasPrinted(const QByteArray& rows)
    {
        return spinUntil([&] { return output() == rows; });
    }
};

QByteArray printedOf(const QByteArray& input, const QStringList& options = {})
{
    PipedQuillon quillon(options);
    quillon.start();
    quillon.give(input);
    EXPECT_EQ(quillon.end(), 0);
    EXPECT_EQ(quillon.errors(), QByteArray());
    return quillon.output();
}

// The most memory that a process has had, in bytes.
qint64 peakMemoryOf(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/status").arg(process));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression kPeak(QStringLiteral("VmHWM:\\s*(\\d+) kB"));
    return kPeak.match(QString::fromLatin1(file.readAll())).captured(1).toLongLong() * 1024;
}

} // namespace

TEST(PrintStream, RowsAppearAsLinesArrive)
{
    PipedQuillon quillon;
    quillon.start();
    quillon.give("a\nb");
    EXPECT_TRUE(quillon.hasPrinted("1\ta\n"));
    quillon.give("b\r");
    EXPECT_TRUE(quillon.hasPrinted("1\ta\n2\tbb\n"));
    quillon.give("\nc");
    EXPECT_EQ(quillon.end(), 0);
    EXPECT_EQ(quillon.output(), QByteArray("1\ta\n2\tbb\n3\tc\n"));
}

TEST(PrintStream, ACharacterMayArriveInPieces)
{
    PipedQuillon quillon({QStringLiteral("-")});
    quillon.start();
    quillon.give("a\n\xE2\x82");
    EXPECT_TRUE(quillon.hasPrinted("1\ta\n"));
    quillon.give("\xAC\n");
    EXPECT_TRUE(quillon.hasPrinted("1\ta\n2\t€\n"));
    EXPECT_EQ(quillon.end(), 0);
}

TEST(PrintStream, AGenuineLogGivesTheSameRowsAndJsonAsItsFile)
{
    const QStringList names = testDataNames();
    ASSERT_FALSE(names.isEmpty());
    const QList<QStringList> optionLists{
        {},
        {QStringLiteral("--color=always"), QStringLiteral("--query=/php|user/")},
        {QStringLiteral("--json"), QStringLiteral("-q["), QStringLiteral("--hide=notice")},
        {QStringLiteral("-ec")},
        {QStringLiteral("-n5"), QStringLiteral("--no-number")},
    };
    for (const QString& name : names) {
        for (const QStringList& options : optionLists) {
            QuillonProcess file(QStringList{kPrint} + options + QStringList{testDataPath(name)});
            EXPECT_EQ(file.run(), 0);
            EXPECT_FALSE(file.output().isEmpty());
            EXPECT_EQ(printedOf(testData(name), options), file.output()) << name.toStdString();
        }
    }
}

TEST(PrintStream, NothingIsDroppedFromTheHead)
{
    QByteArray log;
    for (int i = 0; i < 400'000; ++i) {
        log += "a line of a log\n";
    }
    const QByteArray output = printedOf(log);
    EXPECT_TRUE(output.startsWith("1\ta line of a log\n"));
    EXPECT_TRUE(output.endsWith("\n400000\ta line of a log\n"));
    EXPECT_EQ(output.count('\n'), 400'000);
}

TEST(PrintStream, MemoryDoesNotGrowWithWhatWasPrinted)
{
    // The sanitizer keeps what was freed, so as to notice its use.
    PipedQuillon quillon(
        {QStringLiteral("--no-number")},
        {{QStringLiteral("ASAN_OPTIONS"), QStringLiteral("quarantine_size_mb=1")}});
    const QByteArray part = (QByteArray(99, 'l') + '\n').repeated(40'000);
    quillon.start();
    qsizetype printed = 0;
    const auto give = [&](int parts) {
        for (int i = 0; i < parts; ++i) {
            quillon.give(part);
            printed += part.size();
            ASSERT_TRUE(spinUntil([&] { return quillon.output().size() == printed; }));
        }
    };
    give(2);
    const qint64 before = peakMemoryOf(quillon.process().processId());
    EXPECT_GT(before, 0);
    give(8);
    EXPECT_LT(peakMemoryOf(quillon.process().processId()) - before, part.size());
    EXPECT_EQ(quillon.end(), 0);
}

TEST(PrintStream, ARedirectedFileIsReadFromItsBeginning)
{
    const TemporaryFolder folder;
    const QByteArray line(1024, 'x');
    const QString path =
        folder.write(QStringLiteral("a.log"), "first\n" + (line + '\n').repeated(3000));
    QuillonProcess quillon({kPrint, QStringLiteral("-qfirst")});
    quillon.process().setStandardInputFile(path);
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_EQ(quillon.output(), QByteArray("1\tfirst\n"));
}

TEST(PrintStream, TheLastRowsAreThoseBeforeTheEnd)
{
    EXPECT_EQ(printedOf("a\nb\nc\n", {QStringLiteral("-n2")}), QByteArray("2\tb\n3\tc\n"));
    EXPECT_EQ(printedOf("a\nb\nc\n", {QStringLiteral("-n0")}), QByteArray());
    EXPECT_EQ(printedOf("error 1\nb\nc\n", {QStringLiteral("-en1")}), QByteArray("1\terror 1\n"));
}

TEST(PrintStream, FollowedAllOfItIsStillToCome)
{
    PipedQuillon quillon({QStringLiteral("-fn0")});
    quillon.start();
    quillon.give("a\n");
    EXPECT_TRUE(quillon.hasPrinted("1\ta\n"));
    EXPECT_EQ(quillon.end(), 0);
}

TEST(PrintStream, AnEmptyInputPrintsNothingAndSucceeds)
{
    EXPECT_EQ(printedOf(QByteArray()), QByteArray());
}

TEST(PrintStream, AReaderThatLeavesEndsItThoughTheInputIsSilent)
{
    int ends[2] = {-1, -1};
    ASSERT_EQ(::pipe(ends), 0);
    ::fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    PipedQuillon quillon;
    quillon.process().setChildProcessModifier([&ends] { ::dup2(ends[1], STDOUT_FILENO); });
    quillon.start();
    ::close(ends[1]);
    quillon.give("a\n");
    char byte = 0;
    EXPECT_EQ(::read(ends[0], &byte, 1), 1);
    ::close(ends[0]);
    EXPECT_EQ(quillon.wait(), 0);
    EXPECT_EQ(quillon.errors(), QByteArray());
}

TEST(PrintStream, AnInterruptEndsFollowingAsShellsExpect)
{
    PipedQuillon quillon({QStringLiteral("-f")});
    quillon.start();
    quillon.give("a\n");
    EXPECT_TRUE(quillon.hasPrinted("1\ta\n"));
    ::kill(static_cast<pid_t>(quillon.process().processId()), SIGINT);
    EXPECT_EQ(quillon.wait(), 128 + SIGINT);
}

TEST(PrintStream, ANamedPipeIsReadOnceSomebodyWritesToIt)
{
    const TemporaryFolder folder;
    const QString path = folder.path(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(path.toLocal8Bit().constData(), 0600), 0);
    QuillonProcess quillon({kPrint, path});
    quillon.start();
    QProcess writer;
    writer.setStandardOutputFile(path, QIODevice::Append);
    writer.start(QStringLiteral("echo"), {QStringLiteral("hello")});
    EXPECT_EQ(quillon.wait(), 0);
    EXPECT_EQ(quillon.output(), QByteArray("1\thello\n"));
    EXPECT_TRUE(spinUntil([&] { return writer.state() == QProcess::NotRunning; }));
}

TEST(PrintStream, AProcessSubstitutionIsRead)
{
    QProcess shell;
    shell.start(QStringLiteral("bash"),
                {QStringLiteral("-c"), QStringLiteral("\"$0\" -p <(echo a; echo b) <(true)"),
                 QStringLiteral(QUILLON_PROGRAM)});
    EXPECT_TRUE(spinUntil([&] { return shell.state() == QProcess::NotRunning; }));
    EXPECT_EQ(shell.exitCode(), 0);
    EXPECT_TRUE(shell.readAllStandardOutput().contains("<==\n1\ta\n2\tb\n\n==>"));
}

TEST(PrintStream, AClosedStandardInputIsTold)
{
    QuillonProcess quillon({kPrint, QStringLiteral("-")});
    quillon.process().setChildProcessModifier([] { ::close(STDIN_FILENO); });
    EXPECT_EQ(quillon.run(), 1);
    EXPECT_EQ(quillon.errors(), QByteArray("quillon: -: ") + std::strerror(EBADF) + '\n');
}

TEST(PrintStream, ATerminalIsNoInputUnlessAskedFor)
{
    QuillonProcess quillon({kPrint});
    quillon.process().setStandardInputFile(QStringLiteral("/dev/null"));
    EXPECT_EQ(quillon.run(), 2);
    EXPECT_TRUE(quillon.errors().startsWith("quillon: --print demande un fichier"));
}

} // namespace quillon
