// SPDX-License-Identifier: MIT
#pragma once

#include "tests/ui/log_text/log_text_view_fixture.h"

#include <QImage>
#include <QPixmap>

namespace quillon {

inline const Color kRed = Color::rgb(0.9, 0.0, 0.0);

// A log view whose pixels can be counted.
class LogTextPainting : public LogTextViewFixture {
protected:
    // Regular text, and in each row with the word "boom" that word in these attributes.
    static SampleStyler::Runs boomAs(const RunAttributes& attributes)
    {
        return [attributes](const AttributedRow& row) {
            const qsizetype at = row.string().indexOf(QStringLiteral("boom"));
            if (at < 0) {
                return std::vector<AttributeRun>{{0, row.length(), {}}};
            }
            return std::vector<AttributeRun>{
                {0, at, {}}, {at, 4, attributes}, {at + 4, row.length() - at - 4, {}}};
        };
    }

    static RunAttributes inRed()
    {
        RunAttributes attributes;
        attributes.foreground = kRed;
        return attributes;
    }
    static RunAttributes inBold()
    {
        RunAttributes attributes;
        attributes.weight = FontWeight::Bold;
        return attributes;
    }
    static RunAttributes on(const Color& background)
    {
        RunAttributes attributes;
        attributes.background = background;
        return attributes;
    }

    [[nodiscard]] QImage painted() const
    {
        return view->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    [[nodiscard]] QRgb background() const { return resolved(SystemColor::TextBackground); }
    [[nodiscard]] QRgb resolved(SystemColor color, double alpha = 1.0) const
    {
        return resolvedColor(Color::system(color, alpha), view->palette()).rgba();
    }

    static int count(const QImage& image, const QRect& area, const std::function<bool(QRgb)>& is)
    {
        const QRect inside = area.intersected(image.rect());
        int pixels = 0;
        for (int y = inside.top(); y <= inside.bottom(); ++y) {
            for (int x = inside.left(); x <= inside.right(); ++x) {
                pixels += is(image.pixel(x, y)) ? 1 : 0;
            }
        }
        return pixels;
    }
    [[nodiscard]] int inkIn(const QImage& image, const QRect& area) const
    {
        const QRgb empty = background();
        return count(image, area, [empty](QRgb pixel) { return pixel != empty; });
    }
    static bool isReddish(QRgb pixel)
    {
        return qRed(pixel) > qGreen(pixel) + 60 && qRed(pixel) > qBlue(pixel) + 60;
    }
    // The boxes of the characters [start, end) of a row, all on one line.
    [[nodiscard]] QRect boxOf(qsizetype row, qsizetype start, qsizetype end) const
    {
        QRect area;
        for (qsizetype offset = start; offset < end; ++offset) {
            area |= view->boxOfPosition(TextPosition{row, offset});
        }
        return area;
    }
    [[nodiscard]] QRect lineOf(qsizetype row) const
    {
        const QRect box = view->boxOfPosition(TextPosition{row, 0});
        return {0, box.top(), view->viewport()->width(), box.height()};
    }
};

} // namespace quillon
