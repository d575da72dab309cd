// SPDX-License-Identifier: MIT
#include "platform/notification_center.h"

namespace quillon {

void NotificationCenter::post(QLatin1StringView name) const
{
    // A copy, since an observer may observe further names while it is called.
    const SubscriberList<> observers = m_observers.value(QString(name));
    observers.notify();
}

Subscription NotificationCenter::observe(QLatin1StringView name, std::function<void()> callback)
{
    return m_observers[QString(name)].add(std::move(callback));
}

} // namespace quillon
