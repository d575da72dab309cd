// SPDX-License-Identifier: MIT
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "tests/platform/settings_file_samples.h"
#include "tests/support/dropped_privileges.h"
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"
#include "tests/support/temporary_folder.h"

#include <QDir>
#include <QFile>

#include <chrono>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace quillon {
namespace {

using namespace std::chrono_literals;

// One start of the program after the other, over the same settings file.
class UserDefaultsFile : public testing::Test {
protected:
    void start() { m_defaults = std::make_unique<UserDefaults>(m_center, filePath()); }
    void quit() { m_defaults.reset(); }

    [[nodiscard]] QString filePath() const { return m_folder.path(kSettingsFile); }
    [[nodiscard]] UserDefaults& defaults() const { return *m_defaults; }
    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }
    [[nodiscard]] bool reads(const QString& text) const
    {
        return m_defaults->stringForKey(kColorKey) == text;
    }
    NotificationCenter& center() { return m_center; }

private:
    TemporaryFolder m_folder;
    NotificationCenter m_center;
    std::unique_ptr<UserDefaults> m_defaults;
};

TEST_F(UserDefaultsFile, KeepsTextFromOneRunToTheNext)
{
    start();
    defaults().setObject(QStringLiteral(" a;b,c = \"é\" #1 \\ 日本 "), kColorKey);
    quit();
    start();
    EXPECT_EQ(defaults().stringForKey(kColorKey), QStringLiteral(" a;b,c = \"é\" #1 \\ 日本 "));
}

TEST_F(UserDefaultsFile, KeepsBooleansAndNumbersFromOneRunToTheNext)
{
    start();
    defaults().setObject(true, QStringLiteral("prefs.wrap.default"));
    defaults().setObject(16.5, QStringLiteral("prefs.font.default"));
    quit();
    start();
    EXPECT_TRUE(defaults().boolForKey(QStringLiteral("prefs.wrap.default")));
    EXPECT_EQ(defaults().doubleForKey(QStringLiteral("prefs.font.default")), 16.5);
}

TEST_F(UserDefaultsFile, DoesNotHoldRegisteredDefaults)
{
    start();
    defaults().registerDefaults({{kColorKey, kBlue}});
    defaults().setObject(1, QStringLiteral("prefs.other"));
    quit();
    start();
    EXPECT_EQ(defaults().stringForKey(kColorKey), std::nullopt);
}

TEST_F(UserDefaultsFile, StaysWithoutARemovedValue)
{
    start();
    defaults().setObject(kBlue, kColorKey);
    quit();
    start();
    defaults().removeObject(kColorKey);
    quit();
    start();
    EXPECT_EQ(defaults().stringForKey(kColorKey), std::nullopt);
}

TEST_F(UserDefaultsFile, IsWrittenByTheEventLoop)
{
    start();
    defaults().setObject(kBlue, kColorKey);
    EXPECT_TRUE(spinUntil([this] { return QFile::exists(filePath()); }));
}

TEST_F(UserDefaultsFile, KeepsItsKeysInTheGeneralGroup)
{
    start();
    defaults().setObject(kBlue, kColorKey);
    quit();
    QFile file(filePath());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    EXPECT_TRUE(content.startsWith("[General]\n")) << content.constData();
    EXPECT_TRUE(content.contains("prefs.color.info=")) << content.constData();
}

TEST_F(UserDefaultsFile, AnOutsideChangeIsNoticedAndPosted)
{
    folder().write(kSettingsFile, "[General]\nprefs.color.info=#111111\n");
    start();
    ASSERT_TRUE(reads(QStringLiteral("#111111")));
    int posts = 0;
    const Subscription subscription =
        center().observe(kUserDefaultsDidChange, [&posts] { ++posts; });
    folder().write(kSettingsFile, "[General]\nprefs.color.info=#222222222\n");
    EXPECT_TRUE(spinUntil([this] { return reads(QStringLiteral("#222222222")); }));
    EXPECT_GT(posts, 0);
}

TEST_F(UserDefaultsFile, AReplacedFileIsNoticedEachTime)
{
    folder().write(kSettingsFile, "[General]\nprefs.color.info=#1\n");
    start();
    for (int i = 2; i < 5; ++i) {
        const QString text = QStringLiteral("#") + QString(i, u'A');
        const QString temporary = folder().write(
            QStringLiteral("new"), "[General]\nprefs.color.info=" + text.toUtf8() + "\n");
        ASSERT_EQ(::rename(QFile::encodeName(temporary), QFile::encodeName(filePath())), 0);
        EXPECT_TRUE(spinUntil([&] { return reads(text); })) << i;
    }
}

TEST_F(UserDefaultsFile, AFileThatAppearsLaterIsNoticed)
{
    start();
    folder().write(kSettingsFile, "[General]\nprefs.color.info=#111111\n");
    EXPECT_TRUE(spinUntil([this] { return reads(QStringLiteral("#111111")); }));
}

TEST_F(UserDefaultsFile, ItsOwnWritingIsNoOutsideChange)
{
    start();
    int posts = 0;
    const Subscription subscription =
        center().observe(kUserDefaultsDidChange, [&posts] { ++posts; });
    defaults().setObject(13.0, QStringLiteral("prefs.font.default"));
    defaults().setObject(true, QStringLiteral("prefs.wrap.default"));
    ASSERT_TRUE(spinUntil([this] { return QFile::exists(filePath()); }));
    spinFor(100ms);
    EXPECT_EQ(posts, 2);
}

TEST_F(UserDefaultsFile, AnUnquotedCommaReadsAsTheTextThatWasWritten)
{
    folder().write(kSettingsFile, "[General]\nprefs.color.info=/logs, old\n");
    start();
    EXPECT_EQ(defaults().stringForKey(kColorKey), QStringLiteral("/logs, old"));
}

TEST_F(UserDefaultsFile, ADamagedFileLeavesTheDefaultsInForce)
{
    folder().write(kSettingsFile,
                   QByteArray("\0\xFF[[[\n===\n@Variant(\x01\x02)\n[General\n\xC3", 34));
    start();
    defaults().registerDefaults({{kColorKey, kBlue}});
    EXPECT_EQ(defaults().stringForKey(kColorKey), kBlue);
}

TEST_F(UserDefaultsFile, ADamagedFileDoesNotKeepValuesFromBeingSet)
{
    folder().write(kSettingsFile, QByteArray("\0\xFF[[[\n===\n", 11));
    start();
    defaults().setObject(kBlue, kColorKey);
    spinFor(20ms);
    EXPECT_EQ(defaults().stringForKey(kColorKey), kBlue);
}

TEST_F(UserDefaultsFile, AStoredVariantThatCannotBeReadIsHarmless)
{
    folder().write(kSettingsFile, "[General]\nprefs.color.info=@Variant(\\0\\0\\0\\x7f\\xff\\xff)\n"
                                  "prefs.font.default=@Rect(1 2)\nprefs.wrap.default=@Invalid()\n");
    start();
    EXPECT_NO_FATAL_FAILURE(static_cast<void>(defaults().stringForKey(kColorKey)));
    EXPECT_EQ(defaults().doubleForKey(QStringLiteral("prefs.font.default")), 0.0);
    EXPECT_FALSE(defaults().boolForKey(QStringLiteral("prefs.wrap.default")));
}

TEST_F(UserDefaultsFile, ADirectoryInItsPlaceLeavesTheDefaultsInForce)
{
    ASSERT_TRUE(QDir().mkdir(filePath()));
    start();
    defaults().registerDefaults({{kColorKey, kBlue}});
    EXPECT_EQ(defaults().stringForKey(kColorKey), kBlue);
    defaults().setObject(QStringLiteral("#111111"), kColorKey);
    spinFor(20ms);
    EXPECT_EQ(defaults().stringForKey(kColorKey), QStringLiteral("#111111"));
}

TEST_F(UserDefaultsFile, AFolderThatMayNotBeWrittenKeepsTheValuesInMemory)
{
    const QByteArray encoded = QFile::encodeName(folder().path(QString()));
    ASSERT_EQ(::chmod(encoded.constData(), 0555), 0);
    {
        const DroppedPrivileges nobody;
        start();
        defaults().setObject(kBlue, kColorKey);
        spinFor(20ms);
        EXPECT_EQ(defaults().stringForKey(kColorKey), kBlue);
        quit();
        EXPECT_FALSE(QFile::exists(filePath()));
    }
    ASSERT_EQ(::chmod(encoded.constData(), 0700), 0);
}

TEST(UserDefaultsStandardFile, IsQuillonConfInTheUsersConfiguration)
{
    EXPECT_TRUE(UserDefaults::standardFilePath().endsWith(QStringLiteral("/Quillon/Quillon.conf")))
        << qPrintable(UserDefaults::standardFilePath());
}

} // namespace
} // namespace quillon
