// SPDX-License-Identifier: MIT
#include "ui/theme/app_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr std::array kEdges{16, 24, 32, 48, 64, 128, 256};

QString drawingFor(int edge)
{
    const bool isOwnDrawing = edge == 16 || edge == 24;
    return QStringLiteral(":/icons/AppIcon%1.svg")
        .arg(isOwnDrawing ? QString::number(edge) : QString());
}

class AppIconEngine : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/,
               QIcon::State /*state*/) override
    {
        const double scale = painter->device()->devicePixelRatioF();
        const int edge = std::min(rect.width(), rect.height());
        QRectF square(0, 0, edge, edge);
        square.moveCenter(QRectF(rect).center());
        QSvgRenderer(drawingFor(qRound(edge * scale))).render(painter, square);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap drawing(size);
        drawing.fill(Qt::transparent);
        QPainter painter(&drawing);
        paint(&painter, drawing.rect(), mode, state);
        return drawing;
    }

    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        QList<QSize> sizes;
        for (const int edge : kEdges) {
            sizes.append(QSize(edge, edge));
        }
        return sizes;
    }

    QSize actualSize(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        return size;
    }

    QString key() const override { return QStringLiteral("QuillonAppIcon"); }
    QIconEngine* clone() const override { return new AppIconEngine(*this); }
};

} // namespace

QIcon appIcon()
{
    return QIcon(new AppIconEngine);
}

} // namespace quillon
