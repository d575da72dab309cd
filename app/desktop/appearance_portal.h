// SPDX-License-Identifier: MIT
#pragma once

#include "app/desktop/desktop_preferences.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

class QDBusPendingCallWatcher;

namespace quillon {

// Listens to the desktop's settings portal for how the user likes programs to look. It asks without
// waiting; where there is no portal it stays silent.
class AppearancePortal : public QObject {
    Q_OBJECT

public:
    explicit AppearancePortal(const QDBusConnection& bus, QObject* parent = nullptr);

Q_SIGNALS:
    // All of the preferences, when they have become known and whenever one of them changes.
    void preferencesChanged(const quillon::DesktopPreferences& preferences);

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void takeAnswer(const QDBusPendingCallWatcher& call);
    // Whether it is a setting that counts here.
    bool take(const QString& group, const QString& key, const QVariant& value);

    const QDBusConnection m_bus;
    DesktopPreferences m_preferences;
    // Changes that are signalled are newer than any answer still to come.
    QStringList m_signalledKeys;
};

} // namespace quillon
