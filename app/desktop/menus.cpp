// SPDX-License-Identifier: MIT
#include "app/desktop/menus.h"

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
enum class Separator : std::uint8_t { None, Above };

constexpr QKeyCombination kNoKey = QKeyCombination::fromCombined(0);

struct MenuRow {
    MenuName menu;
    MenuCommand command;
    const char* text;
    std::array<QKeyCombination, 2> keys{kNoKey, kNoKey};
    QAction::MenuRole role = QAction::NoRole;
    Separator separator = Separator::None;
    // The other windows have such keys of their own where it is that of the window.
    Qt::ShortcutContext context = Qt::ApplicationShortcut;
};

// In the order of MenuName.
constexpr std::array kMenuTitles{
    QT_TRANSLATE_NOOP("Menus", "&Fichier"),
    QT_TRANSLATE_NOOP("Menus", "É&dition"),
    QT_TRANSLATE_NOOP("Menus", "&Aide"),
};

// The roles are for desktops that keep such items in a menu of the application's own.
constexpr std::array kMenuRows{
    MenuRow{.menu = MenuName::File,
            .command = MenuCommand::OpenLog,
            .text = QT_TRANSLATE_NOOP("Menus", "Ouvrir un log…"),
            .keys = {Qt::CTRL | Qt::Key_O, kNoKey}},
    MenuRow{.menu = MenuName::File,
            .command = MenuCommand::CloseWindow,
            .text = QT_TRANSLATE_NOOP("Menus", "Fermer"),
            .keys = {Qt::CTRL | Qt::Key_W, kNoKey},
            .separator = Separator::Above,
            .context = Qt::WindowShortcut},
    MenuRow{.menu = MenuName::File,
            .command = MenuCommand::Quit,
            .text = QT_TRANSLATE_NOOP("Menus", "Quitter"),
            .keys = {Qt::CTRL | Qt::Key_Q, kNoKey},
            .role = QAction::QuitRole},
    MenuRow{.menu = MenuName::Edit,
            .command = MenuCommand::Copy,
            .text = QT_TRANSLATE_NOOP("Menus", "Copier"),
            .keys = {Qt::CTRL | Qt::Key_C, kNoKey},
            .context = Qt::WindowShortcut},
    MenuRow{.menu = MenuName::Edit,
            .command = MenuCommand::CopyWithoutNumbers,
            .text = QT_TRANSLATE_NOOP("Menus", "Copier sans les numéros"),
            .keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_C, kNoKey},
            .context = Qt::WindowShortcut},
    MenuRow{.menu = MenuName::Edit,
            .command = MenuCommand::SelectAll,
            .text = QT_TRANSLATE_NOOP("Menus", "Tout sélectionner"),
            .keys = {Qt::CTRL | Qt::Key_A, kNoKey},
            .context = Qt::WindowShortcut},
    MenuRow{.menu = MenuName::Edit,
            .command = MenuCommand::Find,
            .text = QT_TRANSLATE_NOOP("Menus", "Rechercher"),
            .keys = {Qt::CTRL | Qt::Key_F, kNoKey},
            .separator = Separator::Above},
    MenuRow{.menu = MenuName::Edit,
            .command = MenuCommand::Settings,
            .text = QT_TRANSLATE_NOOP("Menus", "Préférences…"),
            .keys = {Qt::CTRL | Qt::Key_Comma, kNoKey},
            .role = QAction::PreferencesRole,
            .separator = Separator::Above},
    MenuRow{.menu = MenuName::Help,
            .command = MenuCommand::Help,
            .text = QT_TRANSLATE_NOOP("Menus", "Aide Quillon…"),
            .keys = {Qt::CTRL | Qt::Key_Question, QKeyCombination(Qt::Key_F1)}},
    MenuRow{.menu = MenuName::Help,
            .command = MenuCommand::SupportSite,
            .text = QT_TRANSLATE_NOOP("Menus", "Site de support…")},
    MenuRow{.menu = MenuName::Help,
            .command = MenuCommand::Credits,
            .text = QT_TRANSLATE_NOOP("Menus", "Crédits…"),
            .separator = Separator::Above},
    MenuRow{.menu = MenuName::Help,
            .command = MenuCommand::About,
            .text = QT_TRANSLATE_NOOP("Menus", "À propos de Quillon"),
            .role = QAction::AboutRole},
};

struct Menus {
    Q_DECLARE_TR_FUNCTIONS(Menus)
};

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

QString itemName(MenuCommand command)
{
    return QStringLiteral("command%1").arg(static_cast<int>(command));
}

} // namespace

QList<QAction*> buildMenus(QMenuBar& menuBar, const std::function<void(MenuCommand)>& run)
{
    std::array<QMenu*, kMenuTitles.size()> menus{};
    for (std::size_t i = 0; i < menus.size(); ++i) {
        menus[i] = menuBar.addMenu(Menus::tr(kMenuTitles[i]));
    }
    QList<QAction*> programWide;
    for (const MenuRow& row : kMenuRows) {
        QMenu* const menu = menus[static_cast<std::size_t>(row.menu)];
        if (row.separator == Separator::Above) {
            menu->addSeparator();
        }
        QAction* const action = menu->addAction(Menus::tr(row.text));
        action->setObjectName(itemName(row.command));
        action->setMenuRole(row.role);
        action->setShortcuts(shortcuts(row));
        action->setShortcutContext(row.context);
        if (row.context == Qt::ApplicationShortcut) {
            programWide.append(action);
        }
        QObject::connect(action, &QAction::triggered, &menuBar,
                         [run, command = row.command] { run(command); });
    }
    return programWide;
}

QAction& menuItem(const QMenuBar& menuBar, MenuCommand command)
{
    auto* const item = menuBar.findChild<QAction*>(itemName(command));
    Q_ASSERT(item != nullptr);
    return *item;
}

} // namespace quillon
