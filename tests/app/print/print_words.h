// SPDX-License-Identifier: MIT
// What most command lines of these tests are made of.
#pragma once

#include <QString>

namespace quillon {

inline const QString kPrint = QStringLiteral("--print");
inline const QString kLog = QStringLiteral("debug.log");
inline const QString kFirst = QStringLiteral("a.log");
inline const QString kSecond = QStringLiteral("b.log");

} // namespace quillon
