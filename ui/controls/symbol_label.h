// SPDX-License-Identifier: MIT
#pragma once

#include "ui/theme/symbols.h"

#include <QWidget>

namespace quillon {

// A symbol as decoration beside a text or control: no action, no focus, nothing for a screen
// reader.
class SymbolLabel : public QWidget {
    Q_OBJECT

public:
    // `edge` is the drawing's width and height in device-independent pixels.
    SymbolLabel(Symbol symbol, int edge, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const QIcon m_icon;
};

} // namespace quillon
