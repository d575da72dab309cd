// SPDX-License-Identifier: MIT
#pragma once

#include "platform/user_defaults.h"
#include "render/preference_keys.h"

#include <algorithm>
#include <concepts>

namespace quillon {

// One preference as a value: reading gives what is stored now, writing stores it at once. Where
// nothing is stored or registered, it reads as its entry in defaultPreferences(), which has to hold
// the key with a value of this type. The user defaults must outlive the field.
template <typename T>
requires std::same_as<T, QString> || std::same_as<T, bool> || std::same_as<T, double>
class DefaultsField {
public:
    DefaultsField(UserDefaults& defaults, QLatin1StringView key)
        : m_defaults(defaults), m_key(key), m_fallback(fallbackFor(m_key))
    {
    }

    [[nodiscard]] const QString& key() const { return m_key; }

    [[nodiscard]] T value() const
    {
        if (!m_defaults.objectForKey(m_key).isValid()) {
            return m_fallback;
        }
        if constexpr (std::same_as<T, QString>) {
            return m_defaults.stringForKey(m_key).value_or(QString());
        } else if constexpr (std::same_as<T, bool>) {
            return m_defaults.boolForKey(m_key);
        } else {
            return m_defaults.doubleForKey(m_key);
        }
    }

    // Stores nothing, and so notifies nobody, when the value is the current one.
    void setValue(const T& value)
    {
        if (!(value == this->value())) {
            m_defaults.setObject(QVariant::fromValue(value), m_key);
        }
    }

private:
    static T fallbackFor(const QString& key)
    {
        const UserDefaults::Table& table = defaultPreferences();
        const auto entry = std::find_if(table.cbegin(), table.cend(),
                                        [&key](const auto& row) { return row.first == key; });
        if (entry == table.cend() || entry->second.metaType() != QMetaType::fromType<T>()) {
            qFatal("The default preferences lack a fitting entry for %s", qUtf8Printable(key));
        }
        return entry->second.template value<T>();
    }

    UserDefaults& m_defaults;
    const QString m_key;
    const T m_fallback;
};

} // namespace quillon
