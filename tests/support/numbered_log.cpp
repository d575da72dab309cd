// SPDX-License-Identifier: MIT
#include "tests/support/numbered_log.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quillon {

namespace {

// A poll reads so much at once; it cannot have read more than that too early.
constexpr qsizetype kMostShownTwice = qsizetype{8} * 1024 * 1024;
constexpr QByteArrayView kReplacement("\xEF\xBF\xBD");

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// Where the rows have got to in what was written.
class Reader {
public:
    explicit Reader(QByteArrayView written) : m_written(written) {}

    // Where the bytes of the row end that begin at the place; nothing where it shows others.
    [[nodiscard]] std::optional<qsizetype> endOf(QByteArrayView row, qsizetype at) const
    {
        if (!row.isEmpty() && isAt(at, '\n')) {
            ++at;
        }
        at = afterCutCharacter(row, at);
        const qsizetype cut = row.endsWith(kReplacement) ? kReplacement.size() : 0;
        const QByteArrayView whole = row.chopped(cut);
        if (m_written.sliced(at).first(std::min(whole.size(), m_written.size() - at)) != whole) {
            return std::nullopt;
        }
        at += whole.size();
        if (cut > 0) {
            // The next row begins with what is left of the character.
            const bool isBegun = at + 1 < m_written.size() && isContinuation(m_written[at + 1]);
            return isBegun ? std::optional(at + 1) : std::nullopt;
        }
        return isAt(at, '\n') ? at + 1 : at;
    }

private:
    [[nodiscard]] bool isAt(qsizetype at, char byte) const
    {
        return at < m_written.size() && m_written[at] == byte;
    }
    // Takes the rest of a character, of which each byte became one U+FFFD.
    [[nodiscard]] qsizetype afterCutCharacter(QByteArrayView& row, qsizetype at) const
    {
        qsizetype end = at;
        while (end < m_written.size() && isContinuation(m_written[end])) {
            ++end;
        }
        qsizetype pieces = 0;
        while (row.startsWith(kReplacement) && pieces < end - at) {
            row = row.sliced(kReplacement.size());
            ++pieces;
        }
        return pieces > 0 ? end : at;
    }

    const QByteArrayView m_written;
};

} // namespace

QByteArray numberedLog(qsizetype bytes, qint64 first)
{
    QByteArray log;
    log.reserve(bytes + 200);
    for (qint64 number = first; log.size() < bytes; ++number) {
        const QByteArray name = QByteArray::number(number).rightJustified(9, '0');
        log += "[21-Nov-2026 10:15:42 UTC] PHP ";
        if (number % 3 == 0) {
            log += "Warning:  nº " + name +
                   " – commande n’a pas été trouvée, 订单 🛒 in /srv/é/" + name;
        } else {
            log += "Notice:  number " + name + " is undefined in /srv/site/wp-content/" + name;
        }
        log += ".php on line " + QByteArray::number(number % 1000) + '\n';
    }
    return log;
}

ByteAccount accountForBytes(QByteArrayView written, qsizetype rowCount,
                            const std::function<QString(qsizetype)>& rowText)
{
    const Reader reader(written);
    ByteAccount account;
    QByteArray next = rowCount > 0 ? rowText(0).toUtf8() : QByteArray();
    for (qsizetype i = 0; i < rowCount; ++i) {
        const QByteArray row =
            std::exchange(next, i + 1 < rowCount ? rowText(i + 1).toUtf8() : QByteArray());
        auto end = reader.endOf(row, account.shown);
        // A short row is found in many a place: the one that follows it must be found there too.
        const auto isAt = [&](qsizetype at) {
            end = reader.endOf(row, at);
            return end && reader.endOf(next, *end);
        };
        const qsizetype farthest = std::max<qsizetype>(0, account.shown - kMostShownTwice);
        for (qsizetype at = account.shown - 1; !end && at >= farthest; --at) {
            if (isAt(at)) {
                account.shownTwice += account.shown - at;
            } else {
                end.reset();
            }
        }
        if (!end) {
            return account;
        }
        account.shown = *end;
    }
    return account;
}

} // namespace quillon
