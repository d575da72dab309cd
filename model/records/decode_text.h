// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

namespace quillon {

// The text that the bytes mean in UTF-8. Never fails and drops nothing: each maximal part of an
// ill-formed sequence becomes one U+FFFD (Unicode, chapter 3, "U+FFFD Substitution of Maximal
// Subparts"), and a byte order mark or a NUL stays a character of the text.
QString decodeText(QByteArrayView bytes);

} // namespace quillon
