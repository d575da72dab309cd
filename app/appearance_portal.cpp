// SPDX-License-Identifier: MIT
#include "app/appearance_portal.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace quillon {

namespace {

constexpr QLatin1StringView kService("org.freedesktop.portal.Desktop");
constexpr QLatin1StringView kPath("/org/freedesktop/portal/desktop");
constexpr QLatin1StringView kInterface("org.freedesktop.portal.Settings");
constexpr QLatin1StringView kGroup("org.freedesktop.appearance");
constexpr QLatin1StringView kKey("color-scheme");

// The portal's numbers; any other means no preference.
constexpr uint kPrefersDark = 1;
constexpr uint kPrefersLight = 2;

// Every portal knows the first method; those to come may know the second only. The first wraps the
// value once more than the second does.
constexpr QLatin1StringView kReadMethod("Read");
constexpr QLatin1StringView kReadOneMethod("ReadOne");

QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace

AppearancePortal::AppearancePortal(const QDBusConnection& bus, QObject* parent)
    : QObject(parent), m_bus(bus)
{
    // The slot's types are looked up by name, and nothing has named this one yet.
    qRegisterMetaType<QDBusVariant>();
    const bool isListening = QDBusConnection(m_bus).connect(
        kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    // What was refused on a bus that is there is a slot that does not fit.
    if (!isListening && m_bus.isConnected()) {
        qWarning("Changes between light and dark will not be noticed.");
    }
    ask(kReadMethod);
}

void AppearancePortal::ask(const QString& method)
{
    QDBusMessage message = QDBusMessage::createMethodCall(kService, kPath, kInterface, method);
    message.setArguments({kGroup, kKey});
    auto* const call = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, method] {
        call->deleteLater();
        takeAnswer(*call, method);
    });
}

void AppearancePortal::takeAnswer(const QDBusPendingCallWatcher& call, const QString& method)
{
    const QDBusPendingReply<QDBusVariant> reply = call;
    if (reply.isError()) {
        if (method == kReadMethod && reply.error().type() == QDBusError::UnknownMethod) {
            ask(kReadOneMethod);
        }
    } else if (!m_hasSignalledValue) {
        takeValue(reply.value().variant());
    }
}

void AppearancePortal::settingChanged(const QString& group, const QString& key,
                                      const QDBusVariant& value)
{
    if (group == kGroup && key == kKey) {
        m_hasSignalledValue = true;
        takeValue(value.variant());
    }
}

void AppearancePortal::takeValue(const QVariant& value)
{
    switch (unwrapped(value).toUInt()) {
    case kPrefersDark:
        Q_EMIT preferenceChanged(Appearance::Dark);
        break;
    case kPrefersLight:
        Q_EMIT preferenceChanged(Appearance::Light);
        break;
    default:
        Q_EMIT preferenceChanged(std::nullopt);
        break;
    }
}

} // namespace quillon
