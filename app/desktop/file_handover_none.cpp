// SPDX-License-Identifier: MIT
#include "app/desktop/file_handover.h"

namespace quillon {

FileHandover::FileHandover(QObject* parent) : ActivationRequests(parent) {}

} // namespace quillon
