// SPDX-License-Identifier: MIT
#include "ui/controls/color_well.h"

#include "ui/controls/flat_controls.h"
#include "ui/theme/palette.h"

#include <QColorDialog>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>

namespace quillon {

namespace {

constexpr QSize kWellSize(46, 22);
constexpr double kCornerRadius = 5.0;

// What a translucent colour lies on, so that its transparency shows.
void paintCheckerboard(QPainter& painter, const QRect& area)
{
    constexpr int kCell = 4;
    painter.fillRect(area, Qt::white);
    for (int y = 0; y * kCell < area.height(); ++y) {
        for (int x = y % 2; x * kCell < area.width(); x += 2) {
            painter.fillRect(area.x() + x * kCell, area.y() + y * kCell, kCell, kCell,
                             QColor(0xB0, 0xB0, 0xB6));
        }
    }
}

} // namespace

ColorWell::ColorWell(QWidget* parent) : QAbstractButton(parent)
{
    setFixedSize(kWellSize);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::clicked, this, &ColorWell::openPanel);
}

ColorWell::~ColorWell() = default;

void ColorWell::setColor(const QColor& color)
{
    if (m_color == color) {
        return;
    }
    m_color = color;
    setAccessibleDescription(color.name().toUpper());
    setToolTip(color.name().toUpper());
    // Compared as stored, since the panel keeps finer steps (and an opacity) while one drags in it.
    if (m_panel && m_panel->currentColor().rgb() != color.rgb()) {
        const QSignalBlocker blocker(m_panel);
        m_panel->setCurrentColor(color);
    }
    update();
}

QColorDialog* ColorWell::panel() const
{
    return m_panel;
}

void ColorWell::openPanel()
{
    if (!m_panel) {
        m_panel = new QColorDialog(m_color, window());
        m_panel->setAttribute(Qt::WA_DeleteOnClose);
        // The desktops' own colour dialogs only answer when they are closed.
        m_panel->setOptions(QColorDialog::ShowAlphaChannel | QColorDialog::NoButtons |
                            QColorDialog::DontUseNativeDialog);
        m_panel->setWindowTitle(accessibleName());
        connect(m_panel, &QColorDialog::currentColorChanged, this, &ColorWell::colorPicked);
    }
    m_panel->show();
    m_panel->raise();
    m_panel->activateWindow();
    Q_EMIT panelOpened();
}

void ColorWell::closePanel()
{
    if (m_panel) {
        m_panel->close();
    }
}

QSize ColorWell::sizeHint() const
{
    return kWellSize;
}

void ColorWell::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5);
    paintSwatch(painter, frame);
    if (hasFocus()) {
        drawFocusRing(painter, rect(), palette());
    }
}

void ColorWell::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void ColorWell::paintSwatch(QPainter& painter, const QRectF& frame) const
{
    QPainterPath outline;
    outline.addRoundedRect(frame, kCornerRadius, kCornerRadius);
    if (m_color.alpha() < 255) {
        painter.save();
        painter.setClipPath(outline);
        paintCheckerboard(painter, frame.toAlignedRect());
        painter.restore();
    }
    const QColor edge = outlineColor(palette(), isDown() ? 0.7F : underMouse() ? 0.5F : 0.25F);
    painter.fillPath(outline, m_color);
    painter.setPen(QPen(edge, 1));
    painter.drawPath(outline);
}

} // namespace quillon
