// SPDX-License-Identifier: MIT
#include "app/appearance.h"
#include "app/appearance_portal.h"
#include "tests/support/private_bus.h"
#include "tests/support/spin_until.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr QLatin1StringView kService("org.freedesktop.portal.Desktop");
constexpr QLatin1StringView kPath("/org/freedesktop/portal/desktop");
constexpr QLatin1StringView kInterface("org.freedesktop.portal.Settings");
constexpr QLatin1StringView kGroup("org.freedesktop.appearance");
constexpr QLatin1StringView kKey("color-scheme");

constexpr uint kNoPreference = 0;
constexpr uint kPrefersDark = 1;
constexpr uint kPrefersLight = 2;

// The desktop's side: it knows one setting, answers who asks for it and tells of its changes.
class Portal : public QDBusVirtualObject {
public:
    explicit Portal(const QDBusConnection& bus) : m_bus(bus)
    {
        m_bus.registerVirtualObject(kPath, this);
        EXPECT_TRUE(m_bus.registerService(kService));
    }

    void change(uint preference) { tell(kGroup, kKey, preference); }
    void tell(const QString& group, const QString& key, uint value)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(kPath, kInterface, QStringLiteral("SettingChanged"));
        signal.setArguments({group, key, QVariant::fromValue(QDBusVariant(value))});
        EXPECT_TRUE(m_bus.send(signal));
    }

    QString introspect(const QString& /*path*/) const override { return QString(); }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() != QLatin1StringView("Read")) {
            return false;
        }
        ++readings;
        const QVariant value = QVariant::fromValue(QDBusVariant(atStart));
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(value))));
    }

    uint atStart = kPrefersLight;
    int readings = 0;

private:
    QDBusConnection m_bus;
};

class AppearancePortalTest : public ::testing::Test {
protected:
    AppearancePortalTest()
    {
        QObject::connect(&listener, &AppearancePortal::preferenceChanged, &follower,
                         &AppearanceFollower::setPreference);
    }
    ~AppearancePortalTest() override
    {
        QDBusConnection::disconnectFromBus(kOurEnd);
        QDBusConnection::disconnectFromBus(kDesktopsEnd);
        QApplication::setPalette(QPalette());
    }

    [[nodiscard]] static bool comesToShow(Appearance appearance)
    {
        return spinUntil(
            [appearance] { return appearanceOf(QApplication::palette()) == appearance; });
    }

    static inline const QString kOurEnd = QStringLiteral("ours");
    static inline const QString kDesktopsEnd = QStringLiteral("the desktop's");

    PrivateBus bus;
    AppearanceFollower follower{*qApp};
    Portal desktop{QDBusConnection::connectToBus(bus.address(), kDesktopsEnd)};
    AppearancePortal listener{QDBusConnection::connectToBus(bus.address(), kOurEnd)};
};

// First, because a program that has read an answer from the bus knows more of its types.
TEST_F(AppearancePortalTest, AChangeOfThePreferenceShowsBothWays)
{
    for (const auto& [preference, appearance] :
         {std::pair(kPrefersDark, Appearance::Dark), std::pair(kPrefersLight, Appearance::Light),
          std::pair(kPrefersDark, Appearance::Dark)}) {
        desktop.change(preference);
        ASSERT_TRUE(comesToShow(appearance)) << preference;
    }
}

TEST_F(AppearancePortalTest, ThePreferenceAtStartIsAskedFor)
{
    desktop.atStart = kPrefersDark;
    EXPECT_TRUE(comesToShow(Appearance::Dark));
}

TEST_F(AppearancePortalTest, AWithdrawnPreferenceLeavesTheDesktopsPalette)
{
    desktop.change(kPrefersDark);
    ASSERT_TRUE(comesToShow(Appearance::Dark));
    desktop.change(kNoPreference);
    EXPECT_TRUE(comesToShow(Appearance::Light));
}

TEST_F(AppearancePortalTest, OtherSettingsOfTheDesktopAreNotTakenForIt)
{
    desktop.change(kPrefersDark);
    ASSERT_TRUE(comesToShow(Appearance::Dark));
    std::vector<std::optional<Appearance>> heard;
    QObject::connect(
        &listener, &AppearancePortal::preferenceChanged, &listener,
        [&heard](std::optional<Appearance> preference) { heard.push_back(preference); });
    desktop.tell(kGroup, QStringLiteral("contrast"), kPrefersLight);
    desktop.tell(QStringLiteral("org.gnome.desktop.interface"), kKey, kPrefersLight);
    desktop.change(kPrefersDark);
    ASSERT_TRUE(spinUntil([&heard] { return !heard.empty(); }));
    EXPECT_EQ(heard.size(), 1U);
    EXPECT_TRUE(heard.front() == Appearance::Dark);
}

} // namespace
} // namespace quillon
