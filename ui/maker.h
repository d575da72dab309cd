// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

namespace quillon {

// Who makes this build and where its users find help, as chosen when it was configured.

// The maker's name as it follows "Développé par".
QString makerName();

// The support site's address as it is shown.
QString supportAddress();

// The support site's address as it is opened; invalid when the configured text is no web address.
QUrl supportUrl();

} // namespace quillon
