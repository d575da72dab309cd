// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/temporary_folder.h"

#include <QByteArray>
#include <QList>
#include <QProcess>
#include <QStringList>

#include <cstddef>
#include <utility>

namespace quillon {

// The real program as a process of its own, with settings of its own. It is killed with the object.
class QuillonProcess {
public:
    using Environment = QList<std::pair<QString, QString>>;

    // Starts nothing yet, so that what the process gets can still be changed.
    explicit QuillonProcess(const QStringList& arguments, const Environment& environment = {});
    ~QuillonProcess();
    QuillonProcess(const QuillonProcess&) = delete;
    QuillonProcess& operator=(const QuillonProcess&) = delete;

    // $XDG_CONFIG_HOME of the process.
    [[nodiscard]] const TemporaryFolder& configuration() const { return m_configuration; }
    // Writes the settings file as a user would edit it, with an instant effect on a process that
    // runs.
    void writeSettings(const QByteArray& text) const;

    QProcess& process() { return m_process; }
    void start();
    // Starts it and waits for its end; gives its exit status, -1 for a crash.
    int run();
    // Waits for its end.
    int wait();
    // What it has written so far.
    const QByteArray& output();
    const QByteArray& errors();

private:
    TemporaryFolder m_configuration;
    QProcess m_process;
    QByteArray m_output;
    QByteArray m_errors;
};

// Runs `quillon --print` with the arguments and gives what it writes to standard output, in lines;
// anything but success is the test's failure.
QStringList printedLines(const QStringList& arguments,
                         const QuillonProcess::Environment& environment = {});

// The literal's bytes, NUL bytes within it included.
template <std::size_t N>
QByteArray bytesOf(const char (&literal)[N])
{
    return QByteArray(literal, static_cast<qsizetype>(N) - 1);
}

} // namespace quillon
