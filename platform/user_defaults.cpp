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

// An editor that writes into the file is done before this has passed, so that half a text is never
// taken for what the user wants.
constexpr auto kOutsideQuietPeriod = 50ms;

// Another window that is writing the file is done before this has passed.
constexpr auto kRetryPeriod = 50ms;

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

QHash<QString, QVariant> asVariants(const QHash<QString, QString>& texts)
{
    QHash<QString, QVariant> variants;
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        variants.insert(it.key(), it.value());
    }
    return variants;
}

// Our own writes come back too: values as text, where they were set as numbers.
bool haveSameTexts(const QHash<QString, QVariant>& some, const QHash<QString, QVariant>& others)
{
    if (some.size() != others.size()) {
        return false;
    }
    for (auto it = some.cbegin(); it != some.cend(); ++it) {
        if (!others.contains(it.key()) || textOf(*it) != textOf(others.value(it.key()))) {
            return false;
        }
    }
    return true;
}

bool isText(const QVariant& value)
{
    return value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QStringList;
}

} // namespace

QString UserDefaults::standardFilePath()
{
    QString folder = qEnvironmentVariable("XDG_CONFIG_HOME", QStringLiteral(".config"));
    if (folder.isEmpty()) {
        folder = QStringLiteral(".config");
    }
    return QDir::home().filePath(folder) + QStringLiteral("/Quillon/Quillon.conf");
}

UserDefaults::UserDefaults(NotificationCenter& center, const QString& filePath)
    : m_center(center), m_file(filePath),
      m_outsideChanges(kOutsideQuietPeriod, [this] { reloadAfterOutsideChange(); })
{
    if (const auto values = m_file.read()) {
        m_stored = asVariants(values.value());
    }
    watchFile();
    const auto changed = [this] {
        m_outsideChanges.trigger();
    };
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_watcher, changed);
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher, changed);
    m_writing.setSingleShot(true);
    QObject::connect(&m_writing, &QTimer::timeout, &m_writing,
                     [this] { writeChanges(SettingsFile::WhenBusy::Leave); });
}

UserDefaults::~UserDefaults()
{
    writeChanges(SettingsFile::WhenBusy::WriteAnyway);
}

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
    m_stored.insert(key, value);
    noteChange(key);
}

void UserDefaults::removeObject(const QString& key)
{
    m_stored.remove(key);
    noteChange(key);
}

void UserDefaults::noteChange(const QString& key)
{
    m_unwritten.insert(key, textOf(m_stored.value(key)));
    m_writing.start(0);
    m_center.post(kUserDefaultsDidChange);
}

void UserDefaults::writeChanges(SettingsFile::WhenBusy whenBusy)
{
    if (m_unwritten.isEmpty()) {
        return;
    }
    switch (m_file.change(m_unwritten, whenBusy)) {
    case SettingsFile::Written::Yes:
        m_unwritten.clear();
        watchFile();
        break;
    case SettingsFile::Written::LaterPerhaps:
        m_writing.start(kRetryPeriod);
        break;
    case SettingsFile::Written::No:
        break;
    }
}

// Editors replace the file rather than write into it, which ends a watch on the file itself; the
// watch on its folder (or on the nearest one that may be read) tells when it is back.
bool UserDefaults::watchFile()
{
    const QString& path = m_file.path();
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
    auto values = m_file.read();
    while (watchFile()) {
        values = m_file.read();
    }
    if (!values) {
        return;
    }
    QHash<QString, QVariant> stored = asVariants(values.value());
    for (auto it = m_unwritten.cbegin(); it != m_unwritten.cend(); ++it) {
        if (it.value()) {
            stored.insert(it.key(), *it.value());
        } else {
            stored.remove(it.key());
        }
    }
    if (!haveSameTexts(stored, m_stored)) {
        m_stored = std::move(stored);
        m_center.post(kUserDefaultsDidChange);
    }
}

} // namespace quillon
