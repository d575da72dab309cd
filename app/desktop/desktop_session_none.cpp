// SPDX-License-Identifier: MIT
#include "app/desktop/desktop_session.h"

namespace quillon {

struct DesktopSession::Parts {};

DesktopSession::DesktopSession() = default;

DesktopSession::~DesktopSession() = default;

// Where there is no session bus the desktop itself keeps the program to one launch, and the toolkit
// knows what it prefers.
bool DesktopSession::handOver(const HandoverRequest& /*request*/, FileHandover& /*handover*/)
{
    return false;
}

void DesktopSession::tellPreference(AppearanceFollower& /*appearance*/) {}

} // namespace quillon
