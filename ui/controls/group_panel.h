// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>

class QLayout;

namespace quillon {

// A titled group of controls: the title above a softly filled, rounded panel that holds them with
// 8 pixels of padding. It is a group box to screen readers.
class GroupPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit GroupPanel(const QString& title, QWidget* parent = nullptr);

    // Fills the panel. To be called once.
    void setContent(QLayout* content);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
