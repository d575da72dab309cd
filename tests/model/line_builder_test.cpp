// SPDX-License-Identifier: MIT
#include "model/line_builder.h"
#include "tests/support/printing.h"

#include <QSet>

#include <gtest/gtest.h>
#include <limits>

namespace quillon {
namespace {

TEST(LineBuilder, NumbersALineOneAboveTheCounter)
{
    LogLines lines;
    qint64 counter = 41;
    appendParsedLine(u"text", counter, lines);
    EXPECT_EQ(counter, 42);
    EXPECT_EQ(lines.last().number(), 42);
}

TEST(LineBuilder, KeepsTheTextAsItIs)
{
    LogLines lines;
    qint64 counter = 0;
    appendParsedLine(u"  \tÉté \0x  ", counter, lines);
    EXPECT_EQ(lines.last().text(), QStringView(u"  \tÉté \0x  ").toString());
}

TEST(LineBuilder, ClassifiesTheLine)
{
    LogLines lines;
    qint64 counter = 0;
    appendParsedLine(u"PHP Warning: x", counter, lines);
    EXPECT_EQ(lines.last().severity(), LogSeverity::Warning);
}

TEST(LineBuilder, CountsBeyondThirtyTwoBits)
{
    LogLines lines;
    qint64 counter = std::numeric_limits<qint32>::max();
    appendParsedLine(u"a", counter, lines);
    counter = qint64{std::numeric_limits<quint32>::max()};
    appendParsedLine(u"b", counter, lines);
    EXPECT_EQ(lines[0].number(), 2'147'483'648);
    EXPECT_EQ(lines[1].number(), 4'294'967'296);
}

TEST(LineBuilder, ReachesTheLargestNumber)
{
    LogLines lines;
    qint64 counter = std::numeric_limits<qint64>::max() - 1;
    appendParsedLine(u"a", counter, lines);
    EXPECT_EQ(lines.last().number(), std::numeric_limits<qint64>::max());
}

TEST(LineBuilderDeathTest, StopsTheProgramWhenTheCounterOverflows)
{
    LogLines lines;
    qint64 counter = std::numeric_limits<qint64>::max();
    EXPECT_DEATH(appendParsedLine(u"a", counter, lines), "overflowed");
}

TEST(LineBuilder, GivesEveryRecordARandomIdOfItsOwn)
{
    LogLines lines;
    appendParsedText(QString(1'000, u'\n'), 0, lines);
    QSet<QUuid> ids;
    for (const LogLine& line : lines) {
        ids.insert(line.id());
        ASSERT_EQ(line.id().variant(), QUuid::DCE);
        ASSERT_EQ(line.id().version(), QUuid::Random);
    }
    EXPECT_EQ(ids.size(), 1'000);
}

TEST(LineBuilder, MakesARecordForEachLineOfAText)
{
    LogLines lines;
    appendParsedText(u"a\n\r\nb", 10, lines);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0].text(), QStringLiteral("a"));
    EXPECT_EQ(lines[1].text(), QString());
    EXPECT_EQ(lines[2].text(), QStringLiteral("b"));
    EXPECT_EQ(lines[0].number(), 11);
    EXPECT_EQ(lines[2].number(), 13);
}

TEST(LineBuilder, MakesNoRecordOfNoText)
{
    LogLines lines;
    appendParsedText(QStringView(), 0, lines);
    EXPECT_TRUE(lines.isEmpty());
}

} // namespace
} // namespace quillon
