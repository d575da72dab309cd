// SPDX-License-Identifier: MIT
// More than a poll takes at once: what is shown in the end is what one poll would have shown.
#include "model/records/line_builder.h"
#include "model/tail_reading.h"
#include "platform/system_error.h"
#include "tests/model/view_model_fixture.h"
#include "tests/support/random_text.h"

#include <QCoreApplication>

#include <cerrno>

namespace quillon {
namespace {

class LargeGrowth : public ViewModelTest {
protected:
    LargeGrowth() { model().followTail.set(true); }

    void follow(const QByteArray& bytes)
    {
        open(bytes);
        model().pollTimer->stop();
    }
    // Polls once, and lets the event loop take it up until it has got to the end of the file.
    void pollToTheEnd(quint64 fileSize)
    {
        model().pollTail();
        ASSERT_TRUE(spinUntil([&] { return model().lastFileSize >= fileSize; }));
    }
    static QStringList linesOf(const QByteArray& bytes)
    {
        LogLines lines;
        appendParsedBytes(bytes, 0, lines);
        QStringList texts;
        for (const LogLine& line : lines) {
            texts.append(line.text());
        }
        return texts;
    }
};

// Lines of all lengths and terminators, many empty, cut anywhere by the polls.
QByteArray randomGrowth(RandomText& random, qsizetype size)
{
    static const QByteArrayList pieces{"a",
                                       "\n",
                                       "\n\n",
                                       "\r\n",
                                       "é",
                                       "\u2028",
                                       "\xFF",
                                       "日本",
                                       QByteArray(50, 'x'),
                                       QByteArray(3000, 'y')};
    QByteArray bytes;
    while (bytes.size() < size) {
        bytes += pieces[qsizetype(random.below(quint32(pieces.size())))];
    }
    return bytes;
}

TEST_F(LargeGrowth, IsShownAsOnePollWouldHaveShownIt)
{
    RandomText random(3);
    follow("x\n");
    const QByteArray growth = randomGrowth(random, 3 * kPollBytes + 12345);
    folder().append(kFile, growth);
    pollToTheEnd(2 + quint64(growth.size()));
    EXPECT_EQ(texts().mid(1), linesOf(growth));
    EXPECT_EQ(number(model().lines.get().size() - 1), qint64(linesOf(growth).size()) + 1);
}

TEST_F(LargeGrowth, IsTakenUpInTheTurnsOfTheEventLoop)
{
    follow("x\n");
    const QByteArray growth = QByteArray(QByteArray(99, 'l') + '\n').repeated(100'000);
    folder().append(kFile, growth);
    model().pollTail();
    EXPECT_GT(model().lines.get().size(), 1);
    EXPECT_LT(model().lastFileSize, 2 + quint64(growth.size()));
    ASSERT_TRUE(spinUntil([&] { return model().lines.get().size() == 100'001; }));
    EXPECT_TRUE(status().startsWith(QStringLiteral("Lignes: ") + QLocale().toString(100'001)));
}

TEST_F(LargeGrowth, IsPolledOnceATurnAlsoWhenATickComesInBetween)
{
    follow("x\n");
    const QByteArray growth = QByteArray(QByteArray(99, 'l') + '\n').repeated(100'000);
    folder().append(kFile, growth);
    model().pollTail();
    const quint64 atOnce = model().lastFileSize;
    model().pollTimer->start(0);
    QCoreApplication::processEvents();
    EXPECT_GT(model().lastFileSize, atOnce);
    EXPECT_LE(model().lastFileSize, 2 * atOnce);
    ASSERT_TRUE(spinUntil([&] { return model().lines.get().size() == 100'001; }));
}

TEST_F(LargeGrowth, IsNotTakenUpOnceFollowingIsOff)
{
    follow("x\n");
    folder().append(kFile, (QByteArray(1023, 'l') + '\n').repeated(10'000));
    model().pollTail();
    model().followTail.set(false);
    const qsizetype shown = model().lines.get().size();
    spinFor(std::chrono::milliseconds(50));
    EXPECT_EQ(model().lines.get().size(), shown);
}

TEST_F(LargeGrowth, IsNotTakenUpForAnotherFile)
{
    follow("x\n");
    folder().append(kFile, (QByteArray(1023, 'l') + '\n').repeated(10'000));
    model().pollTail();
    open("y\n");
    spinFor(std::chrono::milliseconds(50));
    EXPECT_EQ(texts(), QStringList{QStringLiteral("y")});
}

TEST_F(LargeGrowth, AnEmptyLineAtTheVeryEndIsShown)
{
    follow("x\n");
    const QByteArray growth = QByteArray(kPollBytes - 1, 'l') + "\n\n";
    folder().append(kFile, growth);
    pollToTheEnd(2 + quint64(growth.size()));
    EXPECT_EQ(texts().size(), 3);
}

TEST_F(LargeGrowth, ALineLongerThanAPollIsOneLine)
{
    follow("x\n");
    const QByteArray growth = QByteArray(2 * kPollBytes + 77, 'l') + "\nend";
    folder().append(kFile, growth);
    pollToTheEnd(2 + quint64(growth.size()));
    ASSERT_EQ(texts().size(), 3);
    EXPECT_EQ(texts()[1].size(), 2 * kPollBytes + 77);
    EXPECT_EQ(texts()[2], QStringLiteral("end"));
}

TEST_F(LargeGrowth, WithoutALineEndIsReadToTheEnd)
{
    follow("x\n");
    const QByteArray growth(kPollBytes + 2, 'l');
    folder().append(kFile, growth);
    pollToTheEnd(2 + quint64(growth.size()));
    ASSERT_EQ(texts().size(), 2);
    EXPECT_EQ(texts()[1].size(), kPollBytes + 2);
}

TEST_F(LargeGrowth, ALineThatIsTooLongIsReportedAndSkipsNothing)
{
    follow("x\n");
    folder().append(kFile, "before\n");
    folder().resize(kFile, qint64{100} * 1024 * 1024 * 1024);
    model().pollTail();
    ASSERT_TRUE(spinUntil([this] {
        return status() == QStringLiteral("Erreur lecture tail: ") + SystemError{EFBIG}.message();
    }));
    EXPECT_EQ(model().lastFileSize, 9U);
    EXPECT_EQ(texts(), (QStringList{QStringLiteral("x"), QStringLiteral("before")}));
}

} // namespace
} // namespace quillon
