# SPDX-License-Identifier: MIT
# Installs what a desktop looks for beside the program.
set(application_id org.quillon.Quillon)
set(resources "${PROJECT_SOURCE_DIR}/resources")

install(FILES "${resources}/${application_id}.desktop"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
include(QuillonMetainfo)
quillon_metainfo("${resources}/${application_id}.metainfo.xml.in"
    "${PROJECT_BINARY_DIR}/${application_id}.metainfo.xml")
install(FILES "${PROJECT_BINARY_DIR}/${application_id}.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")

set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
install(FILES "${resources}/icons/AppIcon.svg"
    DESTINATION "${icons}/scalable/apps" RENAME "${application_id}.svg")
install(FILES "${resources}/icons/AppIconSymbolic.svg"
    DESTINATION "${icons}/symbolic/apps" RENAME "${application_id}-symbolic.svg")
foreach(edge 16 24 32 48 64 128 256)
    install(FILES "${resources}/icons/${edge}.png"
        DESTINATION "${icons}/${edge}x${edge}/apps" RENAME "${application_id}.png")
endforeach()

# Whoever starts the service needs the program's absolute path, which `cmake --install --prefix`
# settles; DESTDIR is no part of it.
set(service "${CMAKE_CURRENT_BINARY_DIR}/${application_id}.service")
install(CODE "
    cmake_path(SET program NORMALIZE \"${CMAKE_INSTALL_BINDIR}/$<TARGET_FILE_NAME:quillon>\")
    cmake_path(ABSOLUTE_PATH program BASE_DIRECTORY \"\${CMAKE_INSTALL_PREFIX}\")
    cmake_path(ABSOLUTE_PATH program NORMALIZE)
    if(program MATCHES \"[^A-Za-z0-9_./+-]\")
        set(program \"\\\"\${program}\\\"\")
    endif()
    configure_file(\"${resources}/${application_id}.service.in\" \"${service}\" @ONLY)")
install(FILES "${service}" DESTINATION "${CMAKE_INSTALL_DATADIR}/dbus-1/services")
