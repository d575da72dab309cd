// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

namespace quillon {

// What others want of the running program.
class ActivationRequests : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    // A later launch, or the desktop, wants the window in front.
    void activationRequested();
    // It hands over files; none, one or several.
    void filesReceived(const QList<QUrl>& urls);
    // It wants appended lines to be shown as they are written.
    void followRequested();
    // It wants the open dialog.
    void openPanelRequested();
};

} // namespace quillon
