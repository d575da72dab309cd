// SPDX-License-Identifier: MIT
#pragma once

#include "platform/system_error.h"

#include <utility>
#include <variant>

namespace quillon {

// What an operation gives, or the system error that kept it from giving it.
template <typename T>
class [[nodiscard]] Result {
public:
    Result(T value) : m_outcome(std::in_place_index<0>, std::move(value)) {}
    Result(SystemError error) : m_outcome(std::in_place_index<1>, error) {}

    explicit operator bool() const { return m_outcome.index() == 0; }
    [[nodiscard]] T& value() { return std::get<0>(m_outcome); }
    [[nodiscard]] const T& value() const { return std::get<0>(m_outcome); }
    [[nodiscard]] SystemError error() const { return std::get<1>(m_outcome); }

private:
    std::variant<T, SystemError> m_outcome;
};

} // namespace quillon
