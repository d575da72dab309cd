// SPDX-License-Identifier: MIT
#include "tests/support/spin_until.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QThread>
#include <QTimer>

namespace quillon {

bool spinUntil(const std::function<bool()>& predicate, std::chrono::milliseconds timeout)
{
    const QDeadlineTimer deadline(timeout);
    while (!predicate()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents();
        // Outside exec() nobody else delivers these.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(1);
    }
    return true;
}

void spinFor(std::chrono::milliseconds duration)
{
    QTimer timer;
    timer.setSingleShot(true);
    timer.start(duration);
    static_cast<void>(
        spinUntil([&timer] { return !timer.isActive(); }, duration + std::chrono::seconds(30)));
}

} // namespace quillon
