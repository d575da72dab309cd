// SPDX-License-Identifier: MIT
#include "app/file_handover.h"

#include "app/file_handover_adaptor.h"
#include "app/session_bus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

namespace quillon {

namespace {

// Both follow from the application's id, which is also the name of its desktop entry: that is how a
// desktop finds them.
constexpr QLatin1StringView kBusName("org.quillon.Quillon");
constexpr QLatin1StringView kObjectPath("/org/quillon/Quillon");
constexpr QLatin1StringView kInterface("org.freedesktop.Application");

// A window that is reading a large log answers late; one that has hung must not keep the user
// waiting for good.
constexpr int kAnswerTimeoutMilliseconds = 5000;

QVariantMap platformData(const HandoverRequest& request)
{
    QVariantMap data;
    if (!request.activationToken.isEmpty()) {
        data.insert(QStringLiteral("activation-token"), request.activationToken);
        data.insert(QStringLiteral("desktop-startup-id"), request.activationToken);
    }
    return data;
}

bool call(const QDBusConnection& bus, const QString& method, const QVariantList& arguments)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(kBusName, kObjectPath, kInterface, method);
    message.setArguments(arguments);
    const QDBusMessage answer = bus.call(message, QDBus::Block, kAnswerTimeoutMilliseconds);
    return answer.type() == QDBusMessage::ReplyMessage;
}

// Following comes first: it takes effect on files that are opened after it.
bool handOver(const QDBusConnection& bus, const HandoverRequest& request)
{
    const QVariantMap data = platformData(request);
    if (request.followTail && !call(bus, QStringLiteral("ActivateAction"),
                                    {QString(kFollowAction), QVariantList(), data})) {
        return false;
    }
    if (request.files.isEmpty()) {
        return call(bus, QStringLiteral("Activate"), {data});
    }
    const QStringList uris = QUrl::toStringList(request.files, QUrl::FullyEncoded);
    return call(bus, QStringLiteral("Open"), {uris, data});
}

} // namespace

FileHandover::FileHandover(QObject* parent) : QObject(parent)
{
    new FileHandoverAdaptor(*this);
}

FileHandover::Outcome FileHandover::claim(const HandoverRequest& request)
{
    std::optional<QDBusConnection> bus = sessionBus();
    // The object is there before the name is: whoever finds the name calls at once.
    if (!bus || !bus->registerObject(kObjectPath, this, QDBusConnection::ExportAdaptors)) {
        return Outcome::Alone;
    }
    // The running program may be ending just now, which frees the name for a second attempt.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (bus->registerService(kBusName)) {
            return Outcome::First;
        }
        if (handOver(*bus, request)) {
            return Outcome::HandedOver;
        }
    }
    return Outcome::Alone;
}

} // namespace quillon
