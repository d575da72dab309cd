// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QScrollArea;

namespace quillon {

// A window beside the main one, filled by one scrolling content. Escape and Ctrl+W close it, which
// hides it. It is never narrower than its content needs at the desktop's text size, unless the
// screen is: it scrolls sideways then. To screen readers it is a window.
class AuxiliaryWindow : public QWidget {
    Q_OBJECT

public:
    // Takes the content over. The inside is never smaller than `minimum` where the screen has room
    // for it.
    AuxiliaryWindow(const QString& title, QScrollArea* content, QSize minimum);

    // What the screen leaves for the window's inside.
    [[nodiscard]] QSize room() const;

protected:
    bool event(QEvent* event) override;

private:
    void fitToText();

    QScrollArea* m_content;
    const QSize m_minimum;
};

} // namespace quillon
