// SPDX-License-Identifier: MIT
// The first line as an expression, the rest as the text of a line: what the search says of it, and
// what it marks, must be what ICU finds, wherever both can tell within their steps.
#include "fuzz/require.h"
#include "search/compile_cost.h"
#include "tests/support/search_comparison.h"

namespace {

// An expression that reads the text to its end at each step is not to take for ever.
constexpr qsizetype kLongestText = 1'000;
constexpr int kMostReports = 30;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    using namespace quillon;
    const QString input = QString::fromUtf8(QByteArrayView(data, static_cast<qsizetype>(size)));
    const qsizetype end = input.indexOf(u'\n');
    const QString expression = input.left(end);
    const QString text = end < 0 ? QString() : input.sliced(end + 1).left(kLongestText);
    const bool isDelimited = expression.startsWith(u'/') && expression.endsWith(u'/');
    if (isDelimited || !compilesInTime(expression) || !BareIcu(expression, 1).isValid()) {
        return 0;
    }
    require(SearchComparer(expression, kMostReports).compare(text).difference == nullptr);
    return 0;
}
