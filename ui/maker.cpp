// SPDX-License-Identifier: MIT
#include "ui/maker.h"

#include "ui/maker_constants.h"

namespace quillon {

QString makerName()
{
    return QString::fromUtf8(kMakerName);
}

QString supportAddress()
{
    return QString::fromUtf8(kSupportAddress);
}

QUrl supportUrl()
{
    return QUrl(supportAddress(), QUrl::StrictMode);
}

} // namespace quillon
