// SPDX-License-Identifier: MIT
#include "bench/generated_log.h"
#include "bench/ratio_table.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <utility>
#include <vector>

namespace quillon::bench {

namespace {

constexpr qsizetype kLogBytes = 2'097'152;
constexpr qsizetype kShortLogLines = 300;

QString beside(const char* name)
{
    return QCoreApplication::applicationDirPath() + u'/' + QLatin1StringView(name);
}

struct ProcessRun {
    double milliseconds = 0;
    QByteArray output;
};

// Windows go to the display, if there is one, also when the benchmarks themselves draw into memory.
QProcessEnvironment windowEnvironment()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    if (!environment.value(QStringLiteral("DISPLAY")).isEmpty()) {
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    }
    return environment;
}

enum class Output : std::uint8_t { Kept, Discarded };

ProcessRun runProcess(const QString& program, const QStringList& arguments,
                      Output output = Output::Kept)
{
    QProcess process;
    process.setProcessEnvironment(windowEnvironment());
    process.setStandardErrorFile(QProcess::nullDevice());
    if (output == Output::Discarded) {
        process.setStandardOutputFile(QProcess::nullDevice());
    }
    ProcessRun run;
    run.milliseconds = millisecondsOf([&] {
        process.start(program, arguments);
        process.waitForFinished(60'000);
    });
    if (output == Output::Kept) {
        run.output = process.readAllStandardOutput();
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        qFatal("%s failed", qPrintable(program));
    }
    return run;
}

struct Start {
    double milliseconds = 0;
    double residentBytes = 0;
};

// Starts a window; its last line says when it had been painted, and how much memory it took then.
Start startWindow(const QString& program, const QStringList& arguments)
{
    const std::chrono::nanoseconds begin = std::chrono::steady_clock::now().time_since_epoch();
    const QByteArray output = runProcess(program, arguments).output;
    const QList<QByteArray> report = output.trimmed().split('\n').last().split(' ');
    const std::chrono::nanoseconds painted(report.value(0).toLongLong());
    return Start{std::chrono::duration<double, std::milli>(painted - begin).count(),
                 report.value(1).toDouble()};
}

QString writeLog(const QTemporaryDir& folder, const QByteArray& log, const char* name = "debug.log")
{
    QFile file(folder.filePath(QLatin1StringView(name)));
    static_cast<void>(file.open(QIODevice::WriteOnly));
    file.write(log);
    return file.fileName();
}

double startOfToolkit(const QString& path)
{
    return startWindow(beside("quillon_toolkit_probe"), {path}).milliseconds;
}

void compareStart(RatioTable& table, const QString& path)
{
    const QString program = beside("quillon_window_probe");
    const QString bare = beside("quillon_bare_probe");
    const auto start = [&] {
        return startWindow(program, {path}).milliseconds;
    };
    const auto startBare = [&] {
        return startWindow(bare, {}).milliseconds;
    };
    const auto startWithText = [&] {
        return startWindow(bare, {QStringLiteral("text")}).milliseconds;
    };
    table.add(QStringLiteral("cold start to the painted log | bare Qt window"),
              comparePairs(start, startBare, 21), 2);
    table.addForComparison(QStringLiteral("cold start to the painted log | window with a line"),
                           comparePairs(start, startWithText, 21));
    table.addForComparison(QStringLiteral("a bare Qt window with a line of text | without"),
                           comparePairs(startWithText, startBare, 21));
    table.addForComparison(
        QStringLiteral("cold start to the painted log | the same of the toolkit’s own parts"),
        comparePairs(start, [&] { return startOfToolkit(path); }));
    std::vector<double> differences;
    for (int pair = 0; pair < 9; ++pair) {
        differences.push_back(startWindow(program, {path}).residentBytes -
                              startWindow(bare, {}).residentBytes);
    }
    std::nth_element(differences.begin(), differences.begin() + 4, differences.end());
    table.addQuantity(QStringLiteral("memory with 2 MiB shown, beyond a bare window"),
                      differences[4] / static_cast<double>(kLogBytes), QStringLiteral("B/B"), 12);
}

void compareShortStart(RatioTable& table, const QTemporaryDir& folder)
{
    const QString path = writeLog(folder, generatedLines(kShortLogLines), "short.log");
    const auto start = [&] {
        return startWindow(beside("quillon_window_probe"), {path}).milliseconds;
    };
    const auto startWithText = [&] {
        return startWindow(beside("quillon_bare_probe"), {QStringLiteral("text")}).milliseconds;
    };
    table.add(QStringLiteral("cold start, 300 lines | window with a line"),
              comparePairs(start, startWithText, 21), 1.3);
    table.addForComparison(
        QStringLiteral("cold start, 300 lines | the same of the toolkit’s own parts"),
        comparePairs(
            start, [&] { return startOfToolkit(path); }, 21));
}

void compareStartsInScripts(RatioTable& table, const QTemporaryDir& folder)
{
    const auto start = [](const QString& path) {
        return startWindow(beside("quillon_window_probe"), {path}).milliseconds;
    };
    const auto write = [&](Phrase phrase, const char* name) {
        return writeLog(folder, generatedLogWithPhrases(kLogBytes, phrase), name);
    };
    const QString ascii = write(Phrase::Ascii, "ascii.log");
    const std::array<std::pair<Phrase, const char*>, 4> phrases{
        {{Phrase::Emoji, "emoji"},
         {Phrase::Accent, "combining accents"},
         {Phrase::Arabic, "Arabic"},
         {Phrase::Devanagari, "Devanagari"}}};
    for (const auto& [phrase, name] : phrases) {
        const QString path = write(phrase, "phrases.log");
        table.add(
            QStringLiteral("cold start, %1 in each line | ASCII").arg(QLatin1StringView(name)),
            comparePairs([&] { return start(path); }, [&] { return start(ascii); }, 15), 1.6);
    }
}

void compareFollowing(RatioTable& table)
{
    const QList<QByteArray> lines =
        runProcess(beside("quillon_follow_probe"), {}).output.trimmed().split('\n');
    table.addQuantity(QStringLiteral("memory while following, per byte appended"),
                      lines.value(0).toDouble(), QStringLiteral("B/B"), 12);
    table.addQuantity(QStringLiteral("processor time following an idle file"),
                      lines.value(1).toDouble(), QStringLiteral("ms/s"), 1);
}

void comparePrinting(RatioTable& table, const QString& path)
{
    const QString name = QStringLiteral("--print --color=always of 2 MiB | lnav -n");
    const QString lnav = QStandardPaths::findExecutable(QStringLiteral("lnav"));
    if (lnav.isEmpty()) {
        table.addMissing(name, QStringLiteral("lnav is not installed"));
        return;
    }
    // To nowhere: reading megabytes from a pipe here would be part of both times.
    const auto timeOf = [](const QString& program, const QStringList& arguments) {
        return runProcess(program, arguments, Output::Discarded).milliseconds;
    };
    const QStringList print{QStringLiteral("--print"), QStringLiteral("--color=always"), path};
    table.add(name,
              comparePairs([&] { return timeOf(beside("quillon"), print); },
                           [&] {
                               return timeOf(lnav, {QStringLiteral("-n"), path});
                           },
                           15),
              0.25);
}

} // namespace

void runProcessRatios(RatioTable& table)
{
    const QTemporaryDir folder;
    const QString path = writeLog(folder, generatedLog(kLogBytes));
    compareStart(table, path);
    compareShortStart(table, folder);
    compareStartsInScripts(table, folder);
    compareFollowing(table);
    comparePrinting(table, path);
}

} // namespace quillon::bench
