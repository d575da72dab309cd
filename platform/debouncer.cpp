// SPDX-License-Identifier: MIT
#include "platform/debouncer.h"

namespace quillon {

Debouncer::Debouncer(std::chrono::milliseconds quietPeriod, std::function<void()> action)
    : m_action(std::move(action))
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(quietPeriod);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, m_action);
}

void Debouncer::trigger()
{
    m_timer.start();
}

void Debouncer::flush()
{
    if (m_timer.isActive()) {
        m_timer.stop();
        m_action();
    }
}

} // namespace quillon
