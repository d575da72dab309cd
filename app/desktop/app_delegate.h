// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QQueue>
#include <QString>
#include <QTimer>
#include <QUrl>

namespace quillon {

class LogViewModel;

// Takes the files that the outside hands over: the command line, the desktop, another launch of the
// program, a drop. Each is reported on standard output and opened by the view model, if that still
// exists, in a turn of the event loop of its own: the first one in the next turn, and between two
// of them the window answers and paints. A file that cannot be opened is reported on standard
// error, too, since a status line is gone when the next file is opened.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    explicit AppDelegate(LogViewModel& viewModel);

    // Opens one file. True in every case: what becomes of it is not the sender's concern.
    bool openFile(const QString& path);

    // Opens the files one after the other, so that the last one stays.
    void openURLs(const QList<QUrl>& urls);

    // Opens the next file now instead of in its turn, if there is one.
    void openNext();

private:
    void openLater(const QUrl& url);

    const QPointer<LogViewModel> m_viewModel;
    QQueue<QUrl> m_waiting;
    bool m_isOpeningScheduled = false;
    QTimer m_nextTurn;
};

} // namespace quillon
