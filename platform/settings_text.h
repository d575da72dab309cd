// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

namespace quillon {

// The text of a settings file in the INI notation of QSettings, which wrote the files of earlier
// versions:
//
//   [General]
//   prefs.default.folder="/srv/logs; old"
//   prefs.wrap.default=true
//
// Any bytes are a text. Lines that mean nothing here (other groups, comments, keys in another
// notation, damage) are never interpreted and stay as they are. A key consists of ASCII letters,
// digits, '.', '_' and '-'.
class SettingsText {
public:
    explicit SettingsText(QByteArray bytes) : m_bytes(std::move(bytes)) {}

    [[nodiscard]] const QByteArray& bytes() const { return m_bytes; }

    // The values of the General group. Only texts are values: what QSettings packed in another way
    // ("@Variant(…)", "@Rect(…)") counts as not there. Of two lines of a key the later counts.
    [[nodiscard]] QHash<QString, QString> values() const;

    // Gives the key that value and one line; without a value, none.
    void set(const QString& key, const std::optional<QString>& value);

private:
    QByteArray m_bytes;
};

} // namespace quillon
