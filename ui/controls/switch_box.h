// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>

namespace quillon {

// A check box drawn as a switch: its text, and a track whose knob stands right while it is on.
class SwitchBox : public QCheckBox {
    Q_OBJECT

public:
    explicit SwitchBox(const QString& text, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override;

private:
    [[nodiscard]] QRectF trackRect() const;
    void paintTrack(QPainter& painter) const;
};

} // namespace quillon
