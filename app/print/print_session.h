// SPDX-License-Identifier: MIT
#pragma once

#include "app/print/file_input.h"
#include "app/print/stream_input.h"

#include <QSocketNotifier>

#include <memory>
#include <vector>

namespace quillon {

// One run of print mode over all its inputs. An input that cannot be read is told on standard error
// and makes the run a failure; the others are printed. It ends before that when nothing can be
// written any more. What it is made with must outlive it.
class PrintSession {
public:
    PrintSession(const CommandLine& commandLine, UserDefaults& defaults,
                 NotificationCenter& notifications, PrintWriter& writer);

    // Both give the exit status; whether the output failed is for the caller to see.

    // Prints one input after the other, each to its end.
    int printInTurn();

    // Prints what the files have, and then what comes from all inputs, as it comes, until SIGINT or
    // SIGTERM, or until nothing more can come.
    int follow();

private:
    void printFile(const PrintedInput& input);
    void printStream(const PrintedInput& input);
    void followFile(const PrintedInput& input);
    void followStream(const PrintedInput& input);
    std::unique_ptr<StreamInput> openStream(const PrintedInput& input);
    void noticeEnd(const PrintedInput& input, std::optional<SystemError> error);
    void runEventLoop();
    [[nodiscard]] bool isOver() const;
    void fail(const PrintedInput& input, SystemError error);

    const CommandLine& m_commandLine;
    UserDefaults& m_defaults;
    NotificationCenter& m_notifications;
    PrintWriter& m_writer;
    int m_status;
    bool m_isReaderGone = false;
    // Inputs that something may still come from.
    int m_liveInputs = 0;
    std::vector<std::unique_ptr<FileInput>> m_files;
    std::vector<std::unique_ptr<StreamInput>> m_streams;
};

} // namespace quillon
