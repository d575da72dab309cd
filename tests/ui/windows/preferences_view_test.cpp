// SPDX-License-Identifier: MIT
#include "tests/support/spin_until.h"
#include "tests/ui/windows/preferences_fixture.h"

#include <QSettings>
#include <QTest>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace preference_keys;

class PreferencesControls : public PreferencesFixture {};

TEST_F(PreferencesControls, TheSizeSliderCannotLeave10To24)
{
    sizeSlider().setValue(9);
    EXPECT_EQ(temporary.defaults.doubleForKey(kFontDefault), 10.0);
    EXPECT_EQ(sizeText(), QStringLiteral("10 pt"));
    sizeSlider().setValue(25);
    EXPECT_EQ(temporary.defaults.doubleForKey(kFontDefault), 24.0);
    EXPECT_EQ(sizeText(), QStringLiteral("24 pt"));
}

TEST_F(PreferencesControls, TheSizeSliderMovesInWholePoints)
{
    QTest::keyClick(&sizeSlider(), Qt::Key_Right);
    EXPECT_EQ(temporary.defaults.doubleForKey(kFontDefault), 14.0);
    QTest::keyClick(&sizeSlider(), Qt::Key_Left);
    QTest::keyClick(&sizeSlider(), Qt::Key_Left);
    EXPECT_EQ(temporary.defaults.doubleForKey(kFontDefault), 12.0);
    EXPECT_EQ(sizeText(), QStringLiteral("12 pt"));
}

TEST_F(PreferencesControls, TheSizeTextIsTheStoredValueTruncated)
{
    temporary.defaults.setObject(16.9, kFontDefault);
    EXPECT_EQ(sizeText(), QStringLiteral("16 pt"));
    EXPECT_EQ(temporary.defaults.doubleForKey(kFontDefault), 16.9);
}

TEST_F(PreferencesControls, AStoredSizeOutsideTheRangeIsShownAndNotRewritten)
{
    temporary.defaults.setObject(1e12, kFontDefault);
    EXPECT_EQ(sizeText(), QStringLiteral("1000000000000 pt"));
    EXPECT_EQ(sizeSlider().value(), 24);
    EXPECT_EQ(temporary.defaults.doubleForKey(kFontDefault), 1e12);
}

TEST_F(PreferencesControls, TheSwitchStoresTheWrapDefaultAtOnce)
{
    EXPECT_TRUE(wrapSwitch().isChecked());
    wrapSwitch().click();
    EXPECT_FALSE(temporary.defaults.boolForKey(kWrapDefault));
    wrapSwitch().click();
    EXPECT_TRUE(temporary.defaults.boolForKey(kWrapDefault));
}

TEST_F(PreferencesControls, AFolderIsStoredAsTyped)
{
    QTest::keyClicks(&folderEdit(), QStringLiteral(" ~/no such folder, \\\"%20 "));
    EXPECT_EQ(stored(kDefaultFolder), QStringLiteral(" ~/no such folder, \\\"%20 "));
}

TEST_F(PreferencesControls, TypingInTheMiddleOfTheFolderKeepsTheCaretThere)
{
    folderEdit().setFocus();
    QTest::keyClicks(&folderEdit(), QStringLiteral("/var/log"));
    folderEdit().setCursorPosition(4);
    QTest::keyClicks(&folderEdit(), QStringLiteral("xy"));
    EXPECT_EQ(stored(kDefaultFolder), QStringLiteral("/varxy/log"));
    EXPECT_EQ(folderEdit().cursorPosition(), 6);
}

TEST_F(PreferencesControls, ChoosingAFolderStoresItsPath)
{
    chosenFolder = QStringLiteral("/srv/www");
    click(QStringLiteral("chooseFolder"));
    EXPECT_EQ(chooserTitle, QStringLiteral("Choisir un dossier par défaut"));
    EXPECT_EQ(stored(kDefaultFolder), QStringLiteral("/srv/www"));
    EXPECT_EQ(folderEdit().text(), QStringLiteral("/srv/www"));
}

TEST_F(PreferencesControls, CancellingTheFolderChooserChangesNothing)
{
    temporary.defaults.setObject(QStringLiteral("/kept"), kDefaultFolder);
    const int before = changeCount;
    chosenFolder = std::nullopt;
    click(QStringLiteral("chooseFolder"));
    EXPECT_EQ(stored(kDefaultFolder), QStringLiteral("/kept"));
    EXPECT_EQ(changeCount, before);
}

TEST_F(PreferencesControls, RestoringResetsEveryKeyAndTheControlsAtOnce)
{
    for (const auto& [key, value] : defaultPreferences()) {
        temporary.defaults.setObject(QStringLiteral("0"), key);
    }
    click(QStringLiteral("restoreDefaults"));
    for (const auto& [key, value] : defaultPreferences()) {
        EXPECT_EQ(temporary.defaults.objectForKey(key), value) << qUtf8Printable(key);
    }
    EXPECT_TRUE(wrapSwitch().isChecked());
    EXPECT_EQ(sizeSlider().value(), 13);
    EXPECT_EQ(sizeText(), QStringLiteral("13 pt"));
    EXPECT_EQ(folderEdit().text(), QString());
    EXPECT_EQ(well(kColorFatal).color(), QColor(0xFF, 0x3B, 0x30));
    EXPECT_EQ(well(kColorArrayDump).color(), QColor(0xBF, 0x5A, 0xF2));
}

TEST_F(PreferencesControls, RestoredValuesAreStoredExplicitly)
{
    click(QStringLiteral("restoreDefaults"));
    temporary.defaults.registerDefaults({{kColorFatal, QStringLiteral("#000001")}});
    EXPECT_EQ(stored(kColorFatal), QStringLiteral("#FF3B30"));
}

TEST_F(PreferencesControls, AChangeFromElsewhereShowsInEveryControl)
{
    temporary.defaults.setObject(QStringLiteral("#00FF00"), kColorDate);
    temporary.defaults.setObject(false, kWrapDefault);
    temporary.defaults.setObject(20.0, kFontDefault);
    temporary.defaults.setObject(QStringLiteral("/elsewhere"), kDefaultFolder);
    EXPECT_EQ(well(kColorDate).color(), QColor(0, 255, 0));
    EXPECT_FALSE(wrapSwitch().isChecked());
    EXPECT_EQ(sizeSlider().value(), 20);
    EXPECT_EQ(folderEdit().text(), QStringLiteral("/elsewhere"));
    EXPECT_EQ(changeCount, 4);
}

TEST_F(PreferencesControls, AChangeOfTheSettingsFileShowsInTheControls)
{
    const QString path = temporary.folder.path(TemporaryDefaults::kFileName);
    QSettings outside(path, QSettings::IniFormat);
    outside.setValue(kFontDefault, 18);
    outside.sync();
    EXPECT_TRUE(spinUntil([this] { return sizeText() == QStringLiteral("18 pt"); }));
    EXPECT_EQ(sizeSlider().value(), 18);
}

TEST_F(PreferencesControls, StoringTheCurrentValueAgainNotifiesNobody)
{
    temporary.defaults.setObject(QStringLiteral("1"), kWrapDefault);
    const int before = changeCount;
    DefaultsField<bool>(temporary.defaults, kWrapDefault).setValue(true);
    DefaultsField<double>(temporary.defaults, kFontDefault).setValue(13.0);
    Q_EMIT well(kColorFatal).colorPicked(QColor(0xFF, 0x3B, 0x30));
    EXPECT_EQ(changeCount, before);
}

} // namespace
} // namespace quillon
