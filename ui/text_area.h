// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quillon {

class LogTextView;
class StatusOverlay;

// The log with the status laid over its bottom leading corner, beside the scroll bars. It owns
// both.
class TextArea : public QWidget {
    Q_OBJECT

public:
    TextArea(LogTextView* logView, StatusOverlay* overlay, QWidget* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void placeOverlay();

    LogTextView* m_logView;
    StatusOverlay* m_overlay;
};

} // namespace quillon
