// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace quillon {

// Counts how often a widget is painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& widget) : m_widget(widget)
    {
        paintWhatIsDue();
        widget.installEventFilter(this);
    }

    // The paintings since this was last asked, those that are due now included.
    int takePaintings()
    {
        paintWhatIsDue();
        return std::exchange(m_paintings, 0);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_paintings += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

private:
    // The window would ask for it a few milliseconds later.
    void paintWhatIsDue()
    {
        QEvent request(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(m_widget.window(), &request);
    }

    QWidget& m_widget;
    int m_paintings = 0;
};

} // namespace quillon
