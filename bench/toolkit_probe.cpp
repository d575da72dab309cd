// SPDX-License-Identifier: MIT
// The window as the toolkit's own parts make it, without any work of ours: menus, buttons with
// drawings, a search field, a status line, and the log in a plain text view, in one colour. From
// the process's start to the moment when the log is on screen. The first argument is the log.
#include "bench/probe_report.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSlider>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include <array>

namespace {

constexpr std::array kDrawings{"open_log",     "follow",      "wrap_lines",  "show_deprecated",
                               "show_warning", "show_notice", "only_errors", "clear"};
constexpr int kDrawingSize = 18;
constexpr int kMenus = 3;
constexpr int kMenuItems = 4;

class LogView : public QPlainTextEdit {
public:
    explicit LogView(const QString& text)
    {
        setReadOnly(true);
        setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        setPlainText(text);
        moveCursor(QTextCursor::End);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPlainTextEdit::paintEvent(event);
        QTimer::singleShot(0, &quillon::bench::reportAndExit);
    }
};

void addMenus(QMenuBar& bar)
{
    for (int menu = 0; menu < kMenus; ++menu) {
        QMenu* const entries = bar.addMenu(QStringLiteral("Fichier"));
        for (int item = 0; item < kMenuItems; ++item) {
            entries->addAction(QStringLiteral("Ouvrir un log…"))
                ->setShortcut(QKeySequence(static_cast<int>(Qt::CTRL) | (Qt::Key_A + item)));
        }
    }
}

void addTools(QToolBar& bar)
{
    bar.setIconSize(QSize(kDrawingSize, kDrawingSize));
    for (const char* const drawing : kDrawings) {
        bar.addAction(
            QIcon(QStringLiteral(QUILLON_DRAWINGS "/%1.svg").arg(QLatin1StringView(drawing))),
            QStringLiteral("Ouvrir un fichier de log"));
    }
    bar.addWidget(new QSlider(Qt::Horizontal));
    auto* const search = new QLineEdit;
    search->setPlaceholderText(QStringLiteral("Rechercher"));
    search->setClearButtonEnabled(true);
    bar.addWidget(search);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QFile file(QString::fromLocal8Bit(argv[1]));
    if (!file.open(QIODevice::ReadOnly)) {
        return 1;
    }
    QMainWindow window;
    addMenus(*window.menuBar());
    addTools(*window.addToolBar(QStringLiteral("Outils")));
    window.statusBar()->showMessage(QStringLiteral("300 lignes affichées"));
    window.setCentralWidget(new LogView(QString::fromUtf8(file.readAll())));
    window.resize(1080, 720);
    window.show();
    return QApplication::exec();
}
