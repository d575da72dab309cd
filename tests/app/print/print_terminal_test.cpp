// SPDX-License-Identifier: MIT
// Print mode at a terminal: what is typed there, and that all habits work there as in a pipe.
#include "tests/app/print/print_words.h"
#include "tests/app/print/pseudo_terminal.h"
#include "tests/app/print/quillon_process.h"
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace quillon {

namespace {

const QString kWithoutColor = QStringLiteral("--color=never");

// The program at a terminal of its own, as somebody who sits there starts it.
class QuillonAtTerminal : public QuillonProcess {
public:
    explicit QuillonAtTerminal(const QStringList& arguments) : QuillonProcess(arguments)
    {
        process().setChildProcessModifier([name = m_terminal.name().toLocal8Bit()] {
            ::setsid();
            // The first terminal that is opened becomes that of the session.
            const int terminal = ::open(name.constData(), O_RDWR);
            ::ioctl(terminal, TIOCSCTTY, 0);
            for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
                ::dup2(terminal, descriptor);
            }
        });
    }

    void type(const QByteArray& keys) { m_terminal.type(keys); }
    QByteArray screen() { return m_terminal.screen(); }
    bool shows(const QByteArray& text)
    {
        return spinUntil([&] { return screen() == text; });
    }

private:
    PseudoTerminal m_terminal;
};

class PrintTerminal : public testing::Test {
protected:
    PrintTerminal()
    {
        m_folder.write(kFirst, "PHP Fatal error: a\nPHP Warning: b\nc\n");
        m_folder.write(kSecond, "PHP Notice: d\n");
    }

    void startInFolder(QuillonProcess& quillon) const
    {
        quillon.process().setWorkingDirectory(m_folder.path(QString()));
        quillon.start();
    }

    const TemporaryFolder m_folder;
};

} // namespace

TEST_F(PrintTerminal, EveryHabitGivesWhatItGivesInAPipe)
{
    const QStringList habits[] = {
        {QStringLiteral("-p")},
        {QStringLiteral("-pe")},
        {QStringLiteral("-pqphp")},
        {QStringLiteral("-pn1")},
        {QStringLiteral("-pc")},
        {QStringLiteral("-p"), QStringLiteral("--hide=warning")},
        {QStringLiteral("-p"), QStringLiteral("--no-number")},
        {QStringLiteral("-p"), QStringLiteral("--json")},
        {QStringLiteral("-p"), QStringLiteral("--json"), QStringLiteral("--no-runs")},
        {QStringLiteral("-pc"), QStringLiteral("--json")},
    };
    for (const QStringList& habit : habits) {
        for (const QStringList& files : {QStringList{kFirst}, QStringList{kFirst, kSecond}}) {
            const QStringList arguments = habit + QStringList{kWithoutColor} + files;
            QuillonProcess pipe(arguments);
            startInFolder(pipe);
            EXPECT_EQ(pipe.wait(), 0);
            EXPECT_NE(pipe.output(), QByteArray());
            QuillonAtTerminal terminal(arguments);
            startInFolder(terminal);
            EXPECT_EQ(terminal.wait(), 0);
            EXPECT_EQ(terminal.screen(), QByteArray(pipe.output()).replace("\n", "\r\n"))
                << qPrintable(arguments.join(u' '));
        }
    }
}

TEST_F(PrintTerminal, ColorAloneColoursATerminalAndNoPipe)
{
    const QStringList arguments{QStringLiteral("-pn1"), QStringLiteral("--color"), kSecond};
    QuillonAtTerminal terminal(arguments);
    startInFolder(terminal);
    EXPECT_EQ(terminal.wait(), 0);
    EXPECT_EQ(terminal.screen(), QByteArray("\x1B[90m1\x1B[0;38;5;220m\tPHP Notice: d\x1B[0m\r\n"));
    QuillonProcess pipe(arguments);
    startInFolder(pipe);
    EXPECT_EQ(pipe.wait(), 0);
    EXPECT_EQ(pipe.output(), QByteArray("1\tPHP Notice: d\n"));
}

TEST_F(PrintTerminal, WhatIsTypedIsReadWhereItIsAskedFor)
{
    QuillonAtTerminal quillon({QStringLiteral("-p"), kWithoutColor, QStringLiteral("-")});
    quillon.start();
    quillon.type("x\n");
    EXPECT_TRUE(quillon.shows("x\r\n1\tx\r\n"));
    quillon.type("\x04");
    EXPECT_EQ(quillon.wait(), 0);
}

TEST_F(PrintTerminal, NobodyIsMadeToTypeALog)
{
    QuillonAtTerminal quillon({QStringLiteral("-p")});
    quillon.start();
    EXPECT_EQ(quillon.wait(), 2);
    EXPECT_TRUE(quillon.screen().startsWith("quillon: --print demande un fichier"));
}

TEST_F(PrintTerminal, CtrlCEndsFollowing)
{
    QuillonAtTerminal quillon({QStringLiteral("-pf"), kWithoutColor, kSecond});
    startInFolder(quillon);
    ASSERT_TRUE(quillon.shows("1\tPHP Notice: d\r\n"));
    m_folder.append(kSecond, "e\n");
    ASSERT_TRUE(quillon.shows("1\tPHP Notice: d\r\n2\te\r\n"));
    quillon.type("\x03");
    EXPECT_EQ(quillon.wait(), 128 + SIGINT);
}

TEST_F(PrintTerminal, AFileThatCannotBeReadIsToldWhereItsTurnIs)
{
    QuillonAtTerminal quillon(
        {QStringLiteral("-pn1"), kWithoutColor, kFirst, QStringLiteral("no.log"), kSecond});
    startInFolder(quillon);
    EXPECT_EQ(quillon.wait(), 1);
    EXPECT_EQ(quillon.screen(), QByteArray("==> a.log <==\r\n3\tc\r\nquillon: no.log: ") +
                                    std::strerror(ENOENT) +
                                    "\r\n\r\n==> b.log <==\r\n1\tPHP Notice: d\r\n");
}

} // namespace quillon
