// SPDX-License-Identifier: MIT
#include "ui/log_text_view.h"

#include "ui/log_text_accessible.h"
#include "ui/log_text_hit_test.h"
#include "ui/log_text_painter.h"
#include "ui/theme.h"

#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quillon {

namespace {

// Points; beyond these there is nothing to read, and fonts stop working.
constexpr double kMinimumFontSize = 1.0;
constexpr double kMaximumFontSize = 500.0;

} // namespace

LogTextView::LogTextView(const LogTextContent& content, QWidget* parent)
    : QAbstractScrollArea(parent), m_content(content), m_layout(std::make_unique<LogTextLayout>())
{
    installLogTextAccessibility();
    connect(this, &LogTextView::selectionChanged, this,
            [this] { announceLogTextSelection(*this); });
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setCursor(Qt::IBeamCursor);
    // The whole viewport is painted, background included.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    scheduleReplacement();
    // Nobody has given the view a width yet; what Qt says meanwhile is a mere placeholder.
    m_geometry.applyWrapping(content.isWrapped, 0.0);
    layOutText();
    // By then the view has been placed in its window and its clip has its real width.
    QMetaObject::invokeMethod(this, &LogTextView::fitToClip, Qt::QueuedConnection);
}

LogTextView::~LogTextView() = default;

void LogTextView::update(const LogTextContent& content)
{
    m_content = content;
    // First, since a scroll bar that goes away resizes the viewport, which lays out anew.
    scheduleReplacement();
    applyWrapping(content.isWrapped);
}

// The clip's width does not change with the text that it shows, but for the scroll bars, whose
// coming and going resizes the viewport and leads here again.
void LogTextView::applyWrapping(bool isWrapped)
{
    setHorizontalScrollBarPolicy(isWrapped ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    // Only now: a scroll bar that comes or goes has just changed it.
    m_geometry.applyWrapping(isWrapped, viewport()->width());
}

void LogTextView::scheduleReplacement()
{
    m_isReplacementDue = true;
    QMetaObject::invokeMethod(this, &LogTextView::replaceText, Qt::QueuedConnection);
}

void LogTextView::replaceText()
{
    if (!m_isReplacementDue) {
        return;
    }
    updateMetrics();
    settleVerticalScrollBar();
    m_isReplacementDue = false;
    const AttributedString former = m_layout->text();
    const bool isExtension = m_content.attributedText.isExtensionOf(former);
    layOutText();
    // Rows that are still there stay selected: a log that is written to twice a second could not
    // be copied from otherwise.
    if (!isExtension) {
        m_selection.clear();
        m_caretX.reset();
        endDrag();
        horizontalScrollBar()->setValue(0);
        Q_EMIT selectionChanged();
    }
    scrollToEndOfDocument();
    viewport()->update();
    announceChangedLogText(*this, former);
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

// Where the rows alone, unbroken, are too many for the clip, the scroll bar is sure to come: once
// it has come first, lines are broken once, at the width that it leaves.
void LogTextView::settleVerticalScrollBar()
{
    const qint64 height = m_content.attributedText.rows().size() * m_metrics->lineHeight();
    setVerticalScrollBarPolicy(height > viewport()->height() ? Qt::ScrollBarAlwaysOn
                                                             : Qt::ScrollBarAsNeeded);
}

void LogTextView::layOutText()
{
    updateMetrics();
    std::optional<Fixed> lineWidth;
    if (m_content.isWrapped) {
        // A whole number of columns, and half a column that rounding may not take away.
        const Fixed column = m_metrics->columnAdvance();
        const Fixed room = toFixed(m_geometry.lineWidth());
        lineWidth = std::max<Fixed>(1, room / column) * column + column / 2;
    }
    const AttributedString text = m_isReplacementDue ? m_layout->text() : m_content.attributedText;
    m_layout->layOut(text, m_metrics, lineWidth);
    const double margins = 2 * textOrigin().x();
    m_geometry.setContentSize(toPoints(m_layout->width()) + margins,
                              static_cast<double>(m_layout->lineCount()) * m_metrics->lineHeight() +
                                  2 * kTextInsetHeight);
    updateScrollBars();
}

void LogTextView::updateScrollBars()
{
    const auto whole = [](double points) {
        return static_cast<int>(
            std::min<double>(std::ceil(points), std::numeric_limits<int>::max()));
    };
    QScrollBar* const vertical = verticalScrollBar();
    vertical->setSingleStep(m_metrics->lineHeight());
    vertical->setPageStep(std::max(1, viewport()->height() - m_metrics->lineHeight()));
    vertical->setRange(0, std::max(0, whole(m_geometry.frame().height - viewport()->height())));
    QScrollBar* const horizontal = horizontalScrollBar();
    horizontal->setSingleStep(static_cast<int>(4 * m_metrics->columnAdvance() / kFixedOne));
    horizontal->setPageStep(viewport()->width());
    const double hidden = isWrapped() ? 0 : m_geometry.frame().width - viewport()->width();
    horizontal->setRange(0, std::max(0, whole(hidden)));
}

void LogTextView::scrollToEndOfDocument()
{
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

QPointF LogTextView::scrollOffset() const
{
    return QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

void LogTextView::scrollToPosition(TextPosition position)
{
    const QRectF box = boxAt(*m_layout, position);
    const auto bring = [](QScrollBar& bar, double from, double to, int visible) {
        if (from < bar.value()) {
            bar.setValue(static_cast<int>(std::floor(from)));
        } else if (to > bar.value() + visible) {
            bar.setValue(static_cast<int>(std::ceil(to)) - visible);
        }
    };
    bring(*verticalScrollBar(), box.top(), box.bottom(), viewport()->height());
    bring(*horizontalScrollBar(), box.left() - textOrigin().x(), box.right() + textOrigin().x(),
          viewport()->width());
}

TextPosition LogTextView::positionAtPoint(QPoint point) const
{
    return positionAt(*m_layout, point + scrollOffset());
}

TextPosition LogTextView::characterAtPoint(QPoint point) const
{
    return characterAt(*m_layout, point + scrollOffset());
}

QRect LogTextView::boxOfPosition(TextPosition position) const
{
    return boxAt(*m_layout, position).translated(-scrollOffset()).toAlignedRect();
}

void LogTextView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    const QRect clip = event->rect();
    painter.fillRect(clip, resolvedColor(Color::system(SystemColor::TextBackground), palette()));
    painter.setClipRect(clip);
    LogTextPainter(painter, *m_layout, palette(), scrollOffset()).paint(clip, m_selection);
}

void LogTextView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    fitToClip();
}

void LogTextView::fitToClip()
{
    settleVerticalScrollBar();
    const QScrollBar* const bar = verticalScrollBar();
    const bool wasAtEnd = bar->value() == bar->maximum();
    const double formerWidth = m_geometry.container().width;
    const TextPosition top = positionAtPoint(QPoint(0, 0));
    const double hidden = bar->value() - boxAt(*m_layout, top).top();
    applyWrapping(m_content.isWrapped);
    layOutText();
    // What was read stays in sight although lines are broken elsewhere now.
    if (wasAtEnd) {
        scrollToEndOfDocument();
    } else if (m_geometry.container().width != formerWidth) {
        verticalScrollBar()->setValue(static_cast<int>(boxAt(*m_layout, top).top() + hidden));
    }
    viewport()->update();
}

} // namespace quillon
