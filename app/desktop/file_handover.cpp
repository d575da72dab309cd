// SPDX-License-Identifier: MIT
#include "app/desktop/file_handover.h"

#include "app/desktop/file_handover_adaptor.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <algorithm>
#include <array>

namespace quillon {

namespace {

// Both follow from the application's id, which is also the name of its desktop entry: that is how a
// desktop finds them.
constexpr QLatin1StringView kBusName("org.quillon.Quillon");
constexpr QLatin1StringView kObjectPath("/org/quillon/Quillon");
constexpr QLatin1StringView kHandoverInterface("org.freedesktop.Application");

// The bus's own name, path and interface, and of its protocol what asking for a name takes.
constexpr QLatin1StringView kBus("org.freedesktop.DBus");
constexpr QLatin1StringView kBusPath("/org/freedesktop/DBus");
constexpr uint kDoNotQueue = 4;
constexpr uint kPrimaryOwner = 1;
constexpr uint kAlreadyOwner = 4;

// The bus says these itself, of a name that nobody has.
constexpr std::array kErrorsWithoutOwner{
    QLatin1StringView("org.freedesktop.DBus.Error.ServiceUnknown"),
    QLatin1StringView("org.freedesktop.DBus.Error.NameHasNoOwner")};

enum class Answer : std::uint8_t { Taken, NobodyThere, Failed };

QVariantMap platformData(const HandoverRequest& request)
{
    QVariantMap data;
    if (!request.activationToken.isEmpty()) {
        data.insert(QStringLiteral("activation-token"), request.activationToken);
        data.insert(QStringLiteral("desktop-startup-id"), request.activationToken);
    }
    return data;
}

Answer answerOf(const QDBusMessage& reply)
{
    if (reply.type() == QDBusMessage::ReplyMessage) {
        return Answer::Taken;
    }
    const auto* const found =
        std::find(kErrorsWithoutOwner.begin(), kErrorsWithoutOwner.end(), reply.errorName());
    return found == kErrorsWithoutOwner.end() ? Answer::Failed : Answer::NobodyThere;
}

QDBusMessage nameRequest()
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(kBus, kBusPath, kBus, QStringLiteral("RequestName"));
    message.setArguments({QString(kBusName), kDoNotQueue});
    return message;
}

// Nought and less have meanings of their own.
int millisecondsUntil(QDeadlineTimer deadline)
{
    return static_cast<int>(std::max<qint64>(1, deadline.remainingTime()));
}

// QDBusConnection::registerService() would wait for the bus without end.
bool ownsName(const QDBusConnection& bus, QDeadlineTimer deadline)
{
    const QDBusMessage reply = bus.call(nameRequest(), QDBus::Block, millisecondsUntil(deadline));
    const uint outcome =
        reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0).toUInt() : 0;
    return outcome == kPrimaryOwner || outcome == kAlreadyOwner;
}

// The running program, as this launch reaches it until the deadline.
class RunningProgram {
public:
    RunningProgram(const QDBusConnection& bus, QDeadlineTimer deadline)
        : m_bus(bus), m_deadline(deadline)
    {
    }

    // Following comes first: it takes effect on files that are opened after it.
    [[nodiscard]] Answer take(const HandoverRequest& request) const
    {
        const QVariantMap data = platformData(request);
        if (request.followTail) {
            const Answer answer = call(QStringLiteral("ActivateAction"),
                                       {QString(kFollowAction), QVariantList(), data});
            if (answer != Answer::Taken) {
                return answer;
            }
        }
        if (request.files.isEmpty()) {
            return call(QStringLiteral("Activate"), {data});
        }
        const QStringList uris = QUrl::toStringList(request.files, QUrl::FullyEncoded);
        return call(QStringLiteral("Open"), {uris, data});
    }

private:
    [[nodiscard]] Answer call(const QString& method, const QVariantList& arguments) const
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(kBusName, kObjectPath, kHandoverInterface, method);
        message.setArguments(arguments);
        return answerOf(m_bus.call(message, QDBus::Block, millisecondsUntil(m_deadline)));
    }

    const QDBusConnection m_bus;
    const QDeadlineTimer m_deadline;
};

} // namespace

FileHandover::FileHandover(QObject* parent) : ActivationRequests(parent)
{
    new FileHandoverAdaptor(*this);
}

FileHandover::Outcome FileHandover::claim(const QDBusConnection& bus,
                                          const HandoverRequest& request, QDeadlineTimer deadline)
{
    // The object is there before the name is: whoever finds the name calls at once.
    if (!QDBusConnection(bus).registerObject(kObjectPath, this, QDBusConnection::ExportAdaptors)) {
        return Outcome::Alone;
    }
    const RunningProgram running(bus, deadline);
    Answer answer = Answer::NobodyThere;
    // The running program may be ending just now, which frees the name for a second attempt. One
    // that hangs still has the first request before it; with a second it would open the file twice.
    for (int attempt = 0; attempt < 2 && answer == Answer::NobodyThere; ++attempt) {
        if (ownsName(bus, deadline)) {
            return Outcome::First;
        }
        answer = running.take(request);
    }
    if (answer == Answer::Taken) {
        return Outcome::HandedOver;
    }
    // It may have ended over the request.
    return ownsName(bus, deadline) ? Outcome::First : Outcome::Alone;
}

void FileHandover::listen(const QDBusConnection& bus)
{
    if (QDBusConnection(bus).registerObject(kObjectPath, this, QDBusConnection::ExportAdaptors)) {
        bus.send(nameRequest());
    }
}

} // namespace quillon
