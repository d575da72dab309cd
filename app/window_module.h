// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

struct CommandLine;

// The one function that the window's module shows: runApplication() under a name without C++'s
// decoration.
using WindowModuleEntry = int(int& argc, char** argv, const CommandLine& commandLine);
inline constexpr const char* kWindowModuleEntry = "quillonRunApplication";

} // namespace quillon
