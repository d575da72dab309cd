// SPDX-License-Identifier: MIT
#include "model/records/log_line.h"

#include <QHash>

namespace quillon {

std::size_t qHash(const LogLine& line, std::size_t seed)
{
    return qHashMulti(seed, line.id(), line.number(), line.text(), rawValue(line.severity()));
}

} // namespace quillon
