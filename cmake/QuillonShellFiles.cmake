# SPDX-License-Identifier: MIT
# Installs what a shell looks for beside the program: its manual and its completions.
set(resources "${PROJECT_SOURCE_DIR}/resources")

# The manual bears the program's version and the date of the newest release.
file(STRINGS "${PROJECT_SOURCE_DIR}/CHANGELOG.md" headings REGEX "^## [0-9.]+ \\([0-9-]+\\)$")
list(GET headings 0 date)
string(REGEX REPLACE ".*\\((.*)\\)" "\\1" date "${date}")
set(version "${PROJECT_VERSION}")
foreach(page quillon.1 quillon.fr.1)
    configure_file("${resources}/man/${page}.in" "${PROJECT_BINARY_DIR}/${page}" @ONLY)
endforeach()
install(FILES "${PROJECT_BINARY_DIR}/quillon.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES "${PROJECT_BINARY_DIR}/quillon.fr.1"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/fr/man1" RENAME quillon.1)

install(FILES "${resources}/completions/quillon.bash"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME quillon)
install(FILES "${resources}/completions/_quillon"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
install(FILES "${resources}/completions/quillon.fish"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
