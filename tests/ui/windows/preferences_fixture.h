// SPDX-License-Identifier: MIT
#pragma once

#include "model/notification_names.h"
#include "tests/support/printing.h"
#include "tests/support/temporary_defaults.h"
#include "ui/controls/color_well.h"
#include "ui/controls/switch_box.h"
#include "ui/windows/preferences_window.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

#include <gtest/gtest.h>
#include <memory>
#include <optional>

namespace quillon {

// A preferences window over defaults of its own, with a count of what it stores and posts.
class PreferencesFixture : public testing::Test {
protected:
    PreferencesFixture()
    {
        temporary.defaults.registerDefaults(defaultPreferences());
        changes = temporary.center.observe(kUserDefaultsDidChange, [this] { ++changeCount; });
        closings = temporary.center.observe(kPrefsDidClose, [this] { ++closeCount; });
        window = std::make_unique<PreferencesWindow>(temporary.defaults, temporary.center,
                                                     [this](const QString& title) {
                                                         chooserTitle = title;
                                                         return chosenFolder;
                                                     });
        window->show();
    }

    template <typename T>
    T& control(const QString& name) const
    {
        return *window->findChild<T*>(name);
    }
    ColorWell& well(const QString& key) const { return control<ColorWell>(key); }
    SwitchBox& wrapSwitch() const { return control<SwitchBox>(preference_keys::kWrapDefault); }
    QSlider& sizeSlider() const { return control<QSlider>(preference_keys::kFontDefault); }
    QLineEdit& folderEdit() const { return control<QLineEdit>(preference_keys::kDefaultFolder); }
    QString sizeText() const { return control<QLabel>(QStringLiteral("sizeText")).text(); }
    void click(const QString& name) const { control<QPushButton>(name).click(); }
    QString stored(const QString& key) const
    {
        return temporary.defaults.stringForKey(key).value_or(QStringLiteral("(none)"));
    }

    TemporaryDefaults temporary;
    std::optional<QString> chosenFolder;
    QString chooserTitle;
    int changeCount = 0;
    int closeCount = 0;
    Subscription changes;
    Subscription closings;
    std::unique_ptr<PreferencesWindow> window;
};

} // namespace quillon
