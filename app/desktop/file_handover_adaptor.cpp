// SPDX-License-Identifier: MIT
#include "app/desktop/file_handover_adaptor.h"

namespace quillon {

namespace {

// The windowing system takes the token from here when a window next asks for the keyboard.
void adoptActivationToken(const QVariantMap& platformData)
{
    QString token = platformData.value(QStringLiteral("activation-token")).toString();
    if (token.isEmpty()) {
        token = platformData.value(QStringLiteral("desktop-startup-id")).toString();
    }
    if (!token.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    }
}

} // namespace

FileHandoverAdaptor::FileHandoverAdaptor(ActivationRequests& requests)
    : QDBusAbstractAdaptor(&requests), m_requests(requests)
{
}

void FileHandoverAdaptor::Activate(const QVariantMap& platformData)
{
    adoptActivationToken(platformData);
    Q_EMIT m_requests.activationRequested();
}

void FileHandoverAdaptor::Open(const QStringList& uris, const QVariantMap& platformData)
{
    adoptActivationToken(platformData);
    Q_EMIT m_requests.filesReceived(QUrl::fromStringList(uris));
    Q_EMIT m_requests.activationRequested();
}

void FileHandoverAdaptor::ActivateAction(const QString& action, const QVariantList& /*parameters*/,
                                         const QVariantMap& platformData)
{
    adoptActivationToken(platformData);
    if (action == kFollowAction) {
        Q_EMIT m_requests.followRequested();
    } else if (action == kOpenLogAction) {
        Q_EMIT m_requests.activationRequested();
        Q_EMIT m_requests.openPanelRequested();
    }
}

} // namespace quillon
