// SPDX-License-Identifier: MIT
// What docs/json.md promises, against what the program writes.
#include "tests/app/print/json_schema.h"
#include "tests/app/print/quillon_process.h"
#include "tests/support/printing.h"
#include "tests/support/test_data.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace quillon {

namespace {

QString documentation()
{
    QFile file(QStringLiteral(QUILLON_JSON_DOCUMENTATION));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

QString complaintAbout(const QByteArray& line)
{
    return JsonSchema::inMarkdown(documentation())
        .complaintAbout(QJsonDocument::fromJson(line).object());
}

// Gives the number of lines.
qsizetype expectValid(const QStringList& arguments, const QByteArray& settings = {})
{
    QuillonProcess quillon(QStringList{QStringLiteral("-p"), QStringLiteral("--json")} + arguments);
    quillon.writeSettings(settings);
    EXPECT_EQ(quillon.run(), 0);
    const JsonSchema schema = JsonSchema::inMarkdown(documentation());
    const QList<QByteArray> lines = quillon.output().trimmed().split('\n');
    for (const QByteArray& line : lines) {
        EXPECT_EQ(schema.complaintAbout(QJsonDocument::fromJson(line).object()), QString())
            << line.toStdString();
    }
    return lines.size();
}

QStringList genuineLogs()
{
    QStringList paths;
    for (const QString& name : testDataNames()) {
        paths.append(testDataPath(name));
    }
    return paths;
}

} // namespace

TEST(JsonSchema, RowsOfGenuineLogsAreValid)
{
    EXPECT_GT(expectValid(genuineLogs()), 100);
    EXPECT_GT(expectValid({QStringLiteral("-q/error|php/"), genuineLogs().first()}), 10);
    EXPECT_GT(expectValid({QStringLiteral("--no-runs"), genuineLogs().first()}), 10);
}

TEST(JsonSchema, CountsAreValid)
{
    EXPECT_EQ(expectValid(QStringList{QStringLiteral("-c")} + genuineLogs()), genuineLogs().size());
}

TEST(JsonSchema, ColoursOfAllKindsAreValid)
{
    expectValid({genuineLogs().first()},
                "[General]\nprefs.color.warning=#12345680\nprefs.color.error=none\n"
                "prefs.color.date=x\nprefs.color.arraydump=x\n");
}

TEST(JsonSchema, TheExamplesOfTheDocumentationAreValid)
{
    const QList<QByteArray> lines = documentation().toUtf8().split('\n');
    int examples = 0;
    for (const QByteArray& line : lines) {
        if (line.startsWith("{\"")) {
            ++examples;
            EXPECT_EQ(complaintAbout(line), QString()) << line.toStdString();
        }
    }
    EXPECT_EQ(examples, 2);
}

TEST(JsonSchema, WhatIsWrongIsFound)
{
    const char* const wrongs[] = {
        "{}",
        R"({"number":1,"severity":"warning"})",
        R"({"number":0,"severity":"warning","text":""})",
        R"({"number":1.5,"severity":"warning","text":""})",
        R"({"number":1,"severity":"Warning","text":""})",
        R"({"number":1,"severity":"warning","text":1})",
        R"({"number":1,"severity":"warning","text":"","more":1})",
        R"({"number":1,"severity":"warning","text":"","runs":[]})",
        R"({"number":1,"severity":"warning","text":"","runs":[{"start":0,"length":1}]})",
        R"({"number":1,"severity":"warning","text":"",
            "runs":[{"start":0,"length":1,"foreground":"red"}]})",
        R"({"number":1,"severity":"warning","text":"",
            "runs":[{"start":0,"length":1,"foreground":"#12345"}]})",
        R"({"number":1,"severity":"warning","text":"",
            "runs":[{"start":0,"length":1,"foreground":"#123456","bold":false}]})",
    };
    for (const char* const wrong : wrongs) {
        EXPECT_NE(complaintAbout(wrong), QString()) << wrong;
    }
}

} // namespace quillon
