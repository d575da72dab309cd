// SPDX-License-Identifier: MIT
#pragma once

#include "search/search_expression.h"

#include <QString>

#include <memory>

namespace quillon {

inline std::shared_ptr<const SearchExpression> search(const char16_t* query)
{
    return SearchExpression::make(QString::fromUtf16(query));
}

} // namespace quillon
