// SPDX-License-Identifier: MIT
#pragma once

#include "ui/log_text/log_text_selection.h"

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

#include <optional>

class QAbstractScrollArea;
class QKeyEvent;
class QMouseEvent;

namespace quillon {

class LogTextClip;
class LogTextLayout;

// What mouse and keyboard do to a log text: they select and scroll. It holds the selection, which
// the view paints and others read.
class LogTextInput : public QObject {
    Q_OBJECT

public:
    // `area` shows the text of `layout` through `clip`; all three must outlive this.
    LogTextInput(QAbstractScrollArea& area, const LogTextLayout& layout, LogTextClip& clip);

    [[nodiscard]] const LogTextSelection& selection() const { return m_selection; }
    // See LogTextSelection::select().
    void select(TextPosition start, TextPosition end);
    void selectAll();
    // The text is another one: nothing of it is selected, and a drag is over.
    void reset();

    // The left button went down, the pointer moved, the button went up or will not be heard of
    // again. What was selected until then stays.
    void press(const QMouseEvent& event);
    void drag(QPoint pointer);
    void finishDrag();

    // Selects or scrolls. False for a key that does neither.
    bool answerKey(const QKeyEvent& event);

Q_SIGNALS:
    // The selection or the caret, or both, have moved.
    void selectionChanged();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    // A press is one of a row of clicks: how many, where and when the last one was.
    struct Clicks {
        int count = 0;
        QPoint place;
        quint64 time = 0; // milliseconds
    };

    void countClick(QPoint place, quint64 time);
    void endDrag();
    bool extendOnKey(const QKeyEvent& event);
    bool scrollOnKey(const QKeyEvent& event);
    void extendTo(TextPosition position);
    void publish();

    QAbstractScrollArea& m_area;
    const LogTextLayout& m_layout;
    LogTextClip& m_clip;
    LogTextSelection m_selection;
    std::optional<double> m_caretX; // see Caret::x
    Clicks m_clicks;
    bool m_isDragging = false;
    QPoint m_pointer;
    QBasicTimer m_autoScroll;
};

} // namespace quillon
