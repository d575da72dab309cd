// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

namespace quillon {

// A program that a test needs beside the one under test. It ends with the object, and with the test
// program however that ends. Failing to start is the test's failure.
class HelperProcess {
public:
    HelperProcess(const QString& program, const QStringList& arguments,
                  const QProcessEnvironment& environment);
    HelperProcess(const HelperProcess&) = delete;
    HelperProcess& operator=(const HelperProcess&) = delete;
    ~HelperProcess();

    // Writes a line to its standard input.
    void writeLine(const QByteArray& line);
    // Waits for a line of its standard output and gives it without its end; empty, and the test's
    // failure, when none comes.
    QByteArray readLine();
    // Waits until it has ended by itself and gives all that it wrote.
    QByteArray finish();

private:
    QProcess m_process;
};

// Runs a program to its end and gives what it wrote.
QByteArray outputOf(const QString& program, const QStringList& arguments,
                    const QProcessEnvironment& environment);

} // namespace quillon
