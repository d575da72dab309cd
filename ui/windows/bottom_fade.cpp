// SPDX-License-Identifier: MIT
#include "ui/windows/bottom_fade.h"

#include "ui/theme/theme.h"

#include <QLinearGradient>
#include <QPainter>

namespace quillon {

BottomFade::BottomFade(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void BottomFade::paintEvent(QPaintEvent* /*event*/)
{
    // Nothing of the log is left where the letters of a small text begin.
    constexpr double kOpaqueFrom = 0.28;
    const QColor background = resolvedColor(Color::system(SystemColor::TextBackground), palette());
    QColor clear = background;
    clear.setAlphaF(0);
    QLinearGradient fade(0, 0, 0, height());
    fade.setColorAt(0, clear);
    fade.setColorAt(kOpaqueFrom, background);
    QPainter(this).fillRect(rect(), fade);
}

} // namespace quillon
