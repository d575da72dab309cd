// SPDX-License-Identifier: MIT
#include "app/desktop/appearance_portal.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <array>

namespace quillon {

namespace {

constexpr QLatin1StringView kService("org.freedesktop.portal.Desktop");
constexpr QLatin1StringView kPath("/org/freedesktop/portal/desktop");
constexpr QLatin1StringView kInterface("org.freedesktop.portal.Settings");
constexpr QLatin1StringView kAppearanceGroup("org.freedesktop.appearance");
constexpr QLatin1StringView kInterfaceGroup("org.gnome.desktop.interface");

// The settings by group.
using Settings = QMap<QString, QVariantMap>;

QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

// The portal's numbers; any other means no preference.
std::optional<Appearance> appearanceFrom(const QVariant& value)
{
    switch (value.toUInt()) {
    case 1:
        return Appearance::Dark;
    case 2:
        return Appearance::Light;
    default:
        return std::nullopt;
    }
}

// Red, green and blue from 0 to 1; what lies outside means no accent.
std::optional<QColor> colorFrom(const QVariant& value)
{
    if (value.metaType() != QMetaType::fromType<QDBusArgument>()) {
        return std::nullopt;
    }
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1StringView("(ddd)")) {
        return std::nullopt;
    }
    std::array<double, 3> parts{};
    argument.beginStructure();
    for (double& part : parts) {
        argument >> part;
    }
    argument.endStructure();
    for (const double part : parts) {
        if (!(part >= 0.0 && part <= 1.0)) {
            return std::nullopt;
        }
    }
    return QColor::fromRgbF(static_cast<float>(parts[0]), static_cast<float>(parts[1]),
                            static_cast<float>(parts[2]));
}

double textScaleFrom(const QVariant& value)
{
    const double factor = value.toDouble();
    return factor > 0.0 ? factor : 1.0;
}

} // namespace

AppearancePortal::AppearancePortal(const QDBusConnection& bus, QObject* parent)
    : QObject(parent), m_bus(bus)
{
    // The slot's types are looked up by name, and nothing has named these yet.
    qRegisterMetaType<QDBusVariant>();
    qDBusRegisterMetaType<Settings>();
    const bool isListening = QDBusConnection(m_bus).connect(
        kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    // What was refused on a bus that is there is a slot that does not fit.
    if (!isListening && m_bus.isConnected()) {
        qWarning("Changes of the desktop's appearance will not be noticed.");
    }
    QDBusMessage message =
        QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("ReadAll"));
    message.setArguments({QStringList{kAppearanceGroup, kInterfaceGroup}});
    auto* const call = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        takeAnswer(*call);
    });
}

void AppearancePortal::takeAnswer(const QDBusPendingCallWatcher& call)
{
    const QDBusPendingReply<Settings> reply = call;
    if (reply.isError()) {
        return;
    }
    const Settings settings = reply.value();
    bool isKnown = false;
    for (auto group = settings.begin(); group != settings.end(); ++group) {
        for (auto entry = group->begin(); entry != group->end(); ++entry) {
            if (!m_signalledKeys.contains(entry.key())) {
                isKnown |= take(group.key(), entry.key(), entry.value());
            }
        }
    }
    if (isKnown) {
        Q_EMIT preferencesChanged(m_preferences);
    }
}

void AppearancePortal::settingChanged(const QString& group, const QString& key,
                                      const QDBusVariant& value)
{
    if (take(group, key, value.variant())) {
        m_signalledKeys.append(key);
        Q_EMIT preferencesChanged(m_preferences);
    }
}

bool AppearancePortal::take(const QString& group, const QString& key, const QVariant& wrapped)
{
    const QVariant value = unwrapped(wrapped);
    if (group == kInterfaceGroup && key == QLatin1StringView("text-scaling-factor")) {
        m_preferences.textScale = textScaleFrom(value);
    } else if (group != kAppearanceGroup) {
        return false;
    } else if (key == QLatin1StringView("color-scheme")) {
        m_preferences.appearance = appearanceFrom(value);
    } else if (key == QLatin1StringView("accent-color")) {
        m_preferences.accent = colorFrom(value);
    } else if (key == QLatin1StringView("contrast")) {
        m_preferences.wantsHighContrast = value.toUInt() == 1;
    } else {
        return false;
    }
    return true;
}

} // namespace quillon
