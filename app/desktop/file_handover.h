// SPDX-License-Identifier: MIT
#pragma once

#include "app/desktop/activation_requests.h"

#include <QDeadlineTimer>
#include <QString>

#include <cstdint>

class QDBusConnection;

namespace quillon {

// What a launch of the program was asked to do, for another launch to do it.
struct HandoverRequest {
    QList<QUrl> files; // absolute
    bool followTail = false;
    // The desktop's leave to take the keyboard, empty when it gave none.
    QString activationToken;
};

// Makes the program one per session: the first launch is reached by later ones, and by the desktop,
// through the session bus.
class FileHandover : public ActivationRequests {
    Q_OBJECT

public:
    // First: this launch runs and hears of later ones. HandedOver: the running one has taken the
    // request. Alone: nobody is there to take it and nobody will be heard of.
    enum class Outcome : std::uint8_t { First, HandedOver, Alone };

    explicit FileHandover(QObject* parent = nullptr);

    // Decides for this launch. Blocks for a few exchanges with the bus, and as long as the running
    // program takes to answer, but not past the deadline: one that has hung must not keep the user
    // waiting.
    [[nodiscard]] Outcome claim(const QDBusConnection& bus, const HandoverRequest& request,
                                QDeadlineTimer deadline);

    // For a launch that runs alone and reaches the bus only now: hears of later launches, unless
    // another one does. Waits for nothing.
    void listen(const QDBusConnection& bus);
};

} // namespace quillon
