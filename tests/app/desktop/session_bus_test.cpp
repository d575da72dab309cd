// SPDX-License-Identifier: MIT
// The bus library knows one session bus for a whole process. The tests come in an order in which
// that does not matter: the only one that uses it is the first.
#include "app/desktop/file_handover.h"
#include "app/desktop/session_bus.h"
#include "tests/support/listening_socket.h"
#include "tests/support/private_bus.h"
#include "tests/support/spin_until.h"

#include <QDBusConnectionInterface>

#include <csignal>
#include <gtest/gtest.h>

namespace quillon {
namespace {

const QDeadlineTimer kEver(QDeadlineTimer::Forever);
const QString kOther = QStringLiteral("other");

class SessionBusTest : public testing::Test {
protected:
    ~SessionBusTest() override
    {
        put("DBUS_SESSION_BUS_ADDRESS", m_formerAddress);
        put("XDG_RUNTIME_DIR", m_formerRuntimeFolder);
        QDBusConnection::disconnectFromBus(kOther);
    }
    static void put(const char* variable, const QByteArray& value)
    {
        value.isEmpty() ? qunsetenv(variable) : qputenv(variable, value);
    }
    static void setAddress(const QByteArray& address)
    {
        put("DBUS_SESSION_BUS_ADDRESS", address);
        qputenv("XDG_RUNTIME_DIR", "/nonexistent");
    }

private:
    const QByteArray m_formerAddress = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const QByteArray m_formerRuntimeFolder = qgetenv("XDG_RUNTIME_DIR");
};

TEST_F(SessionBusTest, IsThereAtOnceWhenItAnswers)
{
    const PrivateBus bus;
    setAddress(bus.address().toLatin1());
    const SessionBus session(kEver);
    ASSERT_TRUE(session.connection());
    EXPECT_TRUE(session.connection()->interface()->isServiceRegistered(
        QStringLiteral("org.freedesktop.DBus")));
}

TEST_F(SessionBusTest, IsNoneWhereNoneIsNamed)
{
    setAddress(QByteArray());
    EXPECT_FALSE(SessionBus(kEver).connection());
}

TEST_F(SessionBusTest, IsNoneWhereOneWouldHaveToBeStarted)
{
    setAddress("autolaunch:");
    EXPECT_FALSE(SessionBus(kEver).connection());
}

TEST_F(SessionBusTest, IsNoneWhileItIsSilentAndItsAddressStays)
{
    const ListeningSocket silent;
    const QByteArray address = "unix:path=" + silent.name();
    setAddress(address);
    EXPECT_FALSE(SessionBus(QDeadlineTimer(20)).connection());
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), address);
}

// A bus that is stopped still takes connections, as one that is overloaded does.
TEST_F(SessionBusTest, IsUsedWhenItAnswersLate)
{
    const PrivateBus bus;
    const QDBusConnection other = QDBusConnection::connectToBus(bus.address(), kOther);
    const auto daemon =
        static_cast<pid_t>(other.interface()->servicePid(QStringLiteral("org.freedesktop.DBus")));
    ASSERT_GT(daemon, 0);
    setAddress(bus.address().toLatin1());
    ASSERT_EQ(::kill(daemon, SIGSTOP), 0);
    SessionBus session(QDeadlineTimer(200));
    EXPECT_FALSE(session.connection());
    FileHandover handover;
    QObject::connect(&session, &SessionBus::connected, &handover,
                     [&] { handover.listen(*session.connection()); });
    ASSERT_EQ(::kill(daemon, SIGCONT), 0);
    EXPECT_TRUE(spinUntil([&] { return session.connection().has_value(); }));
    EXPECT_TRUE(spinUntil([&] {
        return other.interface()->isServiceRegistered(QStringLiteral("org.quillon.Quillon"));
    }));
}

} // namespace
} // namespace quillon
