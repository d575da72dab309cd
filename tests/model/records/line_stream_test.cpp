// SPDX-License-Identifier: MIT
#include "model/records/line_builder.h"
#include "model/records/line_stream.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"
#include "tests/support/test_data.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace quillon {

namespace {

// Number and text of each record, in order.
QStringList rowsOf(const LogLines& lines)
{
    QStringList rows;
    for (const LogLine& line : lines) {
        rows.append(QString::number(line.number()) + u'\t' + line.text());
    }
    return rows;
}

QStringList rowsOfWhole(const QByteArray& bytes)
{
    LogLines lines;
    appendParsedBytes(bytes, 0, lines);
    return rowsOf(lines);
}

QStringList rowsOfPieces(const QList<QByteArray>& pieces)
{
    LineStream stream;
    LogLines lines;
    for (const QByteArray& piece : pieces) {
        stream.append(piece, lines);
    }
    stream.finish(lines);
    return rowsOf(lines);
}

QList<QByteArray> singleBytes(const QByteArray& bytes)
{
    QList<QByteArray> pieces;
    for (const char byte : bytes) {
        pieces.append(QByteArray(1, byte));
    }
    return pieces;
}

QStringList rowsAfter(LineStream& stream, const QByteArray& bytes)
{
    LogLines lines;
    stream.append(bytes, lines);
    return rowsOf(lines);
}

QStringList rows(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* const text : texts) {
        list.append(QString::fromUtf8(text));
    }
    return list;
}

} // namespace

TEST(LineStream, ALineIsGivenOnceItsTerminatorHasCome)
{
    LineStream stream;
    EXPECT_EQ(rowsAfter(stream, "on"), rows({}));
    EXPECT_EQ(rowsAfter(stream, "e\ntw"), rows({"1\tone"}));
    EXPECT_EQ(rowsAfter(stream, "o\n"), rows({"2\ttwo"}));
}

TEST(LineStream, TheEndFinishesALine)
{
    EXPECT_EQ(rowsOfPieces({"a\n", "b"}), rows({"1\ta", "2\tb"}));
}

TEST(LineStream, ACharacterMayBeCutInTwo)
{
    EXPECT_EQ(rowsOfPieces({"caf\xC3", "\xA9\n"}), rows({"1\tcafé"}));
    EXPECT_EQ(rowsOfPieces({"\xF0", "\x9F", "\x98", "\x80\n"}), rows({"1\t😀"}));
}

TEST(LineStream, ACharacterThatIsNeverCompletedIsReplacedOnce)
{
    EXPECT_EQ(rowsOfPieces({"a\xF0\x9F", "\x98"}), rows({"1\ta\uFFFD"}));
    EXPECT_EQ(rowsOfPieces({"a\xF0\x9F", "b\n"}), rows({"1\ta\uFFFDb"}));
}

TEST(LineStream, ACarriageReturnAndItsLineFeedMayBeCutApart)
{
    LineStream stream;
    EXPECT_EQ(rowsAfter(stream, "a\r"), rows({"1\ta"}));
    EXPECT_EQ(rowsAfter(stream, "\nb\n"), rows({"2\tb"}));
    EXPECT_EQ(rowsAfter(stream, "\n"), rows({"3\t"}));
}

TEST(LineStream, ATerminatorAllByItselfIsNoLine)
{
    const QList<QByteArray> terminators{"\n", "\r", "\r\n", "\xC2\x85", "\xE2\x80\xA8"};
    for (const QByteArray& terminator : terminators) {
        EXPECT_EQ(rowsOfPieces(singleBytes(terminator)), rows({}));
        EXPECT_EQ(rowsOfPieces(singleBytes(terminator + 'a')), rows({"1\t", "2\ta"}));
        EXPECT_EQ(rowsOfPieces(singleBytes(terminator + terminator)), rows({"1\t", "2\t"}));
    }
}

TEST(LineStream, PiecesOfAGenuineLogGiveTheRecordsOfTheWhole)
{
    const QStringList names = testDataNames();
    ASSERT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        const QByteArray log = testData(name);
        for (const qsizetype size : {1, 7, 4096}) {
            QList<QByteArray> pieces;
            for (qsizetype at = 0; at < log.size(); at += size) {
                pieces.append(log.mid(at, size));
            }
            ASSERT_EQ(rowsOfPieces(pieces), rowsOfWhole(log)) << name.toStdString() << size;
        }
    }
}

TEST(LineStream, AnyBytesCutAnywhereGiveTheRecordsOfTheWhole)
{
    const QList<QByteArray> snippets{
        "a",    "\n",   "\r",   "\r\n", "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9", "é",   "😀",
        "\xC2", "\xE2", "\x80", "\xF0", "\xED\xA0", "\xF4\x90",     "\xFF",         "\xC0"};
    RandomText random(20);
    for (int round = 0; round < 20'000; ++round) {
        QByteArray whole;
        for (std::uint32_t count = random.below(9); count > 0; --count) {
            whole += snippets[random.below(static_cast<std::uint32_t>(snippets.size()))];
        }
        QList<QByteArray> pieces;
        for (qsizetype at = 0; at < whole.size();) {
            const auto size = static_cast<qsizetype>(random.below(4));
            pieces.append(whole.mid(at, size));
            at += size;
        }
        ASSERT_EQ(rowsOfPieces(pieces), rowsOfWhole(whole)) << whole.toHex(' ').toStdString();
    }
}

TEST(LineStream, ALineWithoutEndIsGivenInPieces)
{
    const auto length = static_cast<qsizetype>(LineStream::kMostLineUnits);
    const QByteArray piece(1'000'000, 'x');
    LineStream stream;
    LogLines lines;
    for (int i = 0; i < 10; ++i) {
        stream.append(piece, lines);
    }
    ASSERT_EQ(lines.size(), 10 * piece.size() / length);
    for (const LogLine& line : lines) {
        EXPECT_EQ(line.text().size(), length);
    }
    stream.append("\n", lines);
    EXPECT_EQ(lines.last().text().size(), 10 * piece.size() % length);
}

TEST(LineStream, ALineOfTheGreatestLengthIsWhole)
{
    const QByteArray line(LineStream::kMostLineUnits, 'x');
    EXPECT_EQ(rowsOfPieces({line, "\n"}).size(), 1);
    EXPECT_EQ(rowsOfPieces({line + '\n'}).size(), 1);
    EXPECT_EQ(rowsOfPieces({line, "x\n"}).size(), 2);
    EXPECT_EQ(rowsOfPieces({line + "x\n"}).size(), 2);
}

TEST(LineStream, NoCharacterIsCutWhereALongLineIs)
{
    const QByteArray line = QByteArray(LineStream::kMostLineUnits - 1, 'x') + "😀\n";
    const QStringList cut = rowsOfPieces({line});
    ASSERT_EQ(cut.size(), 2);
    EXPECT_EQ(cut[1], QString::fromUtf8("2\t😀"));
}

} // namespace quillon
