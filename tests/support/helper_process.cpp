// SPDX-License-Identifier: MIT
#include "tests/support/helper_process.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/prctl.h>

namespace quillon {

namespace {

constexpr int kPatienceMilliseconds = 60'000;

} // namespace

HelperProcess::HelperProcess(const QString& program, const QStringList& arguments,
                             const QProcessEnvironment& environment)
{
    m_process.setProgram(program);
    m_process.setArguments(arguments);
    m_process.setProcessEnvironment(environment);
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_process.start();
    EXPECT_TRUE(m_process.waitForStarted(kPatienceMilliseconds))
        << qPrintable(program) << ": " << qPrintable(m_process.errorString());
}

HelperProcess::~HelperProcess()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.terminate();
        if (!m_process.waitForFinished()) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }
}

void HelperProcess::writeLine(const QByteArray& line)
{
    m_process.write(line + '\n');
}

QByteArray HelperProcess::readLine()
{
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(kPatienceMilliseconds)) {
            ADD_FAILURE() << qPrintable(m_process.program()) << " says nothing";
            return QByteArray();
        }
    }
    return m_process.readLine().chopped(1);
}

QByteArray HelperProcess::finish()
{
    m_process.closeWriteChannel();
    EXPECT_TRUE(m_process.state() == QProcess::NotRunning ||
                m_process.waitForFinished(kPatienceMilliseconds))
        << qPrintable(m_process.program()) << " does not end";
    return m_process.readAllStandardOutput();
}

QByteArray outputOf(const QString& program, const QStringList& arguments,
                    const QProcessEnvironment& environment)
{
    return HelperProcess(program, arguments, environment).finish();
}

} // namespace quillon
