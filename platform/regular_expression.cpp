// SPDX-License-Identifier: MIT
#include "platform/regular_expression.h"

#include <unicode/uregex.h>

namespace quillon {

namespace {

// The engine reports in once per this many steps (uregex_setMatchCallback), so a match that needs
// fewer is never counted: ordinary expressions over any number of lines cost nothing here.
constexpr int kStepsPerReport = 10'000;
// About a second of backtracking on a slow machine.
constexpr int kMaximumReports = 200'000'000 / kStepsPerReport / 4;
constexpr int32_t kMaximumStackBytes = 8 * 1024 * 1024;

} // namespace

struct RegularExpression::Engine {
    URegularExpression* handle = nullptr;
    int reports = 0;
    bool exhausted = false;

    Engine() = default;
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;
    ~Engine() { uregex_close(handle); }

    static UBool U_CALLCONV report(const void* context, int32_t /*steps*/)
    {
        auto* engine = static_cast<Engine*>(const_cast<void*>(context));
        return ++engine->reports <= kMaximumReports;
    }

    void setText(QStringView text)
    {
        UErrorCode status = U_ZERO_ERROR;
        // ICU takes no null text, not even an empty one.
        const char16_t* data = text.isEmpty() ? u"" : text.utf16();
        uregex_setText(handle, data, static_cast<int32_t>(text.size()), &status);
    }

    bool findNext()
    {
        UErrorCode status = U_ZERO_ERROR;
        const bool found = uregex_findNext(handle, &status);
        if (U_FAILURE(status)) {
            exhausted = true;
            return false;
        }
        return found;
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
                                                              CaseSensitivity caseSensitivity)
{
    auto engine = std::make_unique<Engine>();
    const uint32_t flags =
        caseSensitivity == CaseSensitivity::Insensitive ? uint32_t{UREGEX_CASE_INSENSITIVE} : 0U;
    UErrorCode status = U_ZERO_ERROR;
    UParseError where{};
    engine->handle =
        uregex_open(pattern.isEmpty() ? u"" : reinterpret_cast<const char16_t*>(pattern.utf16()),
                    static_cast<int32_t>(pattern.size()), flags, &where, &status);
    if (U_FAILURE(status)) {
        return nullptr;
    }
    uregex_setStackLimit(engine->handle, kMaximumStackBytes, &status);
    uregex_setMatchCallback(engine->handle, &Engine::report, engine.get(), &status);
    return std::unique_ptr<RegularExpression>(new RegularExpression(std::move(engine)));
}

RegularExpression::RegularExpression(std::unique_ptr<Engine> engine) : m_engine(std::move(engine))
{
}

RegularExpression::~RegularExpression() = default;

std::optional<TextRange> RegularExpression::firstMatch(QStringView text) const
{
    if (!hasMatch(text)) {
        return std::nullopt;
    }
    return m_engine->match();
}

bool RegularExpression::hasMatch(QStringView text) const
{
    if (m_engine->exhausted) {
        return false;
    }
    m_engine->setText(text);
    return m_engine->findNext();
}

std::vector<TextRange> RegularExpression::allMatches(QStringView text) const
{
    std::vector<TextRange> matches;
    if (m_engine->exhausted) {
        return matches;
    }
    m_engine->setText(text);
    while (m_engine->findNext()) {
        matches.push_back(m_engine->match());
    }
    return matches;
}

bool RegularExpression::isExhausted() const
{
    return m_engine->exhausted;
}

} // namespace quillon
