// SPDX-License-Identifier: MIT
// The part of LogTextView that answers mouse and keyboard.
#include "ui/caret_movement.h"
#include "ui/log_text_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
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

QString LogTextView::selectedText() const
{
    return m_selection.textIn(m_layout->text());
}

void LogTextView::setTextSelection(TextPosition start, TextPosition end)
{
    m_selection.select(start, end);
    publishSelection();
}

void LogTextView::selectAll()
{
    m_selection.selectAll(m_layout->text());
    publishSelection();
}

void LogTextView::copy()
{
    if (hasSelection()) {
        QApplication::clipboard()->setText(selectedText());
    }
}

void LogTextView::publishSelection()
{
    m_caretX.reset();
    viewport()->update();
    QClipboard* const clipboard = QApplication::clipboard();
    if (hasSelection() && !m_isSelecting && clipboard->supportsSelection()) {
        clipboard->setText(selectedText(), QClipboard::Selection);
    }
    Q_EMIT selectionChanged();
}

void LogTextView::beginSelection(const QMouseEvent& event)
{
    const QPoint place = event.position().toPoint();
    const bool isNear =
        (place - m_clicks.place).manhattanLength() <= QApplication::startDragDistance();
    const bool isSoon =
        event.timestamp() - m_clicks.time <
        static_cast<quint64>(QApplication::styleHints()->mouseDoubleClickInterval());
    m_clicks.count = isNear && isSoon ? m_clicks.count % 3 + 1 : 1;
    m_clicks.place = place;
    m_clicks.time = event.timestamp();
    m_isSelecting = true;
    const AttributedString& text = m_layout->text();
    if (m_clicks.count == 1) {
        const TextPosition position = positionAtPoint(place);
        if (event.modifiers().testFlag(Qt::ShiftModifier)) {
            m_selection.extendTo(text, position);
        } else {
            m_selection.begin(text, position);
        }
    } else {
        m_selection.begin(text, characterAtPoint(place), granularityOf(m_clicks.count));
    }
    publishSelection();
}

void LogTextView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QAbstractScrollArea::mousePressEvent(event);
        return;
    }
    beginSelection(*event);
}

void LogTextView::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void LogTextView::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_isSelecting) {
        return;
    }
    m_pointer = event->position().toPoint();
    if (viewport()->rect().contains(m_pointer)) {
        m_autoScroll.stop();
    } else if (!m_autoScroll.isActive()) {
        m_autoScroll.start(kAutoScrollInterval, this);
    }
    extendSelectionTo(positionAtPoint(m_pointer));
}

void LogTextView::extendSelectionTo(TextPosition position)
{
    m_selection.extendTo(m_layout->text(), position);
    publishSelection();
}

// While the pointer is held outside, the text moves under it, faster the farther out it is.
void LogTextView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_autoScroll.timerId()) {
        QAbstractScrollArea::timerEvent(event);
        return;
    }
    const QRect area = viewport()->rect();
    const auto outside = [](int at, int low, int high) {
        return at < low ? at - low : std::max(0, at - high);
    };
    verticalScrollBar()->setValue(verticalScrollBar()->value() +
                                  outside(m_pointer.y(), area.top(), area.bottom()));
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                    outside(m_pointer.x(), area.left(), area.right()));
    extendSelectionTo(positionAtPoint(m_pointer));
}

void LogTextView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        finishDrag();
    }
}

// Keeps what was selected until now.
void LogTextView::finishDrag()
{
    if (m_isSelecting) {
        endDrag();
        publishSelection();
    }
}

void LogTextView::endDrag()
{
    m_autoScroll.stop();
    m_isSelecting = false;
}

bool LogTextView::event(QEvent* event)
{
    // The release of the button will go to another window then, or to none.
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::Hide) {
        finishDrag();
    }
    return QAbstractScrollArea::event(event);
}

void LogTextView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
    } else if (!extendOnKey(*event) && !scrollOnKey(*event)) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

bool LogTextView::extendOnKey(const QKeyEvent& event)
{
    if (!event.modifiers().testFlag(Qt::ShiftModifier)) {
        return false;
    }
    const int pageLines = std::max(1, verticalScrollBar()->pageStep() / m_metrics->lineHeight());
    const auto caret = movedBy(event, *m_layout, {m_selection.caret(), m_caretX}, pageLines);
    if (!caret) {
        return false;
    }
    extendSelectionTo(caret->position);
    m_caretX = caret->x;
    scrollToPosition(caret->position);
    return true;
}

bool LogTextView::scrollOnKey(const QKeyEvent& event)
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
    QScrollBar* const bar =
        found->orientation == Qt::Vertical ? verticalScrollBar() : horizontalScrollBar();
    bar->triggerAction(found->action);
    return true;
}

void LogTextView::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    QAction* const copyAction = menu.addAction(tr("Copier"), this, &LogTextView::copy);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setEnabled(hasSelection());
    QAction* const selectAllAction =
        menu.addAction(tr("Tout sélectionner"), this, &LogTextView::selectAll);
    selectAllAction->setShortcut(QKeySequence::SelectAll);
    selectAllAction->setEnabled(!m_layout->text().isEmpty());
    const QPoint place = event->reason() == QContextMenuEvent::Mouse
                             ? event->globalPos()
                             : viewport()->mapToGlobal(viewport()->rect().center());
    menu.exec(place);
}

} // namespace quillon
