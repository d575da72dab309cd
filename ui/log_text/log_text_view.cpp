// SPDX-License-Identifier: MIT
#include "ui/log_text/log_text_view.h"

#include "ui/layout/hit_testing.h"
#include "ui/log_text/log_text_painter.h"
#include "ui/theme/theme.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace quillon {

namespace {

// Points; beyond these there is nothing to read, and fonts stop working.
constexpr double kMinimumFontSize = 1.0;
constexpr double kMaximumFontSize = 500.0;

} // namespace

LogTextView::LogTextView(const LogTextContent& content, QWidget* parent)
    : QAbstractScrollArea(parent), m_content(content)
{
    connect(&m_input, &LogTextInput::selectionChanged, this, [this] {
        viewport()->update();
        Q_EMIT selectionChanged();
    });
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    // The whole viewport is painted, background included.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    updateMetrics();
    m_layout.layOut(AttributedString(), m_metrics, std::nullopt);
    // Nobody has given the view a width yet; what Qt says meanwhile is a mere placeholder.
    m_geometry.applyWrapping(content.isWrapped, 0.0);
    scheduleReplacement();
    // By then the view has been placed in its window and its clip has its real width.
    QMetaObject::invokeMethod(this, &LogTextView::fitToArea, Qt::QueuedConnection);
}

LogTextView::~LogTextView() = default;

void LogTextView::setBusy(bool isBusy)
{
    m_isBusy = isBusy;
    QAccessible::State changed;
    changed.busy = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void LogTextView::update(const LogTextContent& content)
{
    m_content = content;
    // First: a scroll bar that goes away asks for a painting, which would be one of the old text.
    scheduleReplacement();
    setHorizontalScrollBarPolicy(content.isWrapped ? Qt::ScrollBarAlwaysOff
                                                   : Qt::ScrollBarAsNeeded);
    // Only now: that scroll bar has just changed the clip.
    m_geometry.applyWrapping(content.isWrapped, viewport()->width());
}

void LogTextView::scheduleReplacement()
{
    if (!std::exchange(m_isReplacementDue, true)) {
        QMetaObject::invokeMethod(this, &LogTextView::replaceText, Qt::QueuedConnection);
    }
}

void LogTextView::replaceText()
{
    m_isReplacementDue = false;
    const AttributedString former = m_layout.text();
    const bool isExtension = m_content.attributedText.isExtensionOf(former);
    const bool isOther = layOutText(m_content.attributedText);
    // Rows that are still there stay selected: a log that is written to twice a second could not
    // be copied from otherwise.
    if (!isExtension) {
        horizontalScrollBar()->setValue(0);
        m_input.reset();
    }
    scrollToEndOfDocument();
    // Most fields that change leave the log as it is: then there is nothing to paint.
    if (isOther) {
        viewport()->update();
        Q_EMIT textReplaced(former);
    }
}

void LogTextView::updateMetrics()
{
    // Settings may hold any number, also none.
    const double fontSize =
        std::isnan(m_content.fontSize)
            ? LogTextContent().fontSize
            : std::clamp(m_content.fontSize, kMinimumFontSize, kMaximumFontSize);
    m_metrics = m_metricsCache.atSize(fontSize);
}

bool LogTextView::layOutText(const AttributedString& text)
{
    updateMetrics();
    m_area = maximumViewportSize();
    const ScrollRoom room = scrollRoom();
    // Where the rows alone, unbroken, are too many for the area, a scroll bar is sure to stand
    // beside them: lines are broken once, at the width that it leaves.
    ScrollBars bars = neededScrollBars(QSizeF(0, heightOf(text.rows().size() + 1)), room);
    bool isOther = layOutIn(room.clipBeside(bars), text);
    const TextFrame& frame = m_geometry.frame();
    bars = neededScrollBars(QSizeF(isWrapped() ? 0 : frame.width, frame.height), room);
    isOther |= layOutIn(room.clipBeside(bars), text);
    updateScrollBars(room.clipBeside(bars));
    if (isOther) {
        Q_EMIT laidOut();
    }
    return isOther;
}

ScrollRoom LogTextView::scrollRoom() const
{
    // Such bars stand on top of the text.
    if (style()->styleHint(QStyle::SH_ScrollBar_Transient, nullptr, this) != 0) {
        return ScrollRoom{m_area};
    }
    return ScrollRoom{m_area, static_cast<double>(verticalScrollBar()->sizeHint().width()),
                      static_cast<double>(horizontalScrollBar()->sizeHint().height())};
}

double LogTextView::heightOf(qint64 lines) const
{
    return static_cast<double>(lines) * m_metrics->lineHeight() + 2 * kTextInsetHeight;
}

bool LogTextView::layOutIn(QSizeF clip, const AttributedString& text)
{
    m_geometry.applyWrapping(m_content.isWrapped, clip.width());
    std::optional<Fixed> lineWidth;
    if (m_content.isWrapped) {
        // A whole number of columns, and half a column that rounding may not take away.
        const Fixed column = m_metrics->columnAdvance();
        const Fixed room = toFixed(m_geometry.lineWidth());
        lineWidth = std::max<Fixed>(1, room / column) * column + column / 2;
    }
    const bool isOther = m_layout.layOut(text, m_metrics, lineWidth);
    const double margins = 2 * textOrigin().x();
    m_geometry.setContentSize(toPoints(m_layout.width()) + margins, heightOf(m_layout.lineCount()));
    return isOther;
}

// A bar that has a range shows itself, one that has none hides: what was decided is what comes.
void LogTextView::updateScrollBars(QSizeF clip)
{
    const auto hidden = [](double content, double shown) {
        const double points =
            std::min<double>(std::ceil(content - shown), std::numeric_limits<int>::max());
        return std::max(0, static_cast<int>(points));
    };
    const int height = static_cast<int>(clip.height());
    QScrollBar* const vertical = verticalScrollBar();
    vertical->setSingleStep(m_metrics->lineHeight());
    vertical->setPageStep(std::max(1, height - m_metrics->lineHeight()));
    vertical->setRange(0, hidden(m_geometry.frame().height, clip.height()));
    QScrollBar* const horizontal = horizontalScrollBar();
    horizontal->setSingleStep(static_cast<int>(4 * m_metrics->columnAdvance() / kFixedOne));
    horizontal->setPageStep(static_cast<int>(clip.width()));
    horizontal->setRange(0, isWrapped() ? 0 : hidden(m_geometry.frame().width, clip.width()));
}

void LogTextView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    const QRect clip = event->rect();
    painter.fillRect(clip, resolvedColor(Color::system(SystemColor::TextBackground), palette()));
    painter.setClipRect(clip);
    LogTextPainter text(painter, m_layout, palette(), m_clip.offset());
    if (!text.paint(clip, textSelection())) {
        QTimer::singleShot(0, viewport(), [this] { viewport()->update(); });
    }
}

void LogTextView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    // A scroll bar that comes or goes resizes the clip, too, but for that the text has been laid
    // out already.
    if (maximumViewportSize() != m_area) {
        fitToArea();
    }
}

void LogTextView::fitToArea()
{
    const bool wasAtEnd = m_clip.isAtEnd();
    const double formerWidth = m_geometry.container().width;
    const TextPosition top = positionAtPoint(QPoint(0, 0));
    const double hidden = m_clip.offset().y() - boxAt(m_layout, top).top();
    layOutText(m_layout.text());
    // What was read stays in sight although lines are broken elsewhere now.
    if (wasAtEnd) {
        scrollToEndOfDocument();
    } else if (m_geometry.container().width != formerWidth) {
        verticalScrollBar()->setValue(static_cast<int>(boxAt(m_layout, top).top() + hidden));
    }
    viewport()->update();
}

QString LogTextView::selectedText() const
{
    return textSelection().textIn(m_layout.text());
}

void LogTextView::setTextSelection(TextPosition start, TextPosition end)
{
    m_input.select(start, end);
}

void LogTextView::selectAll()
{
    m_input.selectAll();
}

void LogTextView::copy()
{
    if (hasSelection()) {
        QApplication::clipboard()->setText(selectedText());
    }
}

void LogTextView::copyWithoutNumbers()
{
    if (hasSelection()) {
        QApplication::clipboard()->setText(textSelection().linesIn(m_layout.text()));
    }
}

QKeySequence LogTextView::copyWithoutNumbersKeys()
{
    return {Qt::CTRL | Qt::SHIFT | Qt::Key_C};
}

bool LogTextView::event(QEvent* event)
{
    // The release of the button will go to another window then, or to none.
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::Hide) {
        m_input.finishDrag();
    }
    const bool isAnswered = QAbstractScrollArea::event(event);
    // Its scroll bars may be of another width.
    if (event->type() == QEvent::StyleChange) {
        fitToArea();
    }
    return isAnswered;
}

void LogTextView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_input.press(*event);
    } else {
        QAbstractScrollArea::mousePressEvent(event);
    }
}

void LogTextView::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void LogTextView::mouseMoveEvent(QMouseEvent* event)
{
    m_input.drag(event->position().toPoint());
}

void LogTextView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_input.finishDrag();
    }
}

void LogTextView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (QKeySequence(event->keyCombination()) == copyWithoutNumbersKeys()) {
        copyWithoutNumbers();
    } else if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
    } else if (!m_input.answerKey(*event)) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void LogTextView::contextMenuEvent(QContextMenuEvent* event)
{
    struct Entry {
        QString text;
        QKeySequence keys;
        void (LogTextView::*slot)();
        bool isEnabled;
    };
    QMenu menu(this);
    for (const Entry& entry :
         {Entry{tr("Copier"), QKeySequence::Copy, &LogTextView::copy, hasSelection()},
          Entry{tr("Copier sans les numéros"), copyWithoutNumbersKeys(),
                &LogTextView::copyWithoutNumbers, hasSelection()},
          Entry{tr("Tout sélectionner"), QKeySequence::SelectAll, &LogTextView::selectAll,
                !m_layout.text().isEmpty()}}) {
        QAction* const action = menu.addAction(entry.text, this, entry.slot);
        action->setShortcut(entry.keys);
        action->setEnabled(entry.isEnabled);
    }
    const QPoint place = event->reason() == QContextMenuEvent::Mouse
                             ? event->globalPos()
                             : viewport()->mapToGlobal(viewport()->rect().center());
    menu.exec(place);
}

} // namespace quillon
