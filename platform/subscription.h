// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

namespace quillon {

// The right to be called. Whoever holds the token is subscribed; letting it go ends the
// subscription at once, also from inside a call. A token may outlive what it was subscribed to.
class Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<bool> alive) : m_alive(std::move(alive)) {}
    ~Subscription() { cancel(); }
    Subscription(Subscription&& other) noexcept = default;
    Subscription& operator=(Subscription&& other) noexcept;
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    // Ends the subscription. Harmless when it has already ended.
    void cancel();

private:
    std::shared_ptr<bool> m_alive;
};

// The callbacks behind something one can subscribe to, called in the order of subscription.
template <typename... Args>
class SubscriberList {
public:
    using Callback = std::function<void(Args...)>;

    [[nodiscard]] Subscription add(Callback callback)
    {
        auto alive = std::make_shared<bool>(true);
        std::erase_if(m_entries, [](const auto& entry) { return !*entry->alive; });
        m_entries.push_back(std::make_shared<Entry>(Entry{alive, std::move(callback)}));
        return Subscription(std::move(alive));
    }

    // Calls every subscriber that is subscribed both now and at its turn, so that a callback may
    // subscribe and unsubscribe freely.
    void notify(Args... args) const
    {
        const auto entries = m_entries;
        for (const auto& entry : entries) {
            if (*entry->alive) {
                entry->callback(args...);
            }
        }
    }

private:
    struct Entry {
        std::shared_ptr<bool> alive;
        Callback callback;
    };
    std::vector<std::shared_ptr<Entry>> m_entries;
};

} // namespace quillon
