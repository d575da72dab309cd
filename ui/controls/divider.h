// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quillon {

// A hairline between groups of things, as visible in the dark appearance as in the light one.
class Divider : public QWidget {
    Q_OBJECT

public:
    explicit Divider(Qt::Orientation orientation, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
