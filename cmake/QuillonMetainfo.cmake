# SPDX-License-Identifier: MIT
# Makes the AppStream metainfo from its template: the releases are those of CHANGELOG.md, and an
# address stands there only when the build was given one.

# quillon_metainfo(TEMPLATE FILE)
function(quillon_metainfo template file)
    set(changelog "${PROJECT_SOURCE_DIR}/CHANGELOG.md")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${changelog}")
    file(STRINGS "${changelog}" headings REGEX "^## [0-9.]+ \\([0-9-]+\\)$")
    set(releases)
    foreach(heading IN LISTS headings)
        string(REGEX REPLACE "^## ([0-9.]+) \\((.*)\\)$"
            "    <release version=\"\\1\" date=\"\\2\"/>\n" release "${heading}")
        string(APPEND releases "${release}")
    endforeach()

    set(addresses)
    if(QUILLON_SUPPORT_URL)
        string(APPEND addresses "  <url type=\"homepage\">${QUILLON_SUPPORT_URL}</url>\n"
            "  <url type=\"help\">${QUILLON_SUPPORT_URL}</url>\n")
    endif()
    if(QUILLON_PICTURES_URL)
        set(pictures "${QUILLON_PICTURES_URL}")
        configure_file("${PROJECT_SOURCE_DIR}/resources/screenshots.xml.in"
            "${CMAKE_CURRENT_BINARY_DIR}/screenshots.xml" @ONLY)
        file(READ "${CMAKE_CURRENT_BINARY_DIR}/screenshots.xml" screenshots)
        string(APPEND addresses "${screenshots}")
    endif()
    configure_file("${template}" "${file}" @ONLY)
endfunction()
