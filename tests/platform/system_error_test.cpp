// SPDX-License-Identifier: MIT
#include "platform/system_error.h"
#include "tests/support/printing.h"

#include <cerrno>
#include <cstring>
#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(SystemError, HasTheMessageOfTheCLibrary)
{
    for (const int number : {ENOENT, EACCES, EISDIR, EOPNOTSUPP, EFBIG, EIO, EMFILE, ENOSPC}) {
        EXPECT_EQ(SystemError{number}.message(), QString::fromLocal8Bit(std::strerror(number)));
    }
}

TEST(SystemError, HasAMessageForANumberThatMeansNothing)
{
    EXPECT_FALSE(SystemError{123'456}.message().isEmpty());
}

} // namespace
} // namespace quillon
