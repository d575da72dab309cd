// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <cstdint>
#include <functional>

class QAction;
class QMenuBar;

namespace quillon {

// What can be chosen in the menu bar.
enum class MenuCommand : std::uint8_t {
    OpenLog,
    CloseWindow,
    Quit,
    Copy,
    CopyWithoutNumbers,
    SelectAll,
    Find,
    Settings,
    Help,
    SupportSite,
    Credits,
    About,
};

// Fills an empty menu bar. `run` is called for each command that the user chooses, by menu or by
// its shortcut, and must be callable as long as the menu bar exists. Gives the commands whose
// shortcuts are to work in each of the program's windows; those of a window that has them too, by
// QWidget::addActions(), work while the menu bar's own window is closed.
QList<QAction*> buildMenus(QMenuBar& menuBar, const std::function<void(MenuCommand)>& run);

// The item of a command in a menu bar that buildMenus() has filled.
QAction& menuItem(const QMenuBar& menuBar, MenuCommand command);

} // namespace quillon
