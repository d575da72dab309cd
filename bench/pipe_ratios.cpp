// SPDX-License-Identifier: MIT
#include "bench/generated_log.h"
#include "bench/ratio_table.h"

#include <QByteArrayList>
#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace quillon::bench {

namespace {

constexpr qsizetype kPartBytes = 2'000'000;
constexpr int kPartCount = 100;
constexpr double kPipedBytes = double{kPartBytes} * kPartCount;
// For a reference that takes minutes for the whole.
constexpr int kFewParts = 1;

struct PipedRun {
    double milliseconds = 0;
    double peakBytes = 0;
};

[[noreturn]] void become(const QByteArrayList& words, int input)
{
    const int nowhere = ::open("/dev/null", O_WRONLY);
    ::dup2(input, STDIN_FILENO);
    ::dup2(nowhere, STDOUT_FILENO);
    ::dup2(nowhere, STDERR_FILENO);
    std::vector<char*> arguments;
    for (const QByteArray& word : words) {
        arguments.push_back(const_cast<char*>(word.constData()));
    }
    arguments.push_back(nullptr);
    ::execv(arguments.front(), arguments.data());
    ::_exit(127);
}

void writeAll(int descriptor, const QByteArray& bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::write(descriptor, bytes.constData() + written,
                                      static_cast<std::size_t>(bytes.size() - written));
        if (count < 0) {
            qFatal("the pipe has no reader");
        }
        written += count;
    }
}

// The most memory that a process has taken so far. What the system tells of one that has ended
// counts what its parent had when it was started, too.
double peakBytesOf(pid_t process)
{
    QFile file(QStringLiteral("/proc/%1/status").arg(process));
    static_cast<void>(file.open(QIODevice::ReadOnly));
    static const QRegularExpression kPeak(QStringLiteral("VmHWM:\\s*(\\d+) kB"));
    return kPeak.match(QString::fromLatin1(file.readAll())).captured(1).toDouble() * 1024;
}

// Gives the program the part so many times through a pipe, and waits for its end.
PipedRun runPiped(const QByteArrayList& words, const QByteArray& part, int count)
{
    PipedRun run;
    std::array<int, 2> ends{-1, -1};
    int status = -1;
    run.milliseconds = millisecondsOf([&] {
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            qFatal("no pipe");
        }
        const pid_t child = ::fork();
        if (child == 0) {
            become(words, ends[0]);
        }
        ::close(ends[0]);
        for (int i = 0; i < count; ++i) {
            writeAll(ends[1], part);
        }
        run.peakBytes = peakBytesOf(child);
        ::close(ends[1]);
        ::waitpid(child, &status, 0);
    });
    if (status != 0) {
        qFatal("%s failed", words.front().constData());
    }
    return run;
}

// The same from a file that is its standard input; in milliseconds.
double redirectedTime(const QByteArrayList& words, const QByteArray& path)
{
    int status = -1;
    const double time = millisecondsOf([&] {
        const pid_t child = ::fork();
        if (child == 0) {
            become(words, ::open(path.constData(), O_RDONLY | O_CLOEXEC));
        }
        ::waitpid(child, &status, 0);
    });
    if (status != 0) {
        qFatal("%s failed", words.front().constData());
    }
    return time;
}

// The one of three that took neither longest nor shortest.
PipedRun medianRun(const QByteArrayList& words, const QByteArray& part, int count)
{
    std::array<PipedRun, 3> runs{};
    std::generate(runs.begin(), runs.end(), [&] { return runPiped(words, part, count); });
    std::sort(runs.begin(), runs.end(),
              [](const PipedRun& a, const PipedRun& b) { return a.milliseconds < b.milliseconds; });
    return runs[1];
}

// One run of the reference: it takes long.
void compareWith(RatioTable& table, const QString& program, const QString& option,
                 const QByteArrayList& ourWords, const QByteArray& part, int count)
{
    const QString name =
        QStringLiteral("%1 MB from a pipe | %2").arg(count * kPartBytes / 1'000'000).arg(program);
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty()) {
        table.addMissing(name, program + QStringLiteral(" is not installed"));
        return;
    }
    const PipedRun ours = medianRun(ourWords, part, count);
    const PipedRun theirs = runPiped({path.toLocal8Bit(), option.toLocal8Bit()}, part, count);
    table.add(name,
              PairedTiming{ours.milliseconds, theirs.milliseconds,
                           ours.milliseconds / theirs.milliseconds},
              1);
    if (count == kPartCount) {
        table.addQuantity(QStringLiteral("peak memory meanwhile, to %1").arg(program),
                          ours.peakBytes / theirs.peakBytes, QStringLiteral("x"), 1);
    }
}

} // namespace

void runPipeRatios(RatioTable& table)
{
    // 60 MB/s are 16.7 ns a byte.
    constexpr double kMostNanosecondsPerByte = 1e9 / 60e6;
    constexpr double kMostMegabytes = 40;
    std::signal(SIGPIPE, SIG_IGN);
    const QByteArray part = generatedLog(kPartBytes);
    const QByteArray program = QCoreApplication::applicationDirPath().toLocal8Bit() + "/quillon";
    const QByteArrayList word{program, "--print", "--color=always", "--query=warning"};
    const QByteArrayList expression{program, "--print", "--color=always", "--query=php|commande"};
    const PipedRun ours = medianRun(word, part, kPartCount);
    table.addQuantity(QStringLiteral("200 MB from a pipe, coloured, those with a word"),
                      ours.milliseconds * 1e6 / kPipedBytes, QStringLiteral("ns/B"),
                      kMostNanosecondsPerByte);
    table.addQuantity(QStringLiteral("peak memory meanwhile"), ours.peakBytes / 1e6,
                      QStringLiteral("MB"), kMostMegabytes);
    QTemporaryFile file;
    if (!file.open() || file.write(part.repeated(kPartCount)) != part.size() * kPartCount ||
        !file.flush()) {
        qFatal("no room for a file");
    }
    const QByteArray path = QFile::encodeName(file.fileName());
    table.add(QStringLiteral("the same, an expression that nearly all match | a file"),
              comparePairs([&] { return runPiped(expression, part, kPartCount).milliseconds; },
                           [&] { return redirectedTime(expression, path); }, 3),
              1.1);
    compareWith(table, QStringLiteral("lnav"), QStringLiteral("-n"), expression, part, kPartCount);
    compareWith(table, QStringLiteral("ccze"), QStringLiteral("-A"), expression, part, kFewParts);
}

} // namespace quillon::bench
