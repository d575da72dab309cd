// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quillon {

class BottomFade;
class LogFocusRing;
class LogHint;
class LogTextView;
class StatusOverlay;

// The log with the status laid over its bottom leading corner, beside the scroll bars, and the hint
// over all of it. The log fades away below the status, and is ringed while Tab has led to it. It
// owns them all.
class TextArea : public QWidget {
    Q_OBJECT

public:
    TextArea(LogTextView* logView, StatusOverlay* overlay, LogHint* hint,
             QWidget* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;

private:
    void placeOverlays();

    LogTextView* m_logView;
    BottomFade* m_fade;
    StatusOverlay* m_overlay;
    LogHint* m_hint;
    LogFocusRing* m_ring;
};

} // namespace quillon
