// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace quillon {

// The calls by which the program reads files.
enum class SystemCall : std::uint8_t { Open, Stat, Seek, Read };

enum class Fault : std::uint8_t {
    Fails,         // with EIO
    IsInterrupted, // with EINTR, where the system may do that
    IsCutShort,    // a read gives one byte of what it could
};

// Makes the n-th of the program's own calls go wrong, counted from 1 and from now on, until the end
// of the object. With Each::Once the calls after it are in order again. For executables whose
// linker wraps the calls.
class SystemFault {
public:
    enum class Each : std::uint8_t { Once, Later };

    SystemFault(SystemCall call, Fault fault, int nth, Each each = Each::Once);
    SystemFault(const SystemFault&) = delete;
    SystemFault& operator=(const SystemFault&) = delete;
    ~SystemFault();

    // Whether it has come to that call.
    [[nodiscard]] static bool hasHappened();
};

} // namespace quillon
