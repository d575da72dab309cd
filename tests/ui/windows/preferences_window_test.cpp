// SPDX-License-Identifier: MIT
#include "tests/support/spin_until.h"
#include "tests/ui/windows/preferences_fixture.h"

#include <QApplication>
#include <QGroupBox>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace preference_keys;

class PreferencesClosing : public PreferencesFixture {};

TEST_F(PreferencesClosing, RestoringPostsNoClosing)
{
    click(QStringLiteral("restoreDefaults"));
    EXPECT_EQ(closeCount, 0);
}

TEST_F(PreferencesClosing, ShowingTheWindowStoresNothing)
{
    EXPECT_EQ(changeCount, 0);
    EXPECT_EQ(closeCount, 0);
}

TEST_F(PreferencesClosing, ClosingTheWindowWithoutAnyChangePostsOnce)
{
    window->close();
    EXPECT_EQ(closeCount, 1);
    EXPECT_EQ(changeCount, 0);
}

TEST_F(PreferencesClosing, EachClosingPostsOnce)
{
    window->close();
    window->close();
    window->present();
    window->close();
    EXPECT_EQ(closeCount, 2);
}

TEST_F(PreferencesClosing, MinimisingIsNoClosing)
{
    window->showMinimized();
    QApplication::processEvents();
    EXPECT_EQ(closeCount, 0);
    window->close();
    EXPECT_EQ(closeCount, 1);
}

TEST_F(PreferencesClosing, EscapeClosesTheWindow)
{
    ASSERT_TRUE(spinUntil([this] { return window->isActiveWindow(); }));
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(closeCount, 1);
}

TEST_F(PreferencesClosing, ControlWClosesTheWindow)
{
    ASSERT_TRUE(spinUntil([this] { return window->isActiveWindow(); }));
    QTest::keyClick(window.get(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(closeCount, 1);
}

TEST_F(PreferencesClosing, TheWindowIsTitledAndCannotShrinkBelow560By520)
{
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Préférences"));
    window->resize(1, 1);
    EXPECT_EQ(window->size(), QSize(560, 520));
}

TEST_F(PreferencesClosing, AtItsSmallestNothingIsCutOffSideways)
{
    window->resize(560, 520);
    QApplication::processEvents();
    const auto& view = *window->findChild<PreferencesView*>();
    EXPECT_LE(view.widget()->minimumSizeHint().width(), view.viewport()->width());
    EXPECT_EQ(view.widget()->width(), view.viewport()->width());
    EXPECT_TRUE(view.verticalScrollBar()->isVisible());
}

TEST_F(PreferencesClosing, TheGroupsAreTitled)
{
    QStringList titles;
    for (const QGroupBox* const group : window->findChildren<QGroupBox*>()) {
        titles.append(group->title());
    }
    EXPECT_EQ(titles, QStringList({QStringLiteral("Couleurs de surlignage"),
                                   QStringLiteral("Affichage"), QStringLiteral("Dossier favori")}));
}

TEST_F(PreferencesClosing, TabGoesThroughEveryControlFromTopToBottom)
{
    window->activateWindow();
    ASSERT_TRUE(spinUntil([this] { return window->isActiveWindow(); }));
    well(kColorFatal).setFocus();
    QStringList visited;
    do {
        visited.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (visited.size() < 20 && QApplication::focusWidget() != &well(kColorFatal));
    const QStringList expected{kColorFatal,
                               kColorWarning,
                               kColorNotice,
                               kColorDeprecated,
                               kColorInfo,
                               kColorDebug,
                               kColorDate,
                               kColorArrayDump,
                               kWrapDefault,
                               kFontDefault,
                               kDefaultFolder,
                               QStringLiteral("chooseFolder"),
                               QStringLiteral("restoreDefaults")};
    EXPECT_EQ(visited, expected);
}

TEST_F(PreferencesClosing, EveryControlHasANameForScreenReaders)
{
    for (const QWidget* const widget : window->findChildren<QWidget*>()) {
        const auto* const button = qobject_cast<const QAbstractButton*>(widget);
        const bool isNamed =
            !widget->accessibleName().isEmpty() || (button != nullptr && !button->text().isEmpty());
        if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
            EXPECT_TRUE(isNamed) << widget->metaObject()->className();
        }
    }
}

TEST_F(PreferencesClosing, TheTextsOfTheControlsAreTheirOwn)
{
    EXPECT_EQ(wrapSwitch().text(), QStringLiteral("Retour à la ligne par défaut"));
    EXPECT_EQ(sizeSlider().accessibleName(), QStringLiteral("Taille de police par défaut"));
    EXPECT_EQ(folderEdit().placeholderText(), QStringLiteral("Chemin (optionnel)…"));
    EXPECT_EQ(control<QPushButton>(QStringLiteral("chooseFolder")).text(),
              QStringLiteral("Choisir…"));
    EXPECT_EQ(control<QPushButton>(QStringLiteral("restoreDefaults")).text(),
              QStringLiteral("Restaurer les valeurs par défaut"));
}

} // namespace
} // namespace quillon
