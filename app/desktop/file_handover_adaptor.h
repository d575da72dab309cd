// SPDX-License-Identifier: MIT
#pragma once

#include "app/desktop/activation_requests.h"

#include <QDBusAbstractAdaptor>
#include <QVariantMap>

namespace quillon {

// The actions that can be activated from outside beside opening files.
inline constexpr QLatin1StringView kFollowAction{"follow"};
inline constexpr QLatin1StringView kOpenLogAction{"open-log"};

// The freedesktop.org interface by which a running application is activated; turns its calls into
// the signals of the requests, which own it. The names of the slots are those of the interface.
class FileHandoverAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit FileHandoverAdaptor(ActivationRequests& requests);

public Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming)
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& action, const QVariantList& parameters,
                        const QVariantMap& platformData);
    // NOLINTEND(readability-identifier-naming)

private:
    ActivationRequests& m_requests;
};

} // namespace quillon
