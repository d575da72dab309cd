// SPDX-License-Identifier: MIT
// For platforms whose applications are one executable in a bundle.
#include "app/open_window.h"
#include "app/run_application.h"

namespace quillon {

int openWindow(int& argc, char** argv, const CommandLine& commandLine)
{
    return runApplication(argc, argv, commandLine);
}

} // namespace quillon
