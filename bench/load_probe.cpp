// SPDX-License-Identifier: MIT
// Holds the program to what another process writes to a log, cut at random through its lines and
// characters, and prints one line about it.
//
//   quillon_load_probe window LOG MEGABYTES SECONDS     the program's own window, following
//   quillon_load_probe pipe LOG MEGABYTES SECONDS       print mode, into a reader that sleeps
//
// With 0 seconds the log is written as fast as it can be. The log ends up as large as it says.
#include "app/command_line/command_line.h"
#include "app/desktop/quillon_app.h"
#include "app/desktop/run_application.h"
#include "bench/probe_report.h"
#include "model/log_view_model.h"
#include "tests/support/log_writer.h"
#include "tests/support/numbered_log.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <optional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using namespace quillon;
using namespace std::chrono_literals;

struct Load {
    QString path;
    qsizetype bytes = 0;
    std::chrono::milliseconds time{0};
};

Load load;

// Whether every byte was shown: the file is mapped, as it may be larger than memory should be.
void printAccount(qsizetype rowCount, const std::function<QString(qsizetype)>& rowText)
{
    QFile file(load.path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("the log is gone");
    }
    const auto size = static_cast<qsizetype>(file.size());
    const uchar* const bytes = file.map(0, size);
    const ByteAccount account = accountForBytes({bytes, size}, rowCount, rowText);
    std::printf("%.1f MB written, %s, %lld rows, %lld bytes shown twice",
                static_cast<double>(size) / 1e6,
                account.shown == size ? "all shown" : "NOT ALL SHOWN",
                static_cast<long long>(rowCount), static_cast<long long>(account.shownTwice));
}

// Beats a thousand times a second, as long as the event loop lets it.
class Heartbeat : public QObject {
public:
    explicit Heartbeat(QObject* parent) : QObject(parent)
    {
        m_beat.setTimerType(Qt::PreciseTimer);
        connect(&m_beat, &QTimer::timeout, this, [this] { beat(); });
        m_beat.start(1ms);
        QTimer::singleShot(2s, this, [this] {
            m_writer.emplace(load.path, load.bytes, load.time);
            m_sinceStart.start();
            m_sinceBeat.start();
        });
    }

private:
    void beat()
    {
        if (!m_writer) {
            return;
        }
        m_gaps.push_back(m_sinceBeat.nsecsElapsed());
        m_sinceBeat.start();
        const LogViewModel& model = sharedLogViewModel();
        if (m_writer->isDone() && model.lastFileSize >= quint64(load.bytes) &&
            model.lastFileSize == quint64(QFile(load.path).size())) {
            m_beat.stop();
            // What is still to be laid out and painted belongs to it.
            QTimer::singleShot(500ms, this, [this] { report(); });
        }
    }
    void report()
    {
        m_gaps.push_back(m_sinceBeat.nsecsElapsed() - 500'000'000);
        const double seconds = double(m_sinceStart.elapsed()) / 1e3 - 0.5;
        const double megabytes = double(bench::residentBytes()) / 1e6;
        std::sort(m_gaps.begin(), m_gaps.end());
        const auto millisecondsAt = [this](double part) {
            const auto index = static_cast<std::size_t>(part * double(m_gaps.size() - 1));
            return double(m_gaps[index]) / 1e6;
        };
        const LogLines& lines = sharedLogViewModel().lines.get();
        printAccount(lines.size(), [&lines](qsizetype i) { return lines[i].text(); });
        std::printf(", shown after %.1f s; gaps: longest %.1f ms, 99 %% below %.1f ms; %.0f MB of "
                    "memory\n",
                    seconds, millisecondsAt(1.0), millisecondsAt(0.99), megabytes);
        std::fflush(stdout);
        std::_Exit(0);
    }

    QTimer m_beat;
    QElapsedTimer m_sinceBeat;
    QElapsedTimer m_sinceStart;
    std::optional<LogWriter> m_writer;
    std::vector<qint64> m_gaps;
};

void startHeartbeat()
{
    new Heartbeat(qApp);
}

// Print mode as a process of its own, whose output is read a little at a time.
int runPipe(const QByteArray& program)
{
    std::array<int, 2> ends{-1, -1};
    const QByteArray path = QFile::encodeName(load.path);
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        return EXIT_FAILURE;
    }
    const pid_t printing = ::fork();
    if (printing == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::execl(program.constData(), program.constData(), "-pf", path.constData(), nullptr);
        ::_exit(127);
    }
    ::close(ends[1]);
    LogWriter writer(load.path, load.bytes, load.time);
    QByteArray output;
    bool isEndWritten = false;
    while (!output.endsWith("\tend\n")) {
        std::array<char, 65'536> bytes{};
        const ssize_t count = ::read(ends[0], bytes.data(), bytes.size());
        if (count <= 0) {
            return EXIT_FAILURE;
        }
        output.append(bytes.data(), count);
        std::this_thread::sleep_for(10ms);
        if (!isEndWritten && writer.isDone()) {
            QFile file(load.path);
            isEndWritten = file.open(QIODevice::Append) && file.write("end\n") == 4;
        }
    }
    rusage usage{};
    ::kill(printing, SIGTERM);
    ::wait4(printing, nullptr, 0, &usage);
    const QByteArrayList rows = output.chopped(1).split('\n');
    printAccount(rows.size(), [&rows](qsizetype i) {
        return QString::fromUtf8(rows[i].sliced(rows[i].indexOf('\t') + 1));
    });
    std::printf("; %.0f MB of memory\n", double(usage.ru_maxrss) / 1024);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::fputs("usage: quillon_load_probe window|pipe LOG MEGABYTES SECONDS\n", stderr);
        return EXIT_FAILURE;
    }
    load.path = QString::fromLocal8Bit(argv[2]);
    load.bytes = qsizetype{std::atoi(argv[3])} * 1'000'000;
    load.time = std::chrono::seconds(std::atoi(argv[4]));
    QFile file(load.path);
    if (!file.open(QIODevice::WriteOnly)) {
        return EXIT_FAILURE;
    }
    file.close();
    if (QByteArrayView(argv[1]) == "pipe") {
        const QByteArray own(argv[0]);
        return runPipe(own.first(own.lastIndexOf('/') + 1) + "quillon");
    }
    qAddPreRoutine(startHeartbeat);
    CommandLine commandLine;
    commandLine.files = {load.path};
    commandLine.followTail = true;
    int count = 1;
    return runApplication(count, argv, commandLine);
}
