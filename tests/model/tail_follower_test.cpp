// SPDX-License-Identifier: MIT
#include "platform/system_error.h"
#include "tests/model/view_model_fixture.h"

#include <QFile>
#include <QPointer>

#include <cerrno>

namespace quillon {
namespace {

const QString kA = QStringLiteral("A");
const QString kB = QStringLiteral("B");

// Polls are made by hand, so that nothing depends on time; the tests of the timer say so.
class TailFollower : public ViewModelTest {
protected:
    TailFollower() { model().followTail.set(true); }

    void follow(const QByteArray& bytes)
    {
        open(bytes);
        model().pollTimer->stop();
    }
    void appendAndPoll(const QByteArray& bytes)
    {
        folder().append(kFile, bytes);
        model().pollTail();
    }
    static QString tailError(int number)
    {
        return QStringLiteral("Erreur lecture tail: ") + SystemError{number}.message();
    }
};

TEST_F(TailFollower, TheTimerAddsTwoLinesAfterTheLastNumber)
{
    open(QByteArray("x\n").repeated(41));
    folder().append(kFile, "A\nB\n");
    ASSERT_TRUE(spinUntil([this] { return model().lines.get().size() == 43; }));
    EXPECT_EQ(texts().mid(41), (QStringList{kA, kB}));
    EXPECT_EQ(number(41), 42);
    EXPECT_EQ(number(42), 43);
}

TEST_F(TailFollower, TheTimerRunsTwiceASecond)
{
    open("x\n");
    ASSERT_NE(model().pollTimer, nullptr);
    EXPECT_TRUE(model().pollTimer->isActive());
    EXPECT_EQ(model().pollTimer->interval(), 500);
    EXPECT_FALSE(model().pollTimer->isSingleShot());
}

TEST_F(TailFollower, NewLinesExtendTheOutputAndTheStatus)
{
    follow("x\n");
    appendAndPoll("A\nB\n");
    EXPECT_EQ(output(), QStringLiteral("1\tx\n2\tA\n3\tB\n"));
    EXPECT_EQ(status(), QStringLiteral("Lignes: 3"));
    EXPECT_EQ(model().lastFileSize, 6U);
}

TEST_F(TailFollower, FormerRowsAreSharedNotMadeAnew)
{
    follow("x\n");
    const AttributedString former = model().attributedOutput.get();
    appendAndPoll("A\n");
    EXPECT_TRUE(model().attributedOutput.get().isExtensionOf(former));
}

TEST_F(TailFollower, LinesAreAppendedInOneChange)
{
    follow("x\n");
    int changes = 0;
    const Subscription subscription = model().lines.observeWillChange([&changes] { ++changes; });
    appendAndPoll("A\nB\n");
    EXPECT_EQ(changes, 1);
}

TEST_F(TailFollower, ALineWrittenInTwoHalvesMakesTwoRecords)
{
    follow("x\n");
    appendAndPoll("partial");
    appendAndPoll("rest\n");
    EXPECT_EQ(texts().mid(1), (QStringList{QStringLiteral("partial"), QStringLiteral("rest")}));
    EXPECT_EQ(number(1), 2);
    EXPECT_EQ(number(2), 3);
}

TEST_F(TailFollower, ATruncatedFileChangesNothing)
{
    follow("un\ndeux\n");
    folder().resize(kFile, 0);
    model().pollTail();
    EXPECT_EQ(output(), QStringLiteral("1\tun\n2\tdeux\n"));
    EXPECT_EQ(model().lastFileSize, 8U);
}

TEST_F(TailFollower, LessThanBeforeAfterATruncationIsNotShown)
{
    follow("un\ndeux\n");
    folder().resize(kFile, 0);
    appendAndPoll("A\n");
    EXPECT_EQ(texts().size(), 2);
    EXPECT_EQ(status(), QStringLiteral("Lignes: 2"));
}

TEST_F(TailFollower, ATruncatedFileIsReadOnAtTheFormerOffset)
{
    follow("un\ndeux\n");
    folder().resize(kFile, 0);
    appendAndPoll("abcdefg\nA\n");
    EXPECT_EQ(texts().mid(2), QStringList{kA});
}

TEST_F(TailFollower, ADeletedFileIsReportedAtEveryPoll)
{
    follow("x\n");
    ASSERT_TRUE(QFile::remove(folder().path(kFile)));
    for (int i = 0; i < 2; ++i) {
        model().statusLine.set(QString());
        model().pollTail();
        EXPECT_EQ(status(), tailError(ENOENT));
    }
    EXPECT_EQ(texts(), QStringList{QStringLiteral("x")});
}

TEST_F(TailFollower, AnErrorLastsUntilAPollSucceeds)
{
    follow("x\n");
    EXPECT_EQ(model().lastError(), std::nullopt);
    const QString path = folder().path(kFile);
    ASSERT_TRUE(QFile::remove(path));
    model().pollTail();
    EXPECT_EQ(model().lastError(), SystemError{ENOENT});
    folder().write(kFile, "x\n");
    model().pollTail();
    EXPECT_EQ(model().lastError(), std::nullopt);
}

TEST_F(TailFollower, EachPollIsToldOnceItIsOver)
{
    follow("x\n");
    QStringList statuses;
    const Subscription polls = model().observePolls([&] { statuses.append(status()); });
    model().pollTail();
    appendAndPoll("A\n");
    ASSERT_TRUE(QFile::remove(folder().path(kFile)));
    model().pollTail();
    const QString one = QStringLiteral("Lignes: 1");
    EXPECT_EQ(statuses, (QStringList{one, QStringLiteral("Lignes: 2"), tailError(ENOENT)}));
}

TEST_F(TailFollower, NoPollIsToldWithFollowOff)
{
    follow("x\n");
    int polls = 0;
    const Subscription subscription = model().observePolls([&polls] { ++polls; });
    model().followTail.set(false);
    model().pollTail();
    EXPECT_EQ(polls, 0);
}

TEST_F(TailFollower, TheTimerKeepsReportingADeletedFile)
{
    open("x\n");
    ASSERT_TRUE(QFile::remove(folder().path(kFile)));
    for (int i = 0; i < 2; ++i) {
        model().statusLine.set(QString());
        EXPECT_TRUE(spinUntil([this] { return status() == tailError(ENOENT); }));
    }
}

TEST_F(TailFollower, AFileThatBecameAPipeOrFolderIsReported)
{
    follow("x\n");
    ASSERT_TRUE(QFile::remove(folder().path(kFile)));
    ASSERT_TRUE(QDir().mkdir(folder().path(kFile)));
    model().pollTail();
    EXPECT_EQ(status(), tailError(EISDIR));
}

TEST_F(TailFollower, WithFollowOffNothingIsRead)
{
    follow("x\n");
    model().followTail.set(false);
    appendAndPoll("A\n");
    EXPECT_EQ(texts().size(), 1);
    EXPECT_EQ(model().lastFileSize, 2U);
    EXPECT_NE(model().pollTimer, nullptr);
}

TEST_F(TailFollower, FollowTurnedOnAgainReadsEverythingInOnePoll)
{
    follow("x\n");
    model().followTail.set(false);
    appendAndPoll("A\n");
    appendAndPoll("B\n");
    model().followTail.set(true);
    model().pollTail();
    EXPECT_EQ(texts().mid(1), (QStringList{kA, kB}));
}

TEST_F(TailFollower, FollowTurnedOnAgainIsNoticedByTheTimer)
{
    open("x\n");
    model().followTail.set(false);
    folder().append(kFile, "A\nB\n");
    model().followTail.set(true);
    ASSERT_TRUE(spinUntil([this] { return model().lines.get().size() > 1; }));
    EXPECT_EQ(texts().mid(1), (QStringList{kA, kB}));
}

TEST_F(TailFollower, ALineTerminatorAloneAddsNoRecordButIsBehindUs)
{
    follow("x");
    appendAndPoll("\n");
    EXPECT_EQ(texts().size(), 1);
    EXPECT_EQ(model().lastFileSize, 2U);
    appendAndPoll("A\n");
    EXPECT_EQ(texts().mid(1), QStringList{kA});
}

TEST_F(TailFollower, AnUnchangedFileIsNotRead)
{
    follow("x\n");
    model().statusLine.set(QString());
    model().pollTail();
    EXPECT_EQ(status(), QString());
}

TEST_F(TailFollower, AFileOpenedWithFollowOffIsNotFollowedLater)
{
    model().followTail.set(false);
    open("x\n");
    model().followTail.set(true);
    EXPECT_EQ(model().pollTimer, nullptr);
}

TEST_F(TailFollower, WithoutAFileAPollDoesNothing)
{
    model().pollTail();
    EXPECT_EQ(status(), QStringLiteral("Aucun fichier ouvert"));
}

TEST_F(TailFollower, WithoutAHandleAPollDoesNothing)
{
    follow("x\n");
    model().readHandle.reset();
    appendAndPoll("A\n");
    EXPECT_EQ(texts().size(), 1);
    EXPECT_EQ(model().lastFileSize, 2U);
}

TEST_F(TailFollower, AppendedToAnEmptyFileLinesAreNumberedFromOne)
{
    follow(QByteArray());
    appendAndPoll("A\n");
    EXPECT_EQ(output(), QStringLiteral("1\tA\n"));
}

TEST_F(TailFollower, HiddenNewLinesStillCount)
{
    model().showWarning.set(false);
    follow("x\n");
    appendAndPoll("PHP Warning: y\n");
    EXPECT_EQ(output(), QStringLiteral("1\tx\n"));
    EXPECT_EQ(status(), QStringLiteral("Lignes: 2"));
}

TEST_F(TailFollower, ACharacterWrittenInTwoHalvesIsReplacedTwice)
{
    follow("x\n");
    appendAndPoll("a\xC3");
    appendAndPoll("\xA9\n");
    EXPECT_EQ(texts().mid(1), (QStringList{QStringLiteral("a\uFFFD"), QStringLiteral("\uFFFD")}));
}

TEST_F(TailFollower, OpeningAnotherFileFollowsThatOne)
{
    follow("x\n");
    folder().write(QStringLiteral("other.log"), "un\n");
    model().openLog(folder().url(QStringLiteral("other.log")));
    folder().append(kFile, "A\n");
    folder().append(QStringLiteral("other.log"), "deux\n");
    model().pollTail();
    EXPECT_EQ(texts(), (QStringList{QStringLiteral("un"), QStringLiteral("deux")}));
}

TEST_F(TailFollower, StartingTwiceLeavesOneTimer)
{
    open("x\n");
    model().startTail();
    const QPointer<QTimer> first = model().pollTimer.get();
    ASSERT_TRUE(first && first->isActive());
    model().startTail();
    ASSERT_TRUE(model().pollTimer);
    EXPECT_NE(model().pollTimer.get(), first);
    EXPECT_TRUE(model().pollTimer->isActive());
    EXPECT_FALSE(first && first->isActive());
    EXPECT_TRUE(spinUntil([&first] { return first.isNull(); }));
}

TEST_F(TailFollower, MayBeStoppedByWhatAPollLeadsTo)
{
    open("x\n");
    folder().append(kFile, "A\n");
    bool stopped = false;
    const Subscription subscription = model().attributedOutput.observeWillChange([&] {
        model().invalidatePollTimer();
        stopped = true;
    });
    EXPECT_TRUE(spinUntil([&stopped] { return stopped; }));
    EXPECT_EQ(model().pollTimer, nullptr);
}

} // namespace
} // namespace quillon
