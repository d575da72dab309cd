// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace quillon {

// True where the text holds a character that is not ASCII but becomes ASCII letters under Unicode's
// full case folding (CaseFolding.txt), alone or among others: "ß" folds to "ss", U+212A to "k".
// Comparing such a text with an ASCII word takes more than comparing letters.
bool hasCharacterFoldingToAscii(QStringView text);

} // namespace quillon
