// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <cstdint>
#include <optional>
#include <vector>

namespace quillon {

// One element of a regular expression in ICU's syntax.
struct PatternToken {
    enum class Kind : std::uint8_t {
        Character,      // stands for itself
        CharacterClass, // an escape that stands for some character or characters
        AnyCharacter,   // "."
        Set,            // "[…]"
        Place,          // matches between characters
        GroupOpen,      // "(", "(?:"
        Ahead,          // "(?=", and what gives nothing back, "(?>"
        Assertion,      // "(?!", "(?<=", "(?<!": what it holds needs not be in a match
        GroupClose,
        Alternative, // "|"
        Quantifier,  // with the mark behind it that makes it lazy or possessive
    };

    Kind kind = Kind::Character;
    // As it stands in the pattern.
    QStringView text;

    // The character that a token of that kind stands for.
    [[nodiscard]] QChar character() const { return text.back(); }
    // Whether a quantifier lets what it repeats be missing.
    [[nodiscard]] bool allowsNone() const { return text.front() != u'+'; }
};

// The elements of a valid pattern. None where it holds anything that this does not know or that has
// a say in how the rest is to be read: references to groups, names, quotations, comments, flags,
// sets in sets.
std::optional<std::vector<PatternToken>> tokensOf(QStringView pattern);

} // namespace quillon
