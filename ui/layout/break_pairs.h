// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace quillon {

// Whether a line may end between two characters of a word, as far as the two alone tell.
enum class PairAnswer : std::uint8_t {
    Unknown, // nobody has asked yet
    No,
    Yes,
    AskAboutText, // what stands around them decides
};

// Whether a line may end before text[at], asked from Qt's boundary finder: right for every text,
// and slow.
bool mayEndLine(const QString& text, qsizetype at);

// The answer for two characters from U+0021 to U+007E, from a table: Qt's own answers, written down
// because asking for them takes some 20 µs a pair, and a log brings hundreds of pairs.
PairAnswer answerForAsciiPair(char16_t before, char16_t after);

// The answer for any two characters but white space, found by trying the pair in many surroundings
// with mayEndLine().
PairAnswer findAnswerForPair(char16_t before, char16_t after);

} // namespace quillon
