// SPDX-License-Identifier: MIT
#pragma once

#include "platform/subscription.h"

#include <QPointer>
#include <QWidget>

#include <vector>

class QDialog;

namespace quillon {

class LogHint;
class LogTextView;
class LogViewModel;
class NotificationCenter;
class StatusOverlay;
class ToolbarRow;

// The content of the main window: the toolbar above the log, with the status text over the log's
// lower left corner. It holds no log state: controls are bound to the view model's fields, and the
// log is what the view model publishes. While it is shown it answers the open command; when it goes
// away it ends the polling for appended lines, and leaves following as it was set. The view model
// and the notification centre must outlive it.
class ContentView : public QWidget {
    Q_OBJECT

public:
    ContentView(LogViewModel& viewModel, NotificationCenter& notifications,
                QWidget* parent = nullptr);
    ~ContentView() override;

    // Lets the user choose a log to open. Ignored while the dialog is there already.
    void presentOpenPanel();

    // Shows now what is due for the next turns of the event loop.
    void showPending();

    // Gives the search field the keyboard with its text selected.
    void focusSearchField();
    // Copies what is selected, or selects everything: in the search field while it has the
    // keyboard, else in the log.
    void copy();
    void selectAll();
    // Copies the selected lines of the log as they stand in the file.
    void copyWithoutNumbers();
    // Whether copy() and copyWithoutNumbers() have something to copy.
    [[nodiscard]] bool canCopy() const;
    [[nodiscard]] bool canCopyWithoutNumbers() const;

    // Shows, or no longer shows, that files dragged over the window can be dropped.
    void setDropOffered(bool isOffered);

    // Whether the user guide stands over the window as a sheet. Nothing in the program turns it on;
    // help has a window of its own.
    [[nodiscard]] bool showHelp() const;
    void setShowHelp(bool isShown);

    [[nodiscard]] ToolbarRow& toolbar() const { return *m_toolbar; }
    [[nodiscard]] LogTextView& logView() const { return *m_logView; }
    [[nodiscard]] StatusOverlay& statusOverlay() const { return *m_overlay; }
    [[nodiscard]] LogHint& hint() const { return *m_hint; }

Q_SIGNALS:
    // canCopy() or canCopyWithoutNumbers() may give another answer now.
    void copyTargetChanged();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void observeViewModel();
    void observeCopyTarget();
    void setBusy(bool isBusy);

    LogViewModel& m_viewModel;
    NotificationCenter& m_notifications;
    ToolbarRow* m_toolbar;
    LogTextView* m_logView;
    StatusOverlay* m_overlay;
    LogHint* m_hint;
    QPointer<QDialog> m_helpSheet;
    bool m_isOpenPanelPresented = false;
    // Of the search field and the log, the one that had the keyboard last.
    bool m_isSearchFocused = false;
    Subscription m_openCommand;
    std::vector<Subscription> m_subscriptions;
};

} // namespace quillon
