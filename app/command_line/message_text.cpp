// SPDX-License-Identifier: MIT
#include "app/command_line/message_text.h"

#include <QCoreApplication>

namespace quillon {

namespace {

constexpr QChar kNarrowSpace(u'\u202F');

bool takesSpaceBefore(QChar mark)
{
    return mark == u':' || mark == u';' || mark == u'?' || mark == u'!' || mark == u'»';
}

} // namespace

QString messageText(const char* text)
{
    QString typeset = QCoreApplication::translate("CommandLine", text);
    for (qsizetype i = 1; i + 1 < typeset.size(); ++i) {
        if (typeset[i] == u' ' && (typeset[i - 1] == u'«' || takesSpaceBefore(typeset[i + 1]))) {
            typeset[i] = kNarrowSpace;
        }
    }
    return typeset;
}

} // namespace quillon
