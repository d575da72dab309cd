// SPDX-License-Identifier: MIT
#pragma once

#include "search/text_range.h"

#include <QString>
#include <QStringView>
#include <unicode/uregex.h>

#include <memory>
#include <vector>

namespace quillon {

// ICU's regular expressions without anything of ours before them, for comparing what ours find.
// They disregard case. A question may take so many times ten thousand of ICU's steps.
class BareIcu {
public:
    BareIcu(const QString& pattern, int mostReports) : m_mostReports(mostReports)
    {
        UErrorCode status = U_ZERO_ERROR;
        m_handle.reset(uregex_open(reinterpret_cast<const char16_t*>(pattern.utf16()),
                                   static_cast<int32_t>(pattern.size()), UREGEX_CASE_INSENSITIVE,
                                   nullptr, &status));
        uregex_setMatchCallback(m_handle.get(), &BareIcu::report, this, &status);
        m_isValid = U_SUCCESS(status);
    }
    BareIcu(const BareIcu&) = delete;
    BareIcu& operator=(const BareIcu&) = delete;

    [[nodiscard]] bool isValid() const { return m_isValid; }

    struct Answer {
        // In order; empty ones included.
        std::vector<TextRange> matches;
        // Whether these are all that were asked for.
        bool isComplete = true;
        // How often ICU has taken ten thousand steps.
        int reports = 0;
    };
    [[nodiscard]] Answer firstMatch(QStringView text) { return matches(text, 1); }
    [[nodiscard]] Answer allMatches(QStringView text) { return matches(text, SIZE_MAX); }

private:
    struct Close {
        void operator()(URegularExpression* handle) const { uregex_close(handle); }
    };

    static UBool U_CALLCONV report(const void* context, int32_t /*steps*/)
    {
        auto& self = *const_cast<BareIcu*>(static_cast<const BareIcu*>(context));
        return ++self.m_reports < self.m_mostReports;
    }

    Answer matches(QStringView text, std::size_t atMost)
    {
        m_reports = 0;
        UErrorCode status = U_ZERO_ERROR;
        const char16_t* const units = text.isEmpty() ? u"" : text.utf16();
        uregex_setText(m_handle.get(), units, static_cast<int32_t>(text.size()), &status);
        Answer answer;
        while (answer.matches.size() < atMost && uregex_findNext(m_handle.get(), &status)) {
            const qsizetype start = uregex_start(m_handle.get(), 0, &status);
            answer.matches.push_back({start, uregex_end(m_handle.get(), 0, &status) - start});
        }
        answer.isComplete = U_SUCCESS(status);
        answer.reports = m_reports;
        return answer;
    }

    std::unique_ptr<URegularExpression, Close> m_handle;
    bool m_isValid = false;
    int m_mostReports;
    int m_reports = 0;
};

} // namespace quillon
