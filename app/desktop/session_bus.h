// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QSocketNotifier>

#include <memory>
#include <optional>

namespace quillon {

class BusProbe;

// The user's session bus, which may be missing, silent or late. Make it before the application
// object: what the toolkit does with the session bus then neither starts one (which takes long and
// leaves a daemon behind) nor waits for one that says nothing.
class SessionBus : public QObject {
    Q_OBJECT

public:
    // Waits for the bus to answer, until the deadline.
    explicit SessionBus(QDeadlineTimer deadline);
    ~SessionBus() override;

    // The bus, none where there is none or as long as it has not answered.
    [[nodiscard]] std::optional<QDBusConnection> connection() const;

Q_SIGNALS:
    // The bus has answered after the deadline.
    void connected();

private:
    void probe();
    void awaitAnswer();
    void takeAnswer();
    void connectLate();

    QByteArray m_address;
    QByteArray m_socketName;
    std::unique_ptr<BusProbe> m_probe;
    QElapsedTimer m_sinceProbe;
    std::unique_ptr<QSocketNotifier> m_notifier;
    bool m_isPrompt = false;
    bool m_isLate = false;
};

} // namespace quillon
