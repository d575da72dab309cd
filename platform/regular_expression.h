// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

// A range of a text, in UTF-16 units.
struct TextRange {
    qsizetype start = 0;
    qsizetype length = 0;

    [[nodiscard]] qsizetype end() const { return start + length; }
    bool operator==(const TextRange&) const = default;
};

enum class CaseSensitivity { Sensitive, Insensitive };

// Where a pattern comes from: users write what takes for ever, the program does not.
enum class PatternSource { User, Program };

// A compiled regular expression in ICU's syntax.
// https://unicode-org.github.io/icu/userguide/strings/regexp.html
//
// What a user's expression may cost is limited, so that none can keep the program busy for ever:
// looking for a first match by a budget for the object's whole life, which is one pass over a log,
// looking for all matches by a budget for each text. Once the former is spent such searches end
// without a match and isExhausted() is true.
class RegularExpression {
public:
    // No object where the pattern is not valid, the empty pattern included.
    static std::unique_ptr<RegularExpression> compile(const QString& pattern,
                                                      CaseSensitivity caseSensitivity,
                                                      PatternSource source = PatternSource::User);
    ~RegularExpression();
    RegularExpression(const RegularExpression&) = delete;
    RegularExpression& operator=(const RegularExpression&) = delete;

    // The first match in `text`; it may be empty.
    [[nodiscard]] std::optional<TextRange> firstMatch(QStringView text) const;
    [[nodiscard]] bool hasMatch(QStringView text) const;
    // Every match in `text`, in order and without overlap, empty ones included; those found so far
    // where that costs more than one text may. Has no effect on isExhausted().
    [[nodiscard]] std::vector<TextRange> allMatches(QStringView text) const;

    [[nodiscard]] bool isExhausted() const;

private:
    struct Engine;
    explicit RegularExpression(std::unique_ptr<Engine> engine);

    // The engine's position moves while it matches; the expression it stands for does not.
    std::unique_ptr<Engine> m_engine;
};

} // namespace quillon
