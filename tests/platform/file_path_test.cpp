// SPDX-License-Identifier: MIT
#include "platform/file_path.h"
#include "tests/support/printing.h"
#include "tests/support/temporary_folder.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {
namespace {

TEST(FilePath, IsTheTextThatAnOrdinaryPathLooksLike)
{
    const QString path = QStringLiteral("/été/\U0001F600 100 %?#;.log");
    EXPECT_EQ(pathFromBytes(path.toUtf8()), path);
    EXPECT_EQ(bytesOfPath(path), path.toUtf8());
    EXPECT_EQ(fileUrlOfPath(path).toLocalFile(), path);
    EXPECT_EQ(pathOfFileUrl(QUrl::fromLocalFile(path)), path);
}

TEST(FilePath, KeepsEveryByte)
{
    QByteArray bytes("/");
    for (int byte = 1; byte < 0x100; ++byte) {
        bytes += static_cast<char>(byte);
    }
    // A character cut short, one made too long, half of a pair, and a byte order mark.
    bytes += "\xE2\x82/\xC0\xAF/\xED\xA0\x80/\xEF\xBB\xBFx";
    EXPECT_EQ(bytesOfPath(pathFromBytes(bytes)), bytes);
}

TEST(FilePath, KeepsEveryByteInAUrlAndInItsText)
{
    const QByteArray bytes("/caf\xE9/\xC3\xA9 %41+&.log");
    const QUrl url = fileUrlOfPath(pathFromBytes(bytes));
    EXPECT_EQ(bytesOfPath(pathOfFileUrl(url)), bytes);
    const QStringList texts = QUrl::toStringList({url}, QUrl::FullyEncoded);
    EXPECT_EQ(bytesOfPath(pathOfFileUrl(QUrl::fromStringList(texts).first())), bytes);
}

TEST(FilePath, OfAnotherKindOfUrlIsEmpty)
{
    EXPECT_EQ(pathOfFileUrl(QUrl(QStringLiteral("https://quillon.org/x.log"))), QString());
}

TEST(FilePath, WithANulIsNotThePathThatEndsThere)
{
    const QString path = pathOfFileUrl(QUrl(QStringLiteral("file:///etc/passwd%00.log")));
    EXPECT_EQ(bytesOfPath(path), QByteArray());
    EXPECT_EQ(displayedPath(path), QStringLiteral("/etc/passwd\u2400.log"));
}

TEST(FilePath, IsCleanWhenItIsMadeAbsolute)
{
    const QString here = QDir::currentPath();
    EXPECT_EQ(cleanAbsolutePath(QStringLiteral("./x.log")), here + QStringLiteral("/x.log"));
    EXPECT_EQ(cleanAbsolutePath(QStringLiteral("/a//./b/x.log")), QStringLiteral("/a/b/x.log"));
    EXPECT_EQ(cleanAbsolutePath(QStringLiteral("/nowhere/../x.log")), QStringLiteral("/x.log"));
}

TEST(FilePath, GoesUpFromWhereALinkLeads)
{
    const TemporaryFolder folder;
    const QByteArray there = QFile::encodeName(folder.path(QStringLiteral("there")));
    ASSERT_EQ(::mkdir(there.constData(), 0700), 0);
    ASSERT_EQ(::mkdir((there + "/below").constData(), 0700), 0);
    const QString link = folder.path(QStringLiteral("link"));
    ASSERT_EQ(::symlink((there + "/below").constData(), QFile::encodeName(link).constData()), 0);
    EXPECT_EQ(cleanAbsolutePath(link + QStringLiteral("/../x.log")),
              QDir(folder.path(QStringLiteral("there"))).canonicalPath() +
                  QStringLiteral("/x.log"));
    EXPECT_EQ(cleanAbsolutePath(link + QStringLiteral("/x.log")), link + QStringLiteral("/x.log"));
}

TEST(FilePath, IsDisplayedInOneLineThatTurnsNothingRound)
{
    EXPECT_EQ(displayedPath(pathFromBytes("/caf\xE9/\x1B[31m\n\xE2\x80\xAE.log")),
              QStringLiteral("/caf\uFFFD/\u241B[31m\u240A\uFFFD.log"));
}

} // namespace
} // namespace quillon
