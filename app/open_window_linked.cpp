// SPDX-License-Identifier: MIT
// For platforms whose applications are one executable in a bundle.
#include "app/desktop/run_application.h"
#include "app/open_window.h"

namespace quillon {

int openWindow(int& argc, char** argv, const CommandLine& commandLine)
{
    return runApplication(argc, argv, commandLine);
}

} // namespace quillon
