// SPDX-License-Identifier: MIT
// The whole program, from its start to the moment when the log that it was given is on screen.
#include "app/command_line.h"
#include "app/run_application.h"
#include "bench/probe_report.h"
#include "ui/log_text_view.h"

#include <QApplication>
#include <QTimer>

namespace {

class FirstPaint : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            const auto* const view = qobject_cast<quillon::LogTextView*>(watched->parent());
            if (view != nullptr && !view->attributedText().isEmpty() &&
                watched == view->viewport()) {
                // Once the event loop is free again, the window system has what was painted.
                QTimer::singleShot(0, &quillon::bench::reportAndExit);
            }
        }
        return false;
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
    return quillon::runApplication(argc, argv, commandLine);
}
