// SPDX-License-Identifier: MIT
#pragma once

#include "platform/subscription.h"
#include "ui/windows/window_placement.h"

#include <QList>
#include <QMainWindow>
#include <QUrl>

namespace quillon {

class ContentView;
class LogViewModel;
class NotificationCenter;

// The program's main window: frames the content, names the open file in its title, gives the view
// model its open dialog, and takes files that are dropped on it. It never opens larger than its
// screen has room for, at the place and in the size that it was closed with. The view model and the
// notification centre must outlive it.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // `stateFile` remembers the window's placement (see windowStateFile()); an empty path
    // remembers nothing.
    MainWindow(LogViewModel& viewModel, NotificationCenter& notifications,
               const QString& stateFile = QString());
    ~MainWindow() override;

    [[nodiscard]] ContentView& content() const { return *m_content; }

Q_SIGNALS:
    // Files were dropped on the window; at least one, in the order of the drop.
    void filesDropped(const QList<QUrl>& urls);

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void restorePlacement();
    void noteNormalPlacement();

    LogViewModel& m_viewModel;
    ContentView* m_content;
    const QString m_stateFile;
    // While the window is neither maximised nor minimised, or was last.
    WindowPlacement m_normal;
    Subscription m_title;
};

} // namespace quillon
