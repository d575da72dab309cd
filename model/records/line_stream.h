// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_line.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace quillon {

// The records of a text whose bytes come in pieces, cut anywhere, also within a character or
// between CR and LF: together the very records that appendParsedBytes() makes of the whole,
// numbered from 1. A record is made as soon as its line's terminator or the end has come. Nothing
// is kept of lines that are finished.
class LineStream {
public:
    // A line that goes on for so many UTF-16 units is cut there and goes on in the next record:
    // something without line ends must not take the machine's memory. A line that a file of
    // 2 MiB can hold is never cut.
    static constexpr qsizetype kMostLineUnits = qsizetype{2} * 1024 * 1024;

    // Appends the records that the bytes finish.
    void append(QByteArrayView bytes, LogLines& lines);
    // Appends what is left when no more bytes will come.
    void finish(LogLines& lines);

private:
    void appendText(QStringView text, LogLines& lines);
    void appendLine(QStringView line, LogLines& lines);
    void holdUnfinished(QStringView text, LogLines& lines);
    void appendUnfinished(LogLines& lines);

    QByteArray m_undecoded; // the beginning of a character
    QString m_unfinished;   // the beginning of a line
    qint64 m_counter = 0;
    // A line feed to come belongs to the carriage return that was last.
    bool m_isAfterCarriageReturn = false;
    // A text of one terminator only has no lines, so an empty first line waits for what follows.
    bool m_isFirstLineHeld = false;
};

} // namespace quillon
