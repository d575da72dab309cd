// SPDX-License-Identifier: MIT
#pragma once

#include "platform/debouncer.h"
#include "platform/subscription.h"
#include "ui/controls/text_label.h"

#include <QWidget>

#include <vector>

namespace quillon {

class LogViewModel;

// One small dimmed line of text that is cut on one side, with an ellipsis, where it does not fit.
// text() is always the whole text, which is what screen readers get.
class ElidedLabel : public TextLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(Qt::TextElideMode elideMode, QWidget* parent = nullptr);

    // What shows of the text at the present width.
    [[nodiscard]] QString displayedText() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Qt::TextElideMode m_elideMode;
};

// The status text and, once there is one, the open file's path, over whatever is below. The path
// gives way first, from its head, so that the file name stays in sight. The mouse goes through to
// what is below. To screen readers it is a status bar, named after the status once that has stayed
// the same for 400 ms, so that they tell of it when they have said what else there is to say;
// while a search goes on it is named after that. The view model must outlive it.
class StatusOverlay : public QWidget {
    Q_OBJECT

public:
    explicit StatusOverlay(LogViewModel& viewModel, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    [[nodiscard]] const ElidedLabel& statusLabel() const { return *m_status; }
    // Hidden while there is no path.
    [[nodiscard]] const ElidedLabel& pathLabel() const { return *m_path; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeLabels();
    void announce();

    ElidedLabel* m_status;
    ElidedLabel* m_path;
    bool m_isSearching = false;
    Debouncer m_announcement;
    std::vector<Subscription> m_bindings;
};

} // namespace quillon
