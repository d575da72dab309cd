// SPDX-License-Identifier: MIT
#include "bench/generated_log.h"
#include "bench/ratio_table.h"

#include <QByteArrayList>
#include <QCoreApplication>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace quillon::bench {

namespace {

constexpr qsizetype kPartBytes = 2'000'000;
constexpr int kPartCount = 100;
constexpr double kPipedBytes = double{kPartBytes} * kPartCount;

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

// Gives the program the part again and again through a pipe, and waits for its end.
PipedRun runPiped(const QByteArrayList& words, const QByteArray& part)
{
    PipedRun run;
    std::array<int, 2> ends{-1, -1};
    rusage usage{};
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
        for (int i = 0; i < kPartCount; ++i) {
            writeAll(ends[1], part);
        }
        ::close(ends[1]);
        ::wait4(child, &status, 0, &usage);
    });
    if (status != 0) {
        qFatal("%s failed", words.front().constData());
    }
    run.peakBytes = static_cast<double>(usage.ru_maxrss) * 1024;
    return run;
}

// The one of three that took neither longest nor shortest.
PipedRun medianRun(const QByteArrayList& words, const QByteArray& part)
{
    std::array<PipedRun, 3> runs{};
    std::generate(runs.begin(), runs.end(), [&] { return runPiped(words, part); });
    std::sort(runs.begin(), runs.end(),
              [](const PipedRun& a, const PipedRun& b) { return a.milliseconds < b.milliseconds; });
    return runs[1];
}

// One run of the reference: it takes long.
void compareWith(RatioTable& table, const QString& program, const QStringList& options,
                 const PipedRun& ours, const QByteArray& part)
{
    const QString name = QStringLiteral("200 MB from a pipe | %1").arg(program);
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty()) {
        table.addMissing(name, program + QStringLiteral(" is not installed"));
        return;
    }
    QByteArrayList words{path.toLocal8Bit()};
    for (const QString& option : options) {
        words.append(option.toLocal8Bit());
    }
    const PipedRun theirs = runPiped(words, part);
    table.add(name,
              PairedTiming{ours.milliseconds, theirs.milliseconds,
                           ours.milliseconds / theirs.milliseconds},
              1);
    table.addQuantity(QStringLiteral("peak memory meanwhile, to %1").arg(program),
                      ours.peakBytes / theirs.peakBytes, QStringLiteral("x"), 1);
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
    const PipedRun ours =
        medianRun({program, "--print", "--color=always", "--query=php|commande"}, part);
    table.addQuantity(QStringLiteral("200 MB from a pipe, filtered and coloured"),
                      ours.milliseconds * 1e6 / kPipedBytes, QStringLiteral("ns/B"),
                      kMostNanosecondsPerByte);
    table.addQuantity(QStringLiteral("peak memory meanwhile"), ours.peakBytes / 1e6,
                      QStringLiteral("MB"), kMostMegabytes);
    compareWith(table, QStringLiteral("lnav"), {QStringLiteral("-n")}, ours, part);
    compareWith(table, QStringLiteral("ccze"), {QStringLiteral("-A")}, ours, part);
}

} // namespace quillon::bench
