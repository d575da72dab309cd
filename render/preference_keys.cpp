// SPDX-License-Identifier: MIT
#include "render/preference_keys.h"

namespace quillon {

namespace {

UserDefaults::Table makeDefaultPreferences()
{
    using namespace preference_keys;
    UserDefaults::Table table;
    for (const HighlightPreference& preference : kHighlightPreferences) {
        if (preference.isStored()) {
            table.emplace_back(preference.key, QString(preference.defaultText));
        }
    }
    table.emplace_back(kWrapDefault, true);
    table.emplace_back(kFontDefault, 13.0);
    table.emplace_back(kDefaultFolder, QString());
    return table;
}

} // namespace

const UserDefaults::Table& defaultPreferences()
{
    static const UserDefaults::Table table = makeDefaultPreferences();
    return table;
}

} // namespace quillon
