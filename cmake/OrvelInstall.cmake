# What `cmake --install` puts where the desktop looks for it.
include(GNUInstallDirs)

install(TARGETS orvel RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(FILES data/com.orvel.workspace.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES data/com.orvel.workspace.metainfo.xml DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES data/com.orvel.workspace.svg DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}")
