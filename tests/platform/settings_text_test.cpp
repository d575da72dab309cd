// SPDX-License-Identifier: MIT
#include "platform/settings_text.h"
#include "platform/settings_value.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"
#include "tests/support/temporary_folder.h"

#include <QSettings>

#include <gtest/gtest.h>

namespace quillon {
namespace {

const QString kFolderKey = QStringLiteral("prefs.default.folder");

std::optional<QString> valueIn(const QByteArray& text)
{
    const auto values = SettingsText(text).values();
    return values.contains(kFolderKey) ? std::optional(values.value(kFolderKey)) : std::nullopt;
}

QByteArray afterSetting(const QByteArray& text, const QString& value)
{
    SettingsText settings(text);
    settings.set(kFolderKey, value);
    return settings.bytes();
}

// Text with what the notation must escape, quote or join.
QString awkwardText(RandomText& random)
{
    static const QString characters =
        QStringLiteral(" \"\\;,=@()#[]%abcdefx0189é日\U0001F600\n\r\t\v\a\u0001\u001F");
    QString text;
    for (int i = int(random.below(12)); i > 0; --i) {
        const auto at = qsizetype(random.below(quint32(characters.size())));
        text.append(characters[at]);
    }
    // Halves of a pair only, which QSettings cannot write.
    return QString::fromUtf8(text.toUtf8());
}

struct NotationCase {
    QByteArray notation;
    QString text;
};

TEST(SettingsValue, IsReadAsItWasWrittenByHand)
{
    const std::vector<NotationCase> cases{
        {"", QString()},
        {"plain", QStringLiteral("plain")},
        {"  white space around  ", QStringLiteral("white space around")},
        {"\"  kept  \"", QStringLiteral("  kept  ")},
        {"/logs, old", QStringLiteral("/logs, old")},
        {"a ; b = c", QStringLiteral("a ; b = c")},
        {"\"never closed", QStringLiteral("never closed")},
        {"ends in\\", QStringLiteral("ends in")},
        {"\\x41\\x0", QStringLiteral("A") + QChar(0)},
        {"\\101\\n\\q", QStringLiteral("A\nq")},
        {"caf\xC3\xA9", QStringLiteral("café")},
        {"caf\xE9", QStringLiteral("caf\uFFFD")},
        {"@@home", QStringLiteral("@home")},
        {"@home", QStringLiteral("@home")},
        {"@String(a)", QStringLiteral("a")},
        {"@ByteArray(a)", QStringLiteral("a")},
    };
    for (const NotationCase& row : cases) {
        EXPECT_EQ(settingsValue(row.notation), row.text) << row.notation.constData();
    }
}

TEST(SettingsValue, WhatIsPackedInAnotherWayIsNone)
{
    for (const char* const notation :
         {"@Invalid()", "@Rect(1 2 3 4)", "@Variant(\\0\\0\\0\\x7f)", "\"@Variant()\""}) {
        EXPECT_EQ(settingsValue(notation), std::nullopt) << notation;
    }
}

TEST(SettingsText, ReadsWhatQSettingsHasWritten)
{
    const TemporaryFolder folder;
    RandomText random(14);
    for (int i = 0; i < 200; ++i) {
        const QString name = QString::number(i);
        const QString value = awkwardText(random);
        {
            QSettings settings(folder.path(name), QSettings::IniFormat);
            settings.setValue(kFolderKey, value);
        }
        QFile file(folder.path(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(valueIn(file.readAll()), value);
    }
}

TEST(SettingsText, WritesWhatQSettingsReads)
{
    const TemporaryFolder folder;
    RandomText random(15);
    for (int i = 0; i < 200; ++i) {
        const QString name = QString::number(i);
        const QString value = awkwardText(random);
        folder.write(name, afterSetting("[General]\nother=1\n", value));
        const QSettings settings(folder.path(name), QSettings::IniFormat);
        EXPECT_EQ(settings.value(kFolderKey).toString(), value);
        EXPECT_EQ(settings.value(QStringLiteral("other")).toInt(), 1);
    }
}

// It opens a text by itself, and so it would be left out of one that begins with it.
TEST(SettingsText, AByteOrderMarkInAValueIsKept)
{
    const TemporaryFolder folder;
    const QString file = QStringLiteral("settings.conf");
    const QString value = QStringLiteral("\uFEFFa\n\uFEFFb");
    folder.write(file, afterSetting(QByteArray(), value));
    QSettings settings(folder.path(file), QSettings::IniFormat);
    EXPECT_EQ(settings.value(kFolderKey).toString(), value);
    EXPECT_EQ(valueIn(afterSetting(QByteArray(), value)), value);
}

TEST(SettingsText, ReadsWhatItWrites)
{
    RandomText random(16);
    for (int i = 0; i < 2000; ++i) {
        QString value = awkwardText(random);
        value.insert(value.size() / 2, QChar(ushort(0xD800 + random.below(0x800))));
        EXPECT_EQ(valueIn(afterSetting(QByteArray(), value)), value);
    }
}

TEST(SettingsText, OnlyTheGeneralGroupHasValues)
{
    EXPECT_EQ(valueIn("[Other]\nprefs.default.folder=a\n"), std::nullopt);
    EXPECT_EQ(valueIn("[Other]\n[ general ]\nprefs.default.folder=a\n"), QStringLiteral("a"));
    EXPECT_EQ(valueIn("\xEF\xBB\xBFprefs.default.folder=a"), QStringLiteral("a"));
    EXPECT_EQ(valueIn("[General\nprefs.default.folder=a\r"), QStringLiteral("a"));
}

TEST(SettingsText, CommentsAndOtherNotationsAreNoValues)
{
    EXPECT_TRUE(SettingsText("; a=1\n# b=2\nc\n=3\nd e=4\n\xFF\x00=5\n").values().isEmpty());
}

TEST(SettingsText, OfTwoLinesOfAKeyTheLaterCounts)
{
    EXPECT_EQ(valueIn("prefs.default.folder=a\nprefs.default.folder=b\n"), QStringLiteral("b"));
    EXPECT_EQ(valueIn("prefs.default.folder=a\nprefs.default.folder=@Invalid()\n"), std::nullopt);
}

TEST(SettingsText, SettingAValueLeavesEverythingElseAsItIs)
{
    EXPECT_EQ(afterSetting("; mine\r\n[General]\nprefs.new=@Variant(\\0)\n"
                           "prefs.default.folder=a\nz=\xFF\n\n[Other]\nprefs.default.folder=o",
                           QStringLiteral("b")),
              "; mine\r\n[General]\nprefs.new=@Variant(\\0)\n"
              "prefs.default.folder=b\nz=\xFF\n\n[Other]\nprefs.default.folder=o");
}

TEST(SettingsText, ANewValueJoinsTheGeneralGroup)
{
    const QString b = QStringLiteral("b");
    EXPECT_EQ(afterSetting("", b), "[General]\nprefs.default.folder=b\n");
    EXPECT_EQ(afterSetting("[Other]\nx=1", b), "[Other]\nx=1\n[General]\nprefs.default.folder=b\n");
    EXPECT_EQ(afterSetting("[General]\nx=1\n\n[Other]\n", b),
              "[General]\nx=1\nprefs.default.folder=b\n\n[Other]\n");
    EXPECT_EQ(afterSetting("[General]\nx=1", b), "[General]\nx=1\nprefs.default.folder=b\n");
}

TEST(SettingsText, AValueThatIsSetHasOneLine)
{
    EXPECT_EQ(afterSetting("[General]\nprefs.default.folder=a\nx=1\nprefs.default.folder=c\n",
                           QStringLiteral("b")),
              "[General]\nprefs.default.folder=b\nx=1\n");
}

TEST(SettingsText, AValueThatIsRemovedHasNoLine)
{
    SettingsText text("[General]\nprefs.default.folder=a\nx=1\nprefs.default.folder=c\n");
    text.set(kFolderKey, std::nullopt);
    EXPECT_EQ(text.bytes(), "[General]\nx=1\n");
}

} // namespace
} // namespace quillon
