// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QUrl>

namespace quillon {

class LogViewModel;

// Takes the files that the outside hands over: the command line, the desktop, another launch of the
// program, a drop. Each is reported on standard output and opened one turn of the event loop later,
// by the view model, if that still exists. A file that cannot be opened is not noticed here; the
// status line tells.
class AppDelegate {
public:
    explicit AppDelegate(LogViewModel& viewModel);

    // Opens one file. True in every case: what becomes of it is not the sender's concern.
    bool openFile(const QString& path) const;

    // Opens the files one after the other, so that the last one stays.
    void openURLs(const QList<QUrl>& urls) const;

private:
    void openLater(const QUrl& url) const;

    const QPointer<LogViewModel> m_viewModel;
};

} // namespace quillon
