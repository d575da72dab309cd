// SPDX-License-Identifier: MIT
#include "platform/system_error.h"

#include <cstring>

namespace quillon {

QString SystemError::message() const
{
    // Not qt_error_string(), which has English texts of its own for the commonest numbers.
    return QString::fromLocal8Bit(std::strerror(number));
}

} // namespace quillon
