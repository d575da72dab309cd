// SPDX-License-Identifier: MIT
#include "app/desktop/menus.h"
#include "tests/support/spin_until.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace quillon {
namespace {

class Menus : public ::testing::Test {
protected:
    Menus()
    {
        programWide =
            buildMenus(*window.menuBar(), [this](MenuCommand command) { ran.push_back(command); });
        window.show();
        window.activateWindow();
    }

    [[nodiscard]] QList<QAction*> items(int menu) const
    {
        return window.menuBar()->actions().at(menu)->menu()->actions();
    }

    // An item's texts in order, a separator as "—".
    [[nodiscard]] QStringList texts(int menu) const
    {
        QStringList result;
        const auto actions = items(menu);
        for (const QAction* const action : actions) {
            result.append(action->isSeparator() ? QStringLiteral("—") : action->text());
        }
        return result;
    }

    [[nodiscard]] QAction* item(const char* text) const
    {
        const auto actions = window.findChildren<QAction*>();
        for (QAction* const action : actions) {
            if (action->text() == QString::fromUtf8(text)) {
                return action;
            }
        }
        return nullptr;
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        ASSERT_TRUE(spinUntil([this] { return window.isActiveWindow(); }));
        QTest::keyClick(&window, key, modifiers);
    }

    QMainWindow window;
    QList<QAction*> programWide;
    std::vector<MenuCommand> ran;
};

TEST_F(Menus, OpeningALogIsTheFirstItemOfTheFileMenu)
{
    EXPECT_EQ(texts(0).first(), QStringLiteral("Ouvrir un log…"));
}

TEST_F(Menus, TheHelpMenuHasItsItemsInOrder)
{
    EXPECT_EQ(texts(2),
              QStringList({QStringLiteral("Aide Quillon…"), QStringLiteral("Site de support…"),
                           QStringLiteral("—"), QStringLiteral("Crédits…"),
                           QStringLiteral("À propos de Quillon")}));
}

TEST_F(Menus, TheEditMenuHasItsItemsInOrder)
{
    EXPECT_EQ(texts(1),
              QStringList({QStringLiteral("Copier"), QStringLiteral("Copier sans les numéros"),
                           QStringLiteral("Tout sélectionner"), QStringLiteral("—"),
                           QStringLiteral("Rechercher"), QStringLiteral("—"),
                           QStringLiteral("Préférences…")}));
}

TEST_F(Menus, CtrlOOpensALogExactlyOncePerPress)
{
    press(Qt::Key_O);
    EXPECT_EQ(ran, std::vector{MenuCommand::OpenLog});
    press(Qt::Key_O);
    EXPECT_EQ(ran.size(), 2U);
}

TEST_F(Menus, TheProgramsShortcutsWorkInItsOtherWindowsToo)
{
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(spinUntil([&other] { return other.isActiveWindow(); }));
    QTest::keyClick(&other, Qt::Key_O, Qt::ControlModifier);
    QTest::keyClick(&other, Qt::Key_F1);
    QTest::keyClick(&other, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(ran, (std::vector{MenuCommand::OpenLog, MenuCommand::Help, MenuCommand::Quit}));
}

TEST_F(Menus, TheProgramsShortcutsWorkInAnotherWindowAlsoWhileTheirOwnIsClosed)
{
    QWidget other;
    other.addActions(programWide);
    other.show();
    window.close();
    other.activateWindow();
    ASSERT_TRUE(spinUntil([&other] { return other.isActiveWindow(); }));
    QTest::keyClick(&other, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(ran, std::vector{MenuCommand::OpenLog});
}

// A second shortcut of the same keys in one window would make neither of them work.
TEST_F(Menus, WhatActsOnTheMainWindowItselfStaysItsOwn)
{
    for (const char* const text : {"Fermer", "Copier", "Tout sélectionner"}) {
        EXPECT_FALSE(programWide.contains(item(text))) << text;
    }
    for (const char* const text :
         {"Ouvrir un log…", "Quitter", "Rechercher", "Préférences…", "Aide Quillon…"}) {
        EXPECT_TRUE(programWide.contains(item(text))) << text;
    }
}

TEST_F(Menus, CtrlNDoesNothing)
{
    press(Qt::Key_N);
    EXPECT_TRUE(ran.empty());
    const auto actions = window.findChildren<QAction*>();
    for (const QAction* const action : actions) {
        EXPECT_FALSE(action->shortcuts().contains(QKeySequence(Qt::CTRL | Qt::Key_N)));
    }
}

TEST_F(Menus, HelpHasTheQuestionMarkAndF1)
{
    press(Qt::Key_F1, Qt::NoModifier);
    EXPECT_EQ(ran, std::vector{MenuCommand::Help});
    EXPECT_EQ(item("Aide Quillon…")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Question));
}

TEST_F(Menus, CtrlCommaOpensThePreferences)
{
    press(Qt::Key_Comma);
    EXPECT_EQ(ran, std::vector{MenuCommand::Settings});
    EXPECT_EQ(item("Préférences…")->menuRole(), QAction::PreferencesRole);
}

TEST_F(Menus, TheSupportSiteAndTheCreditsHaveNoShortcut)
{
    EXPECT_TRUE(item("Site de support…")->shortcuts().isEmpty());
    EXPECT_TRUE(item("Crédits…")->shortcuts().isEmpty());
}

TEST_F(Menus, EveryItemRunsACommandOfItsOwn)
{
    const auto actions = window.findChildren<QAction*>();
    for (QAction* const action : actions) {
        if (action->menu() == nullptr) {
            action->trigger();
        }
    }
    std::vector<MenuCommand> distinct = ran;
    std::sort(distinct.begin(), distinct.end());
    distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
    EXPECT_EQ(distinct.size(), static_cast<std::size_t>(MenuCommand::About) + 1);
    EXPECT_EQ(ran.size(), distinct.size());
}

TEST_F(Menus, TheAboutItemIsTheOneThatDesktopsKnow)
{
    EXPECT_EQ(item("À propos de Quillon")->menuRole(), QAction::AboutRole);
    EXPECT_EQ(item("Crédits…")->menuRole(), QAction::NoRole);
}

} // namespace
} // namespace quillon
