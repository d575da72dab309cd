// SPDX-License-Identifier: MIT
#include "app/desktop/file_handover.h"
#include "tests/support/private_bus.h"
#include "tests/support/spin_until.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QThread>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using Outcome = FileHandover::Outcome;

const QString kBusName = QStringLiteral("org.quillon.Quillon");
const QString kObjectPath = QStringLiteral("/org/quillon/Quillon");

// A program that is running already, as far as the bus knows. It hears calls while the event loop
// of its thread runs; one that shares the launch's thread has hung while the launch waits for it.
class RunningProgram : public QDBusVirtualObject {
public:
    RunningProgram(const QString& address, QString connection)
        : m_connection(std::move(connection)),
          m_bus(QDBusConnection::connectToBus(address, m_connection))
    {
        EXPECT_TRUE(m_bus.registerVirtualObject(kObjectPath, this));
    }
    ~RunningProgram() override { QDBusConnection::disconnectFromBus(m_connection); }

    void takeName() { EXPECT_TRUE(m_bus.registerService(kBusName)); }

    QString introspect(const QString& /*path*/) const override { return QString(); }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        heard.append(message.member());
        if (!endsWith) {
            return connection.send(message.createReply());
        }
        m_bus.unregisterService(kBusName);
        if (successor != nullptr) {
            successor->takeName();
        }
        return connection.send(message.createErrorReply(*endsWith, QString()));
    }

    QStringList heard;
    // It gives up its name over the first call, and leaves the caller with this error.
    std::optional<QDBusError::ErrorType> endsWith;
    RunningProgram* successor = nullptr;

private:
    const QString m_connection;
    QDBusConnection m_bus;
};

// The connection to the session bus is the process's, and so is the bus.
class FileHandoverClaim : public ::testing::Test {
protected:
    FileHandoverClaim() { running.takeName(); }

    static void SetUpTestSuite()
    {
        s_bus = std::make_unique<PrivateBus>();
        s_formerAddress = qgetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("DBUS_SESSION_BUS_ADDRESS", s_bus->address().toLatin1());
    }
    static void TearDownTestSuite()
    {
        s_formerAddress.isEmpty() ? qunsetenv("DBUS_SESSION_BUS_ADDRESS")
                                  : qputenv("DBUS_SESSION_BUS_ADDRESS", s_formerAddress);
        s_bus.reset();
    }
    void TearDown() override
    {
        thread.quit();
        thread.wait();
        QDBusConnection::sessionBus().unregisterService(kBusName);
    }

    // From now on it hears what the launch that is tested says.
    void wake(RunningProgram& program)
    {
        program.moveToThread(&thread);
        thread.start();
    }

    static HandoverRequest aFile()
    {
        HandoverRequest request;
        request.files.append(QUrl(QStringLiteral("file:///a.log")));
        return request;
    }
    Outcome claim(const HandoverRequest& request, int patienceMilliseconds = 60'000)
    {
        return handover.claim(QDBusConnection::sessionBus(), request,
                              QDeadlineTimer(patienceMilliseconds));
    }
    // A call that comes after all those of the launch.
    static void sendMarker(const QString& member)
    {
        QDBusConnection::sessionBus().send(
            QDBusMessage::createMethodCall(kBusName, kObjectPath, kBusName, member));
    }

    static inline std::unique_ptr<PrivateBus> s_bus;
    static inline QByteArray s_formerAddress;

    QThread thread;
    RunningProgram running{s_bus->address(), QStringLiteral("running")};
    RunningProgram other{s_bus->address(), QStringLiteral("other")};
    FileHandover handover;
};

TEST_F(FileHandoverClaim, ARunningProgramTakesFollowingBeforeTheFiles)
{
    wake(running);
    HandoverRequest request = aFile();
    request.followTail = true;
    EXPECT_EQ(claim(request), Outcome::HandedOver);
    EXPECT_EQ(running.heard,
              QStringList({QStringLiteral("ActivateAction"), QStringLiteral("Open")}));
}

TEST_F(FileHandoverClaim, AProgramThatHasHungIsAskedOnce)
{
    EXPECT_EQ(claim(aFile(), 50), Outcome::Alone);
    const QString marker = QStringLiteral("Marker");
    sendMarker(marker);
    ASSERT_TRUE(spinUntil([&] { return running.heard.contains(marker); }));
    EXPECT_EQ(running.heard, QStringList({QStringLiteral("Open"), marker}));
}

TEST_F(FileHandoverClaim, ALaunchIsTheFirstWhereTheRunningProgramHasJustEnded)
{
    running.endsWith = QDBusError::ServiceUnknown;
    wake(running);
    EXPECT_EQ(claim(aFile()), Outcome::First);
}

TEST_F(FileHandoverClaim, ALaunchIsTheFirstWhereTheRunningProgramEndsOverTheRequest)
{
    running.endsWith = QDBusError::NoReply;
    wake(running);
    EXPECT_EQ(claim(aFile()), Outcome::First);
}

TEST_F(FileHandoverClaim, AnotherLaunchMayTakeThePlaceOfAProgramThatHasJustEnded)
{
    running.endsWith = QDBusError::ServiceUnknown;
    running.successor = &other;
    wake(other);
    wake(running);
    EXPECT_EQ(claim(aFile()), Outcome::HandedOver);
    EXPECT_EQ(other.heard, QStringList(QStringLiteral("Open")));
}

} // namespace
} // namespace quillon
