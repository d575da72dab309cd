// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

struct CommandLine;

// Writes the rows of the command line's file to standard output, without any windowing system, and
// with followTail goes on with those appended until SIGINT or SIGTERM. Gives the exit status: 0,
// also when the reader of the output has gone; 1 when the file cannot be read or the output not
// written, with a message on standard error; 130 or 143 when following was ended by a signal.
int runPrintMode(int& argc, char** argv, const CommandLine& commandLine);

} // namespace quillon
