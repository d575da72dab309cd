// SPDX-License-Identifier: MIT
// The windowing libraries are some forty, and linking them takes 7 ms, which is a fifth of what
// printing a log of 2 MiB takes in all. So they come with a module that only a window needs.
#include "app/command_line/exit_codes.h"
#include "app/command_line/no_window_text.h"
#include "app/open_window.h"
#include "app/window_module.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <dlfcn.h>

namespace quillon {

namespace {

// Beside the program, as it is built, or else where it is installed to.
QByteArray modulePath()
{
    const QString name = QStringLiteral(QUILLON_WINDOW_MODULE);
    const QString program = QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
    const QDir folder = QFileInfo(program).dir();
    const QDir installed(folder.filePath(QStringLiteral(QUILLON_WINDOW_FOLDER)));
    return QFile::encodeName(folder.exists(name) ? folder.filePath(name)
                                                 : QDir::cleanPath(installed.filePath(name)));
}

// Print mode comes without the module where only the one is installed.
QString whyNoModule()
{
    const QString detail = QString::fromLocal8Bit(::dlerror());
    return QFile::exists(QFile::decodeName(modulePath()))
               ? QCoreApplication::translate("OpenWindow", "la fenêtre ne se charge pas (%1)")
                     .arg(detail)
               : QCoreApplication::translate("OpenWindow", "la fenêtre n’est pas installée");
}

} // namespace

int openWindow(int& argc, char** argv, const CommandLine& commandLine)
{
    // By its whole path: which run path a name alone would be looked for along depends on who calls
    // dlopen() in the end, and a sanitizer comes between.
    void* const module = ::dlopen(modulePath().constData(), RTLD_NOW | RTLD_LOCAL);
    void* const entry = module != nullptr ? ::dlsym(module, kWindowModuleEntry) : nullptr;
    if (entry == nullptr) {
        std::fputs(noWindowText(whyNoModule()).toUtf8().constData(), stderr);
        return kExitFailure;
    }
    return reinterpret_cast<WindowModuleEntry*>(entry)(argc, argv, commandLine);
}

} // namespace quillon
