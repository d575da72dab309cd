// SPDX-License-Identifier: MIT
#pragma once

#include "ui/theme.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

#include <optional>

class QDBusPendingCallWatcher;

namespace quillon {

// Listens to the desktop's settings portal for whether the user likes it light or dark. It asks
// without waiting; where there is no portal it stays silent.
class AppearancePortal : public QObject {
    Q_OBJECT

public:
    explicit AppearancePortal(const QDBusConnection& bus, QObject* parent = nullptr);

Q_SIGNALS:
    // The preference, when it has become known and whenever it changes; none for no preference.
    void preferenceChanged(std::optional<quillon::Appearance> preference);

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask(const QString& method);
    void takeAnswer(const QDBusPendingCallWatcher& call, const QString& method);
    void takeValue(const QVariant& value);

    const QDBusConnection m_bus;
    // A change that is signalled is newer than any answer still to come.
    bool m_hasSignalledValue = false;
};

} // namespace quillon
