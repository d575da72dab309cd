// SPDX-License-Identifier: MIT
// What the running program asks of the system, as strace sees it: it writes its two files, and
// nothing else; it speaks to local sockets only; it starts no program but the browser that is asked
// for.
#include "tests/support/listening_socket.h"
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"
#include "tests/window/window_fixture.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <chrono>

namespace quillon {
namespace {

const QString kTraced = QStringLiteral(
    "trace=execve,execveat,socket,open,openat,openat2,creat,rename,renameat,renameat2,unlink,"
    "unlinkat,mkdir,mkdirat,truncate,link,linkat,symlink,symlinkat,chmod,fchmodat");

class LeastPrivilege : public WindowTest {
protected:
    void SetUp() override
    {
        const QStringList probe{QStringLiteral("-o"), QStringLiteral("/dev/null"),
                                QStringLiteral("true")};
        if (QProcess::execute(QStringLiteral("strace"), probe) != 0) {
            GTEST_SKIP() << "strace may not look at processes here";
        }
    }

    QuillonProcess& startTraced(const QStringList& arguments, const QString& title,
                                QuillonProcess::Environment more = {})
    {
        more.append({QStringLiteral("HOME"), folder().path(QString())});
        // It cannot look for leaks in a process that is looked at.
        more.append({QStringLiteral("LSAN_OPTIONS"), QStringLiteral("detect_leaks=0")});
        more.append({QStringLiteral("ASAN_OPTIONS"),
                     QStringLiteral("detect_leaks=0:strict_string_checks=0")});
        QuillonProcess& traced = program({}, more);
        traced.process().setProgram(QStringLiteral("strace"));
        traced.process().setArguments(
            QStringList{QStringLiteral("-f"), QStringLiteral("-qq"), QStringLiteral("-s"),
                        QStringLiteral("4096"), QStringLiteral("-e"), kTraced, QStringLiteral("-o"),
                        tracePath(), QStringLiteral(QUILLON_PROGRAM)} +
            arguments);
        traced.start();
        awaitActive(title);
        return traced;
    }
    [[nodiscard]] QString tracePath() const { return folder().path(QStringLiteral("trace")); }
    // The calls that were made, and that a pattern is found in.
    [[nodiscard]] QStringList calls(const QString& pattern) const
    {
        QFile file(tracePath());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll()).split(u'\n').filter(QRegularExpression(pattern));
    }
    // Those that change something in the file system.
    [[nodiscard]] QStringList changes() const
    {
        return calls(QStringLiteral("O_WRONLY|O_RDWR|O_CREAT|O_TRUNC| (creat|rename|unlink|mkdir|"
                                    "truncate|link|symlink|f?chmod)\\w*\\("));
    }
    [[nodiscard]] QStringList strangeChanges(const QuillonProcess& quillon) const
    {
        const QStringList own{quillon.configuration().path(QStringLiteral("Quillon/")),
                              quillon.configuration().path(QStringLiteral("Quillon\"")),
                              // The stand-in for a browser notes there what it was to open.
                              quillon.configuration().path(QStringLiteral("opened")),
                              QStringLiteral("\"/dev/null\""),
                              // The toolkit makes sure that the folder of its sockets is there.
                              QStringLiteral(" = -1 EEXIST")};
        QStringList strange;
        for (const QString& call : changes()) {
            const bool isOwn = std::any_of(
                own.begin(), own.end(), [&](const QString& text) { return call.contains(text); });
            if (!isOwn) {
                strange.append(call);
            }
        }
        return strange;
    }
    // The programs that were started, the first of which is the program itself.
    [[nodiscard]] QStringList startedPrograms() const
    {
        static const QRegularExpression kProgram(QStringLiteral("execve(?:at)?\\(\"([^\"]*)\""));
        QStringList programs;
        for (const QString& call : calls(kProgram.pattern())) {
            programs.append(kProgram.match(call).captured(1));
        }
        return programs;
    }
    void expectNothingStrange(const QuillonProcess& quillon,
                              const QStringList& startedByIt = {}) const
    {
        EXPECT_EQ(strangeChanges(quillon), QStringList());
        EXPECT_EQ(calls(QStringLiteral("socket\\((?!AF_UNIX)")), QStringList());
        EXPECT_EQ(startedPrograms(), QStringList{QStringLiteral(QUILLON_PROGRAM)} + startedByIt);
    }
    // The key is lost when it comes while the window manager moves the focus.
    static void quit(QuillonProcess& quillon)
    {
        constexpr int kAttempts = 10;
        const auto isOver = [&quillon] {
            return quillon.process().state() == QProcess::NotRunning;
        };
        for (int attempt = 0; attempt < kAttempts && !isOver(); ++attempt) {
            desktop().press(QStringLiteral("ctrl+q"));
            static_cast<void>(spinUntil(isOver, std::chrono::seconds(2)));
        }
        EXPECT_EQ(quillon.wait(), 0);
    }
    // Does what that element of the program is there for. (The process that was started is strace.)
    void act(const QString& role, const QString& name)
    {
        const QString first = calls(QStringLiteral("execve")).value(0);
        const qint64 id = first.section(u' ', 0, 0).toLongLong();
        EXPECT_TRUE(spinUntil([&] { return screenReader().act(id, role, name); }))
            << qPrintable(name);
    }
};

TEST_F(LeastPrivilege, AWindowsLifeWritesItsOwnFilesAndNothingElse)
{
    const QString log = folder().write(kLog, "PHP Warning: a\n");
    QuillonProcess& quillon = startTraced({QStringLiteral("--follow"), log}, kLogTitle);
    folder().append(kLog, "b\n");
    desktop().press(QStringLiteral("ctrl+comma"));
    awaitActive(kPreferencesTitle);
    act(QStringLiteral("check box"), QStringLiteral("Retour à la ligne par défaut"));
    const QString settings = quillon.configuration().path(QStringLiteral("Quillon/Quillon.conf"));
    EXPECT_TRUE(spinUntil([&settings] { return QFile::exists(settings); }));
    closeByWindowManager(kPreferencesTitle);
    awaitActive(kLogTitle);
    quit(quillon);
    expectNothingStrange(quillon);
    // It was looked at.
    EXPECT_FALSE(calls(QStringLiteral("O_RDONLY.*")).isEmpty());
    EXPECT_FALSE(changes().filter(settings).isEmpty());
}

TEST_F(LeastPrivilege, TheSupportSiteStartsTheBrowserAndNothingElse)
{
    const QString browser = folder().write(QStringLiteral("xdg-open"),
                                           "#!/bin/sh\necho \"$@\" >\"$XDG_CONFIG_HOME/opened\"\n");
    QFile::setPermissions(browser, QFile::ReadOwner | QFile::ExeOwner);
    QuillonProcess& quillon = startTraced(
        {}, kEmptyTitle,
        {{QStringLiteral("PATH"), folder().path(QString()) + u':' + qEnvironmentVariable("PATH")}});
    act(QStringLiteral("menu item"), QStringLiteral("Site de support…"));
    QFile opened(quillon.configuration().path(QStringLiteral("opened")));
    EXPECT_TRUE(spinUntil([&opened] { return opened.size() > 0; }));
    quit(quillon);
    ASSERT_TRUE(opened.open(QIODevice::ReadOnly));
    EXPECT_EQ(opened.readAll(), QByteArray("https://example.org/quillon\n"));
    expectNothingStrange(quillon, {browser});
}

// They keep what was done with them in a settings file of the toolkit, if they are let.
TEST_F(LeastPrivilege, TheToolkitsOwnDialogsWriteNothing)
{
    const QString log = folder().write(kLog, "a\n");
    QuillonProcess& quillon = startTraced({}, kEmptyTitle);
    desktop().press(QStringLiteral("ctrl+o"));
    awaitActive(kOpenTitle);
    desktop().press(QStringLiteral("Escape"));
    awaitActive(kEmptyTitle);
    desktop().press(QStringLiteral("ctrl+o"));
    awaitActive(kOpenTitle);
    desktop().type(log);
    desktop().press(QStringLiteral("Return"));
    awaitActive(kLogTitle);
    desktop().press(QStringLiteral("ctrl+q"));
    EXPECT_EQ(quillon.wait(), 0);
    expectNothingStrange(quillon);
    EXPECT_EQ(QDir(quillon.configuration().path(QString()))
                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("Quillon")});
}

TEST_F(LeastPrivilege, WithoutASessionBusNoneIsStarted)
{
    QuillonProcess& quillon =
        startTraced({}, kEmptyTitle,
                    {{QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString()},
                     {QStringLiteral("XDG_RUNTIME_DIR"), folder().path(QStringLiteral("none"))}});
    quit(quillon);
    EXPECT_EQ(startedPrograms(), QStringList{QStringLiteral(QUILLON_PROGRAM)});
}

// The bus library's own patience is 25 seconds, and it was asked more than once.
TEST_F(WindowTest, OpensWhileTheSessionBusIsSilent)
{
    const ListeningSocket silent;
    QuillonProcess& quillon =
        program({folder().write(kLog, "a\n")},
                {{QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                  QStringLiteral("unix:path=") + QFile::decodeName(silent.name())}});
    quillon.start();
    EXPECT_TRUE(
        spinUntil([] { return desktop().activeTitle() == kLogTitle; }, std::chrono::seconds(20)));
}

} // namespace
} // namespace quillon
