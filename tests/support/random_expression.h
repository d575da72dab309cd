// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/random_text.h"

#include <QString>

namespace quillon {

// Writes regular expressions in ICU's syntax, such as nobody but a tester would, and others that
// anybody might. Nearly all of them are valid.
class RandomExpression {
public:
    explicit RandomExpression(RandomText& random) : m_random(random) {}

    QString next();

private:
    QString alternatives(int depth);
    QString sequence(int depth);
    QString atom(int depth);
    QString group(int depth);
    QString quantifier();
    QString word();
    template <std::size_t N>
    QString oneOf(const char16_t* const (&choices)[N]);
    [[nodiscard]] bool isOneIn(std::uint32_t chances) { return m_random.below(chances) == 0; }

    RandomText& m_random;
    int m_groups = 0; // that references can name
};

} // namespace quillon
