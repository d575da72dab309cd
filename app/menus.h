// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

class QMenuBar;

namespace quillon {

// What can be chosen in the menu bar.
enum class MenuCommand : std::uint8_t {
    OpenLog,
    CloseWindow,
    Quit,
    Copy,
    SelectAll,
    Find,
    Settings,
    Help,
    SupportSite,
    Credits,
    About,
};

// Fills an empty menu bar. `run` is called for each command that the user chooses, by menu or by
// its shortcut, and must be callable as long as the menu bar exists.
void buildMenus(QMenuBar& menuBar, const std::function<void(MenuCommand)>& run);

} // namespace quillon
