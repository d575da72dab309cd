// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

struct CommandLine;

// Runs the windowed program, from its first window to its end, on the files and switches of the
// command line; gives the process's exit status. Where no display can be reached it says so on
// standard error and gives kExitFailure. `argc` and `argv` are main()'s own and must live as long
// as the process.
int runApplication(int& argc, char** argv, const CommandLine& commandLine);

} // namespace quillon
