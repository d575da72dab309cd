// SPDX-License-Identifier: MIT
#include "app/print/stream_input.h"

#include "app/command_line/command_line.h"
#include "app/print/input_error.h"
#include "platform/file_path.h"
#include "platform/user_defaults.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

// A pipe holds 64 KiB unless somebody has made it larger; a file gives all of it at once.
constexpr qsizetype kBufferBytes = qsizetype{128} * 1024;

bool isStandardInput(const QString& file)
{
    return file == QLatin1StringView("-");
}

QByteArray encodedPath(const QString& file)
{
    return bytesOfPath(pathOfFileUrl(fileUrlFromArgument(file)));
}

DisplayOptions displayOptionsOf(const PrintOptions& options)
{
    return DisplayOptions{
        .filter = {.onlyErrors = options.onlyErrors,
                   .showWarning = options.showWarning,
                   .showNotice = options.showNotice,
                   .showDeprecated = options.showDeprecated,
                   .search = SearchExpression::make(options.query)},
        .baseAttributes = {},
    };
}

} // namespace

bool isStream(const QString& file)
{
    struct stat status {};
    return isStandardInput(file) ||
           (::stat(encodedPath(file).constData(), &status) == 0 && S_ISFIFO(status.st_mode));
}

Result<int> StreamInput::open(const QString& file)
{
    // Its writer may come later, while other inputs are read: reading waits, opening does not.
    const int descriptor =
        isStandardInput(file)
            ? ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1)
            : ::open(encodedPath(file).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0) {
        return SystemError{errno};
    }
    return descriptor;
}

StreamInput::StreamInput(int descriptor, PrintedInput input, const CommandLine& commandLine,
                         const UserDefaults& defaults, PrintWriter& writer, Ended ended)
    : m_descriptor(descriptor), m_defaults(defaults),
      m_printer(std::move(input), commandLine.print, writer),
      m_display(displayOptionsOf(commandLine.print)), m_buffer(kBufferBytes, Qt::Uninitialized),
      m_ended(std::move(ended)), m_notifier(descriptor, QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { readSome(); });
    m_printer.begin();
    if (commandLine.followTail) {
        // All that a stream has is still to come.
        m_printer.endBeginning();
    }
}

StreamInput::~StreamInput()
{
    ::close(m_descriptor);
}

void StreamInput::readSome()
{
    const ssize_t count =
        ::read(m_descriptor, m_buffer.data(), static_cast<std::size_t>(m_buffer.size()));
    if (count < 0) {
        if (errno != EAGAIN && errno != EINTR) {
            end(SystemError{errno});
        }
        return;
    }
    if (count == 0) {
        end(std::nullopt);
        return;
    }
    LogLines lines;
    m_lines.append(QByteArrayView(m_buffer).first(count), lines);
    if (!print(lines)) {
        end(std::nullopt);
    }
}

bool StreamInput::print(const LogLines& lines)
{
    if (lines.isEmpty()) {
        return true;
    }
    const DisplayedLog shown =
        extendDisplay(AttributedString(), lines, lines.size(), m_display, m_defaults);
    for (const AttributedRow& row : shown.output.rows()) {
        m_printer.add(row);
    }
    m_undecidedLines += shown.undecidedLines;
    return m_printer.flush();
}

void StreamInput::end(std::optional<SystemError> error)
{
    m_notifier.setEnabled(false);
    LogLines lines;
    m_lines.finish(lines);
    print(lines);
    m_printer.endBeginning();
    m_printer.flush();
    tellUndecided(m_printer.input().name, m_undecidedLines);
    m_ended(error);
}

} // namespace quillon
