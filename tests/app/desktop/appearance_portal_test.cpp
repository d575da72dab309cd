// SPDX-License-Identifier: MIT
#include "app/desktop/appearance.h"
#include "app/desktop/appearance_portal.h"
#include "tests/support/private_bus.h"
#include "tests/support/spin_until.h"
#include "ui/theme/theme.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>

#include <cmath>
#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr QLatin1StringView kService("org.freedesktop.portal.Desktop");
constexpr QLatin1StringView kPath("/org/freedesktop/portal/desktop");
constexpr QLatin1StringView kInterface("org.freedesktop.portal.Settings");
constexpr QLatin1StringView kGroup("org.freedesktop.appearance");
constexpr QLatin1StringView kKey("color-scheme");
constexpr QLatin1StringView kInterfaceGroup("org.gnome.desktop.interface");

constexpr uint kNoPreference = 0;
constexpr uint kPrefersDark = 1;
constexpr uint kPrefersLight = 2;

// The form that an accent has on the bus.
struct BusColor {
    double red = 0;
    double green = 0;
    double blue = 0;
};

QDBusArgument& operator<<(QDBusArgument& argument, const BusColor& color)
{
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, BusColor& color)
{
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return argument;
}

QVariant accent(double red, double green, double blue)
{
    qDBusRegisterMetaType<BusColor>();
    return QVariant::fromValue(BusColor{red, green, blue});
}

// The desktop's side: it knows one setting, answers who asks for it and tells of its changes.
class Portal : public QDBusVirtualObject {
public:
    explicit Portal(const QDBusConnection& bus) : m_bus(bus)
    {
        m_bus.registerVirtualObject(kPath, this);
        EXPECT_TRUE(m_bus.registerService(kService));
    }

    void change(uint preference) { tell(kGroup, kKey, preference); }
    void tell(const QString& group, const QString& key, const QVariant& value)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(kPath, kInterface, QStringLiteral("SettingChanged"));
        signal.setArguments({group, key, QVariant::fromValue(QDBusVariant(value))});
        EXPECT_TRUE(m_bus.send(signal));
    }

    QString introspect(const QString& /*path*/) const override { return QString(); }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() != QLatin1StringView("ReadAll")) {
            return false;
        }
        QVariantMap appearance = others;
        appearance.insert(kKey, atStart);
        const QMap<QString, QVariantMap> settings{{kGroup, appearance},
                                                  {kInterfaceGroup, interfaceSettings}};
        return connection.send(message.createReply(QVariant::fromValue(settings)));
    }

    uint atStart = kPrefersLight;
    QVariantMap others; // of the same group
    QVariantMap interfaceSettings;

private:
    QDBusConnection m_bus;
};

class AppearancePortalTest : public ::testing::Test {
protected:
    AppearancePortalTest()
    {
        QObject::connect(&listener, &AppearancePortal::preferencesChanged, &follower,
                         &AppearanceFollower::setPreferences);
    }
    ~AppearancePortalTest() override
    {
        QDBusConnection::disconnectFromBus(kOurEnd);
        QDBusConnection::disconnectFromBus(kDesktopsEnd);
        QApplication::setPalette(QPalette());
        QApplication::setFont(interfaceFont());
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
    std::vector<DesktopPreferences> heard;
    QObject::connect(
        &listener, &AppearancePortal::preferencesChanged, &listener,
        [&heard](const DesktopPreferences& preferences) { heard.push_back(preferences); });
    desktop.tell(kGroup, QStringLiteral("reduced-motion"), kPrefersLight);
    desktop.tell(kInterfaceGroup, kKey, kPrefersLight);
    desktop.tell(QStringLiteral("org.example"), QStringLiteral("text-scaling-factor"), 2.0);
    desktop.change(kPrefersDark);
    ASSERT_TRUE(spinUntil([&heard] { return !heard.empty(); }));
    EXPECT_EQ(heard.size(), 1U);
    EXPECT_TRUE(heard.front() == DesktopPreferences{Appearance::Dark});
}

TEST_F(AppearancePortalTest, AccentContrastAndTextScaleAtStartAreAskedFor)
{
    desktop.others = {{QStringLiteral("contrast"), 1U},
                      {QStringLiteral("accent-color"), accent(0.9, 0.38, 0.0)}};
    desktop.interfaceSettings = {{QStringLiteral("text-scaling-factor"), 1.5}};
    EXPECT_TRUE(spinUntil([] {
        const QPalette palette = QApplication::palette();
        return contrastOf(palette) == Contrast::High &&
               std::abs(palette.color(QPalette::Highlight).hslHueF() -
                        QColor::fromRgbF(0.9F, 0.38F, 0.0F).hslHueF()) < 0.02F &&
               QApplication::font().pixelSize() == 20;
    }));
}

TEST_F(AppearancePortalTest, ChangesOfAccentContrastAndTextScaleShow)
{
    desktop.tell(kGroup, QStringLiteral("contrast"), 1U);
    EXPECT_TRUE(spinUntil([] { return contrastOf(QApplication::palette()) == Contrast::High; }));
    desktop.tell(kGroup, QStringLiteral("contrast"), 0U);
    EXPECT_TRUE(spinUntil([] { return contrastOf(QApplication::palette()) == Contrast::Normal; }));
    desktop.tell(kInterfaceGroup, QStringLiteral("text-scaling-factor"), 2.0);
    EXPECT_TRUE(spinUntil([] { return QApplication::font().pixelSize() == 26; }));
    desktop.tell(kGroup, QStringLiteral("accent-color"), accent(1.0, 0.0, 0.0));
    EXPECT_TRUE(
        spinUntil([] { return QApplication::palette().color(QPalette::Highlight).hslHue() == 0; }));
}

TEST_F(AppearancePortalTest, ValuesThatMakeNoSenseCountAsNone)
{
    std::vector<DesktopPreferences> heard;
    QObject::connect(
        &listener, &AppearancePortal::preferencesChanged, &listener,
        [&heard](const DesktopPreferences& preferences) { heard.push_back(preferences); });
    desktop.atStart = kNoPreference;
    desktop.tell(kGroup, QStringLiteral("accent-color"), accent(-1.0, 0.5, 2.0));
    desktop.tell(kGroup, QStringLiteral("accent-color"), QStringLiteral("orange"));
    desktop.tell(kGroup, QStringLiteral("contrast"), 7U);
    desktop.tell(kInterfaceGroup, QStringLiteral("text-scaling-factor"), -3.0);
    ASSERT_TRUE(spinUntil([&heard] { return heard.size() >= 4U; }));
    EXPECT_TRUE(heard[3] == DesktopPreferences());
}

} // namespace
} // namespace quillon
