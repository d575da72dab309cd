// SPDX-License-Identifier: MIT
#include "tests/support/system_faults.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

struct Plan {
    bool isArmed = false;
    SystemCall call = SystemCall::Open;
    Fault fault = Fault::Fails;
    SystemFault::Each each = SystemFault::Each::Once;
    int callsBefore = 0;
    bool hasHappened = false;
};

Plan plan;

bool isDue(SystemCall call)
{
    if (!plan.isArmed || plan.call != call || plan.callsBefore-- > 0) {
        return false;
    }
    plan.callsBefore = 0;
    plan.isArmed = plan.each == SystemFault::Each::Later;
    plan.hasHappened = true;
    return true;
}

// True, with errno set, when the call is to fail now.
bool failsNow(SystemCall call)
{
    if (!isDue(call)) {
        return false;
    }
    errno = plan.fault == Fault::IsInterrupted ? EINTR : EIO;
    return true;
}

} // namespace

SystemFault::SystemFault(SystemCall call, Fault fault, int nth, Each each)
{
    plan = Plan{true, call, fault, each, nth - 1, false};
}

SystemFault::~SystemFault()
{
    plan = Plan();
}

bool SystemFault::hasHappened()
{
    return plan.hasHappened;
}

} // namespace quillon

using quillon::Fault;
using quillon::SystemCall;

// The linker puts these in the place of the calls, and gives the calls themselves the other names.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier, readability-identifier-naming)
int __real_open(const char* path, int flags, mode_t mode);
int __real_stat(const char* path, struct stat* status);
int __real_fstat(int descriptor, struct stat* status);
off_t __real_lseek(int descriptor, off_t offset, int whence);
ssize_t __real_read(int descriptor, void* bytes, size_t count);

int __wrap_open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : mode_t{0};
    va_end(rest);
    return quillon::failsNow(SystemCall::Open) ? -1 : __real_open(path, flags, mode);
}

int __wrap_stat(const char* path, struct stat* status)
{
    return quillon::failsNow(SystemCall::Stat) ? -1 : __real_stat(path, status);
}

int __wrap_fstat(int descriptor, struct stat* status)
{
    return quillon::failsNow(SystemCall::Stat) ? -1 : __real_fstat(descriptor, status);
}

off_t __wrap_lseek(int descriptor, off_t offset, int whence)
{
    return quillon::failsNow(SystemCall::Seek) ? -1 : __real_lseek(descriptor, offset, whence);
}

ssize_t __wrap_read(int descriptor, void* bytes, size_t count)
{
    if (quillon::plan.fault == Fault::IsCutShort) {
        const bool isShort = quillon::isDue(SystemCall::Read);
        return __real_read(descriptor, bytes, isShort ? std::min<size_t>(count, 1) : count);
    }
    return quillon::failsNow(SystemCall::Read) ? -1 : __real_read(descriptor, bytes, count);
}
// NOLINTEND(bugprone-reserved-identifier, readability-identifier-naming)
}
