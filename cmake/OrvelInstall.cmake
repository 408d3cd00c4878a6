# What `cmake --install` puts where the desktop looks for it.
include(GNUInstallDirs)

install(TARGETS orvel RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(FILES data/com.orvel.workspace.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
# The version stands in CMakeLists.txt alone; a release dates from its build, or from SOURCE_DATE_EPOCH.
string(TIMESTAMP ORVEL_RELEASE_DATE "%Y-%m-%d" UTC)
configure_file(data/com.orvel.workspace.metainfo.xml.in com.orvel.workspace.metainfo.xml @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/com.orvel.workspace.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES data/com.orvel.workspace.svg DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}")
# The icons are part of the program, and their licence goes with them.
install(FILES "${ORVEL_ICON_PACKAGE}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}" RENAME LICENSE.icons)

# A self-contained copy is the same below Orvel.app/Contents, with this beside it; see scripts/package.
configure_file(data/Info.plist.in Info.plist @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/Info.plist" DESTINATION . COMPONENT bundle EXCLUDE_FROM_ALL)
