# What `cmake --install` puts where. The parts that come late are looked for beside the program and in
# ../lib/dropshade from it.

include(GNUInstallDirs)

set(application_id org.dropshade.Dropshade)
set(companion_folder "${CMAKE_INSTALL_BINDIR}/../lib/dropshade")

install(TARGETS dropshade RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(TARGETS dropshade-sound RUNTIME DESTINATION "${companion_folder}")
install(TARGETS dropshade-etcd dropshade-network LIBRARY DESTINATION "${companion_folder}")

install(FILES "${PROJECT_SOURCE_DIR}/resources/desktop/${application_id}.desktop"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
# What software centres show.
install(FILES "${PROJECT_SOURCE_DIR}/resources/desktop/${application_id}.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
# So that the desktop can start the program by asking it for an action.
configure_file("${PROJECT_SOURCE_DIR}/resources/desktop/${application_id}.service.in"
    "${PROJECT_BINARY_DIR}/${application_id}.service" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/${application_id}.service"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/dbus-1/services")
install(FILES "${PROJECT_SOURCE_DIR}/resources/icons/app-icon.svg"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps"
    RENAME "${application_id}.svg")

install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(FILES "${PROJECT_SOURCE_DIR}/resources/icons/lucide/LICENSE"
    DESTINATION "${CMAKE_INSTALL_DOCDIR}/licences" RENAME lucide.txt)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/resources/presets/licences/"
    DESTINATION "${CMAKE_INSTALL_DOCDIR}/licences")
