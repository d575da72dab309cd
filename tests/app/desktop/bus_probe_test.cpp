// SPDX-License-Identifier: MIT
#include "app/desktop/bus_address.h"
#include "app/desktop/bus_probe.h"
#include "tests/support/listening_socket.h"
#include "tests/support/printing.h"
#include "tests/support/private_bus.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using State = BusProbe::State;

const QDeadlineTimer kEver(QDeadlineTimer::Forever);

TEST(BusAddress, NamesALocalSocket)
{
    EXPECT_EQ(busSocketName("unix:path=/run/user/1000/bus"), QByteArray("/run/user/1000/bus"));
    EXPECT_EQ(busSocketName("unix:guid=1,path=/a%20b,x=y;tcp:host=h"), QByteArray("/a b"));
    EXPECT_EQ(busSocketName("unix:abstract=/tmp/dbus"), QByteArray("\0/tmp/dbus", 10));
}

TEST(BusAddress, AnotherWayToABusIsNone)
{
    for (const char* const address :
         {"", "unix:", "unix:guid=1", "tcp:host=localhost,port=1", "unixexec:path=/bin/true",
          "autolaunch:", "nonsense", "unix:path", "tcp:host=h;unix:path=/a"}) {
        EXPECT_EQ(busSocketName(address), std::nullopt) << address;
    }
}

TEST(BusProbe, IsAnsweredByABus)
{
    const PrivateBus bus;
    BusProbe probe(busSocketName(bus.address().toLatin1()).value_or(""));
    EXPECT_EQ(probe.wait(kEver), State::Answered);
}

TEST(BusProbe, WaitsForASilentBusNoLongerThanAsked)
{
    const ListeningSocket silent;
    BusProbe probe(silent.name());
    EXPECT_EQ(probe.wait(QDeadlineTimer(20)), State::Waiting);
    EXPECT_EQ(probe.proceed(), State::Waiting);
}

TEST(BusProbe, ABusThatLetsItInAndThenSaysNothingHasNotAnswered)
{
    const ListeningSocket bus;
    BusProbe probe(bus.name());
    bus.sendToFirst("OK 0123456789abcdef\r\n");
    EXPECT_EQ(probe.wait(QDeadlineTimer(20)), State::Waiting);
}

TEST(BusProbe, OneAnswerIsNotEnough)
{
    const ListeningSocket bus;
    BusProbe probe(bus.name());
    const QByteArray answer("l\2\1\1\0\0\0\0\1\0\0\0\0\0\0\0", 16);
    bus.sendToFirst("OK 0123456789abcdef\r\n" + answer);
    EXPECT_EQ(probe.wait(QDeadlineTimer(20)), State::Waiting);
    bus.sendToFirst(answer);
    EXPECT_EQ(probe.wait(kEver), State::Answered);
}

TEST(BusProbe, ASignalIsNoAnswer)
{
    const ListeningSocket bus;
    BusProbe probe(bus.name());
    const QByteArray signal("l\4\1\1\0\0\0\0\1\0\0\0\0\0\0\0", 16);
    bus.sendToFirst("OK 0123456789abcdef\r\n" + signal + signal);
    EXPECT_EQ(probe.wait(QDeadlineTimer(20)), State::Waiting);
}

TEST(BusProbe, FailsWhereThereIsNobody)
{
    EXPECT_EQ(BusProbe("/nonexistent/bus").wait(kEver), State::Failed);
    EXPECT_EQ(BusProbe(QByteArray(4096, 'x')).wait(kEver), State::Failed);
}

TEST(BusProbe, FailsWhereItIsNotLetInOrTalksToSomethingElse)
{
    for (const QByteArray& said :
         {QByteArray("REJECTED EXTERNAL\r\n"), QByteArray("HTTP/1.1 400\r\n"),
          "OK 0\r\n" + QByteArray(16, 'x'), "OK 0\r\n" + QByteArray(16, '\xFF').replace(0, 1, "l"),
          QByteArray(100'000, 'O')}) {
        const ListeningSocket other;
        BusProbe probe(other.name());
        other.sendToFirst(said);
        EXPECT_EQ(probe.wait(kEver), State::Failed) << said.first(5).constData();
    }
}

} // namespace
} // namespace quillon
