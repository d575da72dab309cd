// SPDX-License-Identifier: MIT
#include "render/preference_keys.h"

namespace quillon {

const UserDefaults::Table& defaultPreferences()
{
    using namespace preference_keys;
    static const UserDefaults::Table table{
        {kColorFatal, QStringLiteral("#FF3B30")},
        {kColorError, QStringLiteral("#FF3B30")},
        {kColorWarning, QStringLiteral("#FF9500")},
        {kColorNotice, QStringLiteral("#FFD60A")},
        {kColorDeprecated, QStringLiteral("#F4C361")},
        {kColorInfo, QStringLiteral("#0A84FF")},
        {kColorDebug, QStringLiteral("#8E8E93")},
        {kColorDate, QStringLiteral("#0A84FF")},
        {kColorArrayDump, QStringLiteral("#BF5AF2")},
        {kWrapDefault, true},
        {kFontDefault, 13.0},
        {kDefaultFolder, QStringLiteral("")},
    };
    return table;
}

} // namespace quillon
