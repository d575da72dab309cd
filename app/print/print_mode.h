// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

struct CommandLine;

// Writes the rows of the command line's files, or of standard input, to standard output, without
// any windowing system, and with followTail goes on with those that come until SIGINT or SIGTERM.
// Gives the exit status: 0, also when the reader of the output has gone; 1 when a file cannot be
// read or the output not written, with a message on standard error; 2 when there is no input; 130
// or 143 when following was ended by a signal.
int runPrintMode(int& argc, char** argv, CommandLine commandLine);

} // namespace quillon
