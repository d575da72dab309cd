// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QStringView>

namespace quillon {

// True where the text holds a character that is not ASCII but becomes ASCII letters under Unicode's
// full case folding (CaseFolding.txt), alone or among others: "ß" folds to "ss", U+212A to "k".
// Comparing such a text with an ASCII word takes more than comparing letters.
bool hasCharacterFoldingToAscii(QStringView text);

// Whether such a character can stand for a part of an ASCII word: the sharp s for the "ss" of
// "class", but none for a part of "fatal". One that folds to something beside ASCII letters too
// stands for no part.
bool isFoldedTo(QLatin1StringView word);

} // namespace quillon
