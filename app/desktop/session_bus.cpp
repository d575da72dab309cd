// SPDX-License-Identifier: MIT
#include "app/desktop/session_bus.h"

#include "app/desktop/bus_address.h"
#include "app/desktop/bus_probe.h"

#include <QTimer>

#include <chrono>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr QLatin1StringView kLateConnection("quillon");
constexpr const char* kAddressVariable = "DBUS_SESSION_BUS_ADDRESS";

// Connecting with the bus library blocks the window for as long as the bus takes to answer, so a
// bus that was late is taken once it answers without a delay that anybody would feel.
constexpr auto kPromptAnswer = 50ms;
constexpr auto kPauseAfterLateAnswer = 500ms;

// The library keeps one session bus for the whole process, the toolkit's themes and screen reader
// bridge included: from here on they hear at once that there is none. Programs that are started
// later, such as the browser, still get the address.
void withdrawSessionBus()
{
    const bool wasSet = qEnvironmentVariableIsSet(kAddressVariable);
    const QByteArray former = qgetenv(kAddressVariable);
    qputenv(kAddressVariable, "disabled:");
    QDBusConnection::sessionBus();
    wasSet ? qputenv(kAddressVariable, former) : qunsetenv(kAddressVariable);
}

} // namespace

SessionBus::SessionBus(QDeadlineTimer deadline) : m_address(sessionBusAddress().value_or(""))
{
    const auto socketName = busSocketName(m_address);
    if (!socketName) {
        withdrawSessionBus();
        return;
    }
    m_socketName = *socketName;
    probe();
    const BusProbe::State state = m_probe->wait(deadline);
    if (state == BusProbe::State::Answered) {
        m_probe.reset();
        m_isPrompt = true;
        return;
    }
    withdrawSessionBus();
    if (state == BusProbe::State::Waiting) {
        // Sockets are watched once there is an event loop.
        QMetaObject::invokeMethod(
            this, [this] { awaitAnswer(); }, Qt::QueuedConnection);
    }
}

SessionBus::~SessionBus() = default;

std::optional<QDBusConnection> SessionBus::connection() const
{
    if (!m_isPrompt && !m_isLate) {
        return std::nullopt;
    }
    const QDBusConnection bus =
        m_isPrompt ? QDBusConnection::sessionBus() : QDBusConnection(kLateConnection);
    return bus.isConnected() ? std::optional(bus) : std::nullopt;
}

void SessionBus::probe()
{
    m_sinceProbe.start();
    m_probe = std::make_unique<BusProbe>(m_socketName);
}

void SessionBus::awaitAnswer()
{
    if (m_probe->descriptor() < 0) {
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_probe->descriptor(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { takeAnswer(); });
}

void SessionBus::takeAnswer()
{
    const BusProbe::State state = m_probe->proceed();
    if (state == BusProbe::State::Waiting) {
        return;
    }
    // It is the notifier's own signal that led here.
    m_notifier->setEnabled(false);
    m_notifier.release()->deleteLater();
    m_probe.reset();
    if (state == BusProbe::State::Failed) {
        return;
    }
    if (std::chrono::milliseconds(m_sinceProbe.elapsed()) <= kPromptAnswer) {
        connectLate();
        return;
    }
    QTimer::singleShot(kPauseAfterLateAnswer, this, [this] {
        probe();
        awaitAnswer();
    });
}

void SessionBus::connectLate()
{
    m_isLate =
        QDBusConnection::connectToBus(QString::fromUtf8(m_address), kLateConnection).isConnected();
    if (m_isLate) {
        Q_EMIT connected();
    }
}

} // namespace quillon
