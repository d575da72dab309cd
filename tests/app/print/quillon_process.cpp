// SPDX-License-Identifier: MIT
#include "tests/app/print/quillon_process.h"

#include "tests/support/printing.h"
#include "tests/support/spin_until.h"

#include <QDir>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

namespace quillon {

QuillonProcess::QuillonProcess(const QStringList& arguments, const Environment& environment)
{
    auto variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("XDG_CONFIG_HOME"), m_configuration.path(QString()));
    variables.insert(QStringLiteral("XDG_STATE_HOME"), m_configuration.path(QString()));
    variables.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    variables.insert(QStringLiteral("TERM"), QStringLiteral("xterm-256color"));
    variables.remove(QStringLiteral("COLORTERM"));
    variables.remove(QStringLiteral("NO_COLOR"));
    variables.remove(QStringLiteral("CLICOLOR_FORCE"));
    for (const auto& [name, value] : environment) {
        variables.insert(name, value);
    }
    m_process.setProcessEnvironment(variables);
    m_process.setProgram(QStringLiteral(QUILLON_PROGRAM));
    m_process.setArguments(arguments);
}

QuillonProcess::~QuillonProcess()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

void QuillonProcess::writeSettings(const QByteArray& text) const
{
    QDir(m_configuration.path(QString())).mkpath(QStringLiteral("Quillon"));
    m_configuration.write(QStringLiteral("Quillon/Quillon.conf"), text);
}

void QuillonProcess::start()
{
    m_process.start();
    ASSERT_TRUE(m_process.waitForStarted()) << m_process.errorString().toStdString();
}

int QuillonProcess::run()
{
    start();
    return wait();
}

int QuillonProcess::wait()
{
    EXPECT_TRUE(spinUntil([this] { return m_process.state() == QProcess::NotRunning; }));
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

const QByteArray& QuillonProcess::output()
{
    m_output += m_process.readAllStandardOutput();
    return m_output;
}

const QByteArray& QuillonProcess::errors()
{
    m_errors += m_process.readAllStandardError();
    return m_errors;
}

QStringList printedLines(const QStringList& arguments,
                         const QuillonProcess::Environment& environment)
{
    QuillonProcess quillon(QStringList{QStringLiteral("--print")} + arguments, environment);
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_EQ(quillon.errors(), QByteArray());
    QString text = QString::fromUtf8(quillon.output());
    if (text.isEmpty()) {
        return {};
    }
    EXPECT_TRUE(text.endsWith(u'\n'));
    text.chop(1);
    return text.split(u'\n');
}

} // namespace quillon
