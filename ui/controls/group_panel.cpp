// SPDX-License-Identifier: MIT
#include "ui/controls/group_panel.h"

#include "ui/theme/theme.h"

#include <QPainter>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int kPadding = 8;
// Rounded corners take room beside the padding.
constexpr int kEdge = 4;
constexpr int kTitleGap = 6;
constexpr double kPanelCornerRadius = 8.0;

} // namespace

GroupPanel::GroupPanel(const QString& title, QWidget* parent) : QGroupBox(title, parent) {}

void GroupPanel::setContent(QLayout* content)
{
    auto* const frame = new QVBoxLayout(this);
    frame->setContentsMargins(kPadding + kEdge, kPadding, kPadding + kEdge, kPadding);
    frame->addLayout(content);
}

void GroupPanel::paintEvent(QPaintEvent* /*event*/)
{
    // The style keeps room for a title above the contents.
    const int top = contentsRect().top();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(fontFor(TextStyle::Headline));
    constexpr float kPanelOutlineStrength = 0.13F;
    constexpr float kTintStrength = 0.035F;
    QColor tint = palette().color(QPalette::WindowText);
    painter.setPen(tint);
    painter.drawText(QRect(0, 0, width(), top - kTitleGap), Qt::AlignLeading | Qt::AlignBottom,
                     title());

    const QRectF panel = QRectF(0, top, width(), height() - top).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(outlineColor(palette(), kPanelOutlineStrength));
    tint.setAlphaF(kTintStrength);
    painter.setBrush(tint);
    painter.drawRoundedRect(panel, kPanelCornerRadius, kPanelCornerRadius);
}

} // namespace quillon
