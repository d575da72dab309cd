// SPDX-License-Identifier: MIT
// What people type by habit in other tools.
#include "tests/app/print/print_words.h"
#include "tests/app/print/quillon_process.h"
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"

#include <csignal>
#include <cstring>
#include <gtest/gtest.h>

namespace quillon {

namespace {

class PrintHabits : public testing::Test {
protected:
    // Runs the program in the folder of the logs.
    QByteArray printed(const QStringList& arguments, int status = 0)
    {
        QuillonProcess quillon(arguments);
        quillon.process().setWorkingDirectory(m_folder.path(QString()));
        EXPECT_EQ(quillon.run(), status);
        m_errors = quillon.errors();
        return quillon.output();
    }

    const TemporaryFolder m_folder;
    QByteArray m_errors;
};

} // namespace

TEST_F(PrintHabits, TheLastRowsThatAreShown)
{
    m_folder.write(kFirst, "error 1\nerror 2\nx\nerror 3\ny\n");
    EXPECT_EQ(printed({QStringLiteral("-pen2"), kFirst}), QByteArray("2\terror 2\n4\terror 3\n"));
    EXPECT_EQ(printed({QStringLiteral("-pn9"), kFirst}).count('\n'), 5);
    EXPECT_EQ(printed({QStringLiteral("-pn0"), kFirst}), QByteArray());
}

TEST_F(PrintHabits, OnlyWhatComes)
{
    m_folder.write(kFirst, "a\nb\n");
    QuillonProcess quillon({QStringLiteral("-pfn0"), m_folder.path(kFirst)});
    quillon.start();
    // Whatever moment it begins to poll the file at, only a line written after that is printed.
    EXPECT_TRUE(spinUntil([&] {
        m_folder.append(kFirst, "c\n");
        return quillon.output().contains("\tc\n");
    }));
    EXPECT_FALSE(quillon.output().contains("\ta\n"));
    EXPECT_FALSE(quillon.output().contains("\tb\n"));
}

TEST_F(PrintHabits, SeveralFilesComeUnderHeadings)
{
    m_folder.write(kFirst, "a\n");
    m_folder.write(kSecond, "b\nc\n");
    m_folder.write(QStringLiteral("empty.log"), QByteArray());
    EXPECT_EQ(printed({QStringLiteral("-p"), kFirst, kSecond, QStringLiteral("empty.log"), kFirst}),
              QByteArray("==> a.log <==\n1\ta\n\n==> b.log <==\n1\tb\n2\tc\n\n==> empty.log <==\n"
                         "\n==> a.log <==\n1\ta\n"));
}

TEST_F(PrintHabits, AFileThatCannotBeReadIsToldAndTheOthersAreShown)
{
    m_folder.write(kFirst, "a\n");
    m_folder.write(kSecond, "b\n");
    EXPECT_EQ(printed({QStringLiteral("-p"), kFirst, QStringLiteral("no.log"), kSecond}, 1),
              QByteArray("==> a.log <==\n1\ta\n\n==> b.log <==\n1\tb\n"));
    EXPECT_EQ(m_errors, QByteArray("quillon: no.log: ") + std::strerror(ENOENT) + '\n');
}

TEST_F(PrintHabits, SeveralFilesInJsonNameThemselves)
{
    m_folder.write(kFirst, "a\n");
    m_folder.write(kSecond, "b\n");
    EXPECT_EQ(
        printed({QStringLiteral("-p"), QStringLiteral("--json"), QStringLiteral("--no-runs"),
                 kFirst, kSecond}),
        QByteArray("{\"file\":\"a.log\",\"number\":1,\"severity\":\"unknown\",\"text\":\"a\"}\n"
                   "{\"file\":\"b.log\",\"number\":1,\"severity\":\"unknown\",\"text\":\"b\"}\n"));
}

TEST_F(PrintHabits, AFileWhoseNameIsNoTextIsNamedInJsonWithReplacementCharacters)
{
    m_folder.write(kFirst, "a\n");
    QuillonProcess quillon({});
    quillon.process().setWorkingDirectory(m_folder.path(QString()));
    quillon.process().setProgram(QStringLiteral("/bin/sh"));
    // The arguments of QProcess are texts; a shell makes the bytes.
    quillon.process().setArguments(
        {QStringLiteral("-c"),
         QStringLiteral("name=$(printf 'caf\\351.log'); echo b >\"$name\"; "
                        "\"$0\" -p --json --no-runs \"$name\" a.log; rm \"$name\""),
         QStringLiteral(QUILLON_PROGRAM)});
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_TRUE(quillon.output().startsWith("{\"file\":\"caf\uFFFD.log\",\"number\":1,"))
        << quillon.output().constData();
}

TEST_F(PrintHabits, SeveralFilesAreFollowedWithAHeadingWhereTheFileChanges)
{
    m_folder.write(kFirst, "a\n");
    m_folder.write(kSecond, "b\n");
    QuillonProcess quillon({QStringLiteral("-pf"), kFirst, QStringLiteral("no.log"), kSecond});
    quillon.process().setWorkingDirectory(m_folder.path(QString()));
    quillon.start();
    QByteArray expected("==> a.log <==\n1\ta\n\n==> b.log <==\n1\tb\n");
    ASSERT_TRUE(spinUntil([&] { return quillon.output() == expected; }));
    m_folder.append(kSecond, "c\n");
    expected += "2\tc\n";
    ASSERT_TRUE(spinUntil([&] { return quillon.output() == expected; }));
    m_folder.append(kFirst, "d\n");
    expected += "\n==> a.log <==\n2\td\n";
    EXPECT_TRUE(spinUntil([&] { return quillon.output() == expected; }));
    EXPECT_EQ(quillon.errors(), QByteArray("quillon: no.log: ") + std::strerror(ENOENT) + '\n');
    ::kill(static_cast<pid_t>(quillon.process().processId()), SIGTERM);
    EXPECT_EQ(quillon.wait(), 128 + SIGTERM);
}

TEST_F(PrintHabits, FollowingOnlyFilesThatCannotBeReadEndsAtOnce)
{
    EXPECT_EQ(
        printed({QStringLiteral("-pf"), QStringLiteral("no.log"), QStringLiteral("nor.log")}, 1),
        QByteArray());
    EXPECT_EQ(m_errors.count('\n'), 2);
}

TEST_F(PrintHabits, TheRowsOfEachLevelAreCounted)
{
    m_folder.write(kFirst, "PHP Fatal error: x\nPHP Warning: y\nPHP Warning: z\nx\n");
    EXPECT_EQ(printed({QStringLiteral("-pc"), kFirst}),
              QByteArray("1\tfatal\n0\terror\n2\twarning\n0\tnotice\n0\tdeprecated\n0\tinfo\n"
                         "0\tdebug\n1\tunknown\n"));
    EXPECT_TRUE(
        printed({QStringLiteral("-pec"), kFirst}).contains("1\tfatal\n0\terror\n0\twarning"));
    EXPECT_TRUE(printed({QStringLiteral("-pcn2"), kFirst}).contains("1\twarning\n"));
}

TEST_F(PrintHabits, CountsInJsonAreOneObject)
{
    m_folder.write(kFirst, "x\n");
    EXPECT_EQ(printed({QStringLiteral("-pc"), QStringLiteral("--json"), kFirst}),
              QByteArray("{\"fatal\":0,\"error\":0,\"warning\":0,\"notice\":0,\"deprecated\":0,"
                         "\"info\":0,\"debug\":0,\"unknown\":1}\n"));
}

TEST_F(PrintHabits, NumbersAreLeftOut)
{
    m_folder.write(kFirst, "a\nPHP Notice: b\n");
    EXPECT_EQ(printed({QStringLiteral("-p"), QStringLiteral("--no-number"), kFirst}),
              QByteArray("a\nPHP Notice: b\n"));
    EXPECT_EQ(printed({QStringLiteral("-p"), QStringLiteral("--no-number"),
                       QStringLiteral("--color=always"), kFirst}),
              QByteArray("a\n\x1B[38;5;220mPHP Notice: b\x1B[0m\n"));
}

TEST_F(PrintHabits, RunsAreLeftOutOfJson)
{
    m_folder.write(kFirst, "a\n");
    EXPECT_EQ(printed({QStringLiteral("-p"), QStringLiteral("--json"), QStringLiteral("--no-runs"),
                       kFirst}),
              QByteArray("{\"number\":1,\"severity\":\"unknown\",\"text\":\"a\"}\n"));
}

TEST_F(PrintHabits, AHostileNameIsOneLineThatDrivesNoTerminal)
{
    const QString name = QStringLiteral("a\x1B[2J\n\u202E.log");
    m_folder.write(name, "a\n");
    m_folder.write(kFirst, "b\n");
    EXPECT_TRUE(printed({QStringLiteral("-p"), name, kFirst})
                    .startsWith("==> a␛[2J␊\uFFFD.log <==\n1\ta\n"));
    printed({QStringLiteral("-p"), QStringLiteral("no") + name}, 1);
    EXPECT_EQ(m_errors, QByteArray("quillon: noa␛[2J␊\uFFFD.log: ") + std::strerror(ENOENT) + '\n');
}

} // namespace quillon
