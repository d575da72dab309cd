// SPDX-License-Identifier: MIT
#pragma once

#include "ui/theme/symbols.h"

#include <QToolButton>

namespace quillon {

// An icon-only control of the toolbar: flat at rest, raised under the pointer, filled while it is
// on or held down, ringed while it has the keyboard. Its tooltip is also its name for screen
// readers.
class ToolbarButton : public QToolButton {
    Q_OBJECT

public:
    // An action is pressed, a toggle stays pressed while it is on.
    enum class Kind : std::uint8_t { Action, Toggle };

    struct Content {
        Symbol symbol;
        int symbolSize; // points
        QString toolTip;
    };

    ToolbarButton(Kind kind, const Content& content, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintBackground(QPainter& painter) const;
    void paintSymbol(QPainter& painter) const;
    void paintFocusRing(QPainter& painter) const;
};

} // namespace quillon
