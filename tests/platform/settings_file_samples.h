// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quillon {

inline const QString kSettingsFile = QStringLiteral("Quillon.conf");
inline const QString kColorKey = QStringLiteral("prefs.color.info");
inline const QString kBlue = QStringLiteral("#0000FF");

} // namespace quillon
