// SPDX-License-Identifier: MIT
#include "tests/support/log_writer.h"

#include "tests/support/numbered_log.h"
#include "tests/support/random_text.h"

#include <QFile>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quillon {

namespace {

using Clock = std::chrono::steady_clock;

// Made piece by piece, as all of it would take as much memory again as what is measured.
constexpr qsizetype kPieceBytes = qsizetype{4} * 1024 * 1024;

class Schedule {
public:
    Schedule(qsizetype bytes, std::chrono::milliseconds time) : m_bytes(bytes), m_time(time) {}

    void waitFor(qsizetype written) const
    {
        if (m_time.count() > 0) {
            std::this_thread::sleep_until(m_start + m_time * written / m_bytes);
        }
    }

private:
    const qsizetype m_bytes;
    const std::chrono::nanoseconds m_time;
    const Clock::time_point m_start = Clock::now();
};

bool writeInCuts(int file, qsizetype bytes, std::chrono::milliseconds time,
                 std::uint32_t longestCut)
{
    const Schedule schedule(bytes, time);
    RandomText random(14);
    qint64 nextNumber = 1;
    for (qsizetype written = 0; written < bytes;) {
        const QByteArray piece = numberedLog(std::min(bytes - written, kPieceBytes), nextNumber);
        nextNumber += piece.count('\n');
        for (qsizetype at = 0; at < piece.size();) {
            const qsizetype wanted = 1 + qsizetype(random.below(longestCut));
            const qsizetype cut = std::min(wanted, piece.size() - at);
            if (::write(file, piece.constData() + at, std::size_t(cut)) != cut) {
                return false;
            }
            at += cut;
            schedule.waitFor(written + at);
        }
        written += piece.size();
    }
    return true;
}

} // namespace

LogWriter::LogWriter(const QString& path, qsizetype bytes, std::chrono::milliseconds time,
                     std::uint32_t longestCut)
{
    const QByteArray name = QFile::encodeName(path);
    m_process = ::fork();
    if (m_process < 0) {
        qFatal("no process to write with");
    }
    if (m_process == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        const int file = ::open(name.constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
        ::_exit(file >= 0 && writeInCuts(file, bytes, time, longestCut) ? EXIT_SUCCESS
                                                                        : EXIT_FAILURE);
    }
}

LogWriter::~LogWriter()
{
    if (!m_isDone) {
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
    }
}

bool LogWriter::isDone()
{
    int status = 0;
    if (!m_isDone && ::waitpid(m_process, &status, WNOHANG) == m_process) {
        m_isDone = true;
        if (status != 0) {
            qFatal("the log could not be written");
        }
    }
    return m_isDone;
}

} // namespace quillon
