// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/classify.h"
#include "model/records/line_builder.h"

#include <QStringList>

namespace quillon {

// A record of the text, classified as the program does it.
inline LogLine logLine(const QString& text, qint64 number = 1)
{
    return LogLine(QUuid::createUuid(), number, text, classify(text));
}

// Records of the texts, numbered from `base` + 1 on.
inline LogLines logLines(const QStringList& texts, qint64 base = 0)
{
    LogLines lines;
    for (const QString& text : texts) {
        appendParsedLine(text, base, lines);
    }
    return lines;
}

} // namespace quillon
