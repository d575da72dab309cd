// SPDX-License-Identifier: MIT
#include "app/print/print_session.h"

#include "app/command_line/command_line.h"
#include "app/command_line/exit_codes.h"
#include "app/print/input_error.h"
#include "app/print/print_writer.h"
#include "app/print/terminal_signals.h"

#include <QCoreApplication>

#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

QList<PrintedInput> inputsOf(const CommandLine& commandLine)
{
    QList<PrintedInput> inputs;
    for (const QString& file : commandLine.files) {
        inputs.append(PrintedInput{static_cast<int>(inputs.size()), file});
    }
    return inputs;
}

// Wakes up when the other end of a pipe on standard output is closed: a log may be silent for days,
// and only a write would tell otherwise.
std::unique_ptr<QSocketNotifier> watchReader(std::function<void()> gone)
{
    struct stat status {};
    const bool isPipe = ::fstat(STDOUT_FILENO, &status) == 0 &&
                        (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
    if (!isPipe) {
        return nullptr;
    }
    auto notifier = std::make_unique<QSocketNotifier>(STDOUT_FILENO, QSocketNotifier::Exception);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), std::move(gone));
    return notifier;
}

} // namespace

PrintSession::PrintSession(const CommandLine& commandLine, UserDefaults& defaults,
                           NotificationCenter& notifications, PrintWriter& writer)
    : m_commandLine(commandLine), m_defaults(defaults), m_notifications(notifications),
      m_writer(writer), m_status(kExitSuccess)
{
}

int PrintSession::printInTurn()
{
    for (const PrintedInput& input : inputsOf(m_commandLine)) {
        if (isOver()) {
            break;
        }
        if (isStream(input.name)) {
            printStream(input);
        } else {
            printFile(input);
        }
    }
    return m_status;
}

void PrintSession::printFile(const PrintedInput& input)
{
    FileInput file(input, m_commandLine, m_defaults, m_notifications, m_writer);
    if (const auto error = file.print()) {
        fail(input, *error);
    }
}

void PrintSession::printStream(const PrintedInput& input)
{
    if (const auto stream = openStream(input)) {
        runEventLoop();
    }
}

int PrintSession::follow()
{
    int signal = 0;
    const TerminalSignals signals([&signal](int number) {
        signal = number;
        QCoreApplication::exit();
    });
    for (const PrintedInput& input : inputsOf(m_commandLine)) {
        if (isStream(input.name)) {
            followStream(input);
        } else {
            followFile(input);
        }
    }
    if (m_liveInputs > 0 && signal == 0 && !isOver()) {
        runEventLoop();
    }
    return signal != 0 ? kExitSignalBase + signal : m_status;
}

void PrintSession::followFile(const PrintedInput& input)
{
    auto file =
        std::make_unique<FileInput>(input, m_commandLine, m_defaults, m_notifications, m_writer);
    if (const auto error = file->print()) {
        fail(input, *error);
        return;
    }
    file->follow([this] {
        if (isOver()) {
            QCoreApplication::exit();
        }
    });
    ++m_liveInputs;
    m_files.push_back(std::move(file));
}

void PrintSession::followStream(const PrintedInput& input)
{
    if (auto stream = openStream(input)) {
        m_streams.push_back(std::move(stream));
    }
}

std::unique_ptr<StreamInput> PrintSession::openStream(const PrintedInput& input)
{
    const auto descriptor = StreamInput::open(input.name);
    if (!descriptor) {
        fail(input, descriptor.error());
        return nullptr;
    }
    ++m_liveInputs;
    return std::make_unique<StreamInput>(
        descriptor.value(), input, m_commandLine, m_defaults, m_writer,
        [this, input](std::optional<SystemError> error) { noticeEnd(input, error); });
}

void PrintSession::noticeEnd(const PrintedInput& input, std::optional<SystemError> error)
{
    if (error) {
        fail(input, *error);
    }
    --m_liveInputs;
    if (m_liveInputs == 0 || isOver()) {
        QCoreApplication::exit();
    }
}

void PrintSession::runEventLoop()
{
    const auto readerWatch = watchReader([this] {
        m_isReaderGone = true;
        QCoreApplication::exit();
    });
    QCoreApplication::exec();
}

// A signal that has cut a write short is about to be reported, and ends the run then.
bool PrintSession::isOver() const
{
    return m_isReaderGone || (!m_writer.isOpen() && !TerminalSignals::haveArrived());
}

void PrintSession::fail(const PrintedInput& input, SystemError error)
{
    complainAboutInput(input.name, error);
    m_status = kExitFailure;
}

} // namespace quillon
