// SPDX-License-Identifier: MIT
#include "ui/log_text/log_text_input.h"

#include "ui/log_text/caret_movement.h"
#include "ui/log_text/log_text_clip.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyleHints>
#include <QTimerEvent>

#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr int kAutoScrollInterval = 50; // milliseconds

SelectionGranularity granularityOf(int clicks)
{
    switch (clicks) {
    case 1:
        return SelectionGranularity::Character;
    case 2:
        return SelectionGranularity::Word;
    default:
        return SelectionGranularity::Row;
    }
}

} // namespace

LogTextInput::LogTextInput(QAbstractScrollArea& area, const LogTextLayout& layout,
                           LogTextClip& clip)
    : m_area(area), m_layout(layout), m_clip(clip)
{
}

void LogTextInput::select(TextPosition start, TextPosition end)
{
    m_selection.select(start, end);
    publish();
}

void LogTextInput::selectAll()
{
    m_selection.selectAll(m_layout.text());
    publish();
}

void LogTextInput::reset()
{
    endDrag();
    m_selection.clear();
    m_caretX.reset();
    Q_EMIT selectionChanged();
}

void LogTextInput::publish()
{
    m_caretX.reset();
    QClipboard* const clipboard = QApplication::clipboard();
    if (!m_selection.isEmpty() && !m_isDragging && clipboard->supportsSelection()) {
        clipboard->setText(m_selection.textIn(m_layout.text()), QClipboard::Selection);
    }
    Q_EMIT selectionChanged();
}

void LogTextInput::extendTo(TextPosition position)
{
    m_selection.extendTo(m_layout.text(), position);
    publish();
}

void LogTextInput::countClick(QPoint place, quint64 time)
{
    const bool isNear =
        (place - m_clicks.place).manhattanLength() <= QApplication::startDragDistance();
    const bool isSoon =
        time - m_clicks.time <
        static_cast<quint64>(QApplication::styleHints()->mouseDoubleClickInterval());
    m_clicks = Clicks{isNear && isSoon ? m_clicks.count % 3 + 1 : 1, place, time};
}

void LogTextInput::press(const QMouseEvent& event)
{
    const QPoint place = event.position().toPoint();
    countClick(place, event.timestamp());
    m_isDragging = true;
    const AttributedString& text = m_layout.text();
    if (m_clicks.count > 1) {
        m_selection.begin(text, m_clip.characterAt(place), granularityOf(m_clicks.count));
    } else if (event.modifiers().testFlag(Qt::ShiftModifier)) {
        m_selection.extendTo(text, m_clip.positionAt(place));
    } else {
        m_selection.begin(text, m_clip.positionAt(place));
    }
    publish();
}

void LogTextInput::drag(QPoint pointer)
{
    if (!m_isDragging) {
        return;
    }
    m_pointer = pointer;
    if (m_area.viewport()->rect().contains(pointer)) {
        m_autoScroll.stop();
    } else if (!m_autoScroll.isActive()) {
        m_autoScroll.start(kAutoScrollInterval, this);
    }
    extendTo(m_clip.positionAt(pointer));
}

// While the pointer is held outside, the text moves under it, faster the farther out it is.
void LogTextInput::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_autoScroll.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    const QRect area = m_area.viewport()->rect();
    const auto outside = [](int at, int low, int high) {
        return at < low ? at - low : std::max(0, at - high);
    };
    m_clip.scrollBy(QPoint(outside(m_pointer.x(), area.left(), area.right()),
                           outside(m_pointer.y(), area.top(), area.bottom())));
    extendTo(m_clip.positionAt(m_pointer));
}

void LogTextInput::finishDrag()
{
    if (m_isDragging) {
        endDrag();
        publish();
    }
}

void LogTextInput::endDrag()
{
    m_autoScroll.stop();
    m_isDragging = false;
}

bool LogTextInput::answerKey(const QKeyEvent& event)
{
    return extendOnKey(event) || scrollOnKey(event);
}

bool LogTextInput::extendOnKey(const QKeyEvent& event)
{
    if (!event.modifiers().testFlag(Qt::ShiftModifier)) {
        return false;
    }
    const int page = m_area.verticalScrollBar()->pageStep();
    const int pageLines = std::max(1, page / m_layout.metrics().lineHeight());
    const auto caret = movedBy(event, m_layout, {m_selection.caret(), m_caretX}, pageLines);
    if (!caret) {
        return false;
    }
    extendTo(caret->position);
    m_caretX = caret->x;
    m_clip.scrollTo(caret->position);
    return true;
}

bool LogTextInput::scrollOnKey(const QKeyEvent& event)
{
    struct KeyAction {
        int key;
        Qt::Orientation orientation;
        QAbstractSlider::SliderAction action;
    };
    static constexpr std::array kActions{
        KeyAction{Qt::Key_Up, Qt::Vertical, QAbstractSlider::SliderSingleStepSub},
        KeyAction{Qt::Key_Down, Qt::Vertical, QAbstractSlider::SliderSingleStepAdd},
        KeyAction{Qt::Key_PageUp, Qt::Vertical, QAbstractSlider::SliderPageStepSub},
        KeyAction{Qt::Key_PageDown, Qt::Vertical, QAbstractSlider::SliderPageStepAdd},
        KeyAction{Qt::Key_Space, Qt::Vertical, QAbstractSlider::SliderPageStepAdd},
        KeyAction{Qt::Key_Home, Qt::Vertical, QAbstractSlider::SliderToMinimum},
        KeyAction{Qt::Key_End, Qt::Vertical, QAbstractSlider::SliderToMaximum},
        KeyAction{Qt::Key_Left, Qt::Horizontal, QAbstractSlider::SliderSingleStepSub},
        KeyAction{Qt::Key_Right, Qt::Horizontal, QAbstractSlider::SliderSingleStepAdd},
    };
    const bool isBack = event.key() == Qt::Key_Space && event.modifiers() == Qt::ShiftModifier;
    const int key = isBack ? int{Qt::Key_PageUp} : event.key();
    const auto* const found =
        std::find_if(kActions.begin(), kActions.end(),
                     [key](const KeyAction& action) { return action.key == key; });
    if (found == kActions.end()) {
        return false;
    }
    QScrollBar* const bar = found->orientation == Qt::Vertical ? m_area.verticalScrollBar()
                                                               : m_area.horizontalScrollBar();
    bar->triggerAction(found->action);
    return true;
}

} // namespace quillon
