// SPDX-License-Identifier: MIT
#pragma once

#include "search/compiled_pattern.h"
#include "search/text_range.h"

#include <QString>
#include <QStringView>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

// Whether a text has a match. Undecided where finding out costs more than the text's budget.
enum class Verdict : std::uint8_t { Match, NoMatch, Undecided };

// A compiled regular expression in ICU's syntax.
// https://unicode-org.github.io/icu/userguide/strings/regexp.html
//
// What a user's expression may cost is limited for each text by itself (see MatchingBudget), so
// that none can keep the program busy for ever and what it says of a text depends on that text
// alone. TextSearch gives more of a say in how a text is gone through.
class RegularExpression {
public:
    // No object where the pattern is not valid, the empty pattern included, or takes too long to
    // compile.
    static std::unique_ptr<RegularExpression> compile(const QString& pattern,
                                                      CaseSensitivity caseSensitivity,
                                                      PatternSource source = PatternSource::User);
    [[nodiscard]] Verdict decide(QStringView text) const;
    [[nodiscard]] bool hasMatch(QStringView text) const { return decide(text) == Verdict::Match; }
    // The first match in `text`; it may be empty. None where that is not decided.
    [[nodiscard]] std::optional<TextRange> firstMatch(QStringView text) const;
    // Every match in `text`, in order and without overlap, empty ones included; those found so far
    // where that costs more than one text may.
    [[nodiscard]] std::vector<TextRange> allMatches(QStringView text) const;

    [[nodiscard]] const CompiledPattern& compiled() const { return *m_compiled; }

private:
    explicit RegularExpression(std::unique_ptr<CompiledPattern> compiled)
        : m_compiled(std::move(compiled))
    {
    }

    // Its position moves while it matches; the expression it stands for does not.
    std::unique_ptr<CompiledPattern> m_compiled;
};

} // namespace quillon
