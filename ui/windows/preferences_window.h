// SPDX-License-Identifier: MIT
#pragma once

#include "ui/windows/auxiliary_window.h"
#include "ui/windows/preferences_view.h"

namespace quillon {

// The window around the preferences. Closing it hides it; it may be shown again. Its owner keeps
// it; the user defaults and the notification centre must outlive it.
class PreferencesWindow : public AuxiliaryWindow {
    Q_OBJECT

public:
    PreferencesWindow(UserDefaults& defaults, NotificationCenter& center,
                      PreferencesView::FolderChooser folderChooser = {});

public Q_SLOTS:
    // Shows the window in front and gives it the keyboard.
    void present();

private:
    explicit PreferencesWindow(PreferencesView* view);
};

} // namespace quillon
