// SPDX-License-Identifier: MIT
#include "model/records/line_builder.h"
#include "model/records/log_line.h"

#include <gtest/gtest.h>
#include <limits>

namespace quillon {
namespace {

const QUuid kId = QUuid::createUuid();
const QUuid kOtherId = QUuid::createUuid();

LogLine lineOf(const QUuid& id, qint64 number = 7, const QString& text = QStringLiteral("text"),
               LogSeverity severity = LogSeverity::Info)
{
    return LogLine(id, number, text, severity);
}

TEST(LogLine, GivesBackItsFields)
{
    const LogLine line = lineOf(kId);
    EXPECT_EQ(line.id(), kId);
    EXPECT_EQ(line.number(), 7);
    EXPECT_EQ(line.text(), QStringLiteral("text"));
    EXPECT_EQ(line.severity(), LogSeverity::Info);
}

TEST(LogLine, EqualsOneWithTheSameFields)
{
    EXPECT_EQ(lineOf(kId), lineOf(kId));
    EXPECT_EQ(qHash(lineOf(kId)), qHash(lineOf(kId)));
}

TEST(LogLine, DiffersFromOneWithAnotherId)
{
    EXPECT_NE(lineOf(kId), lineOf(kOtherId));
}

TEST(LogLine, DiffersFromOneWithAnotherNumber)
{
    EXPECT_NE(lineOf(kId, 7), lineOf(kId, 8));
}

TEST(LogLine, DiffersFromOneWithAnotherText)
{
    EXPECT_NE(lineOf(kId, 7, QStringLiteral("a")), lineOf(kId, 7, QStringLiteral("A")));
}

TEST(LogLine, DiffersFromOneWithAnotherSeverity)
{
    EXPECT_NE(lineOf(kId, 7, QString(), LogSeverity::Info),
              lineOf(kId, 7, QString(), LogSeverity::Debug));
}

TEST(LogLine, HashesEachOfItsFields)
{
    const std::size_t hash = qHash(lineOf(kId));
    EXPECT_NE(hash, qHash(lineOf(kOtherId)));
    EXPECT_NE(hash, qHash(lineOf(kId, 8)));
    EXPECT_NE(hash, qHash(lineOf(kId, 7, QStringLiteral("other"))));
    EXPECT_NE(hash, qHash(lineOf(kId, 7, QStringLiteral("text"), LogSeverity::Debug)));
}

TEST(LogLine, TwoMadeFromTheSameTextAndNumberAreNotEqual)
{
    LogLines lines;
    for (int i = 0; i < 2; ++i) {
        qint64 counter = 6;
        appendParsedLine(u"PHP Notice: x", counter, lines);
    }
    EXPECT_EQ(lines[0].number(), lines[1].number());
    EXPECT_EQ(lines[0].text(), lines[1].text());
    EXPECT_NE(lines[0], lines[1]);
}

TEST(LogLine, HasNumbersBeyondThirtyTwoBits)
{
    const qint64 number = std::numeric_limits<qint64>::max();
    EXPECT_EQ(lineOf(kId, number).number(), number);
}

} // namespace
} // namespace quillon
