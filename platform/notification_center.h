// SPDX-License-Identifier: MIT
#pragma once

#include "platform/subscription.h"

#include <QHash>
#include <QString>

#include <functional>

namespace quillon {

// Named messages inside the process, without sender or content. Posting calls every observer of the
// name before it returns, in the order of observation.
class NotificationCenter {
public:
    void post(QLatin1StringView name) const;
    // Calls back as long as the subscription lives.
    [[nodiscard]] Subscription observe(QLatin1StringView name, std::function<void()> callback);

private:
    QHash<QString, SubscriberList<>> m_observers;
};

} // namespace quillon
