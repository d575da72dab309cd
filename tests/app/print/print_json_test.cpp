// SPDX-License-Identifier: MIT
#include "tests/app/print/print_words.h"
#include "tests/app/print/quillon_process.h"
#include "tests/support/printing.h"
#include "tests/support/test_data.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace quillon {

namespace {

QList<QJsonObject> objectsIn(const QByteArray& output)
{
    QList<QJsonObject> objects;
    const QList<QByteArray> lines = output.trimmed().split('\n');
    for (const QByteArray& line : lines) {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(line, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << line.toStdString();
        EXPECT_TRUE(document.isObject());
        objects.append(document.object());
    }
    return objects;
}

QByteArray printedJson(const QStringList& arguments)
{
    QuillonProcess quillon(QStringList{QStringLiteral("--print"), QStringLiteral("--json")} +
                           arguments);
    EXPECT_EQ(quillon.run(), 0);
    return quillon.output();
}

QString textOf(const QJsonObject& object)
{
    return object.value(QLatin1StringView("text")).toString();
}

QJsonArray runsOf(const QJsonObject& object)
{
    return object.value(QLatin1StringView("runs")).toArray();
}

qsizetype lengthOfRow(const QJsonObject& object)
{
    const auto number = object.value(QLatin1StringView("number")).toInteger();
    return QString::number(number).size() + 1 + textOf(object).size() + 1;
}

void expectRunsCoverRow(const QJsonObject& object)
{
    qint64 end = 0;
    QJsonObject before;
    const QJsonArray runs = runsOf(object);
    for (const auto& value : runs) {
        QJsonObject run = value.toObject();
        EXPECT_EQ(run.value(QLatin1StringView("start")).toInteger(), end);
        EXPECT_GT(run.value(QLatin1StringView("length")).toInteger(), 0);
        end += run.value(QLatin1StringView("length")).toInteger();
        run.remove(QLatin1StringView("start"));
        run.remove(QLatin1StringView("length"));
        EXPECT_NE(run, before);
        before = run;
    }
    EXPECT_EQ(end, lengthOfRow(object));
}

} // namespace

TEST(PrintJson, EveryRowOfGenuineLogsIsOneObjectWhoseRunsCoverIt)
{
    const QStringList names = testDataNames();
    ASSERT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        const auto objects = objectsIn(printedJson({testDataPath(name)}));
        const QStringList plain = printedLines({testDataPath(name)});
        ASSERT_EQ(objects.size(), plain.size());
        for (qsizetype i = 0; i < objects.size(); ++i) {
            EXPECT_EQ(QString::number(i + 1) + u'\t' + textOf(objects[i]), plain[i]);
            expectRunsCoverRow(objects[i]);
        }
    }
}

TEST(PrintJson, KeysColoursAndBoldComeInTheirOrder)
{
    const TemporaryFolder folder;
    const QString path = folder.write(kLog, "[05-Mar-2024 10:15:42 UTC] PHP Fatal error: x\n");
    EXPECT_EQ(printedJson({path}),
              QByteArray("{\"number\":1,\"severity\":\"fatal\","
                         "\"text\":\"[05-Mar-2024 10:15:42 UTC] PHP Fatal error: x\",\"runs\":["
                         "{\"start\":0,\"length\":1,\"foreground\":\"secondaryLabelColor\"},"
                         "{\"start\":1,\"length\":1,\"foreground\":\"#FF3B30\"},"
                         "{\"start\":2,\"length\":13,\"foreground\":\"#0A84FF\"},"
                         "{\"start\":15,\"length\":8,\"foreground\":\"#0A84FF\",\"bold\":true},"
                         "{\"start\":23,\"length\":5,\"foreground\":\"#0A84FF\"},"
                         "{\"start\":28,\"length\":20,\"foreground\":\"#FF3B30\"}]}\n"));
}

TEST(PrintJson, ASearchMatchHasTheSelectionsBackground)
{
    const TemporaryFolder folder;
    const QString path = folder.write(kLog, "php\n");
    EXPECT_EQ(printedJson({QStringLiteral("--query=h"), path}),
              QByteArray("{\"number\":1,\"severity\":\"unknown\",\"text\":\"php\",\"runs\":["
                         "{\"start\":0,\"length\":1,\"foreground\":\"secondaryLabelColor\"},"
                         "{\"start\":1,\"length\":2,\"foreground\":\"textColor\"},"
                         "{\"start\":3,\"length\":1,\"foreground\":\"textColor\","
                         "\"background\":\"selectedTextBackgroundColor/0.35\"},"
                         "{\"start\":4,\"length\":2,\"foreground\":\"textColor\"}]}\n"));
}

TEST(PrintJson, QuotesBackslashesAndControlsAreEscaped)
{
    const TemporaryFolder folder;
    const QByteArray line = bytesOf("\"\\\t\0\x1F\x7F\xC2\x9B");
    const QByteArray output = printedJson({folder.write(kLog, line)});
    EXPECT_TRUE(output.contains("\"text\":\"\\\"\\\\\\t\\u0000\\u001f\\u007f\\u009b\""));
    EXPECT_EQ(textOf(objectsIn(output).first()), QString::fromUtf8(line));
}

TEST(PrintJson, AnyBytesGiveValidObjects)
{
    QByteArray bytes;
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; second += 3) {
            bytes += static_cast<char>(first);
            bytes += static_cast<char>(second);
        }
    }
    const TemporaryFolder folder;
    const auto objects = objectsIn(printedJson({folder.write(kLog, bytes)}));
    EXPECT_GT(objects.size(), 2);
    for (const QJsonObject& object : objects) {
        expectRunsCoverRow(object);
    }
}

TEST(PrintJson, RunsCountUtf16Units)
{
    const TemporaryFolder folder;
    const auto object = objectsIn(printedJson({folder.write(kLog, "\xF0\x9F\x98\x80\n")})).first();
    EXPECT_EQ(lengthOfRow(object), 5);
    expectRunsCoverRow(object);
}

TEST(PrintJson, AColourFromTheSettingsIsUsedWithItsAlpha)
{
    const TemporaryFolder folder;
    QuillonProcess quillon({QStringLiteral("--print"), QStringLiteral("--json"),
                            folder.write(kLog, "PHP Warning: x\n")});
    quillon.writeSettings("[General]\nprefs.color.warning=#12345680\n");
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_TRUE(quillon.output().contains("\"foreground\":\"#12345680\""));
}

TEST(PrintJson, AColourThatDoesNotParseIsReplacedByASystemColour)
{
    const TemporaryFolder folder;
    QuillonProcess quillon({QStringLiteral("--print"), QStringLiteral("--json"),
                            folder.write(kLog, "PHP Warning: x\n")});
    quillon.writeSettings("[General]\nprefs.color.warning=orange\n");
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_TRUE(quillon.output().contains("\"foreground\":\"systemOrangeColor\""));
}

TEST(PrintJson, IsNeverColoured)
{
    const TemporaryFolder folder;
    const QString path = folder.write(kLog, "PHP Warning: x\n");
    EXPECT_FALSE(printedJson({QStringLiteral("--color=always"), path}).contains('\x1B'));
}

} // namespace quillon
