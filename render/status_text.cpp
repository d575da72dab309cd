// SPDX-License-Identifier: MIT
#include "render/status_text.h"

#include <QCoreApplication>
#include <QLocale>

namespace quillon {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Status", text);
}

} // namespace

QString countsStatus(qint64 lineCount, qint64 shownCount)
{
    const QLocale locale;
    return tr("Lignes: %1 • Affichées: %2")
        .arg(locale.toString(lineCount), locale.toString(shownCount));
}

QString allFilteredStatus(qint64 lineCount)
{
    return tr("Lignes: %1 • Affichées: 0 (filtrées)").arg(QLocale().toString(lineCount));
}

QString lineCountStatus(qint64 lineCount)
{
    return tr("Lignes: %1").arg(QLocale().toString(lineCount));
}

} // namespace quillon
