// SPDX-License-Identifier: MIT
#pragma once

#include "platform/subscription.h"

#include <QList>
#include <QMainWindow>
#include <QUrl>

namespace quillon {

class ContentView;
class LogViewModel;
class NotificationCenter;

// The program's main window: frames the content, names the open file in its title, gives the view
// model its open dialog, and takes files that are dropped on it. The view model and the
// notification centre must outlive it.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow(LogViewModel& viewModel, NotificationCenter& notifications);
    ~MainWindow() override;

    [[nodiscard]] ContentView& content() const { return *m_content; }

Q_SIGNALS:
    // Files were dropped on the window; at least one, in the order of the drop.
    void filesDropped(const QList<QUrl>& urls);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    LogViewModel& m_viewModel;
    ContentView* m_content;
    Subscription m_title;
};

} // namespace quillon
