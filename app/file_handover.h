// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

#include <chrono>
#include <cstdint>

namespace quillon {

// What a launch of the program was asked to do, for another launch to do it.
struct HandoverRequest {
    QList<QUrl> files; // absolute
    bool followTail = false;
    // The desktop's leave to take the keyboard, empty when it gave none.
    QString activationToken;
};

// Makes the program one per session: the first launch is reached by later ones, and by the desktop,
// through the session bus. Where there is no bus every launch stands alone.
class FileHandover : public QObject {
    Q_OBJECT

public:
    // First: this launch runs and hears of later ones. HandedOver: the running one has taken the
    // request. Alone: nobody is there to take it and nobody will be heard of.
    enum class Outcome : std::uint8_t { First, HandedOver, Alone };

    // A window that is reading a large log answers late; one that has hung must not keep the user
    // waiting for good.
    static constexpr std::chrono::milliseconds kPatience{5000};

    explicit FileHandover(QObject* parent = nullptr);

    // Decides for this launch. Blocks for a few exchanges with the bus, and as long as the running
    // program takes to answer, but no longer than `patience` in all.
    [[nodiscard]] Outcome claim(const HandoverRequest& request,
                                std::chrono::milliseconds patience = kPatience);

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
