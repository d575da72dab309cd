// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

struct CommandLine;

// Runs the windowed program (see runApplication()). Where it is a module of its own, the module is
// loaded first; if that fails, says why on standard error and gives a non-zero status.
int openWindow(int& argc, char** argv, const CommandLine& commandLine);

} // namespace quillon
