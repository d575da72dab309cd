// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_line.h"

#include <QByteArrayView>
#include <QStringView>

namespace quillon {

// Makes the next record and appends it to `lines`: its number is `counter` + 1, which becomes the
// counter; its severity follows from its text; its id is new. A counter at its maximum is a
// programming error that stops the program.
void appendParsedLine(QStringView text, qint64& counter, LogLines& lines);

// Appends a record for each line of the text, numbered from `base` + 1 on.
void appendParsedText(QStringView text, qint64 base, LogLines& lines);

// The same for a text as bytes, of which decodeText() tells what they mean.
void appendParsedBytes(QByteArrayView bytes, qint64 base, LogLines& lines);

} // namespace quillon
