// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_severity.h"

#include <QStringView>

namespace quillon {

// The severity that a line's own text tells: the first of "fatal error", "php fatal", "error",
// "php warning", "warning", "notice", "deprecated", "info" and "debug" that the lower-cased text
// contains anywhere decides (the first two both mean fatal). Words are not delimited, and the lines
// around do not count.
LogSeverity classify(QStringView text);

} // namespace quillon
