# Installs the build into a scratch folder and fails if a piece does not lie where a desktop looks for it.
#   cmake -DBUILD=... -P installs.cmake
set(prefix "${BUILD}/installed")
file(REMOVE_RECURSE "${prefix}")
execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${prefix}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
foreach(piece
        bin/orvel
        share/applications/com.orvel.workspace.desktop
        share/icons/hicolor/scalable/apps/com.orvel.workspace.svg
        share/metainfo/com.orvel.workspace.metainfo.xml)
    if(NOT EXISTS "${prefix}/${piece}")
        message(SEND_ERROR "Not installed: ${piece}")
    endif()
endforeach()
file(REMOVE_RECURSE "${prefix}")
