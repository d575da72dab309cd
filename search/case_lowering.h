// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quillon {

// The text in lower case by Unicode's full mapping, for no language in particular: "ΟΔΟΣ" becomes
// "οδος", as a sigma at the end of a word has a form of its own.
QString lowerCased(const QString& text);

} // namespace quillon
