# SPDX-License-Identifier: MIT
# What the compiler and the linker can do so that a defect is harder to exploit.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES CXX)

# quillon_harden(TARGET): gives those who link the interface TARGET the flags that this compiler and
# this linker know, in optimised builds; a debug build is for finding defects instead.
function(quillon_harden target)
    set(is_optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
    # The C library's own checks; a compiler may have them preset to another level.
    target_compile_options(${target} INTERFACE
        $<${is_optimised}:-U_FORTIFY_SOURCE> $<${is_optimised}:-D_FORTIFY_SOURCE=2>)
    foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
        string(MAKE_C_IDENTIFIER "QUILLON_COMPILES${flag}" known)
        check_cxx_compiler_flag(${flag} ${known})
        if(${known})
            target_compile_options(${target} INTERFACE $<${is_optimised}:${flag}>)
        endif()
    endforeach()
    foreach(flag -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
        string(MAKE_C_IDENTIFIER "QUILLON_LINKS${flag}" known)
        check_linker_flag(CXX ${flag} ${known})
        if(${known})
            target_link_options(${target} INTERFACE $<${is_optimised}:${flag}>)
        endif()
    endforeach()
endfunction()
