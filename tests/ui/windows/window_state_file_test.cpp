// SPDX-License-Identifier: MIT
#include "tests/support/temporary_folder.h"
#include "ui/windows/window_state_file.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace quillon {
namespace {

const QString kName = QStringLiteral("window");

class WindowStateFile : public testing::Test {
protected:
    [[nodiscard]] std::optional<WindowPlacement> readOf(const QByteArray& bytes) const
    {
        return readWindowState(folder.write(kName, bytes));
    }

    TemporaryFolder folder;
};

TEST_F(WindowStateFile, GivesBackWhatWasWritten)
{
    const QString path = folder.path(QStringLiteral("state/Quillon/window"));
    for (const WindowPlacement& placement :
         {WindowPlacement{QPoint(-120, 40), QSize(900, 640), false},
          WindowPlacement{QPoint(0, 0), QSize(1, 1), true},
          WindowPlacement{std::nullopt, QSize(1080, 720), true}}) {
        ASSERT_TRUE(writeWindowState(path, placement));
        EXPECT_EQ(readWindowState(path), placement);
    }
}

TEST_F(WindowStateFile, LeavesNothingBesideIt)
{
    ASSERT_TRUE(writeWindowState(folder.path(kName), {std::nullopt, QSize(900, 640), false}));
    EXPECT_EQ(QDir(folder.path(QString())).entryList(QDir::Files), QStringList{kName});
}

TEST_F(WindowStateFile, ThatIsMissingHoldsNothing)
{
    EXPECT_EQ(readWindowState(folder.path(kName)), std::nullopt);
    EXPECT_EQ(readWindowState(QString()), std::nullopt);
}

TEST_F(WindowStateFile, ThatIsDamagedHoldsNothing)
{
    const QByteArray whole("position=1,2\nsize=900,640\nmaximised=0\n");
    ASSERT_TRUE(readOf(whole).has_value());
    for (int length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(readOf(whole.first(length)), std::nullopt) << length;
    }
    for (const char* const text :
         {"size=-900,640\nmaximised=0\n", "size=900,640\nmaximised=2\n",
          "size=999999999999,640\nmaximised=0\n", "size=900,640\nmaximised=0\nmore\n",
          "\xFF\xFEsize=900,640\nmaximised=0\n", "[General]\nsize=@Invalid()\n"}) {
        EXPECT_EQ(readOf(text), std::nullopt) << text;
    }
}

TEST_F(WindowStateFile, ThatIsLargeIsNotRead)
{
    EXPECT_EQ(readOf("size=900,640\nmaximised=0\n" + QByteArray(1 << 20, '\n')), std::nullopt);
}

TEST_F(WindowStateFile, ThatIsNoRegularFileIsNeitherReadNorReplaced)
{
    const QString pipe = folder.path(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(pipe.toUtf8().constData(), 0600), 0);
    const QString directory = folder.path(QStringLiteral("directory"));
    ASSERT_TRUE(QDir().mkdir(directory));
    for (const QString& path : {pipe, directory}) {
        EXPECT_EQ(readWindowState(path), std::nullopt);
        EXPECT_FALSE(writeWindowState(path, {std::nullopt, QSize(900, 640), false}));
        EXPECT_FALSE(QFileInfo(path).isFile());
    }
}

TEST_F(WindowStateFile, IsInTheStateFolderOfTheUser)
{
    qputenv("XDG_STATE_HOME", "/some/where");
    EXPECT_EQ(windowStateFile(), QStringLiteral("/some/where/Quillon/window"));
    for (const char* const unusable : {"", "relative/folder"}) {
        qputenv("XDG_STATE_HOME", unusable);
        EXPECT_EQ(windowStateFile(),
                  QDir::homePath() + QStringLiteral("/.local/state/Quillon/window"));
    }
    qunsetenv("XDG_STATE_HOME");
}

} // namespace
} // namespace quillon
