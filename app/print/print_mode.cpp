// SPDX-License-Identifier: MIT
#include "app/print/print_mode.h"

#include "app/command_line/command_line.h"
#include "app/command_line/exit_codes.h"
#include "app/command_line/message_text.h"
#include "app/print/color_choice.h"
#include "app/print/input_error.h"
#include "app/print/json_format.h"
#include "app/print/print_output.h"
#include "app/print/print_session.h"
#include "app/print/terminal_signals.h"
#include "app/print/text_format.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "render/preference_keys.h"

#include <QCoreApplication>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

// Whether somebody has put something on standard input. A terminal is where they type commands.
bool isInputGiven()
{
    struct stat status {};
    return ::fstat(STDIN_FILENO, &status) == 0 &&
           (S_ISFIFO(status.st_mode) || S_ISREG(status.st_mode) || S_ISSOCK(status.st_mode));
}

// A descriptor that is not open could become that of any file opened later. As one that cannot be
// read from it fails in the way of one that is not open.
void reserveStandardInput()
{
    if (::fcntl(STDIN_FILENO, F_GETFD) < 0) {
        [[maybe_unused]] const int reserved = ::open("/dev/null", O_WRONLY);
    }
}

std::unique_ptr<PrintFormat> formatFor(const CommandLine& commandLine)
{
    const PrintOptions& options = commandLine.print;
    if (options.format == RowFormat::Json) {
        return std::make_unique<JsonFormat>(
            commandLine.files.size() > 1 ? JsonFormat::FileField::Written
                                         : JsonFormat::FileField::LeftOut,
            options.showRuns ? JsonRuns::Written : JsonRuns::LeftOut);
    }
    const bool isTerminal = ::isatty(STDOUT_FILENO) == 1;
    return std::make_unique<TextFormat>(
        chooseColors(options.color, isTerminal, ColorEnvironment::ofThisProcess()),
        isTerminal ? ControlCharacters::AsPictures : ControlCharacters::AsTheyAre,
        options.showNumber ? RowNumber::Shown : RowNumber::LeftOut);
}

int printAll(const CommandLine& commandLine)
{
    NotificationCenter notifications;
    UserDefaults defaults(notifications);
    defaults.registerDefaults(defaultPreferences());
    PrintOutput output(STDOUT_FILENO, TerminalSignals::haveArrived);
    PrintWriter writer(formatFor(commandLine),
                       commandLine.files.size() > 1 ? PrintWriter::Headings::Written
                                                    : PrintWriter::Headings::LeftOut,
                       output);
    PrintSession session(commandLine, defaults, notifications, writer);
    const int status = commandLine.followTail ? session.follow() : session.printInTurn();
    writer.flush();
    if (output.state() == PrintOutput::State::Failed) {
        complainAboutOutput(output.error());
        return kExitFailure;
    }
    return status;
}

} // namespace

int runPrintMode(int& argc, char** argv, CommandLine commandLine)
{
    // Looked at before anything is opened, which could otherwise get the number of a closed
    // standard output and be written to.
    reserveStandardInput();
    const bool isOutputOpen = ::fcntl(STDOUT_FILENO, F_GETFD) >= 0;
    const QCoreApplication application(argc, argv);
    if (!isOutputOpen) {
        complainAboutOutput(SystemError{EBADF});
        return kExitFailure;
    }
    if (commandLine.files.isEmpty()) {
        if (!isInputGiven()) {
            const UsageError error{messageText("--print demande un fichier ou un tube")};
            std::fputs(complaintText(error).toUtf8().constData(), stderr);
            return kExitUsage;
        }
        commandLine.files.append(QStringLiteral("-"));
    }
    // The write that finds no reader reports it; the signal would end the program as if by
    // accident.
    std::signal(SIGPIPE, SIG_IGN);
    return printAll(commandLine);
}

} // namespace quillon
