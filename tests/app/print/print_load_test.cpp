// SPDX-License-Identifier: MIT
// A log that another process writes to faster than the reader of the output reads.
#include "tests/app/print/quillon_process.h"
#include "tests/support/log_writer.h"
#include "tests/support/numbered_log.h"
#include "tests/support/spin_until.h"

#include <QFile>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace quillon {
namespace {

constexpr qsizetype kBytes = 2'000'000;

// A pipe of which only so much is read at once, between turns of the test's event loop.
class SlowReader {
public:
    SlowReader()
    {
        EXPECT_EQ(::pipe2(m_ends.data(), O_CLOEXEC), 0);
        // Whoever shares a pipe may have set it not to block, also for the program.
        for (const int end : m_ends) {
            ::fcntl(end, F_SETFL, O_NONBLOCK);
        }
    }
    ~SlowReader()
    {
        ::close(m_ends[0]);
        ::close(m_ends[1]);
    }
    SlowReader(const SlowReader&) = delete;
    SlowReader& operator=(const SlowReader&) = delete;

    [[nodiscard]] int writingEnd() const { return m_ends[1]; }
    const QByteArray& readALittle()
    {
        std::array<char, 8192> bytes{};
        const ssize_t count = ::read(m_ends[0], bytes.data(), bytes.size());
        if (count > 0) {
            m_all.append(bytes.data(), count);
        }
        return m_all;
    }

private:
    std::array<int, 2> m_ends{-1, -1};
    QByteArray m_all;
};

TEST(PrintLoad, EveryByteReachesASlowReader)
{
    const TemporaryFolder folder;
    const QString path = folder.write(QStringLiteral("debug.log"), QByteArray());
    SlowReader reader;
    QuillonProcess quillon({QStringLiteral("-pf"), path});
    quillon.process().setChildProcessModifier(
        [&reader] { ::dup2(reader.writingEnd(), STDOUT_FILENO); });
    quillon.start();
    LogWriter writer(path, kBytes, std::chrono::milliseconds(1500));
    ASSERT_TRUE(spinUntil([&] {
        static_cast<void>(reader.readALittle());
        return writer.isDone();
    }));
    folder.append(QStringLiteral("debug.log"), "end\n");
    ASSERT_TRUE(spinUntil([&] { return reader.readALittle().endsWith("\tend\n"); }));
    ::kill(static_cast<pid_t>(quillon.process().processId()), SIGTERM);
    EXPECT_EQ(quillon.wait(), 128 + SIGTERM);

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray written = file.readAll();
    const QByteArrayList rows = reader.readALittle().chopped(1).split('\n');
    const ByteAccount account = accountForBytes(written, rows.size(), [&rows](qsizetype i) {
        return QString::fromUtf8(rows[i].sliced(rows[i].indexOf('\t') + 1));
    });
    EXPECT_EQ(account.shown, written.size());
    for (qsizetype i = 0; i < rows.size(); ++i) {
        ASSERT_TRUE(rows[i].startsWith(QByteArray::number(i + 1) + '\t')) << rows[i].constData();
    }
}

} // namespace
} // namespace quillon
