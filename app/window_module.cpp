// SPDX-License-Identifier: MIT
#include "app/window_module.h"

#include "app/desktop/run_application.h"

// The name is the one that the header gives.
extern "C" __attribute__((visibility("default"))) quillon::WindowModuleEntry quillonRunApplication;

int quillonRunApplication(int& argc, char** argv, const quillon::CommandLine& commandLine)
{
    return quillon::runApplication(argc, argv, commandLine);
}
