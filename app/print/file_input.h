// SPDX-License-Identifier: MIT
#pragma once

#include "app/print/input_printer.h"
#include "model/log_view_model.h"
#include "platform/subscription.h"
#include "platform/system_error.h"

#include <functional>
#include <limits>
#include <optional>
#include <vector>

namespace quillon {

class NotificationCenter;
class UserDefaults;
struct CommandLine;

// A log file that is printed through a view model of its own. What it is made with must outlive it.
class FileInput {
public:
    FileInput(PrintedInput input, const CommandLine& commandLine, UserDefaults& defaults,
              NotificationCenter& notifications, PrintWriter& writer);

    // Opens the file and prints the rows that it has, or says why it cannot be opened.
    [[nodiscard]] std::optional<SystemError> print();

    // Prints the rows that are appended to it as the event loop runs, if the command line asks to
    // follow, and calls `printed` after some were. A poll that fails is told on standard error
    // once, however often it fails in the same way.
    void follow(std::function<void()> printed);

private:
    void printNewRows(const AttributedString& text);
    void waitForRows();
    void tellNewUndecided();
    void complainOnce();

    LogViewModel m_model;
    InputPrinter m_printer;
    // A text made anew shows rows that have been printed, perhaps in other colours, and paper
    // cannot be taken back; only rows of lines behind the last one are printed.
    AttributedString m_printed;
    qint64 m_lastPrinted = std::numeric_limits<qint64>::min();
    qint64 m_toldUndecided = 0;
    std::optional<SystemError> m_lastComplaint;
    std::vector<Subscription> m_subscriptions;
};

} // namespace quillon
