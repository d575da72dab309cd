// SPDX-License-Identifier: MIT
// The whole program, from its start to the moment when the log that it was given is on screen.
#include "app/command_line/command_line.h"
#include "app/open_window.h"
#include "bench/probe_report.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QVariant>

#include <algorithm>

namespace {

// Watches for the log view to be painted with something to scroll. It knows the view by its names
// only, as the windowing libraries are not linked here either.
class FirstPaint : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && isShownLog(*watched)) {
            // Once the event loop is free again, the window system has what was painted.
            QTimer::singleShot(0, &quillon::bench::reportAndExit);
        }
        return false;
    }

private:
    static bool isShownLog(const QObject& viewport)
    {
        const QObject* const view = viewport.parent();
        if (view == nullptr || !view->inherits("quillon::LogTextView") ||
            viewport.objectName() != QLatin1StringView("qt_scrollarea_viewport")) {
            return false;
        }
        const auto bars = view->findChildren<QObject*>();
        return std::any_of(bars.begin(), bars.end(), [](const QObject* bar) {
            return bar->inherits("QScrollBar") && bar->property("maximum").toInt() > 0;
        });
    }
};

void watchForFirstPaint()
{
    qApp->installEventFilter(new FirstPaint(qApp));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchForFirstPaint)

int main(int argc, char** argv)
{
    quillon::CommandLine commandLine;
    commandLine.files = {QString::fromLocal8Bit(argv[1])};
    return quillon::openWindow(argc, argv, commandLine);
}
