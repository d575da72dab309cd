// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <memory>

struct URegularExpression;

namespace quillon {

enum class CaseSensitivity : std::uint8_t { Sensitive, Insensitive };

// Where a pattern comes from: users write what takes for ever, the program does not.
enum class PatternSource : std::uint8_t { User, Program };

// A regular expression as ICU has compiled it, and the place where ICU keeps what it is doing with
// it: it matches one text at a time.
class CompiledPattern {
public:
    // No object where the pattern is not valid, the empty pattern included, or where a user's takes
    // too long to compile.
    static std::unique_ptr<CompiledPattern>
    compile(const QString& pattern, CaseSensitivity caseSensitivity, PatternSource source);
    ~CompiledPattern();
    CompiledPattern(const CompiledPattern&) = delete;
    CompiledPattern& operator=(const CompiledPattern&) = delete;

    [[nodiscard]] URegularExpression* handle() const { return m_handle; }
    // Whether what it may cost to match a text is limited.
    [[nodiscard]] bool isLimited() const { return m_source == PatternSource::User; }

private:
    CompiledPattern(URegularExpression* handle, PatternSource source)
        : m_handle(handle), m_source(source)
    {
    }

    URegularExpression* const m_handle;
    const PatternSource m_source;
};

} // namespace quillon
