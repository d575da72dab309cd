// SPDX-License-Identifier: MIT
#include "app/command_line/no_window_text.h"

#include "app/command_line/message_text.h"

namespace quillon {

QString noWindowText(const QString& reason)
{
    return messageText("quillon: %1 ; « quillon --print FICHIER » affiche le journal dans le "
                       "terminal\n")
        .arg(reason);
}

} // namespace quillon
