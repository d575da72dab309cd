// SPDX-License-Identifier: MIT
#pragma once

#include "ui/theme/theme.h"

#include <QProxyStyle>

class QApplication;

namespace quillon {

// Fusion, which takes every colour from the palette, with flat, roomier controls, slim scroll bars
// without arrows, and a focus ring that is seen at a glance.
class Style : public QProxyStyle {
    Q_OBJECT

public:
    Style();

    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& contents,
                                         const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                       SubControl part, const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returned) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap kind, const QStyleOption* option = nullptr,
                                     const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

// Gives all widgets the program's style, a palette and the interface font, `textScale` times as
// high as usual. May be called again at any time; what is on screen follows.
void applyAppearance(QApplication& application, const PaletteStyle& style, double textScale = 1.0);

} // namespace quillon
