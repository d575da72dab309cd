// SPDX-License-Identifier: MIT
#include "tests/app/print/quillon_process.h"
#include "tests/support/spin_until.h"

#include <QFile>

#include <csignal>
#include <gtest/gtest.h>

namespace quillon {
namespace {

// A log with lines that take all the steps that a line may.
class PrintSearch : public testing::Test {
protected:
    PrintSearch()
    {
        QByteArray log;
        for (int i = 0; i < 200; ++i) {
            log += QByteArray(60, 'a') + "b\n" + QByteArray::number(i) + " a\n";
        }
        m_folder.write(QStringLiteral("debug.log"), log);
    }

    [[nodiscard]] QStringList arguments() const
    {
        return {QStringLiteral("--print"), QStringLiteral("--query"), QStringLiteral("(a+)+$"),
                m_folder.path(QStringLiteral("debug.log"))};
    }
    static QByteArray expected()
    {
        QByteArray rows;
        for (int i = 0; i < 200; ++i) {
            rows += QByteArray::number(2 * i + 2) + '\t' + QByteArray::number(i) + " a\n";
        }
        return rows;
    }

private:
    TemporaryFolder m_folder;
};

// The letter that the kernel gives the state of a process; X for one that is gone.
char stateOf(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    static_cast<void>(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    const qsizetype end = text.lastIndexOf(')');
    return end < 0 ? 'X' : text.at(end + 2);
}

TEST_F(PrintSearch, TellsHowManyLinesCouldNotBeDecided)
{
    QuillonProcess quillon(arguments());
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_EQ(quillon.output(), expected());
    EXPECT_TRUE(quillon.errors().contains(
        "debug.log: Recherche trop coûteuse pour 200 lignes, qui ne sont pas affichées\n"))
        << quillon.errors().constData();
}

TEST_F(PrintSearch, PrintsTheSameRowsWhenItIsStoppedInBetween)
{
    QuillonProcess quillon(arguments());
    quillon.start();
    const auto id = static_cast<pid_t>(quillon.process().processId());
    int stops = 0;
    for (; stops < 20 && quillon.process().state() == QProcess::Running; ++stops) {
        ::kill(id, SIGSTOP);
        if (!spinUntil([id] { return stateOf(id) != 'R' && stateOf(id) != 'S'; })) {
            break;
        }
        ::kill(id, SIGCONT);
        static_cast<void>(spinUntil([id] { return stateOf(id) != 'T'; }));
    }
    EXPECT_GT(stops, 1);
    EXPECT_EQ(quillon.wait(), 0);
    EXPECT_EQ(quillon.output(), expected());
}

// The processor time that a process has used, in ticks of the kernel's.
qint64 ticksOf(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    static_cast<void>(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    constexpr int kUserTime = 11; // behind the name
    return text.mid(text.lastIndexOf(')') + 2).split(' ').value(kUserTime).toLongLong();
}

TEST(PrintCostlySearch, DecidesTheSameWhenItIsStoppedForSecondsInALine)
{
    const TemporaryFolder folder;
    const QByteArray line = QByteArray(30'000, 'a') + "bq\n";
    const QString path = folder.write(QStringLiteral("debug.log"), line + line + line);
    QuillonProcess quillon({QStringLiteral("--print"), QStringLiteral("--query"),
                            QStringLiteral("a(?>[^q]*)c|bq"), path});
    quillon.start();
    const auto id = static_cast<pid_t>(quillon.process().processId());
    constexpr qint64 kStartedSearching = 30;
    ASSERT_TRUE(spinUntil([id] { return ticksOf(id) >= kStartedSearching; }));
    ::kill(id, SIGSTOP);
    ASSERT_TRUE(spinUntil([id] { return stateOf(id) == 'T'; }));
    spinFor(std::chrono::seconds(4));
    ASSERT_EQ(stateOf(id), 'T');
    ::kill(id, SIGCONT);
    EXPECT_EQ(quillon.wait(), 0);
    EXPECT_EQ(quillon.output(), "1\t" + line + "2\t" + line + "3\t" + line);
    EXPECT_EQ(quillon.errors(), QByteArray());
}

TEST_F(PrintSearch, TellsHowManyLinesOfStandardInputCouldNotBeDecided)
{
    QStringList options = arguments();
    options.removeLast();
    QuillonProcess quillon(options);
    quillon.process().setStandardInputFile(arguments().last());
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_EQ(quillon.output(), expected());
    EXPECT_TRUE(quillon.errors().contains(
        "Recherche trop coûteuse pour 200 lignes, qui ne sont pas affichées\n"))
        << quillon.errors().constData();
}

} // namespace
} // namespace quillon
