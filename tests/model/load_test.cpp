// SPDX-License-Identifier: MIT
// A log that another process writes to as fast as it can, while it is polled as often as
// possible. The whole load, with the window shown, is bench/load_probe.cpp.
#include "tests/model/view_model_fixture.h"
#include "tests/support/log_writer.h"
#include "tests/support/numbered_log.h"

#include <QFile>

namespace quillon {
namespace {

constexpr qsizetype kBytes = 2'000'000;

class Load : public ViewModelTest {
protected:
    Load()
    {
        model().followTail.set(true);
        open(QByteArray());
        model().pollTimer->stop();
    }
    [[nodiscard]] QByteArray written() const
    {
        QFile file(folder().path(kFile));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    [[nodiscard]] ByteAccount account(const QByteArray& bytes)
    {
        const LogLines& lines = model().lines.get();
        return accountForBytes(bytes, lines.size(),
                               [&lines](qsizetype i) { return lines[i].text(); });
    }
};

TEST_F(Load, EveryByteThatAnotherProcessWritesIsShown)
{
    // So often that it falls between any two steps of a poll.
    constexpr std::uint32_t kLongestCut = 400;
    LogWriter writer(folder().path(kFile), kBytes, std::chrono::milliseconds(300), kLongestCut);
    ASSERT_TRUE(spinUntil([&] {
        const bool isAllThere = writer.isDone();
        for (int poll = 0; poll < 50; ++poll) {
            model().pollTail();
        }
        return isAllThere;
    }));
    const QByteArray bytes = written();
    EXPECT_GE(bytes.size(), kBytes);
    EXPECT_EQ(model().lastFileSize, quint64(bytes.size()));
    EXPECT_EQ(account(bytes).shown, bytes.size());
    const LogLines& lines = model().lines.get();
    EXPECT_EQ(lines.last().number(), lines.size());
    EXPECT_EQ(model().attributedOutput.get().rows().size(), lines.size());
    // Lines were cut, or this would show less than it seems to.
    EXPECT_GT(lines.size(), bytes.count('\n'));
}

// The account itself, by what it must notice.
TEST_F(Load, WhatIsMissingOrWrongIsFound)
{
    const QByteArray bytes = numberedLog(20'000);
    const QStringList whole = QString::fromUtf8(bytes).split(u'\n', Qt::SkipEmptyParts);
    const auto shown = [&bytes](const QStringList& rows) {
        return accountForBytes(bytes, rows.size(), [&rows](qsizetype i) { return rows[i]; }).shown;
    };
    EXPECT_EQ(shown(whole), bytes.size());
    QStringList rows = whole;
    rows.removeAt(7);
    EXPECT_LT(shown(rows), bytes.size());
    rows = whole;
    rows.removeLast();
    EXPECT_LT(shown(rows), bytes.size());
    rows = whole;
    rows[9].chop(1);
    EXPECT_LT(shown(rows), bytes.size());
    rows = whole;
    rows[5].replace(QChar(u'–'), QChar(QChar::ReplacementCharacter));
    EXPECT_LT(shown(rows), bytes.size());
    rows = whole;
    rows.swapItemsAt(3, 4);
    EXPECT_LT(shown(rows), bytes.size());
}

TEST_F(Load, WhatIsCutOrShownTwiceIsFollowed)
{
    const QByteArray bytes = numberedLog(2'000);
    QStringList rows;
    const auto show = [&rows](const QByteArray& part) {
        const QStringList lines = QString::fromUtf8(part).split(u'\n');
        rows += part.endsWith('\n') ? lines.first(lines.size() - 1) : lines;
    };
    const qsizetype inCharacter = bytes.indexOf("\xF0\x9F") + 2;
    show(bytes.first(inCharacter + 700));
    show(bytes.sliced(inCharacter));
    const ByteAccount account =
        accountForBytes(bytes, rows.size(), [&rows](qsizetype i) { return rows[i]; });
    EXPECT_EQ(account.shown, bytes.size());
    EXPECT_EQ(account.shownTwice, 700);
}

} // namespace
} // namespace quillon
