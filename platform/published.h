// SPDX-License-Identifier: MIT
#pragma once

#include "platform/subscription.h"

#include <optional>
#include <utility>

namespace quillon {

// A field that tells about its changes. Observers hear of a change before it is made, whatever the
// new value is (also an equal one); a stream hears the current value on subscribing and then each
// new one once it is in place. Everything runs on the thread that sets the field.
template <typename T>
class Published {
public:
    explicit Published(T initial) : m_value(std::move(initial)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;
    ~Published() = default;

    [[nodiscard]] const T& get() const { return m_value; }

    void set(T value)
    {
        m_willChange.notify();
        m_value = std::move(value);
        m_stream.notify(m_value);
    }

    // Changes the value in place, as one change: no copy is made of what stays as it is.
    template <typename Change>
    void mutate(Change&& change)
    {
        m_willChange.notify();
        std::forward<Change>(change)(m_value);
        m_stream.notify(m_value);
    }

    // Calls back before each change, while get() still gives the old value.
    [[nodiscard]] Subscription observeWillChange(std::function<void()> callback) const
    {
        return m_willChange.add(std::move(callback));
    }

    // Calls back with the current value at once, then with every new value.
    [[nodiscard]] Subscription subscribe(std::function<void(const T&)> callback) const
    {
        callback(m_value);
        return m_stream.add(std::move(callback));
    }

    // As subscribe(), but without the values that equal the one before.
    [[nodiscard]] Subscription subscribeDistinct(std::function<void(const T&)> callback) const
    {
        return subscribe([last = std::optional<T>(), callback](const T& value) mutable {
            if (last != value) {
                last = value;
                callback(value);
            }
        });
    }

private:
    T m_value;
    mutable SubscriberList<> m_willChange;
    mutable SubscriberList<const T&> m_stream;
};

} // namespace quillon
