// SPDX-License-Identifier: MIT
// The windowing libraries are some forty, and linking them takes 7 ms, which is a fifth of what
// printing a log of 2 MiB takes in all. So they come with a module that only a window needs.
#include "app/open_window.h"
#include "app/window_module.h"

#include <cstdio>
#include <dlfcn.h>

namespace quillon {

namespace {

constexpr int kExitFailure = 1;

} // namespace

int openWindow(int& argc, char** argv, const CommandLine& commandLine)
{
    // Looked for where the program's own run path says: beside it, or where it was installed to.
    void* const module = ::dlopen(QUILLON_WINDOW_MODULE, RTLD_NOW | RTLD_LOCAL);
    void* const entry = module != nullptr ? ::dlsym(module, kWindowModuleEntry) : nullptr;
    if (entry == nullptr) {
        std::fprintf(stderr, "quillon: impossible de charger la fenêtre: %s\n", ::dlerror());
        return kExitFailure;
    }
    return reinterpret_cast<WindowModuleEntry*>(entry)(argc, argv, commandLine);
}

} // namespace quillon
