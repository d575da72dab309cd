// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quillon {

// The line for standard error, line feed included, when no window can be shown: why, and how the
// log can be read without one.
QString noWindowText(const QString& reason);

} // namespace quillon
