// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillon {

// The text that a value of a settings file stands for, nothing when it stands for no text. Quotes
// keep white space, a backslash begins what cannot be written otherwise, and a comma is a comma.
// Damaged values are read as far as they make sense.
std::optional<QString> settingsValue(QByteArrayView notation);

// How a settings file has the text, such that settingsValue() gives it back.
QByteArray settingsNotation(const QString& text);

} // namespace quillon
