// SPDX-License-Identifier: MIT
#pragma once

#include "tests/ui/log_text/log_text_view_fixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QTest>

namespace quillon {

// A log view and a hand that clicks and types, with a clock of its own.
class LogTextInputFixture : public LogTextViewFixture {
protected:
    static constexpr auto kLeft = Qt::LeftButton;

    void SetUp() override { QGuiApplication::clipboard()->clear(); }

    void mouse(QEvent::Type type, QPoint place, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget& target = *view->viewport();
        const bool isMove = type == QEvent::MouseMove;
        const bool isDown = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, place, target.mapToGlobal(place), isMove ? Qt::NoButton : kLeft,
                          isDown ? Qt::MouseButtons(kLeft) : Qt::MouseButtons(), modifiers);
        now += 10;
        event.setTimestamp(now);
        QCoreApplication::sendEvent(&target, &event);
    }
    void press(QPoint place, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        mouse(QEvent::MouseButtonPress, place, modifiers);
    }
    void move(QPoint place) { mouse(QEvent::MouseMove, place); }
    void release(QPoint place) { mouse(QEvent::MouseButtonRelease, place); }
    // As many clicks as a hurried hand makes of them; the second of a pair comes as a double click.
    void clicks(QPoint place, int count, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        now += 10'000;
        for (int i = 0; i < count; ++i) {
            mouse(i % 2 == 1 ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, place,
                  modifiers);
            release(place);
        }
    }
    void drag(QPoint from, QPoint to)
    {
        now += 10'000;
        press(from);
        move(to);
        release(to);
    }
    [[nodiscard]] QPoint leftOf(TextPosition position) const
    {
        const QRect box = view->boxOfPosition(position);
        return {box.left() + 1, box.center().y()};
    }
    void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(view.get(), static_cast<Qt::Key>(code), modifiers);
    }
    static QString clipboard() { return QGuiApplication::clipboard()->text(); }

    quint64 now = 1'000'000; // milliseconds
};

} // namespace quillon
