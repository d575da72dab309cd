// SPDX-License-Identifier: MIT
#include "search/compile_cost.h"

#include "platform/ascii.h"

namespace quillon {

namespace {

constexpr int kMostLargeSets = 64;
constexpr int kMostGroups = 1'000;

} // namespace

bool compilesInTime(QStringView pattern)
{
    int largeSets = 0;
    int groups = 0;
    int setDepth = 0;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        const QChar next = at + 1 < pattern.size() ? pattern[at + 1] : QChar();
        switch (pattern[at].unicode()) {
        case u'\\':
            largeSets +=
                next == u'p' || next == u'P' || (setDepth > 0 && isAsciiLetter(next)) ? 1 : 0;
            ++at;
            break;
        case u'[':
            ++setDepth;
            largeSets += next == u':' ? 1 : 0;
            break;
        case u']':
            setDepth = setDepth > 0 ? setDepth - 1 : 0;
            break;
        case u'-': // a range
            largeSets += setDepth > 0 && next.unicode() >= 0x80 ? 1 : 0;
            break;
        case u'(':
        case u'{':
            ++groups;
            break;
        default:
            break;
        }
    }
    return largeSets <= kMostLargeSets && groups <= kMostGroups;
}

} // namespace quillon
