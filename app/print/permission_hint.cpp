// SPDX-License-Identifier: MIT
#include "app/print/permission_hint.h"

#include "app/command_line/message_text.h"
#include "platform/file_path.h"
#include "platform/one_line_text.h"

#include <QDir>

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

bool isSearchable(const QString& folder)
{
    return ::faccessat(AT_FDCWD, bytesOfPath(folder).constData(), X_OK, AT_EACCESS) == 0;
}

// The first folder on the way to the file that may not be gone through, else the file itself.
QString closedOnTheWay(const QString& path)
{
    for (qsizetype slash = path.indexOf(u'/', 1); slash > 0;
         slash = path.indexOf(u'/', slash + 1)) {
        QString folder = path.first(slash);
        if (!isSearchable(folder)) {
            return folder;
        }
    }
    return path;
}

// As ls -l has it, without the kind of file.
QString modeText(mode_t mode)
{
    constexpr mode_t kFirstBit = 0400;
    QString text = QStringLiteral("rwxrwxrwx");
    for (int i = 0; i < text.size(); ++i) {
        if ((mode & (kFirstBit >> i)) == 0) {
            text[i] = u'-';
        }
    }
    return text;
}

QString userName(uid_t id)
{
    const passwd* const entry = ::getpwuid(id);
    return entry != nullptr ? QString::fromLocal8Bit(entry->pw_name) : QString::number(id);
}

QString groupName(gid_t id)
{
    const group* const entry = ::getgrgid(id);
    return entry != nullptr ? QString::fromLocal8Bit(entry->gr_name) : QString::number(id);
}

// A log that its group may read is meant to be read by those who are put into it, adm or www-data
// for the most part; any other one only as its owner.
QString wayIn(bool isOpenToGroup, const QString& group)
{
    return isOpenToGroup
               ? messageText("entrez dans le groupe %1 (« sudo adduser $USER %1 », puis une "
                             "nouvelle session) ou passez par sudo")
                     .arg(group)
               : messageText("le groupe n’y a pas accès ; passez par sudo");
}

} // namespace

QString permissionHint(const QString& path)
{
    const QString closed = closedOnTheWay(QDir::cleanPath(path));
    struct stat status {};
    if (::stat(bytesOfPath(closed).constData(), &status) != 0) {
        return {};
    }
    const bool isFolder = S_ISDIR(status.st_mode);
    const mode_t groupBit = isFolder ? S_IXGRP : S_IRGRP;
    const QString group = oneLineText(groupName(status.st_gid));
    const QString facts = messageText("%1 : propriétaire %2, groupe %3, mode %4 ; ")
                              .arg(displayedPath(closed), oneLineText(userName(status.st_uid)),
                                   group, modeText(status.st_mode));
    return facts + wayIn((status.st_mode & groupBit) != 0, group);
}

} // namespace quillon
