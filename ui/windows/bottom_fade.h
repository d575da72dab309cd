// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quillon {

// Lets the log below it fade into the log's background, from its own upper edge to its lower one,
// so that a text over it has an even background. It takes no mouse and is nothing to screen
// readers.
class BottomFade : public QWidget {
    Q_OBJECT

public:
    explicit BottomFade(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
