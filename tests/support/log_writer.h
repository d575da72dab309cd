// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <cstdint>
#include <sys/types.h>

namespace quillon {

// A process that writes a numberedLog() to the end of a file, cut at random through its lines and
// characters. It is ended with the object. Failing to start it ends the program.
class LogWriter {
public:
    // Writes at least `bytes` bytes, evenly over the time, or without a pause when there is none;
    // at most `longestCut` bytes at once.
    LogWriter(const QString& path, qsizetype bytes, std::chrono::milliseconds time,
              std::uint32_t longestCut = 32'768);
    ~LogWriter();
    LogWriter(const LogWriter&) = delete;
    LogWriter& operator=(const LogWriter&) = delete;

    // Whether all of it has been written.
    [[nodiscard]] bool isDone();

private:
    pid_t m_process = -1;
    bool m_isDone = false;
};

} // namespace quillon
