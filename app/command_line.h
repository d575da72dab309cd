// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <variant>

namespace quillon {

// When rows are printed in colour: Auto only on a terminal that is able to show it.
enum class ColorWhen : std::uint8_t { Auto, Always, Never };

// How printed rows are written: the row's text, or one JSON object a line.
enum class RowFormat : std::uint8_t { Text, Json };

// What print mode shows of the log, and how.
struct PrintOptions {
    QString query;
    bool onlyErrors = false;
    bool showDeprecated = true;
    bool showWarning = true;
    bool showNotice = true;
    ColorWhen color = ColorWhen::Auto;
    RowFormat format = RowFormat::Text;
};

// What the program was asked to do.
struct CommandLine {
    enum class Action : std::uint8_t { OpenWindow, Print, ShowHelp, ShowVersion };

    Action action = Action::OpenWindow;
    // Whether rows appended to the file are shown as they are written.
    bool followTail = false;
    // As they were given, in that order: exactly one for Print, any number for OpenWindow.
    QStringList files;
    PrintOptions print;
};

// Why the arguments make no sense, in a sentence for the user.
struct UsageError {
    QString message;
};

// Reads the arguments that follow the program's name. Options may stand before and after files;
// what follows "--" is all files. The windowing library's own single-dash options, such as
// -platform, are left for it to read.
std::variant<CommandLine, UsageError> parseCommandLine(const QStringList& arguments);

// The file that an argument names: a path, taken from the working directory, or a file URL.
QUrl fileUrlFromArgument(const QString& argument);

// The text of --help, line feed included.
QString helpText();

// One line that tells how the program is called.
QString usageText();

} // namespace quillon
