// SPDX-License-Identifier: MIT
#include "ui/windows/window_behavior.h"

#include <QKeySequence>
#include <QShortcut>
#include <QWidget>

namespace quillon {

void bringToFront(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

void addCloseShortcuts(QWidget& window)
{
    for (const QKeySequence& keys :
         {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W)}) {
        auto* const shortcut = new QShortcut(keys, &window);
        QObject::connect(shortcut, &QShortcut::activated, &window, &QWidget::close);
    }
}

} // namespace quillon
