// SPDX-License-Identifier: MIT
// Settings where the system keeps those of all applications: in the place of settings_file.cpp on
// macOS, whose user defaults are a service, not a file. There is one set of them for the user, so
// the path says nothing.
#include "platform/settings_file.h"

#include <QSettings>
#include <QStringList>

namespace quillon {

namespace {

// Qt makes the application's identifier of these two, org.quillon.Quillon.
class NativeSettings : public QSettings {
public:
    NativeSettings()
        : QSettings(NativeFormat, UserScope, QStringLiteral("quillon.org"),
                    QStringLiteral("Quillon"))
    {
        // Neither the system's nor other applications' settings are ours.
        setFallbacksEnabled(false);
    }
};

// Qt writes its own separator as the point that stands in our keys.
QString nativeKey(QString key)
{
    return key.replace(u'.', u'/');
}

} // namespace

Result<QHash<QString, QString>> SettingsFile::read() const
{
    NativeSettings settings;
    QHash<QString, QString> values;
    const QStringList keys = settings.allKeys();
    for (QString key : keys) {
        const QString text = settings.value(key).toString();
        values.insert(key.replace(u'/', u'.'), text);
    }
    return values;
}

SettingsFile::Written SettingsFile::change(const Changes& changes, WhenBusy /*whenBusy*/) const
{
    NativeSettings settings;
    for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
        if (*it) {
            settings.setValue(nativeKey(it.key()), **it);
        } else {
            settings.remove(nativeKey(it.key()));
        }
    }
    settings.sync();
    return settings.status() == QSettings::NoError ? Written::Yes : Written::No;
}

} // namespace quillon
