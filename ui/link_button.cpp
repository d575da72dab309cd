// SPDX-License-Identifier: MIT
#include "ui/link_button.h"

#include <QKeyEvent>
#include <QPainter>

namespace quillon {

LinkButton::LinkButton(const QString& title, const QUrl& destination, QWidget* parent)
    : QAbstractButton(parent), m_destination(destination)
{
    setText(title);
    setToolTip(destination.toDisplayString());
    setAccessibleName(title);
    setAccessibleDescription(destination.toDisplayString());
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::clicked, this, [this] { Q_EMIT linkActivated(m_destination); });
}

QSize LinkButton::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(text()) + 2, metrics.height() + 4};
}

void LinkButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QColor ink = palette().color(isDown() ? QPalette::WindowText : QPalette::Link);
    if (hasFocus()) {
        // No ring: it would push the text out of line with the texts above it.
        QColor tint = ink;
        tint.setAlphaF(0.18F);
        painter.fillRect(rect(), tint);
        painter.fillRect(0, height() - 2, width(), 2, ink);
    }
    QFont linkFont = font();
    linkFont.setUnderline(underMouse() && !hasFocus());
    painter.setFont(linkFont);
    painter.setPen(ink);
    painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter, text());
}

void LinkButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

} // namespace quillon
