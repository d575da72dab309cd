// SPDX-License-Identifier: MIT
#include "tests/support/spin_until.h"
#include "tests/ui/windows/preferences_fixture.h"
#include "ui/controls/style.h"
#include "ui/theme/theme.h"

#include <QApplication>
#include <QColorDialog>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace preference_keys;

class PreferencesColors : public PreferencesFixture {};

TEST_F(PreferencesColors, PickingAColourInTheFatalErrorRowChangesTheFatalColourOnly)
{
    Q_EMIT well(kColorFatal).colorPicked(QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(stored(kColorFatal), QStringLiteral("#123456"));
    EXPECT_EQ(stored(kColorError), QStringLiteral("#FF3B30"));
}

TEST_F(PreferencesColors, TheErrorColourHasNoRow)
{
    EXPECT_EQ(window->findChild<ColorWell*>(QString(kColorError)), nullptr);
    EXPECT_EQ(window->findChildren<ColorWell*>().size(), 8);
}

TEST_F(PreferencesColors, EachColourRowHasItsLabelAndKey)
{
    const QList<std::pair<QLatin1StringView, QString>> rows{
        {kColorFatal, QStringLiteral("Fatal / Error")},
        {kColorWarning, QStringLiteral("Warning (PHP Warning)")},
        {kColorNotice, QStringLiteral("Notice (PHP Notice)")},
        {kColorDeprecated, QStringLiteral("Deprecated")},
        {kColorInfo, QStringLiteral("Info")},
        {kColorDebug, QStringLiteral("Debug")},
        {kColorDate, QStringLiteral("Horodatage (date/heure)")},
        {kColorArrayDump, QStringLiteral("Dump (array / var_dump)")},
    };
    const auto wells = window->findChildren<ColorWell*>();
    ASSERT_EQ(wells.size(), rows.size());
    for (qsizetype i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(wells[i]->objectName(), QString(rows[i].first));
        EXPECT_EQ(wells[i]->accessibleName(), rows[i].second);
    }
}

TEST_F(PreferencesColors, EachColourRowStoresUnderItsOwnKey)
{
    for (ColorWell* const colorWell : window->findChildren<ColorWell*>()) {
        const int before = changeCount;
        Q_EMIT colorWell->colorPicked(QColor(1, 2, 3));
        EXPECT_EQ(stored(colorWell->objectName()), QStringLiteral("#010203"));
        EXPECT_EQ(changeCount, before + 1);
    }
}

TEST_F(PreferencesColors, AColourPickedWithPartialOpacityIsStoredWithoutAlpha)
{
    Q_EMIT well(kColorInfo).colorPicked(QColor(0x11, 0x22, 0x33, 0x80));
    EXPECT_EQ(stored(kColorInfo), QStringLiteral("#112233"));
}

TEST_F(PreferencesColors, ReopeningTheWindowShowsAPickedColourFullyOpaque)
{
    Q_EMIT well(kColorInfo).colorPicked(QColor(0x11, 0x22, 0x33, 0x80));
    window->close();
    window->show();
    EXPECT_EQ(well(kColorInfo).color(), QColor(0x11, 0x22, 0x33));
}

TEST_F(PreferencesColors, AHandWrittenAlphaIsLostOnceTheColourIsPickedAgain)
{
    temporary.defaults.setObject(QStringLiteral("#FF3B3080"), kColorFatal);
    EXPECT_EQ(well(kColorFatal).color().alpha(), 0x80);
    Q_EMIT well(kColorFatal).colorPicked(well(kColorFatal).color());
    EXPECT_EQ(stored(kColorFatal), QStringLiteral("#FF3B30"));
    EXPECT_EQ(well(kColorFatal).color().alpha(), 0xFF);
}

TEST_F(PreferencesColors, TheColourPanelOffersAnOpacityAndAppliesEachChoiceAtOnce)
{
    well(kColorNotice).click();
    QColorDialog* const panel = well(kColorNotice).panel();
    ASSERT_NE(panel, nullptr);
    EXPECT_FALSE(panel->isModal());
    EXPECT_TRUE(panel->testOption(QColorDialog::ShowAlphaChannel));
    panel->setCurrentColor(QColor(0x0A, 0x0B, 0x0C, 0x40));
    EXPECT_EQ(stored(kColorNotice), QStringLiteral("#0A0B0C"));
    EXPECT_EQ(well(kColorNotice).color(), QColor(0x0A, 0x0B, 0x0C));
}

TEST_F(PreferencesColors, OpeningTheColourPanelStoresNothing)
{
    temporary.defaults.setObject(QStringLiteral("orange"), kColorWarning);
    const int before = changeCount;
    well(kColorWarning).click();
    EXPECT_EQ(changeCount, before);
    EXPECT_EQ(stored(kColorWarning), QStringLiteral("orange"));
}

TEST_F(PreferencesColors, OpeningOneColourPanelClosesTheOther)
{
    well(kColorNotice).click();
    well(kColorInfo).click();
    EXPECT_TRUE(spinUntil([this] { return well(kColorNotice).panel() == nullptr; }));
    EXPECT_NE(well(kColorInfo).panel(), nullptr);
}

TEST_F(PreferencesColors, ClosingTheWindowClosesTheColourPanel)
{
    well(kColorNotice).click();
    window->close();
    EXPECT_TRUE(spinUntil([this] { return well(kColorNotice).panel() == nullptr; }));
}

TEST_F(PreferencesColors, AnOpenColourPanelFollowsTheStoredColour)
{
    well(kColorNotice).click();
    temporary.defaults.setObject(QStringLiteral("#445566"), kColorNotice);
    EXPECT_EQ(well(kColorNotice).panel()->currentColor().name(), QStringLiteral("#445566"));
    EXPECT_EQ(stored(kColorNotice), QStringLiteral("#445566"));
}

TEST_F(PreferencesColors, AColourStringThatDoesNotParseShowsTheLabelColourAndIsNotRewritten)
{
    temporary.defaults.setObject(QStringLiteral("orange"), kColorWarning);
    EXPECT_EQ(well(kColorWarning).color(),
              resolvedColor(Color::system(SystemColor::Label), window->palette()));
    window->close();
    EXPECT_EQ(stored(kColorWarning), QStringLiteral("orange"));
}

TEST_F(PreferencesColors, TheLabelColourOfAnUnparsableStringFollowsTheAppearance)
{
    applyAppearance(*qApp, Appearance::Light);
    temporary.defaults.setObject(QStringLiteral("orange"), kColorWarning);
    const QColor light = well(kColorWarning).color();
    applyAppearance(*qApp, Appearance::Dark);
    EXPECT_TRUE(spinUntil(
        [this, &light] { return well(kColorWarning).color().lightness() > light.lightness(); }));
    applyAppearance(*qApp, Appearance::Light);
}

} // namespace
} // namespace quillon
