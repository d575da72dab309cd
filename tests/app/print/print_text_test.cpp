// SPDX-License-Identifier: MIT
#include "tests/app/print/print_words.h"
#include "tests/app/print/quillon_process.h"
#include "tests/support/printing.h"
#include "tests/support/test_data.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace quillon {

namespace {

QStringList linesOf(const QByteArray& bytes)
{
    static const QRegularExpression terminator(
        QStringLiteral("\r\n|[\n\r\\x{85}\\x{2028}\\x{2029}]"));
    QStringList lines = QString::fromUtf8(bytes).split(terminator);
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

QStringList numbered(const QStringList& lines)
{
    QStringList rows;
    for (const QString& line : lines) {
        rows.append(QString::number(rows.size() + 1) + u'\t' + line);
    }
    return rows;
}

QStringList numberedLines(std::initializer_list<const char*> rows)
{
    QStringList lines;
    for (const char* row : rows) {
        lines.append(QString::fromUtf8(row));
    }
    return lines;
}

// One line of every kind that options tell apart.
class PrintText : public testing::Test {
protected:
    const TemporaryFolder m_folder;
    const QString m_path = m_folder.write(kLog, "PHP Fatal error: x\n"
                                                "PHP Parse error: y\n"
                                                "PHP Warning: z\n"
                                                "PHP Notice: n\n"
                                                "PHP Deprecated: d\n"
                                                "#1 main\n");
};

} // namespace

TEST_F(PrintText, PrintsTheLinesOfGenuineLogsNumbered)
{
    const QStringList names = testDataNames();
    ASSERT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        EXPECT_EQ(printedLines({testDataPath(name)}), numbered(linesOf(testData(name))))
            << name.toStdString();
    }
}

TEST_F(PrintText, OnlyErrorsLeavesFatalAndErrorLines)
{
    EXPECT_EQ(printedLines({QStringLiteral("--only-errors"), m_path}),
              numberedLines({"1\tPHP Fatal error: x", "2\tPHP Parse error: y"}));
}

TEST_F(PrintText, HideLeavesOutTheListedLevels)
{
    EXPECT_EQ(printedLines({QStringLiteral("--hide=warning,deprecated,notice"), m_path}),
              numberedLines({"1\tPHP Fatal error: x", "2\tPHP Parse error: y", "6\t#1 main"}));
}

TEST_F(PrintText, QueryLeavesTheLinesThatMatchTheExpression)
{
    EXPECT_EQ(printedLines({QStringLiteral("--query"), QStringLiteral("/fatal|notice/"), m_path}),
              numberedLines({"1\tPHP Fatal error: x", "4\tPHP Notice: n"}));
}

TEST_F(PrintText, AnInvalidExpressionIsSearchedForLiterally)
{
    const QString path = m_folder.write(QStringLiteral("other.log"), "a [b\nc\n");
    EXPECT_EQ(printedLines({QStringLiteral("--query=["), path}), numberedLines({"1\ta [b"}));
}

TEST_F(PrintText, AQueryWithoutMatchesPrintsNothingAndSucceeds)
{
    EXPECT_EQ(printedLines({QStringLiteral("--query=nowhere"), m_path}), QStringList());
}

TEST_F(PrintText, AnEmptyFilePrintsNothingAndSucceeds)
{
    EXPECT_EQ(printedLines({m_folder.write(kLog, QByteArray())}), QStringList());
}

TEST_F(PrintText, APipeGetsControlCharactersAsTheyAre)
{
    const QByteArray line = bytesOf("\x1B[31mred\a\x7F\0end");
    QuillonProcess quillon({QStringLiteral("--print"), m_folder.write(kLog, line)});
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_EQ(quillon.output(), "1\t" + line + '\n');
}

TEST_F(PrintText, BytesThatAreNotUtf8BecomeReplacementCharacters)
{
    EXPECT_EQ(printedLines({m_folder.write(kLog, "caf\xE9 noir\n")}),
              numberedLines({"1\tcaf\uFFFD noir"}));
}

TEST_F(PrintText, ALineOfTwoMebibytesIsPrintedWhole)
{
    const QByteArray line(2 * 1024 * 1024, 'x');
    QuillonProcess quillon({QStringLiteral("--print"), m_folder.write(kLog, line)});
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_EQ(quillon.output(), "1\t" + line + '\n');
}

TEST_F(PrintText, AFileNameOfAnyCharactersIsFound)
{
    const QString path = m_folder.write(QStringLiteral("é #1 %20 100%.log"), "a\n");
    EXPECT_EQ(printedLines({path}), numberedLines({"1\ta"}));
}

TEST_F(PrintText, ReadingSettingsCreatesNoFile)
{
    QuillonProcess quillon({QStringLiteral("--print"), m_path});
    EXPECT_EQ(quillon.run(), 0);
    const QDir configuration(quillon.configuration().path(QString()));
    EXPECT_EQ(configuration.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList());
}

TEST_F(PrintText, ADamagedSettingsFileDoesNotMatter)
{
    QuillonProcess quillon({QStringLiteral("--print"), QStringLiteral("--query=main"), m_path});
    quillon.writeSettings(bytesOf("\0\xFF[[[General\nprefs.font.default=\x01\n=\n"));
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_EQ(quillon.output(), QByteArray("6\t#1 main\n"));
}

} // namespace quillon
