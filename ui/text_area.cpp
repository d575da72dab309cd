// SPDX-License-Identifier: MIT
#include "ui/text_area.h"

#include "ui/log_text_view.h"
#include "ui/status_overlay.h"

#include <QEvent>
#include <QVBoxLayout>

namespace quillon {

TextArea::TextArea(LogTextView* logView, StatusOverlay* overlay, QWidget* parent)
    : QWidget(parent), m_logView(logView), m_overlay(overlay)
{
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_logView);
    m_overlay->setParent(this);
    m_overlay->raise();
    // The viewport, not this area, ends where a scroll bar begins.
    m_logView->viewport()->installEventFilter(this);
}

bool TextArea::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
        placeOverlay();
    }
    return QWidget::eventFilter(watched, event);
}

void TextArea::placeOverlay()
{
    const QWidget& viewport = *m_logView->viewport();
    const QRect shown(viewport.mapTo(this, QPoint()), viewport.size());
    const int height = m_overlay->sizeHint().height();
    m_overlay->setGeometry(shown.left(), shown.bottom() + 1 - height, shown.width(), height);
}

} // namespace quillon
