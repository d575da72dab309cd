// SPDX-License-Identifier: MIT
#include "ui/status_overlay.h"

#include "model/log_view_model.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace quillon {

namespace {

constexpr int kPadding = 6;
constexpr int kSpacing = 12;
// Points that the halo reaches beyond the letters.
constexpr int kHaloReach = 2;

} // namespace

ElidedLabel::ElidedLabel(Qt::TextElideMode elideMode, QWidget* parent)
    : TextLabel(QString(), TextStyle::Caption, FontWeight::Regular, parent), m_elideMode(elideMode)
{
    setEmphasis(TextEmphasis::Secondary);
}

QString ElidedLabel::displayedText() const
{
    return fontMetrics().elidedText(text(), m_elideMode, width(), Qt::TextSingleLine);
}

QSize ElidedLabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    // The advance may be cut to a whole number; one pixel more keeps a text that fits from eliding.
    return {metrics.size(Qt::TextSingleLine, text()).width() + 1, metrics.height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

// Rows of the log pass below, and no ground keeps them apart: a thin halo in the ground's colour
// around each letter does. The letters themselves, drawn a little off their place all around, make
// it: stroking their outlines takes twenty times as long, at every change of the status.
void ElidedLabel::paintEvent(QPaintEvent* /*event*/)
{
    QTextLayout text(displayedText(), font());
    text.beginLayout();
    const QTextLine line = text.createLine();
    text.endLayout();
    const QPointF start(0, (height() - line.height()) / 2.0);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Base));
    for (int dy = -kHaloReach; dy <= kHaloReach; ++dy) {
        for (int dx = -kHaloReach; dx <= kHaloReach; ++dx) {
            text.draw(&painter, start + QPointF(dx, dy));
        }
    }
    // Not the foreground role: over the log's ground that is the colour of the log's own texts.
    painter.setPen(palette().color(QPalette::WindowText));
    text.draw(&painter, start);
}

StatusOverlay::StatusOverlay(LogViewModel& viewModel, QWidget* parent)
    : QWidget(parent), m_status(new ElidedLabel(Qt::ElideRight, this)),
      m_path(new ElidedLabel(Qt::ElideLeft, this))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_bindings.push_back(viewModel.statusLine.subscribe([this](const QString& status) {
        m_status->setText(status);
        placeLabels();
    }));
    m_bindings.push_back(viewModel.path.subscribe([this](const std::optional<QString>& path) {
        m_path->setText(path ? tr("• %1").arg(*path) : QString());
        m_path->setVisible(path.has_value());
        placeLabels();
    }));
}

QSize StatusOverlay::sizeHint() const
{
    return {m_status->sizeHint().width() + kSpacing + m_path->sizeHint().width() + 2 * kPadding,
            m_status->sizeHint().height() + 2 * kPadding};
}

QSize StatusOverlay::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void StatusOverlay::resizeEvent(QResizeEvent* /*event*/)
{
    placeLabels();
}

void StatusOverlay::placeLabels()
{
    const QRect room = rect().adjusted(kPadding, kPadding, -kPadding, -kPadding);
    const int statusWidth = std::clamp(m_status->sizeHint().width(), 0, std::max(0, room.width()));
    const int pathLeft = room.left() + statusWidth + kSpacing;
    const int pathRoom = std::max(0, room.right() + 1 - pathLeft);
    const int pathWidth = std::min(m_path->sizeHint().width(), pathRoom);
    m_status->setGeometry(room.left(), room.top(), statusWidth, room.height());
    m_path->setGeometry(pathLeft, room.top(), pathWidth, room.height());
}

} // namespace quillon
