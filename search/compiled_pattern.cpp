// SPDX-License-Identifier: MIT
#include "search/compiled_pattern.h"

#include "search/compile_cost.h"

#include <unicode/uregex.h>

namespace quillon {

namespace {

// No less than ICU's own limit. It keeps a note for each step that it may have to take back.
constexpr int32_t kMaximumStackBytes = 8 * 1024 * 1024;

} // namespace

std::unique_ptr<CompiledPattern> CompiledPattern::compile(const QString& pattern,
                                                          CaseSensitivity caseSensitivity,
                                                          PatternSource source)
{
    // ICU takes an empty pattern for a mistake, but no null text.
    if (pattern.isEmpty() || (source == PatternSource::User && !compilesInTime(pattern))) {
        return nullptr;
    }
    const uint32_t flags =
        caseSensitivity == CaseSensitivity::Insensitive ? uint32_t{UREGEX_CASE_INSENSITIVE} : 0U;
    UErrorCode status = U_ZERO_ERROR;
    UParseError where{};
    URegularExpression* const handle =
        uregex_open(reinterpret_cast<const char16_t*>(pattern.utf16()),
                    static_cast<int32_t>(pattern.size()), flags, &where, &status);
    uregex_setStackLimit(handle, kMaximumStackBytes, &status);
    auto compiled = std::unique_ptr<CompiledPattern>(new CompiledPattern(handle, source));
    return U_SUCCESS(status) ? std::move(compiled) : nullptr;
}

CompiledPattern::~CompiledPattern()
{
    uregex_close(m_handle);
}

} // namespace quillon
