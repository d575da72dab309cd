// SPDX-License-Identifier: MIT
#pragma once

#include "app/print/input_printer.h"
#include "model/log_recompute.h"
#include "model/records/line_stream.h"
#include "platform/result.h"

#include <QByteArray>
#include <QSocketNotifier>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

struct CommandLine;
class UserDefaults;

// Whether a file of the command line is read as a stream: "-", which is standard input, or a pipe.
bool isStream(const QString& file);

// Standard input or a pipe, printed from its first line to its end as the lines arrive. Nothing is
// kept of lines that have been printed.
class StreamInput {
public:
    // Opens what `file` names, without waiting for anybody to write to it.
    static Result<int> open(const QString& file);

    // Reads the descriptor as the event loop runs, and closes it at last. `ended` is called at the
    // end of the input, with the reason where it ends too soon, or when nothing can be printed any
    // more.
    using Ended = std::function<void(std::optional<SystemError>)>;
    StreamInput(int descriptor, PrintedInput input, const CommandLine& commandLine,
                const UserDefaults& defaults, PrintWriter& writer, Ended ended);
    StreamInput(const StreamInput&) = delete;
    StreamInput& operator=(const StreamInput&) = delete;
    ~StreamInput();

private:
    void readSome();
    // False where nothing can be written any more.
    bool print(const LogLines& lines);
    void end(std::optional<SystemError> error);

    const int m_descriptor;
    const UserDefaults& m_defaults;
    InputPrinter m_printer;
    DisplayOptions m_display;
    qint64 m_undecidedLines = 0;
    LineStream m_lines;
    QByteArray m_buffer;
    Ended m_ended;
    QSocketNotifier m_notifier;
};

} // namespace quillon
