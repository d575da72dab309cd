// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>
#include <unicode/utext.h>

namespace quillon {

class MatchingBudget;

// A text that ICU reads piece by piece, each of which is taken from a budget: the only way to see
// what an expression reads between two of the steps that ICU counts. Once the budget is spent,
// whoever reads on is at the end of the text at once. What is found then means nothing, but it is
// found soon. The text's units and the budget must outlive the object.
class PiecewiseText {
public:
    PiecewiseText(QStringView text, MatchingBudget& budget);
    PiecewiseText(const PiecewiseText&) = delete;
    PiecewiseText& operator=(const PiecewiseText&) = delete;
    ~PiecewiseText();

    [[nodiscard]] UText* handle() { return &m_handle; }

private:
    // What every copy of the handle refers to; ICU makes copies to read at several places.
    struct Source {
        QStringView text;
        MatchingBudget& budget;
    };

    static const Source& sourceOf(const UText& handle);
    static void showPiece(UText& handle, qsizetype start, qsizetype end, qsizetype at);

    static UText* U_CALLCONV clone(UText* copy, const UText* handle, UBool isDeep,
                                   UErrorCode* status);
    static int64_t U_CALLCONV length(UText* handle);
    static UBool U_CALLCONV access(UText* handle, int64_t index, UBool isForward);
    static int32_t U_CALLCONV extract(UText* handle, int64_t start, int64_t end, UChar* copy,
                                      int32_t capacity, UErrorCode* status);
    static const UTextFuncs& functions();

    Source m_source;
    UText m_handle = UTEXT_INITIALIZER;
};

} // namespace quillon
