// SPDX-License-Identifier: MIT
#pragma once

#include "ui/preferences_view.h"

#include <QWidget>

namespace quillon {

// The window around the preferences. Closing it hides it; it may be shown again. Its owner keeps
// it; the user defaults and the notification centre must outlive it.
class PreferencesWindow : public QWidget {
    Q_OBJECT

public:
    PreferencesWindow(UserDefaults& defaults, NotificationCenter& center,
                      PreferencesView::FolderChooser folderChooser = {});

public Q_SLOTS:
    // Shows the window in front and gives it the keyboard.
    void present();
};

} // namespace quillon
