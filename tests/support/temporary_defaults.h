// SPDX-License-Identifier: MIT
#pragma once

#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "tests/support/temporary_folder.h"

#include <QString>

namespace quillon {

// User defaults over a file of their own, so that no test ever sees or touches the settings of
// whoever runs it.
struct TemporaryDefaults {
    static inline const QString kFileName = QStringLiteral("Quillon.conf");

    TemporaryFolder folder;
    NotificationCenter center;
    UserDefaults defaults{center, folder.path(kFileName)};
};

} // namespace quillon
