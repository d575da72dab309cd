// SPDX-License-Identifier: MIT
#pragma once

#include "platform/system_error.h"

#include <QString>

namespace quillon {

// Tells on standard error why a file cannot be read, as other tools do: "quillon: FILE: reason".
// Where permission is missing one more line says who has it and how one usually gets it.
void complainAboutInput(const QString& file, SystemError error);

// Tells on standard error how many of a file's lines are left out because it takes too long to find
// out whether they match; nothing where there are none.
void tellUndecided(const QString& file, qint64 lineCount);

// Tells on standard error that the output cannot be written.
void complainAboutOutput(SystemError error);

} // namespace quillon
