// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/break_pairs.h"

#include <QStringView>

#include <array>
#include <memory>
#include <optional>

namespace quillon {

// Where a line may be broken inside a word, by the Unicode line breaking algorithm as Qt applies
// it. For almost every pair of characters the pair alone decides; for ASCII the answers are in a
// table, for others they are asked from Qt's own boundary finder once per pair and kept. Where the
// neighbourhood decides too (inside numbers, such as "1/2" or "$(5"), the finder is asked each
// time, about the text at hand.
class BreakOpportunities {
public:
    BreakOpportunities();
    ~BreakOpportunities();
    BreakOpportunities(const BreakOpportunities&) = delete;
    BreakOpportunities& operator=(const BreakOpportunities&) = delete;

    // Whether a line may end before text[at], 0 < at < text.size(). Neither that character nor the
    // one before it is white space.
    [[nodiscard]] bool isBefore(QStringView text, qsizetype at) const
    {
        const char16_t before = text[at - 1].unicode();
        const char16_t after = text[at].unicode();
        if (before < kAscii && after < kAscii) {
            // Most characters allow no break after them; that is known without the large table.
            if (!m_isBreakableAfter[before]) {
                return false;
            }
            const PairAnswer answer = (*m_answers)[before][after];
            if (answer == PairAnswer::No || answer == PairAnswer::Yes) {
                return answer == PairAnswer::Yes;
            }
        }
        return isBeforeUnusual(text, at);
    }
    // The last place after `start`, at or before `limit` < text.size(), where a line may end:
    // behind white space or inside a word.
    [[nodiscard]] std::optional<qsizetype> lastIn(QStringView text, qsizetype start,
                                                  qsizetype limit) const;

private:
    static constexpr char16_t kAscii = 128;

    // For pairs beyond ASCII, pairs that are met for the first time, and those that do not decide.
    [[nodiscard]] bool isBeforeUnusual(QStringView text, qsizetype at) const;

    // ASCII characters each for themselves, all others by their line breaking class.
    static constexpr std::size_t kKeys = 192;
    using Table = std::array<std::array<PairAnswer, kKeys>, kKeys>;

    [[nodiscard]] static std::size_t keyOf(char16_t character);

    std::unique_ptr<Table> m_answers;
    // Whether a break after the character, before some other of ASCII, has not been ruled out.
    std::array<bool, kAscii> m_isBreakableAfter;
};

} // namespace quillon
