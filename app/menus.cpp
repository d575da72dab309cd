// SPDX-License-Identifier: MIT
#include "app/menus.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyCombination>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <array>

namespace quillon {

namespace {

enum class MenuName : std::uint8_t { File, Edit, Help };

// Whether a line sets the command off from those above it.
enum class Rule : std::uint8_t { None, Above };

constexpr QKeyCombination kNoKey = QKeyCombination::fromCombined(0);

struct MenuRow {
    MenuName menu;
    MenuCommand command;
    const char* text;
    std::array<QKeyCombination, 2> keys{kNoKey, kNoKey};
    QAction::MenuRole role = QAction::NoRole;
    Rule rule = Rule::None;
};

// In the order of MenuName.
constexpr std::array kMenuTitles{
    QT_TRANSLATE_NOOP("Menus", "&Fichier"),
    QT_TRANSLATE_NOOP("Menus", "É&dition"),
    QT_TRANSLATE_NOOP("Menus", "&Aide"),
};

// The roles are for desktops that keep such items in a menu of the application's own.
constexpr std::array kMenuRows{
    MenuRow{MenuName::File,
            MenuCommand::OpenLog,
            QT_TRANSLATE_NOOP("Menus", "Ouvrir un log…"),
            {Qt::CTRL | Qt::Key_O, kNoKey}},
    MenuRow{MenuName::File,
            MenuCommand::CloseWindow,
            QT_TRANSLATE_NOOP("Menus", "Fermer"),
            {Qt::CTRL | Qt::Key_W, kNoKey},
            QAction::NoRole,
            Rule::Above},
    MenuRow{MenuName::File,
            MenuCommand::Quit,
            QT_TRANSLATE_NOOP("Menus", "Quitter"),
            {Qt::CTRL | Qt::Key_Q, kNoKey},
            QAction::QuitRole},
    MenuRow{MenuName::Edit,
            MenuCommand::Copy,
            QT_TRANSLATE_NOOP("Menus", "Copier"),
            {Qt::CTRL | Qt::Key_C, kNoKey}},
    MenuRow{MenuName::Edit,
            MenuCommand::SelectAll,
            QT_TRANSLATE_NOOP("Menus", "Tout sélectionner"),
            {Qt::CTRL | Qt::Key_A, kNoKey}},
    MenuRow{MenuName::Edit,
            MenuCommand::Find,
            QT_TRANSLATE_NOOP("Menus", "Rechercher"),
            {Qt::CTRL | Qt::Key_F, kNoKey},
            QAction::NoRole,
            Rule::Above},
    MenuRow{MenuName::Edit,
            MenuCommand::Settings,
            QT_TRANSLATE_NOOP("Menus", "Préférences…"),
            {Qt::CTRL | Qt::Key_Comma, kNoKey},
            QAction::PreferencesRole,
            Rule::Above},
    MenuRow{MenuName::Help,
            MenuCommand::Help,
            QT_TRANSLATE_NOOP("Menus", "Aide Quillon…"),
            {Qt::CTRL | Qt::Key_Question, QKeyCombination(Qt::Key_F1)}},
    MenuRow{MenuName::Help, MenuCommand::SupportSite,
            QT_TRANSLATE_NOOP("Menus", "Site de support…")},
    MenuRow{MenuName::Help,
            MenuCommand::Credits,
            QT_TRANSLATE_NOOP("Menus", "Crédits…"),
            {kNoKey, kNoKey},
            QAction::NoRole,
            Rule::Above},
    MenuRow{MenuName::Help,
            MenuCommand::About,
            QT_TRANSLATE_NOOP("Menus", "À propos de Quillon"),
            {kNoKey, kNoKey},
            QAction::AboutRole},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("Menus", text);
}

QList<QKeySequence> shortcuts(const MenuRow& row)
{
    QList<QKeySequence> sequences;
    for (const QKeyCombination keys : row.keys) {
        if (keys != kNoKey) {
            sequences.append(QKeySequence(keys));
        }
    }
    return sequences;
}

} // namespace

void buildMenus(QMenuBar& menuBar, const std::function<void(MenuCommand)>& run)
{
    std::array<QMenu*, kMenuTitles.size()> menus{};
    for (std::size_t i = 0; i < menus.size(); ++i) {
        menus[i] = menuBar.addMenu(translated(kMenuTitles[i]));
    }
    for (const MenuRow& row : kMenuRows) {
        QMenu* const menu = menus[static_cast<std::size_t>(row.menu)];
        if (row.rule == Rule::Above) {
            menu->addSeparator();
        }
        QAction* const action = menu->addAction(translated(row.text));
        action->setMenuRole(row.role);
        action->setShortcuts(shortcuts(row));
        QObject::connect(action, &QAction::triggered, &menuBar,
                         [run, command = row.command] { run(command); });
    }
}

} // namespace quillon
