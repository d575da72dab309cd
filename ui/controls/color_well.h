// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QPointer>

class QColorDialog;

namespace quillon {

// A small button that shows a colour and opens a colour panel to pick another. The panel stays open
// beside the window and every choice in it counts at once. The well shows what it is given: whoever
// owns it decides what a picked colour becomes.
class ColorWell : public QAbstractButton {
    Q_OBJECT

public:
    explicit ColorWell(QWidget* parent = nullptr);
    ~ColorWell() override;

    [[nodiscard]] QColor color() const { return m_color; }
    // Shows the colour, in an open panel too. Nothing is told of it.
    void setColor(const QColor& color);

    // The open panel, null when there is none.
    [[nodiscard]] QColorDialog* panel() const;
    // Opens the panel, or brings the open one to the front.
    void openPanel();
    void closePanel();

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void panelOpened();
    // For each choice in the panel, also while one drags in it.
    void colorPicked(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void paintSwatch(QPainter& painter, const QRectF& frame) const;

    QColor m_color = Qt::black;
    QPointer<QColorDialog> m_panel;
};

} // namespace quillon
