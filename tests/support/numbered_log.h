// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <functional>

namespace quillon {

// A log of at least `bytes` bytes that ends with a line: each line has its own number, and one in
// three is not all ASCII. `first` is the number of the first one.
QByteArray numberedLog(qsizetype bytes, qint64 first = 1);

// What has become of the bytes of such a log that was followed while it was written.
struct ByteAccount {
    // The bytes at the front that rows show, line ends included: all of them when nothing is lost.
    qsizetype shown = 0;
    // Bytes that rows show once more: they were written while a poll was reading.
    qsizetype shownTwice = 0;
};

// Goes through the rows in their order, from the first byte that was written on. A row may be any
// part of a line, and a character that was written in parts shows as U+FFFD in both. It ends at the
// first row that shows anything else.
ByteAccount accountForBytes(QByteArrayView written, qsizetype rowCount,
                            const std::function<QString(qsizetype)>& rowText);

} // namespace quillon
