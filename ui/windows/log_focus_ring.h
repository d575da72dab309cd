// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quillon {

class LogTextView;

// Rings the log while it has the keyboard and got it by Tab: it usually has it anyway, and a ring
// on what was clicked would only distract. It lies over the log, so that no row moves for it, and
// takes no mouse.
class LogFocusRing : public QWidget {
    Q_OBJECT

public:
    // Both must outlive it.
    LogFocusRing(LogTextView& view, QWidget* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    LogTextView& m_view;
    bool m_isTabbedInto = false;
};

} // namespace quillon
