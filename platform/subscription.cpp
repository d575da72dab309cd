// SPDX-License-Identifier: MIT
#include "platform/subscription.h"

namespace quillon {

Subscription& Subscription::operator=(Subscription&& other) noexcept
{
    if (this != &other) {
        cancel();
        m_alive = std::move(other.m_alive);
    }
    return *this;
}

void Subscription::cancel()
{
    if (m_alive) {
        *m_alive = false;
        m_alive.reset();
    }
}

} // namespace quillon
