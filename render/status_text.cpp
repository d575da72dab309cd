// SPDX-License-Identifier: MIT
#include "render/status_text.h"

#include <QCoreApplication>
#include <QLocale>

namespace quillon {

namespace {

struct Status {
    Q_DECLARE_TR_FUNCTIONS(Status)
};

} // namespace

QString countsStatus(qint64 lineCount, qint64 shownCount)
{
    const QLocale locale;
    return Status::tr("Lignes: %1 • Affichées: %2")
        .arg(locale.toString(lineCount), locale.toString(shownCount));
}

QString allFilteredStatus(qint64 lineCount)
{
    return Status::tr("Lignes: %1 • Affichées: 0 (filtrées)").arg(QLocale().toString(lineCount));
}

QString lineCountStatus(qint64 lineCount)
{
    return Status::tr("Lignes: %1").arg(QLocale().toString(lineCount));
}

QString undecidedText(qint64 lineCount)
{
    if (lineCount == 0) {
        return QString();
    }
    if (lineCount == 1) {
        return Status::tr("Recherche trop coûteuse pour 1 ligne, qui n’est pas affichée");
    }
    return Status::tr("Recherche trop coûteuse pour %1 lignes, qui ne sont pas affichées")
        .arg(QLocale().toString(lineCount));
}

} // namespace quillon
