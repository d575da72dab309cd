// SPDX-License-Identifier: MIT
// What may lie where the settings file is expected, at the start and while the program runs.
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "tests/platform/settings_file_samples.h"
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"
#include "tests/support/temporary_folder.h"

#include <QDir>
#include <QFile>

#include <chrono>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {
namespace {

using namespace std::chrono_literals;

const QByteArray kGreen = "[General]\nprefs.color.info=#00FF00\n";
const QString kGreenValue = QStringLiteral("#00FF00");

QByteArray nestedVariants(int depth)
{
    QByteArray value;
    for (int i = 0; i < depth; ++i) {
        value += "\\0\\0\\0\\t\\0\\0\\0\\0\\x1";
    }
    return "[General]\nprefs.color.info=@Variant(" + value + ")\n";
}

class HostileSettings : public testing::Test {
protected:
    void start()
    {
        m_defaults = std::make_unique<UserDefaults>(m_center, folder.path(kSettingsFile));
        m_defaults->registerDefaults({{kColorKey, kBlue}});
    }
    void quit() { m_defaults.reset(); }
    [[nodiscard]] UserDefaults& defaults() const { return *m_defaults; }
    [[nodiscard]] QString value() const
    {
        return defaults().stringForKey(kColorKey).value_or(QString());
    }
    [[nodiscard]] QByteArray content() const
    {
        QFile file(folder.path(kSettingsFile));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    void putInPlace(const QByteArray& bytes) const
    {
        const QString other = folder.write(QStringLiteral("other"), bytes);
        ASSERT_EQ(::rename(QFile::encodeName(other), QFile::encodeName(folder.path(kSettingsFile))),
                  0);
    }
    // Time in which a change would have been noticed: that of a later one, in the same file.
    void awaitNoticing()
    {
        putInPlace("[General]\nprefs.color.info=#777777\n");
        ASSERT_TRUE(spinUntil([this] { return value() == QStringLiteral("#777777"); }));
    }

    const TemporaryFolder folder;

private:
    NotificationCenter m_center;
    std::unique_ptr<UserDefaults> m_defaults;
};

TEST_F(HostileSettings, DeeplyNestedVariantsAreNotUnpacked)
{
    putInPlace(nestedVariants(10'000));
    start();
    EXPECT_EQ(value(), kBlue);
}

TEST_F(HostileSettings, DeeplyNestedVariantsAreNotUnpackedWhileRunning)
{
    putInPlace(kGreen);
    start();
    putInPlace(nestedVariants(10'000));
    EXPECT_TRUE(spinUntil([this] { return value() == kBlue; }));
}

TEST_F(HostileSettings, AFileOfNoSaneSizeIsNotRead)
{
    putInPlace(kGreen + QByteArray(SettingsFile::kMaximumBytes, '\n'));
    start();
    EXPECT_EQ(value(), kBlue);
}

TEST_F(HostileSettings, AFileOfNoSaneSizeIsNotReadWhileRunning)
{
    putInPlace(kGreen);
    start();
    folder.resize(kSettingsFile, qint64{1} << 40);
    spinFor(100ms);
    EXPECT_EQ(value(), kGreenValue);
    awaitNoticing();
}

TEST_F(HostileSettings, AFileOfNoSaneSizeIsNotOverwritten)
{
    const QByteArray large = kGreen + QByteArray(SettingsFile::kMaximumBytes, '\n');
    putInPlace(large);
    start();
    defaults().setObject(QStringLiteral("#111111"), kColorKey);
    quit();
    EXPECT_EQ(content(), large);
}

TEST_F(HostileSettings, TheLargestFileIsRead)
{
    putInPlace(kGreen + QByteArray(SettingsFile::kMaximumBytes - kGreen.size(), '\n'));
    start();
    EXPECT_EQ(value(), kGreenValue);
}

TEST_F(HostileSettings, APipeInItsPlaceIsNeitherWaitedForNorReplaced)
{
    const QByteArray path = QFile::encodeName(folder.path(kSettingsFile));
    ASSERT_EQ(::mkfifo(path.constData(), 0600), 0);
    start();
    EXPECT_EQ(value(), kBlue);
    defaults().setObject(kGreenValue, kColorKey);
    quit();
    struct stat status {};
    ASSERT_EQ(::stat(path.constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(HostileSettings, WhatCannotBeReadAnyMoreLeavesTheKnownValues)
{
    putInPlace(kGreen);
    start();
    const QByteArray path = QFile::encodeName(folder.path(kSettingsFile));
    ASSERT_EQ(::unlink(path.constData()), 0);
    ASSERT_EQ(::mkfifo(path.constData(), 0600), 0);
    spinFor(100ms);
    EXPECT_EQ(value(), kGreenValue);
    awaitNoticing();
}

TEST_F(HostileSettings, AValueThatCouldNotBeWrittenIsWrittenWithTheNext)
{
    ASSERT_TRUE(QDir().mkdir(folder.path(kSettingsFile)));
    start();
    defaults().setObject(kGreenValue, kColorKey);
    spinFor(10ms);
    ASSERT_TRUE(QDir().rmdir(folder.path(kSettingsFile)));
    defaults().setObject(true, QStringLiteral("prefs.wrap.default"));
    quit();
    const QByteArray written = content();
    EXPECT_TRUE(written.contains("prefs.color.info=#00FF00\n")) << written.constData();
    EXPECT_TRUE(written.contains("prefs.wrap.default=true\n")) << written.constData();
}

TEST_F(HostileSettings, AValueThatIsNotWrittenYetSurvivesAnOutsideChange)
{
    ASSERT_TRUE(QDir().mkdir(folder.path(kSettingsFile)));
    start();
    defaults().setObject(kGreenValue, kColorKey);
    spinFor(10ms);
    ASSERT_TRUE(QDir().rmdir(folder.path(kSettingsFile)));
    putInPlace("[General]\nprefs.color.info=#777777\nprefs.other=1\n");
    ASSERT_TRUE(spinUntil([this] { return defaults().boolForKey(QStringLiteral("prefs.other")); }));
    EXPECT_EQ(value(), kGreenValue);
}

TEST_F(HostileSettings, WhatAnotherVersionWroteIsKept)
{
    putInPlace("[General]\nprefs.new=@Variant(\\0\\0\\0\\x7f)\n\n[Window]\nstate=\\x1\\x2\n");
    start();
    defaults().setObject(kGreenValue, kColorKey);
    quit();
    EXPECT_EQ(content(), "[General]\nprefs.new=@Variant(\\0\\0\\0\\x7f)\n"
                         "prefs.color.info=#00FF00\n\n[Window]\nstate=\\x1\\x2\n");
}

TEST_F(HostileSettings, WhatAnotherWindowHasSetIsKept)
{
    putInPlace(kGreen);
    start();
    putInPlace(kGreen + "prefs.other=1\n");
    defaults().setObject(true, QStringLiteral("prefs.wrap.default"));
    quit();
    EXPECT_TRUE(content().contains("prefs.other=1\n"));
}

TEST_F(HostileSettings, AValueWaitsWhileAnotherWindowIsWriting)
{
    start();
    const int lock = ::open(QFile::encodeName(folder.path(QString())), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    defaults().setObject(kGreenValue, kColorKey);
    spinFor(10ms);
    EXPECT_FALSE(QFile::exists(folder.path(kSettingsFile)));
    ::close(lock);
    EXPECT_TRUE(spinUntil([this] { return QFile::exists(folder.path(kSettingsFile)); }));
}

TEST_F(HostileSettings, AnAbandonedLockDoesNotLoseAValue)
{
    start();
    const int lock = ::open(QFile::encodeName(folder.path(QString())), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    defaults().setObject(kGreenValue, kColorKey);
    quit();
    EXPECT_EQ(content(), "[General]\nprefs.color.info=#00FF00\n");
    ::close(lock);
}

TEST_F(HostileSettings, ANewFileIsForItsOwnerAlone)
{
    start();
    defaults().setObject(kGreenValue, kColorKey);
    quit();
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(folder.path(kSettingsFile)).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(HostileSettings, ALinkInItsPlaceStaysALink)
{
    const QString target = folder.write(QStringLiteral("target"), kGreen);
    ASSERT_TRUE(QFile::link(target, folder.path(kSettingsFile)));
    start();
    defaults().setObject(QStringLiteral("#111111"), kColorKey);
    quit();
    struct stat status {};
    ASSERT_EQ(::lstat(QFile::encodeName(folder.path(kSettingsFile)).constData(), &status), 0);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
    EXPECT_EQ(content(), "[General]\nprefs.color.info=#111111\n");
}

} // namespace
} // namespace quillon
