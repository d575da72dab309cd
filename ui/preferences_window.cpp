// SPDX-License-Identifier: MIT
#include "ui/preferences_window.h"

#include "ui/window_behavior.h"

#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

PreferencesWindow::PreferencesWindow(UserDefaults& defaults, NotificationCenter& center,
                                     PreferencesView::FolderChooser folderChooser)
{
    setWindowTitle(tr("Préférences"));
    setMinimumSize(560, 520);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const view = new PreferencesView(defaults, center, std::move(folderChooser));
    layout->addWidget(view);
    // High enough to show every control at once, where the screen is.
    const int available = screen() != nullptr ? screen()->availableGeometry().height() : 0;
    const int wanted = view->widget()->sizeHint().height();
    resize(minimumWidth(), std::max(minimumHeight(), std::min(wanted, available * 9 / 10)));
    addCloseShortcuts(*this);
}

void PreferencesWindow::present()
{
    bringToFront(*this);
}

} // namespace quillon
