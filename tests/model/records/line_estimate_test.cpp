// SPDX-License-Identifier: MIT
#include "model/records/line_estimate.h"
#include "tests/support/printing.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

const QString kFile = QStringLiteral("file.log");
constexpr qint64 kMebibyte = 1'048'576;

qint64 estimateFor(const QByteArray& bytes, quint64 offset)
{
    const TemporaryFolder folder;
    folder.write(kFile, bytes);
    return estimateSkippedLines(folder.url(kFile), offset);
}

TEST(LineEstimate, ScalesTheDensityAroundTheOffset)
{
    // 656 of the 65,536 bytes around the offset are line feeds.
    const QByteArray bytes = (QByteArray(99, 'x') + '\n').repeated(int(kMebibyte / 100));
    const qint64 estimate = estimateFor(bytes, 500'000);
    EXPECT_GE(estimate, 4'990);
    EXPECT_LE(estimate, 5'010);
}

TEST(LineEstimate, IsTruncatedTowardsZero)
{
    // 1 line feed in 3 bytes, and 2 bytes skipped: two thirds of a line.
    EXPECT_EQ(estimateFor("a\nb", 2), 0);
    EXPECT_EQ(estimateFor("\n\nb", 2), 1);
}

TEST(LineEstimate, SamplesFromTheStartForAnEarlyOffset)
{
    EXPECT_EQ(estimateFor(QByteArray(10, '\n'), 7), 7);
}

TEST(LineEstimate, SamplesThirtyTwoKibibytesOnEachSide)
{
    const QByteArray bytes = QByteArray(100'000, 'x') + QByteArray(32'768, '\n') +
                             QByteArray(32'768, 'x') + QByteArray(100'000, '\n');
    EXPECT_EQ(estimateFor(bytes, 132'768), 132'768 / 2);
}

TEST(LineEstimate, DoesNotCountALineFeedAfterACarriageReturn)
{
    EXPECT_EQ(estimateFor(QByteArray("abc\r\n").repeated(1'000), 3'000), 0);
}

TEST(LineEstimate, DoesNotCountTheOtherTerminators)
{
    EXPECT_EQ(estimateFor(QByteArray("a\rb\u0085c\u2028d\u2029").repeated(1'000), 3'000), 0);
}

TEST(LineEstimate, IsZeroForAMissingFile)
{
    const TemporaryFolder folder;
    EXPECT_EQ(estimateSkippedLines(folder.url(kFile), 1'000), 0);
}

TEST(LineEstimate, IsZeroForAnEmptyFile)
{
    EXPECT_EQ(estimateFor(QByteArray(), 1'000), 0);
}

TEST(LineEstimate, IsZeroWhereTheFileHasBecomeShorterThanTheOffset)
{
    EXPECT_EQ(estimateFor(QByteArray(100, '\n'), 10'000'000), 0);
}

TEST(LineEstimate, GoesBeyondThirtyTwoBits)
{
    const TemporaryFolder folder;
    constexpr quint64 kOffset = quint64{100} * 1024 * kMebibyte;
    folder.write(kFile, QByteArray());
    folder.resize(kFile, qint64{kOffset} - 32'768);
    folder.append(kFile, QByteArray(65'536, '\n'));
    EXPECT_EQ(estimateSkippedLines(folder.url(kFile), kOffset), qint64{kOffset});
}

} // namespace
} // namespace quillon
