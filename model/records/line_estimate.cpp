// SPDX-License-Identifier: MIT
#include "model/records/line_estimate.h"

#include "model/records/decode_text.h"
#include "platform/file_path.h"
#include "platform/read_handle.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr quint64 kSampleBefore = 32'768;
constexpr qint64 kSampleBytes = 65'536;

// A CR LF pair is one character (a grapheme cluster) and so no line feed of its own.
qint64 loneLineFeeds(const QString& text)
{
    qint64 count = 0;
    char16_t previous = 0;
    for (const QChar unit : text) {
        if (unit == u'\n' && previous != u'\r') {
            ++count;
        }
        previous = unit.unicode();
    }
    return count;
}

} // namespace

qint64 estimateSkippedLines(const QUrl& fileURL, quint64 offset)
{
    auto handle = ReadHandle::open(pathOfFileUrl(fileURL));
    if (!handle || handle.value().seek(std::max(offset, kSampleBefore) - kSampleBefore)) {
        return 0;
    }
    const auto sample = handle.value().readUpTo(kSampleBytes);
    const QByteArray bytes = sample ? sample.value() : QByteArray();
    const auto feeds = static_cast<double>(loneLineFeeds(decodeText(bytes)));
    const auto size = static_cast<double>(std::max<qint64>(bytes.size(), 1));
    return static_cast<qint64>(feeds / size * static_cast<double>(offset));
}

} // namespace quillon
