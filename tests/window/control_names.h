// SPDX-License-Identifier: MIT
// What screen readers call the controls that several tests look for.
#pragma once

#include <QString>

namespace quillon {

inline const QString kSearch = QStringLiteral("Recherche");
inline const QString kTextSize = QStringLiteral("Taille du texte");
inline const QString kWrap = QStringLiteral("Activer le retour à la ligne");

} // namespace quillon
