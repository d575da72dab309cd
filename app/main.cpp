// SPDX-License-Identifier: MIT
#include "app/command_line/command_line.h"
#include "app/command_line/exit_codes.h"
#include "app/command_line/help_text.h"
#include "app/open_window.h"
#include "app/print/print_mode.h"
#include "platform/file_path.h"

#include <QStringList>

#include <cstdio>

namespace {

QStringList argumentsAfterName(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(quillon::pathFromBytes(argv[i]));
    }
    return arguments;
}

int say(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    const auto size = static_cast<std::size_t>(bytes.size());
    const bool isWritten = std::fwrite(bytes.constData(), 1, size, stdout) == size;
    return isWritten && std::fflush(stdout) == 0 ? quillon::kExitSuccess : quillon::kExitFailure;
}

int complain(const quillon::UsageError& error)
{
    std::fputs(quillon::complaintText(error).toUtf8().constData(), stderr);
    return quillon::kExitUsage;
}

} // namespace

int main(int argc, char** argv)
{
    using quillon::CommandLine;
    const auto parsed = quillon::parseCommandLine(argumentsAfterName(argc, argv));
    if (const auto* const error = std::get_if<quillon::UsageError>(&parsed)) {
        return complain(*error);
    }
    const auto& commandLine = std::get<CommandLine>(parsed);
    switch (commandLine.action) {
    case CommandLine::Action::ShowHelp:
        return say(quillon::helpText());
    case CommandLine::Action::ShowVersion:
        return say(QStringLiteral("Quillon %1\n").arg(QLatin1StringView(QUILLON_VERSION)));
    case CommandLine::Action::Print:
        return quillon::runPrintMode(argc, argv, commandLine);
    case CommandLine::Action::OpenWindow:
        break;
    }
    return quillon::openWindow(argc, argv, commandLine);
}
