// SPDX-License-Identifier: MIT
#include "ui/open_panel.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QPointer>

namespace quillon {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("OpenPanel", text);
}

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
    QStringList filters{translated("Tous les fichiers (*)")};
    if (request.contentTypes.contains(QLatin1StringView("text/plain"))) {
        filters.append(translated("Journaux et textes (*.log *.txt)"));
    }
    return filters;
}

// A desktop's dialog has labels of its own; ours has none in French.
void labelFallbackDialog(QFileDialog& dialog)
{
    dialog.setLabelText(QFileDialog::LookIn, translated("Dossier :"));
    dialog.setLabelText(QFileDialog::FileName, translated("Nom du fichier :"));
    dialog.setLabelText(QFileDialog::FileType, translated("Type de fichier :"));
    dialog.setLabelText(QFileDialog::Accept, translated("Ouvrir"));
    dialog.setLabelText(QFileDialog::Reject, translated("Annuler"));
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
