// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

// The superuser may read and write everything, and tests do run as such in containers. While the
// object lives the process has nobody's rights instead; for other users it changes nothing.
class DroppedPrivileges {
public:
    DroppedPrivileges();
    DroppedPrivileges(const DroppedPrivileges&) = delete;
    DroppedPrivileges& operator=(const DroppedPrivileges&) = delete;
    ~DroppedPrivileges();

private:
    unsigned m_user;
};

} // namespace quillon
