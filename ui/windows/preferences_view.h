// SPDX-License-Identifier: MIT
#pragma once

#include "platform/subscription.h"
#include "ui/windows/defaults_field.h"

#include <QScrollArea>

#include <functional>
#include <optional>
#include <vector>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QSlider;
class QVBoxLayout;

namespace quillon {

class ColorWell;
class NotificationCenter;
class SwitchBox;
class UserDefaults;

// The controls of the preferences: each is bound to one key of the user defaults, stores every edit
// at once and follows every change of the stored value, wherever it comes from. Each time the view
// goes away it posts kPrefsDidClose (minimising its window is not going away). The user defaults
// and the notification centre must outlive it.
class PreferencesView : public QScrollArea {
    Q_OBJECT

public:
    // Asks for a folder under a title and gives its path, or nothing when the user cancels.
    using FolderChooser = std::function<std::optional<QString>(const QString& title)>;

    // Without a chooser, the desktop's own folder dialog is used.
    PreferencesView(UserDefaults& defaults, NotificationCenter& center,
                    FolderChooser folderChooser = {}, QWidget* parent = nullptr);
    ~PreferencesView() override;

public Q_SLOTS:
    void chooseFolder();
    // Stores every default preference explicitly.
    void restoreDefaults();

protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct ColorRow {
        DefaultsField<QString> field;
        ColorWell* well;
    };

    QWidget* makeColorGroup();
    QWidget* makeDisplayGroup();
    QHBoxLayout* makeSizeRow();
    QWidget* makeFolderGroup();
    QHBoxLayout* makeRestoreRow();
    ColorWell* makeColorWell(QLatin1StringView key, const QString& label);
    void closeOtherPanels(const ColorWell* kept);
    void showStoredValues();

    UserDefaults& m_defaults;
    NotificationCenter& m_center;
    const FolderChooser m_folderChooser;

    DefaultsField<bool> m_wrapDefault;
    DefaultsField<double> m_fontDefault;
    DefaultsField<QString> m_defaultFolder;

    std::vector<ColorRow> m_colorRows;
    SwitchBox* m_wrapSwitch = nullptr;
    QSlider* m_sizeSlider = nullptr;
    QLabel* m_sizeText = nullptr;
    QLineEdit* m_folderEdit = nullptr;
    Subscription m_defaultsChange;
};

} // namespace quillon
