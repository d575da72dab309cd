// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quillon {

// One line for somebody who may not read the file at `path`: who may (its owner, its group and its
// mode, or those of the folder on the way that is closed) and how one usually becomes one of them.
// Empty where that cannot be told.
QString permissionHint(const QString& path);

} // namespace quillon
