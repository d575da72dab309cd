// SPDX-License-Identifier: MIT
#include "search/case_lowering.h"

#include <unicode/ustring.h>

namespace quillon {

QString lowerCased(const QString& text)
{
    const auto lower = [&text](QString& lowered) {
        UErrorCode status = U_ZERO_ERROR;
        return u_strToLower(reinterpret_cast<char16_t*>(lowered.data()),
                            static_cast<int32_t>(lowered.size()),
                            reinterpret_cast<const char16_t*>(text.utf16()),
                            static_cast<int32_t>(text.size()), "", &status);
    };
    // Hardly ever longer than it was.
    QString lowered(text.size(), Qt::Uninitialized);
    const int32_t length = lower(lowered);
    const bool isWhole = length <= lowered.size();
    lowered.resize(length);
    if (!isWhole) {
        lower(lowered);
    }
    return lowered;
}

} // namespace quillon
