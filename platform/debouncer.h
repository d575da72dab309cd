// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <chrono>
#include <functional>

namespace quillon {

// Turns a burst of triggers into one call, made once the quiet period has passed since the last
// trigger, on the event loop of the thread that made the debouncer. It makes no call after its end.
class Debouncer {
public:
    Debouncer(std::chrono::milliseconds quietPeriod, std::function<void()> action);

    void trigger();
    // Makes the call now if it is due.
    void flush();

private:
    QTimer m_timer;
    const std::function<void()> m_action;
};

} // namespace quillon
