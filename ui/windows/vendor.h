// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

namespace quillon {

// Who makes a build and where its users find help.
struct Vendor {
    // As it follows "Développé par".
    QString name;
    // The support site's address as it is shown; empty when there is no such site.
    QString supportAddress;

    // The address as it is opened; invalid when the text is no web address.
    [[nodiscard]] QUrl supportUrl() const;
};

// This build's, as chosen when it was configured.
Vendor vendorOfThisBuild();

} // namespace quillon
