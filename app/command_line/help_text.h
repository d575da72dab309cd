// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quillon {

// The text of --help, line feed included; no line is longer than a terminal of 80 columns.
QString helpText();

// A few lines that tell how the program is called.
QString usageText();

} // namespace quillon
