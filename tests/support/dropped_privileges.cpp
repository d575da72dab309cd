// SPDX-License-Identifier: MIT
#include "tests/support/dropped_privileges.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr uid_t kNobody = 65534;

} // namespace

DroppedPrivileges::DroppedPrivileges() : m_user(::geteuid())
{
    if (m_user == 0) {
        EXPECT_EQ(::seteuid(kNobody), 0);
    }
}

DroppedPrivileges::~DroppedPrivileges()
{
    EXPECT_EQ(::seteuid(m_user), 0);
}

} // namespace quillon
