// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QScrollBar>

#include <functional>
#include <vector>

namespace quillon {

// A thin line at a scroll bar's track, so many pixels from its beginning.
struct ScrollBarMark {
    int pixel = 0;
    QColor color;
};

// A vertical scroll bar whose track shows where something stands in what it scrolls. The program's
// style draws the marks; to the mouse, the keyboard and screen readers it is any scroll bar.
class MarkedScrollBar : public QScrollBar {
    Q_OBJECT

public:
    // Gives the marks of a track that is so many pixels long, later ones over earlier ones. Asked
    // when the bar is painted, once for as long as nothing has changed.
    using Marks = std::function<std::vector<ScrollBarMark>(int trackLength)>;

    explicit MarkedScrollBar(Marks marks, QWidget* parent = nullptr);

    [[nodiscard]] const std::vector<ScrollBarMark>& marks() const;

public Q_SLOTS:
    // There are others now.
    void forgetMarks();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    const Marks m_find;
    mutable std::vector<ScrollBarMark> m_marks;
    mutable bool m_isKnown = false;
};

} // namespace quillon
