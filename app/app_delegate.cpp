// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"

#include "model/log_view_model.h"

#include <QCoreApplication>

#include <cstdio>

namespace quillon {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("AppDelegate", text);
}

// Whoever reads along, a terminal or a pipe, is to see each line when it happens.
void report(const QString& line)
{
    std::fputs(line.toUtf8().append('\n').constData(), stdout);
    std::fflush(stdout);
}

// The name at the end of the path, also of a folder's path that ends in a slash.
QString lastPathComponent(const QUrl& url)
{
    const QString path = url.path(QUrl::FullyDecoded);
    const QString name = path.section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty);
    return name.isEmpty() ? path : name;
}

} // namespace

AppDelegate::AppDelegate(LogViewModel& viewModel) : m_viewModel(&viewModel) {}

bool AppDelegate::openFile(const QString& path) const
{
    report(translated("📂 Ouverture du fichier: %1").arg(path));
    openLater(QUrl::fromLocalFile(path));
    return true;
}

void AppDelegate::openURLs(const QList<QUrl>& urls) const
{
    report(translated("📂 Ouverture de %1 fichier(s)").arg(urls.size()));
    for (const QUrl& url : urls) {
        report(translated("📂 Fichier: %1").arg(lastPathComponent(url)));
        openLater(url);
    }
}

void AppDelegate::openLater(const QUrl& url) const
{
    if (m_viewModel) {
        // A call queued for an object goes away with it.
        QMetaObject::invokeMethod(
            m_viewModel.data(), [viewModel = m_viewModel.data(), url] { viewModel->openLog(url); },
            Qt::QueuedConnection);
    }
}

} // namespace quillon
