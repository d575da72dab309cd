// SPDX-License-Identifier: MIT
#include "ui/controls/link_button.h"

#include "ui/controls/flat_controls.h"

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
    setEnabled(destination.isValid());
    connect(this, &QAbstractButton::clicked, this, [this] { Q_EMIT linkActivated(m_destination); });
}

QSize LinkButton::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(text()) + 2 * kRingRoom, metrics.height() + kRingRoom};
}

void LinkButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const bool isText = isDown() || !isEnabled();
    const QColor ink = palette().color(isText ? QPalette::WindowText : QPalette::Link);
    if (hasFocus()) {
        drawFocusRing(painter, rect(), palette());
    }
    QFont linkFont = font();
    linkFont.setUnderline(isEnabled() && underMouse() && !hasFocus());
    painter.setFont(linkFont);
    painter.setPen(ink);
    painter.drawText(rect().adjusted(kRingRoom, 0, -kRingRoom, 0),
                     Qt::AlignLeading | Qt::AlignVCenter, text());
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
