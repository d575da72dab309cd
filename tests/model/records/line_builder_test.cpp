// SPDX-License-Identifier: MIT
#include "model/records/decode_text.h"
#include "model/records/line_builder.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"

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
    const QString text = QStringLiteral("  \tÉté \0x  ");
    ASSERT_TRUE(text.contains(QChar(0)));
    appendParsedLine(text, counter, lines);
    EXPECT_EQ(lines.last().text(), text);
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

// The lines of a text that is decoded in parts must be those of the text decoded whole.
void expectLinesOfTheWhole(const QByteArray& bytes)
{
    LogLines whole;
    appendParsedText(decodeText(bytes), 7, whole);
    LogLines parts;
    appendParsedBytes(bytes, 7, parts);
    ASSERT_EQ(parts.size(), whole.size());
    for (qsizetype i = 0; i < whole.size(); ++i) {
        ASSERT_EQ(parts[i].number(), whole[i].number());
        ASSERT_EQ(parts[i].text(), whole[i].text());
        ASSERT_EQ(parts[i].severity(), whole[i].severity());
    }
}

TEST(LineBuilder, BytesGiveTheLinesOfTheirText)
{
    for (const char* const bytes :
         {"", "\n", "\r\n", "a", "a\n", "\n\n", "\xE2\x80\xA8", "\xC3\n\xA9"}) {
        expectLinesOfTheWhole(bytes);
    }
}

TEST(LineBuilder, ManyBytesGiveTheLinesOfTheirText)
{
    RandomText random(20);
    const QByteArrayList pieces{"\n",           "\n",       "\r",          "\r\n",  "\xC2\x85",
                                "\xE2\x80\xA8", "\xE2\x80", "\xF0",        "\xFF",  "é",
                                "日本",         "😀",        "PHP Notice:", "plain "};
    for (int round = 0; round < 20; ++round) {
        QByteArray bytes;
        while (bytes.size() < 100'000) {
            bytes += pieces[random.below(static_cast<std::uint32_t>(pieces.size()))];
            if (random.below(50) == 0) {
                bytes += QByteArray(static_cast<qsizetype>(random.below(50'000)), 'x');
            }
        }
        expectLinesOfTheWhole(bytes);
    }
}

TEST(LineBuilder, ATerminatorAloneInItsPartIsALine)
{
    for (const qsizetype length : {32'767, 32'768, 32'769, 100'000}) {
        const QByteArray longLine(length, 'x');
        expectLinesOfTheWhole("\n" + longLine);
        expectLinesOfTheWhole(longLine + "\n");
        expectLinesOfTheWhole(longLine + "\n\n");
        expectLinesOfTheWhole(longLine + "\r\n" + longLine);
        expectLinesOfTheWhole(longLine);
        expectLinesOfTheWhole(QByteArray(length, '\n'));
    }
}

} // namespace
} // namespace quillon
