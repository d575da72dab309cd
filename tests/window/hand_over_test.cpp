// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"
#include "tests/window/window_fixture.h"

namespace quillon {
namespace {

const QString kOther = QStringLiteral("other.log");
const QString kOtherTitle = QStringLiteral("other.log — Quillon");

class HandOver : public WindowTest {
protected:
    // Runs the program a second time, to its end, on files of the test's folder.
    int runAgain(const QStringList& names)
    {
        QStringList paths;
        for (const QString& name : names) {
            paths.append(folder().path(name));
        }
        QuillonProcess second(paths, desktop().variables());
        return second.run();
    }
};

TEST_F(HandOver, ASecondLaunchHandsItsFileOverToTheRunningWindowAndSucceeds)
{
    QuillonProcess& first = startWithLog("a\n");
    folder().write(kOther, "b\n");
    EXPECT_EQ(runAgain({kOther}), 0);
    awaitActive(kOtherTitle);
    awaitWindows({kOtherTitle});
    EXPECT_TRUE(first.output().endsWith("📂 Ouverture de 1 fichier(s)\n📂 Fichier: other.log\n"));
}

TEST_F(HandOver, OfSeveralFilesTheLastOneStays)
{
    folder().write(kOther, "b\n");
    startWithLog("a\n");
    const QString last = QStringLiteral("last.log");
    folder().write(last, "c\n");
    EXPECT_EQ(runAgain({kOther, kLog, last}), 0);
    awaitActive(QStringLiteral("last.log — Quillon"));
    awaitWindows({QStringLiteral("last.log — Quillon")});
}

TEST_F(HandOver, ASecondLaunchWithoutAFileBringsTheWindowToTheFront)
{
    start({}, kEmptyTitle);
    desktop().press(QStringLiteral("F1"));
    awaitActive(kHelpTitle);
    EXPECT_EQ(runAgain({}), 0);
    awaitActive(kEmptyTitle);
    awaitWindows({kEmptyTitle, kHelpTitle});
}

TEST_F(HandOver, AMissingFileThatIsHandedOverShowsTheOpenError)
{
    startWithLog("a\n");
    ASSERT_TRUE(
        spinUntil([this] { return status(kLogTitle).startsWith(QStringLiteral("Lignes: 1")); }));
    EXPECT_EQ(runAgain({QStringLiteral("missing.log")}), 0);
    EXPECT_TRUE(spinUntil([this] {
        return desktop().titles().size() == 1 &&
               status(desktop().titles().constFirst())
                   .startsWith(QStringLiteral("Erreur d’ouverture: "));
    }));
}

TEST_F(HandOver, WithoutASessionBusTheProgramRunsAlone)
{
    const QString path = folder().write(kLog, "a\n");
    const QuillonProcess::Environment noBus{
        {QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString()},
        {QStringLiteral("XDG_RUNTIME_DIR"), folder().path(QString())}};
    program({path}, noBus).start();
    awaitActive(kLogTitle);
    program({path}, noBus).start();
    awaitWindows({kLogTitle, kLogTitle});
}

TEST_F(HandOver, WithASessionBusThatDoesNotAnswerTheProgramRunsAlone)
{
    const QString path = folder().write(kLog, "a\n");
    program({path}, {{QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                      QStringLiteral("unix:path=") + folder().path(QStringLiteral("no-bus"))}})
        .start();
    awaitActive(kLogTitle);
}

} // namespace
} // namespace quillon
