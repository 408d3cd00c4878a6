# Installs the build into a scratch folder and fails if a piece does not lie where a desktop looks for it.
#   cmake -DBUILD=... -P installs.cmake
set(prefix "${BUILD}/installed")
function(install_into folder)
    execute_process(
        COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${folder}" ${ARGN}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE "${prefix}")
install_into("${prefix}")
if(EXISTS "${prefix}/Info.plist")
    message(SEND_ERROR "Installed though only a self-contained copy has it: Info.plist")
endif()
install_into("${prefix}" --component bundle)
foreach(piece
        Info.plist
        bin/orvel
        share/doc/Orvel/LICENSE
        share/doc/Orvel/LICENSE.icons
        share/applications/com.orvel.workspace.desktop
        share/icons/hicolor/scalable/apps/com.orvel.workspace.svg
        share/metainfo/com.orvel.workspace.metainfo.xml)
    if(NOT EXISTS "${prefix}/${piece}")
        message(SEND_ERROR "Not installed: ${piece}")
    endif()
endforeach()
file(REMOVE_RECURSE "${prefix}")
