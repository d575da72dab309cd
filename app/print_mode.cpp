// SPDX-License-Identifier: MIT
#include "app/print_mode.h"

#include "app/command_line.h"
#include "app/json_row.h"
#include "app/print_follow.h"
#include "app/print_output.h"
#include "app/row_printer.h"
#include "app/terminal_row.h"
#include "app/terminal_signals.h"
#include "model/log_view_model.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "render/status_text.h"

#include <QCoreApplication>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr int kExitSuccess = 0;
constexpr int kExitFailure = 1;

void complain(const QString& message)
{
    std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

QString writeErrorText(SystemError error)
{
    return QCoreApplication::translate("Print", "Erreur d’écriture: %1").arg(error.message());
}

bool isColored(ColorWhen when, bool isTerminal)
{
    if (when != ColorWhen::Auto) {
        return when == ColorWhen::Always;
    }
    // https://no-color.org
    const bool isUnwanted = !qEnvironmentVariableIsEmpty("NO_COLOR");
    const QByteArray terminal = qgetenv("TERM");
    return isTerminal && !isUnwanted && !terminal.isEmpty() && terminal != "dumb";
}

RowPrinter::AppendRow rowFormatFor(const PrintOptions& options)
{
    if (options.format == RowFormat::Json) {
        return appendJsonRow;
    }
    const bool isTerminal = ::isatty(STDOUT_FILENO) == 1;
    const auto controls = isTerminal ? ControlCharacters::AsPictures : ControlCharacters::AsTheyAre;
    if (!isColored(options.color, isTerminal)) {
        return [controls](const AttributedRow& row, QByteArray& out) {
            appendPlainRow(row, controls, out);
        };
    }
    TerminalRowFormat format(colorDepthOf(qgetenv("COLORTERM")), controls);
    return [format](const AttributedRow& row, QByteArray& out) mutable {
        format.append(row, out);
    };
}

void applyOptions(const CommandLine& commandLine, LogViewModel& model)
{
    const PrintOptions& options = commandLine.print;
    model.query.set(options.query);
    model.onlyErrors.set(options.onlyErrors);
    model.showDeprecated.set(options.showDeprecated);
    model.showWarning.set(options.showWarning);
    model.showNotice.set(options.showNotice);
    model.followTail.set(commandLine.followTail);
}

// Opening ends with the count of lines in the status, or with the reason why there are none.
bool isLoaded(const LogViewModel& model)
{
    return model.statusLine.get() == lineCountStatus(model.lines.get().size());
}

int printLog(LogViewModel& model, const CommandLine& commandLine)
{
    PrintOutput output(STDOUT_FILENO, TerminalSignals::haveArrived);
    RowPrinter printer(rowFormatFor(commandLine.print), output);
    int status = kExitSuccess;
    if (commandLine.followTail) {
        status = followPrinting(model, printer, output);
    } else {
        printer.show(model.attributedOutput.get());
    }
    if (output.state() == PrintOutput::State::Failed) {
        complain(writeErrorText(output.error()));
        return kExitFailure;
    }
    return status;
}

} // namespace

int runPrintMode(int& argc, char** argv, const CommandLine& commandLine)
{
    // Looked at before anything is opened, which could otherwise get the number of a closed
    // standard output and be written to.
    const bool isOutputOpen = ::fcntl(STDOUT_FILENO, F_GETFD) >= 0;
    const QCoreApplication application(argc, argv);
    if (!isOutputOpen) {
        complain(writeErrorText(SystemError{EBADF}));
        return kExitFailure;
    }
    // The write that finds no reader reports it; the signal would end the program as if by
    // accident.
    std::signal(SIGPIPE, SIG_IGN);

    NotificationCenter notifications;
    UserDefaults defaults(notifications);
    LogViewModel model(defaults, notifications);
    applyOptions(commandLine, model);
    model.openLog(fileUrlFromArgument(commandLine.files.first()));
    if (!isLoaded(model)) {
        complain(model.statusLine.get());
        return kExitFailure;
    }
    return printLog(model, commandLine);
}

} // namespace quillon
