// SPDX-License-Identifier: MIT
#pragma once

#include "platform/subscription.h"
#include "ui/controls/toolbar_button.h"

#include <QWidget>

#include <vector>

class QHBoxLayout;

namespace quillon {

class LogViewModel;
class ToolbarSearchField;
template <typename T>
class Published;

// The row of controls above the log. Each is bound to a field of the view model, which must outlive
// the row; opening is left to whoever has the dialog.
class ToolbarRow : public QWidget {
    Q_OBJECT

public:
    explicit ToolbarRow(LogViewModel& viewModel, QWidget* parent = nullptr);

    [[nodiscard]] ToolbarSearchField& searchField() const { return *m_searchField; }

Q_SIGNALS:
    // The open button was pressed.
    void openRequested();

private:
    void addFileControls(QHBoxLayout& row);
    void addTextSizeGroup(QHBoxLayout& row);
    void addLevelGroup(QHBoxLayout& row);
    void addSearchField(QHBoxLayout& row);
    void addClearButton(QHBoxLayout& row);
    ToolbarButton* addToggle(QHBoxLayout& row, Published<bool>& field,
                             const ToolbarButton::Content& content);

    LogViewModel& m_viewModel;
    ToolbarSearchField* m_searchField = nullptr;
    std::vector<Subscription> m_bindings;
};

} // namespace quillon
