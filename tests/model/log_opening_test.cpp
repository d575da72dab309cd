// SPDX-License-Identifier: MIT
#include "platform/file_path.h"
#include "tests/model/view_model_fixture.h"
#include "tests/support/test_data.h"

#include <QFile>

#include <cstdio>

namespace quillon {
namespace {

class LogOpening : public ViewModelTest {};

TEST_F(LogOpening, AnEmptyFileHasNoLines)
{
    open(QByteArray());
    EXPECT_TRUE(model().lines.get().isEmpty());
    EXPECT_EQ(status(), QStringLiteral("Lignes: 0"));
    EXPECT_EQ(output(), QString());
}

TEST_F(LogOpening, GivesLinesRowsStatusAndNames)
{
    open("un\ndeux\n");
    EXPECT_EQ(texts(), (QStringList{QStringLiteral("un"), QStringLiteral("deux")}));
    EXPECT_EQ(output(), QStringLiteral("1\tun\n2\tdeux\n"));
    EXPECT_EQ(status(), QStringLiteral("Lignes: 2"));
    EXPECT_EQ(model().fileURL, url());
    EXPECT_EQ(model().path.get(), folder().path(kFile));
    EXPECT_EQ(model().lastFileSize, 8U);
    EXPECT_TRUE(model().readHandle);
}

TEST_F(LogOpening, LeavesTheHandleAtTheEndOfWhatWasRead)
{
    open("un\n");
    folder().append(kFile, "deux\n");
    EXPECT_EQ(model().readHandle->readToEnd().value(), "deux\n");
}

TEST_F(LogOpening, TheStatusPassesThroughItsStages)
{
    open("zéro\n");
    QStringList stages;
    const Subscription subscription =
        model().statusLine.subscribe([&stages](const QString& text) { stages.append(text); });
    stages.clear();
    open("un\n");
    EXPECT_EQ(stages, (QStringList{QStringLiteral("Vide"), QStringLiteral("Chargement…"),
                                   QStringLiteral("Lignes: 1 • Affichées: 1"),
                                   QStringLiteral("Lignes: 1")}));
}

TEST_F(LogOpening, AtTheStartComesAfterThePassThatIsDueThen)
{
    QStringList stages;
    const Subscription subscription =
        model().statusLine.subscribe([&stages](const QString& text) { stages.append(text); });
    stages.clear();
    open("un\n");
    EXPECT_EQ(stages.value(0), QStringLiteral("Lignes: 0 • Affichées: 0"));
    EXPECT_EQ(stages.value(1), QStringLiteral("Vide"));
    stages.clear();
    spinFor(std::chrono::milliseconds(100));
    EXPECT_EQ(stages, QStringList());
    EXPECT_EQ(status(), QStringLiteral("Lignes: 1"));
}

TEST_F(LogOpening, AFileOfAnyNameOpensAndIsFollowed)
{
    const QByteArray bytes =
        QFile::encodeName(folder().path(QString())) + "/caf\xE9 \x1B[31m\n\xE2\x80\xAE%41?#.log";
    const auto append = [&bytes](const char* line) {
        std::FILE* const file = std::fopen(bytes.constData(), "a");
        ASSERT_NE(file, nullptr);
        std::fputs(line, file);
        std::fclose(file);
    };
    append("un\n");
    model().followTail.set(true);
    model().openLog(fileUrlOfPath(pathFromBytes(bytes)));
    append("deux\n");
    model().pollTail();
    EXPECT_EQ(texts(), (QStringList{QStringLiteral("un"), QStringLiteral("deux")}));
    EXPECT_EQ(model().path.get(),
              folder().path(QStringLiteral("caf\uFFFD \u241B[31m\u240A\uFFFD%41?#.log")));
}

TEST_F(LogOpening, PublishesTheLinesInOneAssignment)
{
    int changes = 0;
    const Subscription subscription = model().lines.observeWillChange([&changes] { ++changes; });
    open("un\ndeux\ntrois\n");
    EXPECT_EQ(changes, 2); // the clearing and the lines
}

TEST_F(LogOpening, GroupsTheCountAsTheUsersLocaleDoes)
{
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    open(QByteArray("x\n").repeated(1'234));
    EXPECT_EQ(status(), QStringLiteral("Lignes: 1\u202F234"));
}

TEST_F(LogOpening, ALastLineWithoutTerminatorIsARecord)
{
    open("un\ndeux");
    EXPECT_EQ(texts(), (QStringList{QStringLiteral("un"), QStringLiteral("deux")}));
}

TEST_F(LogOpening, AFileOfExactlyTwoMebibytesIsReadWhole)
{
    open("first\n" + QByteArray(kTwoMebibytes - 6, 'x'));
    EXPECT_EQ(texts().front(), QStringLiteral("first"));
    EXPECT_EQ(number(0), 1);
    EXPECT_EQ(model().lastFileSize, quint64{kTwoMebibytes});
}

TEST_F(LogOpening, OneByteMoreIsReadFromTheSecondByteAndNumberedFromAnEstimate)
{
    // Every byte near the cut is a line feed: one line is judged to have been left out.
    open("abcd\n" + QByteArray(kTwoMebibytes - 4, '\n'));
    EXPECT_EQ(texts().front(), QStringLiteral("bcd"));
    EXPECT_EQ(model().lastFileSize, quint64{kTwoMebibytes} + 1);
    // 65,532 line feeds in the 65,536 bytes of the sample, times one byte, rounded down.
    EXPECT_EQ(number(0), 1);
    open(QByteArray(kTwoMebibytes + 1, '\n'));
    EXPECT_EQ(number(0), 2);
}

TEST_F(LogOpening, TenMebibytesOfHundredByteLinesAreNumberedFromTheDensityAtTheCut)
{
    QByteArray bytes = (QByteArray(99, 'x') + '\n').repeated(104'858);
    bytes.truncate(qsizetype{10} * 1024 * 1024);
    open(bytes);
    // The sample of 65,536 bytes holds 655 line feeds, about one in a hundred.
    EXPECT_EQ(number(0), 8'388'608LL * 655 / 65'536 + 1);
    EXPECT_NEAR(double(number(0)), 83'887.0, 128.0);
    // The cut falls 8 bytes into a line, whose rest is kept as a line.
    EXPECT_EQ(texts().front(), QString(91, u'x'));
}

TEST_F(LogOpening, ALongFileWithPairsAtItsLineEndsIsNumberedFromOne)
{
    open(QByteArray("abcdefgh\r\n").repeated(300'000));
    EXPECT_EQ(number(0), 1);
}

TEST_F(LogOpening, ACutInsideACharacterBeginsWithAReplacement)
{
    // The cut falls after the first byte of the "é".
    open(QByteArray("é") + QByteArray(kTwoMebibytes - 1, 'x'));
    EXPECT_TRUE(texts().front().startsWith(QStringLiteral("\uFFFDx")));
}

TEST_F(LogOpening, Latin1LettersAreReplaced)
{
    open("caf\xE9 \xE9t\xE9\n");
    EXPECT_EQ(texts(), QStringList{QStringLiteral("caf\uFFFD \uFFFDt\uFFFD")});
    EXPECT_EQ(status(), QStringLiteral("Lignes: 1"));
}

TEST_F(LogOpening, ReplacesWhatWasOpenBefore)
{
    open("un\ndeux\n");
    folder().write(QStringLiteral("other.log"), "trois\n");
    model().openLog(folder().url(QStringLiteral("other.log")));
    EXPECT_EQ(output(), QStringLiteral("1\ttrois\n"));
    EXPECT_EQ(model().path.get(), folder().path(QStringLiteral("other.log")));
    EXPECT_EQ(model().lastFileSize, 6U);
}

TEST_F(LogOpening, TheFiltersOfTheMomentApply)
{
    model().showWarning.set(false);
    open("PHP Warning: x\nPHP Notice: y\n");
    EXPECT_EQ(shown(), QStringList{QStringLiteral("PHP Notice: y")});
    EXPECT_EQ(status(), QStringLiteral("Lignes: 2"));
}

TEST_F(LogOpening, GenuineLogsHaveALineForEachLineFeed)
{
    for (const QString& name : testDataNames()) {
        model().openLog(QUrl::fromLocalFile(testDataPath(name)));
        EXPECT_GE(model().lines.get().size(), testData(name).count('\n'));
        EXPECT_EQ(model().attributedOutput.get().rows().size(), model().lines.get().size());
    }
}

} // namespace
} // namespace quillon
