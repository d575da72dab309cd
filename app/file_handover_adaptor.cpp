// SPDX-License-Identifier: MIT
#include "app/file_handover_adaptor.h"

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

FileHandoverAdaptor::FileHandoverAdaptor(FileHandover& handover)
    : QDBusAbstractAdaptor(&handover), m_handover(handover)
{
}

void FileHandoverAdaptor::Activate(const QVariantMap& platformData)
{
    adoptActivationToken(platformData);
    Q_EMIT m_handover.activationRequested();
}

void FileHandoverAdaptor::Open(const QStringList& uris, const QVariantMap& platformData)
{
    adoptActivationToken(platformData);
    Q_EMIT m_handover.filesReceived(QUrl::fromStringList(uris));
    Q_EMIT m_handover.activationRequested();
}

void FileHandoverAdaptor::ActivateAction(const QString& action, const QVariantList& /*parameters*/,
                                         const QVariantMap& platformData)
{
    adoptActivationToken(platformData);
    if (action == kFollowAction) {
        Q_EMIT m_handover.followRequested();
    } else if (action == kOpenLogAction) {
        Q_EMIT m_handover.activationRequested();
        Q_EMIT m_handover.openPanelRequested();
    }
}

} // namespace quillon
