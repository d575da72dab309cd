// SPDX-License-Identifier: MIT
#include "app/file_handover.h"

namespace quillon {

FileHandover::FileHandover(QObject* parent) : QObject(parent) {}

// Where there is no session bus the desktop itself keeps the program to one launch.
FileHandover::Outcome FileHandover::claim(const HandoverRequest& /*request*/,
                                          std::chrono::milliseconds /*patience*/)
{
    return Outcome::Alone;
}

} // namespace quillon
