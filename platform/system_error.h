// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quillon {

// A failure that the operating system reported, by its error number (errno.h).
struct SystemError {
    int number = 0;

    // The C library's message for the number, in the user's locale.
    [[nodiscard]] QString message() const;
    bool operator==(const SystemError&) const = default;
};

} // namespace quillon
