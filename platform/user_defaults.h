// SPDX-License-Identifier: MIT
#pragma once

#include "platform/debouncer.h"
#include "platform/settings_file.h"

#include <QFileSystemWatcher>
#include <QHash>
#include <QList>
#include <QString>
#include <QTimer>
#include <QVariant>

#include <optional>
#include <utility>

namespace quillon {

class NotificationCenter;

// Posted after a stored value has changed, whether through UserDefaults or in the settings file.
inline constexpr QLatin1StringView kUserDefaultsDidChange{"Quillon.userDefaultsDidChange"};

// The user's settings: stored values in the settings file, over registered defaults that are never
// written. Reads never fail: what is missing reads as no text, false or 0, and a value of another
// kind is converted. A settings file that cannot be read at the start leaves the defaults in force,
// one that cannot be read later the values that are known; what cannot be written is kept in memory
// and written with the next value. The notification centre must outlive the object.
class UserDefaults {
public:
    using Table = QList<std::pair<QString, QVariant>>;

    // The settings file of this user: $XDG_CONFIG_HOME/Quillon/Quillon.conf on Linux.
    static QString standardFilePath();

    explicit UserDefaults(NotificationCenter& center, const QString& filePath = standardFilePath());
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;
    ~UserDefaults();

    // Adds values that count where nothing is stored. Registering the same table again is harmless.
    void registerDefaults(const Table& table);

    // The stored value, else the registered one, else an invalid variant.
    [[nodiscard]] QVariant objectForKey(const QString& key) const;
    [[nodiscard]] std::optional<QString> stringForKey(const QString& key) const;
    // Text reads as true when it is "true", "yes" (in any case) or a number other than 0.
    [[nodiscard]] bool boolForKey(const QString& key) const;
    // Text reads as the number that it begins with, 0 when there is none.
    [[nodiscard]] double doubleForKey(const QString& key) const;

    // Stores a value and posts kUserDefaultsDidChange. The file is written by the event loop. Of
    // the key see SettingsText.
    void setObject(const QVariant& value, const QString& key);
    // Forgets the stored value, so that the registered one counts.
    void removeObject(const QString& key);

private:
    // Gives true when it began to watch something that it did not watch before.
    bool watchFile();
    void reloadAfterOutsideChange();
    void noteChange(const QString& key);
    void writeChanges(SettingsFile::WhenBusy whenBusy);

    NotificationCenter& m_center;
    const SettingsFile m_file;
    QHash<QString, QVariant> m_stored;
    QHash<QString, QVariant> m_registered;
    // What m_stored has and the file has not, or the other way round.
    SettingsFile::Changes m_unwritten;
    QTimer m_writing;
    QFileSystemWatcher m_watcher;
    Debouncer m_outsideChanges;
};

} // namespace quillon
