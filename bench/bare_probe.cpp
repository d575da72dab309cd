// SPDX-License-Identifier: MIT
// A bare window with an empty view, from the process's start to the moment when it is on screen.
// With the argument "text" it shows a line in the monospaced font and one in that of the controls:
// what any program pays that shows text at all.
#include "bench/probe_report.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFontDatabase>
#include <QMainWindow>
#include <QPainter>
#include <QTimer>

namespace {

class BareView : public QAbstractScrollArea {
protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        if (QCoreApplication::arguments().contains(QStringLiteral("text"))) {
            QPainter painter(viewport());
            painter.drawText(10, 20, QStringLiteral("Fichier"));
            painter.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
            painter.drawText(10, 40, QStringLiteral("PHP Fatal error: x in /a/b.php on line 1"));
        }
        QTimer::singleShot(0, &quillon::bench::reportAndExit);
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new BareView);
    window.resize(1080, 720);
    window.show();
    return QApplication::exec();
}
