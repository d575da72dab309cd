// SPDX-License-Identifier: MIT
#include "ui/controls/slim_scroll_bar.h"

#include "ui/controls/marked_scroll_bar.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOptionSlider>

#include <algorithm>

namespace quillon {

namespace {

constexpr int kShortestSlider = 32;
constexpr int kMargin = 2;
constexpr double kRestingThickness = 6;
constexpr double kHeldThickness = 8;
constexpr int kMarkThickness = 2;
constexpr int kMarkWidth = 4;
constexpr int kMarkMargin = 1;

bool isHorizontal(const QStyleOptionSlider& bar)
{
    return bar.orientation == Qt::Horizontal;
}

// Where the slider begins along the groove, and how long it is.
struct Span {
    int start;
    int length;
};

Span sliderSpan(const QStyleOptionSlider& bar)
{
    const int groove = isHorizontal(bar) ? bar.rect.width() : bar.rect.height();
    const qint64 range = qint64{bar.maximum} - bar.minimum;
    if (range <= 0) {
        return {0, groove};
    }
    const auto proportional =
        static_cast<int>(groove * qint64{bar.pageStep} / std::max<qint64>(1, range + bar.pageStep));
    const int length = std::min(groove, std::max(kShortestSlider, proportional));
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      groove - length, bar.upsideDown);
    return {start, length};
}

// At the outer edge, below the slider, which lets them show through: however many there are, most
// of the slider stays as it is.
void drawMarks(QPainter& painter, const QRect& track, const std::vector<ScrollBarMark>& marks)
{
    const int left = track.right() + 1 - kMarkMargin - kMarkWidth;
    const int last = track.bottom() + 1 - kMarkThickness;
    for (const ScrollBarMark& mark : marks) {
        painter.fillRect(left, std::min(track.top() + mark.pixel, last), kMarkWidth, kMarkThickness,
                         mark.color);
    }
}

} // namespace

QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part)
{
    const Span slider = sliderSpan(bar);
    const auto along = [&bar](int start, int length) {
        const QRect rect = bar.rect;
        return isHorizontal(bar) ? QRect(rect.x() + start, rect.y(), length, rect.height())
                                 : QRect(rect.x(), rect.y() + start, rect.width(), length);
    };
    const int sliderEnd = slider.start + slider.length;
    QRect place;
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        place = bar.rect;
        break;
    case QStyle::SC_ScrollBarSlider:
        place = along(slider.start, slider.length);
        break;
    case QStyle::SC_ScrollBarSubPage:
        place = along(0, slider.start);
        break;
    case QStyle::SC_ScrollBarAddPage:
        place = along(sliderEnd, std::max(0, bar.rect.width() + bar.rect.height() - sliderEnd));
        place = place.intersected(bar.rect);
        break;
    default:
        return QRect();
    }
    return QStyle::visualRect(bar.direction, bar.rect, place);
}

QColor scrollBarBackground(const QPalette& palette, const QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto* const area = qobject_cast<const QAbstractScrollArea*>(widget)) {
            const QWidget& viewport = *area->viewport();
            return viewport.palette().color(viewport.backgroundRole());
        }
    }
    return palette.color(QPalette::Window);
}

void drawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QWidget* widget)
{
    painter.fillRect(bar.rect, scrollBarBackground(bar.palette, widget));
    if (bar.maximum <= bar.minimum) {
        return;
    }
    if (const auto* const marked = qobject_cast<const MarkedScrollBar*>(widget)) {
        drawMarks(painter, bar.rect, marked->marks());
    }
    const bool isOnSlider = bar.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    const bool isHeld = isOnSlider && bar.state.testFlag(QStyle::State_Sunken);
    const bool isHovered = bar.state.testFlag(QStyle::State_MouseOver);
    const double thickness = isHeld || isHovered ? kHeldThickness : kRestingThickness;

    QRectF slider(scrollBarPart(bar, QStyle::SC_ScrollBarSlider));
    const QPointF center = slider.center();
    if (isHorizontal(bar)) {
        slider.setHeight(thickness);
        slider.adjust(kMargin, 0, -kMargin, 0);
    } else {
        slider.setWidth(thickness);
        slider.adjust(0, kMargin, 0, -kMargin);
    }
    slider.moveCenter(center);

    QColor color = bar.palette.color(QPalette::WindowText);
    color.setAlphaF(isHeld ? 0.65F : isHovered ? 0.5F : 0.35F);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(slider, thickness / 2, thickness / 2);
    painter.restore();
}

} // namespace quillon
