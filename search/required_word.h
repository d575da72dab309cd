// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quillon {

// A word that every match of the pattern, in ICU's syntax, contains, for looking it up before the
// expression is run: the longest run of plain ASCII characters that can neither be missing nor be
// one of several. As it stands in the pattern, which is matched without regard to case. Empty where
// there is none, or where the pattern is too involved to be sure.
QString requiredWordOf(const QString& pattern);

} // namespace quillon
