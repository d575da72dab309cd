// SPDX-License-Identifier: MIT
#include "app/desktop/display.h"
#include "tests/support/printing.h"
#include "tests/support/temporary_folder.h"

#include <QFile>

#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace quillon {
namespace {

// An environment without any display, and a folder for plugins that none need to be in.
class DisplayTest : public testing::Test {
protected:
    static constexpr std::array kNames{"DISPLAY",
                                       "WAYLAND_DISPLAY",
                                       "WAYLAND_SOCKET",
                                       "XDG_SESSION_TYPE",
                                       "XDG_RUNTIME_DIR",
                                       "QT_QPA_PLATFORM",
                                       "QT_QPA_PLATFORM_PLUGIN_PATH"};

    DisplayTest()
    {
        for (const char* const name : kNames) {
            m_former.append({name, qgetenv(name)});
            qunsetenv(name);
        }
        qputenv("XDG_RUNTIME_DIR", folder.path(QString()).toUtf8());
        qputenv("QT_QPA_PLATFORM_PLUGIN_PATH", folder.path(QString()).toUtf8());
    }
    ~DisplayTest() override
    {
        for (const auto& [name, value] : m_former) {
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
        }
    }

    void listenAt(const char* name)
    {
        const QByteArray path = folder.path(QString::fromUtf8(name)).toUtf8();
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        ASSERT_LT(std::size_t(path.size()), sizeof address.sun_path);
        std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
        m_listening = ::socket(AF_UNIX, SOCK_STREAM, 0);
        ASSERT_EQ(::bind(m_listening, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        ASSERT_EQ(::listen(m_listening, 1), 0);
    }
    void TearDown() override { ::close(m_listening); }

    const TemporaryFolder folder;

private:
    QList<std::pair<const char*, QByteArray>> m_former;
    int m_listening = -1;
};

TEST_F(DisplayTest, IsMissingWhereNoneIsNamed)
{
    EXPECT_FALSE(isDisplayReachable({"quillon", "x.log"}));
}

TEST_F(DisplayTest, IsMissingWhereNobodyAnswers)
{
    qputenv("DISPLAY", ":32109");
    qputenv("WAYLAND_DISPLAY", "wayland-7");
    EXPECT_FALSE(isDisplayReachable({"quillon"}));
}

TEST_F(DisplayTest, IsMissingWhereOnlyTheArgumentsNameOneThatDoesNotAnswer)
{
    EXPECT_FALSE(isDisplayReachable({"quillon", "-display", ":32109"}));
}

TEST_F(DisplayTest, IsNotNeededByAPlatformOfTheEnvironment)
{
    qputenv("QT_QPA_PLATFORM", "offscreen:size=800x600");
    EXPECT_TRUE(isDisplayReachable({"quillon"}));
}

TEST_F(DisplayTest, IsNotNeededByAPlatformOfTheArgumentsWhichCountMore)
{
    qputenv("QT_QPA_PLATFORM", "xcb");
    EXPECT_FALSE(isDisplayReachable({"quillon"}));
    EXPECT_TRUE(isDisplayReachable({"quillon", "-platform", "vnc"}));
    EXPECT_TRUE(isDisplayReachable({"quillon", "--platform", "minimal"}));
}

TEST_F(DisplayTest, OneOfSeveralPlatformsIsEnough)
{
    qputenv("QT_QPA_PLATFORM", "wayland;xcb");
    EXPECT_FALSE(isDisplayReachable({"quillon"}));
    qputenv("QT_QPA_PLATFORM", "wayland;offscreen");
    EXPECT_TRUE(isDisplayReachable({"quillon"}));
}

TEST_F(DisplayTest, OfWaylandIsReachableByItsSocket)
{
    folder.write(QStringLiteral("libqwayland-generic.so"), "");
    listenAt("wayland-7");
    EXPECT_FALSE(isDisplayReachable({"quillon"}));
    qputenv("WAYLAND_DISPLAY", "wayland-7");
    EXPECT_TRUE(isDisplayReachable({"quillon"}));
}

TEST_F(DisplayTest, OfAWaylandSessionHasAUsualName)
{
    folder.write(QStringLiteral("libqwayland-generic.so"), "");
    listenAt("wayland-0");
    qputenv("XDG_SESSION_TYPE", "wayland");
    EXPECT_TRUE(isDisplayReachable({"quillon"}));
}

} // namespace
} // namespace quillon
