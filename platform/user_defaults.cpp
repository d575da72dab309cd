// SPDX-License-Identifier: MIT
#include "platform/user_defaults.h"

#include "platform/notification_center.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <chrono>
#include <cmath>

namespace quillon {

namespace {

using namespace std::chrono_literals;

// QSettings notes a file's size and time after it has read it, so that of a file that is written
// meanwhile it keeps the former text and never reads the new one. Whoever writes a settings file is
// done before this has passed.
constexpr auto kOutsideQuietPeriod = 50ms;

// An unquoted comma in a hand-edited settings file makes QSettings read a list; as text it is the
// line that the user wrote.
std::optional<QString> textOf(const QVariant& value)
{
    if (value.typeId() == QMetaType::QStringList) {
        return value.toStringList().join(QLatin1StringView(", "));
    }
    if (value.isValid() && value.canConvert<QString>()) {
        return value.toString();
    }
    return std::nullopt;
}

double numberAtStartOf(const QString& text)
{
    static const QRegularExpression number(
        QStringLiteral("^\\s*[+-]?(\\d+\\.?\\d*|\\.\\d+)([eE][+-]?\\d+)?"));
    const double value = number.match(text).captured().trimmed().toDouble();
    return std::isfinite(value) ? value : 0.0;
}

bool isText(const QVariant& value)
{
    return value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QStringList;
}

} // namespace

QString UserDefaults::standardFilePath()
{
    // QSettings knows where each platform keeps such files, but ends the name in ".ini".
    const QString iniPath = QSettings(QSettings::IniFormat, QSettings::UserScope,
                                      QStringLiteral("Quillon"), QStringLiteral("Quillon"))
                                .fileName();
    return iniPath.chopped(4) + QStringLiteral(".conf");
}

UserDefaults::UserDefaults(NotificationCenter& center, const QString& filePath)
    : m_center(center), m_settings(filePath, QSettings::IniFormat),
      m_outsideChanges(kOutsideQuietPeriod, [this] { reloadAfterOutsideChange(); })
{
    m_stored = readStored();
    watchFile();
    const auto changed = [this] {
        m_outsideChanges.trigger();
    };
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_settings, changed);
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_settings, changed);
}

UserDefaults::~UserDefaults() = default;

void UserDefaults::registerDefaults(const Table& table)
{
    for (const auto& [key, value] : table) {
        m_registered.insert(key, value);
    }
}

QVariant UserDefaults::objectForKey(const QString& key) const
{
    const auto stored = m_stored.constFind(key);
    return stored != m_stored.constEnd() ? *stored : m_registered.value(key);
}

std::optional<QString> UserDefaults::stringForKey(const QString& key) const
{
    return textOf(objectForKey(key));
}

bool UserDefaults::boolForKey(const QString& key) const
{
    const QVariant value = objectForKey(key);
    if (!isText(value)) {
        return value.toBool();
    }
    const QString text = textOf(value).value_or(QString()).trimmed().toLower();
    return text == QLatin1StringView("true") || text == QLatin1StringView("yes") ||
           numberAtStartOf(text) != 0.0;
}

double UserDefaults::doubleForKey(const QString& key) const
{
    const QVariant value = objectForKey(key);
    if (isText(value)) {
        return numberAtStartOf(textOf(value).value_or(QString()));
    }
    const double number = value.toDouble();
    return std::isfinite(number) ? number : 0.0;
}

void UserDefaults::setObject(const QVariant& value, const QString& key)
{
    m_settings.setValue(key, value);
    m_stored.insert(key, value);
    watchFile();
    m_center.post(kUserDefaultsDidChange);
}

void UserDefaults::removeObject(const QString& key)
{
    m_settings.remove(key);
    m_stored.remove(key);
    m_center.post(kUserDefaultsDidChange);
}

// Editors replace the file rather than write into it, which ends a watch on the file itself; the
// watch on its folder (or on the nearest one that may be read) tells when it is back.
bool UserDefaults::watchFile()
{
    const QString path = m_settings.fileName();
    QString folder = QFileInfo(path).absolutePath();
    while (!QFileInfo(folder).isReadable() && !QDir(folder).isRoot()) {
        folder = QFileInfo(folder).absolutePath();
    }
    bool isNew = false;
    if (!m_watcher.directories().contains(folder)) {
        isNew = m_watcher.addPath(folder);
    }
    if (QFileInfo(path).isReadable() && !m_watcher.files().contains(path)) {
        isNew = m_watcher.addPath(path) || isNew;
    }
    return isNew;
}

void UserDefaults::reloadAfterOutsideChange()
{
    // What changes between reading and the start of a watch would go unseen: read again after it.
    do {
        m_settings.sync();
    } while (watchFile());
    QHash<QString, QVariant> stored = readStored();
    // Our own writes come back here too: values as text, where they were set as numbers.
    const auto sameText = [](const QVariant& a, const QVariant& b) {
        return textOf(a) == textOf(b);
    };
    bool changed = stored.size() != m_stored.size();
    for (auto it = stored.cbegin(); !changed && it != stored.cend(); ++it) {
        changed = !m_stored.contains(it.key()) || !sameText(*it, m_stored.value(it.key()));
    }
    if (changed) {
        m_stored = std::move(stored);
        m_center.post(kUserDefaultsDidChange);
    }
}

QHash<QString, QVariant> UserDefaults::readStored() const
{
    QHash<QString, QVariant> stored;
    const QStringList keys = m_settings.allKeys();
    for (const QString& key : keys) {
        stored.insert(key, m_settings.value(key));
    }
    return stored;
}

} // namespace quillon
