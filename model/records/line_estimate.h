// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>

namespace quillon {

// About how many lines the file has before `offset` (bytes from its start), judged from the density
// of line feeds in the 64 KiB around it; 0 when the file cannot be read. A line feed that follows a
// carriage return is not counted, so a file with CR LF line ends gives 0.
qint64 estimateSkippedLines(const QUrl& fileURL, quint64 offset);

} // namespace quillon
