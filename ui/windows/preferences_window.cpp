// SPDX-License-Identifier: MIT
#include "ui/windows/preferences_window.h"

#include "ui/windows/window_behavior.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr QSize kMinimumWindowSize(560, 520);

} // namespace

PreferencesWindow::PreferencesWindow(UserDefaults& defaults, NotificationCenter& center,
                                     PreferencesView::FolderChooser folderChooser)
    : PreferencesWindow(new PreferencesView(defaults, center, std::move(folderChooser)))
{
}

// High enough to show every control at once, where the screen is.
PreferencesWindow::PreferencesWindow(PreferencesView* view)
    : AuxiliaryWindow(tr("Préférences"), view, kMinimumWindowSize)
{
    const int wanted = std::max(minimumHeight(), view->widget()->sizeHint().height());
    resize(minimumWidth(), std::min(wanted, room().height()));
}

void PreferencesWindow::present()
{
    bringToFront(*this);
}

} // namespace quillon
