// SPDX-License-Identifier: MIT
#include "platform/regular_expression.h"

#include "platform/matching_budget.h"

#include <unicode/uregex.h>

namespace quillon {

namespace {

constexpr int32_t kMaximumStackBytes = 8 * 1024 * 1024;

} // namespace

struct RegularExpression::Engine {
    URegularExpression* handle = nullptr;
    MatchingBudget passBudget = MatchingBudget::forPass();
    // The budget of the search that is going on.
    MatchingBudget* budget = nullptr;
    bool exhausted = false;

    Engine() = default;
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;
    ~Engine() { uregex_close(handle); }

    static Engine& of(const void* context)
    {
        return *static_cast<Engine*>(const_cast<void*>(context));
    }

    static UBool U_CALLCONV report(const void* context, int32_t /*steps*/)
    {
        return of(context).budget->takeReport();
    }

    static UBool U_CALLCONV attempt(const void* context, int64_t /*index*/)
    {
        return of(context).budget->takeAttempt();
    }

    bool open(const QString& pattern, CaseSensitivity caseSensitivity)
    {
        const uint32_t flags = caseSensitivity == CaseSensitivity::Insensitive
                                   ? uint32_t{UREGEX_CASE_INSENSITIVE}
                                   : 0U;
        UErrorCode status = U_ZERO_ERROR;
        UParseError where{};
        // ICU takes no null text, not even an empty one.
        const auto* units = reinterpret_cast<const char16_t*>(pattern.utf16());
        handle = uregex_open(pattern.isEmpty() ? u"" : units, static_cast<int32_t>(pattern.size()),
                             flags, &where, &status);
        return U_SUCCESS(status);
    }

    void limit()
    {
        UErrorCode status = U_ZERO_ERROR;
        uregex_setStackLimit(handle, kMaximumStackBytes, &status);
        uregex_setMatchCallback(handle, &Engine::report, this, &status);
        uregex_setFindProgressCallback(handle, &Engine::attempt, this, &status);
    }

    void begin(QStringView text, MatchingBudget& searchBudget)
    {
        UErrorCode status = U_ZERO_ERROR;
        const char16_t* data = text.isEmpty() ? u"" : text.utf16();
        uregex_setText(handle, data, static_cast<int32_t>(text.size()), &status);
        budget = &searchBudget;
        budget->beginSearch(text.size());
    }

    // The next match; none, and a failure in `status`, where that costs too much.
    std::optional<TextRange> findNext(UErrorCode& status) const
    {
        return uregex_findNext(handle, &status) ? std::optional(match()) : std::nullopt;
    }

    [[nodiscard]] TextRange match() const
    {
        UErrorCode status = U_ZERO_ERROR;
        const int32_t start = uregex_start(handle, 0, &status);
        const int32_t end = uregex_end(handle, 0, &status);
        return TextRange{start, end - start};
    }
};

std::unique_ptr<RegularExpression> RegularExpression::compile(const QString& pattern,
                                                              CaseSensitivity caseSensitivity,
                                                              PatternSource source)
{
    auto engine = std::make_unique<Engine>();
    if (!engine->open(pattern, caseSensitivity)) {
        return nullptr;
    }
    if (source == PatternSource::User) {
        engine->limit();
    }
    return std::unique_ptr<RegularExpression>(new RegularExpression(std::move(engine)));
}

RegularExpression::RegularExpression(std::unique_ptr<Engine> engine) : m_engine(std::move(engine))
{
}

RegularExpression::~RegularExpression() = default;

std::optional<TextRange> RegularExpression::firstMatch(QStringView text) const
{
    if (m_engine->exhausted) {
        return std::nullopt;
    }
    m_engine->begin(text, m_engine->passBudget);
    UErrorCode status = U_ZERO_ERROR;
    const auto match = m_engine->findNext(status);
    m_engine->exhausted = U_FAILURE(status);
    return m_engine->exhausted ? std::nullopt : match;
}

bool RegularExpression::hasMatch(QStringView text) const
{
    return firstMatch(text).has_value();
}

std::vector<TextRange> RegularExpression::allMatches(QStringView text) const
{
    std::vector<TextRange> matches;
    MatchingBudget textBudget = MatchingBudget::forText(text.size());
    m_engine->begin(text, textBudget);
    UErrorCode status = U_ZERO_ERROR;
    while (const auto match = m_engine->findNext(status)) {
        matches.push_back(*match);
    }
    return matches;
}

bool RegularExpression::isExhausted() const
{
    return m_engine->exhausted;
}

} // namespace quillon
