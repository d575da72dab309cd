// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

namespace quillon {

// What an open dialog is to offer.
struct OpenPanelRequest {
    QString title;
    bool canChooseFiles = true;
    bool canChooseDirectories = false;
    bool allowsMultipleSelection = false;
    // MIME types that may be chosen; empty for any.
    QStringList contentTypes;
};

// Runs an open dialog and gives the choice, none when it was cancelled. The core has no windows of
// its own, so whoever has them supplies this.
using OpenPanel = std::function<std::optional<QUrl>(const OpenPanelRequest&)>;

} // namespace quillon
