// SPDX-License-Identifier: MIT
#include "ui/theme/app_icon.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdlib>
#include <gtest/gtest.h>

namespace quillon {
namespace {

const QString kIcons = QStringLiteral(QUILLON_ICONS "/");

QImage comparable(const QImage& image)
{
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage drawn(int edge)
{
    return comparable(appIcon().pixmap(QSize(edge, edge), 1.0).toImage());
}

QImage drawingAt(const QString& name, int edge)
{
    QImage image(edge, edge, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(kIcons + name).render(&painter);
    return image;
}

// The mean difference of two pictures' channels, from 0 to 255; 255 when their sizes differ.
double distance(const QImage& one, const QImage& other)
{
    if (one.size() != other.size()) {
        return 255.0;
    }
    qint64 sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
                   std::abs(qBlue(a) - qBlue(b)) + std::abs(qAlpha(a) - qAlpha(b));
        }
    }
    return static_cast<double>(sum) / (4.0 * one.width() * one.height());
}

TEST(AppIcon, IsADrawingOfItsOwnAt16And24Pixels)
{
    EXPECT_EQ(drawn(16), drawingAt(QStringLiteral("AppIcon16.svg"), 16));
    EXPECT_EQ(drawn(24), drawingAt(QStringLiteral("AppIcon24.svg"), 24));
    EXPECT_EQ(drawn(48), drawingAt(QStringLiteral("AppIcon.svg"), 48));
    EXPECT_NE(drawn(16), drawingAt(QStringLiteral("AppIcon.svg"), 16));
    EXPECT_NE(drawn(24), drawingAt(QStringLiteral("AppIcon.svg"), 24));
}

TEST(AppIcon, OffersTheSizesThatDesktopsUse)
{
    const QList<QSize> sizes = appIcon().availableSizes();
    for (const int edge : {16, 24, 32, 48, 64, 128, 256}) {
        EXPECT_TRUE(sizes.contains(QSize(edge, edge))) << edge;
    }
}

TEST(AppIcon, IsSharpAtAnyScale)
{
    const QPixmap doubled = appIcon().pixmap(QSize(48, 48), 2.0);
    EXPECT_EQ(doubled.size(), QSize(96, 96));
    EXPECT_EQ(comparable(doubled.toImage()), drawingAt(QStringLiteral("AppIcon.svg"), 96));
}

TEST(AppIcon, ThePicturesThatAreInstalledAreTheDrawings)
{
    // Two renderers smooth edges a little differently.
    constexpr double kSmoothing = 3.0;
    for (const int edge : {16, 24, 32, 48, 64, 128, 256}) {
        const QImage picture(kIcons + QStringLiteral("%1.png").arg(edge));
        EXPECT_LT(distance(comparable(picture), drawn(edge)), kSmoothing) << edge;
    }
}

} // namespace
} // namespace quillon
