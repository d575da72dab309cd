// SPDX-License-Identifier: MIT
#include "tests/model/view_model_fixture.h"
#include "tests/support/random_text.h"

namespace quillon {
namespace {

constexpr qint64 kHundredGigabytes = qint64{100} * 1024 * 1024 * 1024;

class UnusualLog : public ViewModelTest {};

TEST_F(UnusualLog, MixesAllSixTerminators)
{
    open("lf\ncr\rcrlf\r\nnel\u0085ls\u2028ps\u2029end");
    EXPECT_EQ(texts().join(u' '), QStringLiteral("lf cr crlf nel ls ps end"));
    EXPECT_EQ(number(6), 7);
}

TEST_F(UnusualLog, OnlyUsesCarriageReturns)
{
    open("un\rdeux\r\rquatre\r");
    EXPECT_EQ(texts(), (QStringList{QStringLiteral("un"), QStringLiteral("deux"), QString(),
                                    QStringLiteral("quatre")}));
}

TEST_F(UnusualLog, BeginsWithAByteOrderMark)
{
    open("\xEF\xBB\xBFun\n");
    EXPECT_EQ(texts(), QStringList{QStringLiteral("\uFEFFun")});
}

TEST_F(UnusualLog, HoldsNuls)
{
    open(QByteArray("a\0error\0b\n\0", 11));
    EXPECT_EQ(texts().size(), 2);
    EXPECT_EQ(texts().front().size(), 9);
    EXPECT_EQ(model().lines.get()[0].severity(), LogSeverity::Error);
    EXPECT_EQ(texts().back(), QString(QChar(u'\0')));
}

TEST_F(UnusualLog, EndsInsideACharacter)
{
    open("un \xF0\x9F\x8C");
    EXPECT_EQ(texts(), QStringList{QStringLiteral("un \uFFFD")});
}

TEST_F(UnusualLog, IsOneLineOfTwoMebibytes)
{
    open(QByteArray(kTwoMebibytes, 'x'));
    ASSERT_EQ(texts().size(), 1);
    EXPECT_EQ(texts().front(), QString(kTwoMebibytes, u'x'));
    EXPECT_EQ(model().attributedOutput.get().length(), kTwoMebibytes + 3);
}

TEST_F(UnusualLog, IsTwoMillionEmptyLines)
{
    open(QByteArray(2'000'000, '\n'));
    ASSERT_TRUE(finishPass());
    EXPECT_EQ(model().lines.get().size(), 2'000'000);
    EXPECT_EQ(number(1'999'999), 2'000'000);
    EXPECT_EQ(model().attributedOutput.get().lineFeedCount(), 2'000'000);
    EXPECT_EQ(status(), QStringLiteral("Lignes: 2000000"));
}

TEST_F(UnusualLog, IsAHundredGigabytesOfNuls)
{
    folder().write(kFile, QByteArray());
    folder().resize(kFile, kHundredGigabytes);
    folder().append(kFile, "\nend\n");
    model().openLog(url());
    EXPECT_EQ(model().lastFileSize, quint64{kHundredGigabytes} + 5);
    ASSERT_EQ(texts().size(), 2);
    EXPECT_EQ(texts().front().size(), kTwoMebibytes - 5);
    EXPECT_EQ(texts().back(), QStringLiteral("end"));
    EXPECT_EQ(number(0), 1);
}

TEST_F(UnusualLog, HasLineNumbersBeyondThirtyTwoBits)
{
    // A hole, then line feeds only, from where the sample around the cut begins.
    constexpr qint64 kStart = kHundredGigabytes - kTwoMebibytes;
    folder().write(kFile, QByteArray());
    folder().resize(kFile, kStart - 32'768);
    folder().append(kFile, QByteArray(kTwoMebibytes + 32'768, '\n'));
    model().openLog(url());
    ASSERT_EQ(model().lines.get().size(), kTwoMebibytes);
    ASSERT_TRUE(finishPass());
    EXPECT_EQ(number(0), kStart + 1);
    EXPECT_EQ(model().attributedOutput.get().rows()[0].string(),
              QStringLiteral("107372085249\t\n"));
    EXPECT_EQ(number(kTwoMebibytes - 1), kHundredGigabytes);
}

TEST_F(UnusualLog, IsNoTextAtAll)
{
    QByteArray bytes;
    RandomText random(51);
    for (int i = 0; i < 3'000'000; ++i) {
        bytes.append(char(random.below(256)));
    }
    open(bytes);
    EXPECT_GT(model().lines.get().size(), 1'000);
    EXPECT_EQ(model().attributedOutput.get().rows().size(), model().lines.get().size());
    qint64 expected = number(0);
    for (const LogLine& line : model().lines.get()) {
        ASSERT_EQ(line.number(), expected++);
    }
}

} // namespace
} // namespace quillon
