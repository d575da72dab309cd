# SPDX-License-Identifier: MIT
# Compiler settings shared by every target, and the one way a layer is declared.

add_library(quillon_options INTERFACE)
target_compile_options(quillon_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<BOOL:${QUILLON_WERROR}>:-Werror>)
target_compile_definitions(quillon_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(QUILLON_SANITIZE)
    target_compile_options(quillon_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quillon_options INTERFACE -fsanitize=address,undefined)
endif()

if(QUILLON_HARDENING AND NOT QUILLON_SANITIZE)
    include(QuillonHardening)
    quillon_harden(quillon_options)
endif()

# quillon_add_layer(NAME SOURCES a.cpp … HEADERS a.h … LINKS targets …)
# A static library whose headers are included from the repository root and must compile alone. A
# source includes its own header before anything else (script/check-includes), so what is left to
# verify are the headers without a source.
function(quillon_add_layer name)
    cmake_parse_arguments(LAYER "" "" "SOURCES;HEADERS;LINKS" ${ARGN})
    add_library(${name} STATIC ${LAYER_SOURCES})
    set(alone ${LAYER_HEADERS})
    list(TRANSFORM LAYER_SOURCES REPLACE "\\.cpp$" ".h" OUTPUT_VARIABLE compiled)
    list(REMOVE_ITEM alone ${compiled})
    target_sources(${name} PUBLIC
        FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${LAYER_HEADERS}
        FILE_SET alone TYPE HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${alone})
    set_target_properties(${name} PROPERTIES INTERFACE_HEADER_SETS_TO_VERIFY alone)
    target_link_libraries(${name} PUBLIC ${LAYER_LINKS} PRIVATE quillon_options)
endfunction()
