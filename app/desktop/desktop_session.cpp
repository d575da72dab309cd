// SPDX-License-Identifier: MIT
#include "app/desktop/desktop_session.h"

#include "app/desktop/appearance.h"
#include "app/desktop/appearance_portal.h"
#include "app/desktop/file_handover.h"
#include "app/desktop/session_bus.h"

namespace quillon {

namespace {

using namespace std::chrono_literals;

// What is left of the patience is for the running program to take over what this launch was asked.
constexpr auto kBusPatience = DesktopSession::kPatience - 150ms;

} // namespace

struct DesktopSession::Parts {
    QDeadlineTimer deadline{kPatience};
    SessionBus bus{QDeadlineTimer(kBusPatience)};
};

DesktopSession::DesktopSession() : m_parts(std::make_unique<Parts>()) {}

DesktopSession::~DesktopSession() = default;

bool DesktopSession::handOver(const HandoverRequest& request, FileHandover& handover)
{
    const SessionBus& bus = m_parts->bus;
    if (const auto connection = bus.connection()) {
        return handover.claim(*connection, request, m_parts->deadline) ==
               FileHandover::Outcome::HandedOver;
    }
    QObject::connect(&bus, &SessionBus::connected, &handover,
                     [&bus, &handover] { handover.listen(*bus.connection()); });
    return false;
}

void DesktopSession::tellPreference(AppearanceFollower& appearance)
{
    const auto follow = [&bus = m_parts->bus, &appearance] {
        auto* const portal = new AppearancePortal(*bus.connection(), &appearance);
        QObject::connect(portal, &AppearancePortal::preferencesChanged, &appearance,
                         &AppearanceFollower::setPreferences);
    };
    if (m_parts->bus.connection()) {
        follow();
    } else {
        QObject::connect(&m_parts->bus, &SessionBus::connected, &appearance, follow);
    }
}

} // namespace quillon
