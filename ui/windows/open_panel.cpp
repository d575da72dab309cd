// SPDX-License-Identifier: MIT
#include "ui/windows/open_panel.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTreeView>

namespace quillon {

namespace {

struct OpenPanelText {
    Q_DECLARE_TR_FUNCTIONS(OpenPanel)
};

QFileDialog::FileMode fileMode(const OpenPanelRequest& request)
{
    if (!request.canChooseFiles && request.canChooseDirectories) {
        return QFileDialog::Directory;
    }
    return request.allowsMultipleSelection ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile;
}

// Logs have any suffix or none, which a filter by MIME type would hide; data of any kind is
// allowed, so every file is offered first.
QStringList nameFilters(const OpenPanelRequest& request)
{
    QStringList filters{OpenPanelText::tr("Tous les fichiers (*)")};
    if (request.contentTypes.contains(QLatin1StringView("text/plain"))) {
        filters.append(OpenPanelText::tr("Journaux et textes (*.log *.txt)"));
    }
    return filters;
}

// A desktop's dialog has labels of its own; ours has none in French.
void labelFallbackDialog(QFileDialog& dialog)
{
    dialog.setLabelText(QFileDialog::LookIn, OpenPanelText::tr("Dossier :"));
    dialog.setLabelText(QFileDialog::FileName, OpenPanelText::tr("Nom du fichier :"));
    dialog.setLabelText(QFileDialog::FileType, OpenPanelText::tr("Type de fichier :"));
    dialog.setLabelText(QFileDialog::Accept, OpenPanelText::tr("Ouvrir"));
    dialog.setLabelText(QFileDialog::Reject, OpenPanelText::tr("Annuler"));
}

// The toolkit's own dialog leaves columns too narrow for their texts; a desktop's has none of ours.
void showColumnsWhole(QFileDialog& dialog)
{
    dialog.setViewMode(QFileDialog::Detail);
    const auto* const files = dialog.findChild<QTreeView*>();
    if (files != nullptr) {
        files->header()->setStretchLastSection(false);
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

// Closes the list of names to choose from as Return is pressed, before that closes the dialog.
// While such a list is open the toolkit takes no notice of which window has the keyboard, and would
// go on as if the main window had none: no ring, nothing told to screen readers.
class NameListCloser : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                static_cast<QWidget*>(watched)->hide();
            }
        }
        return QObject::eventFilter(watched, event);
    }
};

void closeNameListOnReturn(QFileDialog& dialog)
{
    const auto* const name = dialog.findChild<QLineEdit*>();
    if (name != nullptr && name->completer() != nullptr) {
        name->completer()->popup()->installEventFilter(new NameListCloser(&dialog));
    }
}

// Wide enough for a folder's columns; a desktop's dialog has a size of its own.
constexpr QSize kDialogSize(800, 500);

std::optional<QUrl> runOpenPanel(const OpenPanelRequest& request, QWidget* window)
{
    QFileDialog dialog(window, request.title);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(fileMode(request));
    dialog.setNameFilters(nameFilters(request));
    labelFallbackDialog(dialog);
    showColumnsWhole(dialog);
    closeNameListOnReturn(dialog);
    dialog.resize(kDialogSize);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedUrls().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedUrls().constFirst();
}

} // namespace

OpenPanel openPanelOver(QWidget& window)
{
    return [window = QPointer<QWidget>(&window)](const OpenPanelRequest& request) {
        return window ? runOpenPanel(request, window) : std::nullopt;
    };
}

} // namespace quillon
