// SPDX-License-Identifier: MIT
#include "app/print/input_error.h"

#include "app/command_line/command_line.h"
#include "app/command_line/message_text.h"
#include "app/print/permission_hint.h"
#include "platform/file_path.h"
#include "render/status_text.h"

#include <cerrno>
#include <cstdio>

namespace quillon {

namespace {

void complain(const QString& text)
{
    std::fprintf(stderr, "quillon: %s\n", text.toUtf8().constData());
}

} // namespace

void complainAboutInput(const QString& file, SystemError error)
{
    complain(QStringLiteral("%1: %2").arg(displayedPath(file), error.message()));
    if (error.number == EACCES) {
        const QString hint = permissionHint(pathOfFileUrl(fileUrlFromArgument(file)));
        if (!hint.isEmpty()) {
            complain(hint);
        }
    }
}

void tellUndecided(const QString& file, qint64 lineCount)
{
    if (lineCount > 0) {
        complain(QStringLiteral("%1: %2").arg(displayedPath(file), undecidedText(lineCount)));
    }
}

void complainAboutOutput(SystemError error)
{
    complain(messageText("erreur d’écriture : %1").arg(error.message()));
}

} // namespace quillon
