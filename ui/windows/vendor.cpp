// SPDX-License-Identifier: MIT
#include "ui/windows/vendor.h"

#include "ui/windows/vendor_constants.h"

namespace quillon {

QUrl Vendor::supportUrl() const
{
    const QUrl url(supportAddress, QUrl::StrictMode);
    const bool isWebAddress =
        url.scheme() == QLatin1StringView("https") || url.scheme() == QLatin1StringView("http");
    return isWebAddress && !url.host().isEmpty() ? url : QUrl();
}

Vendor vendorOfThisBuild()
{
    return {.name = QString::fromUtf8(kVendorName),
            .supportAddress = QString::fromUtf8(kSupportAddress)};
}

} // namespace quillon
