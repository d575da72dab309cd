// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>

namespace quillon {

class AppearanceFollower;
class FileHandover;
struct HandoverRequest;

// What the program has of the session that it runs in, through the session bus: it is one per
// session, and light or dark as the desktop prefers. The window waits for all of that together no
// longer than kPatience; an answer that comes later is used when it comes.
class DesktopSession {
public:
    static constexpr std::chrono::milliseconds kPatience{500};

    // Make it before the application object; see SessionBus.
    DesktopSession();
    DesktopSession(const DesktopSession&) = delete;
    DesktopSession& operator=(const DesktopSession&) = delete;
    ~DesktopSession();

    // Whether the program runs already and has taken the request. If not, `handover` hears of later
    // launches, as soon as the bus can be reached. It must live as long as this object.
    [[nodiscard]] bool handOver(const HandoverRequest& request, FileHandover& handover);

    // Tells what the desktop prefers, now and whenever it changes.
    void tellPreference(AppearanceFollower& appearance);

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace quillon
