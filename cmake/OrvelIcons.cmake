# The icons of the program: the symbol table names them, the icon package draws them, and exactly those named
# become a resource.

set(ORVEL_ICON_CACHE "$ENV{XDG_CACHE_HOME}")
if(NOT ORVEL_ICON_CACHE)
    set(ORVEL_ICON_CACHE "$ENV{HOME}/.cache")
endif()
set(ORVEL_ICON_PACKAGE "${ORVEL_ICON_CACHE}/orvel/icons-2.1.1" CACHE PATH "Folder of the unpacked icon package")

# orvel_add_icons(TARGET TABLE): adds the icons named in the table as :/icons/NAME.svg.
function(orvel_add_icons target table)
    if(NOT EXISTS "${ORVEL_ICON_PACKAGE}/assets")
        execute_process(
            COMMAND "${CMAKE_SOURCE_DIR}/scripts/lib/icons.sh" "${ORVEL_ICON_PACKAGE}"
            RESULT_VARIABLE failed)
        if(failed)
            message(FATAL_ERROR "The icons could not be fetched. Install npm, make sure that the network can be "
                "reached, and run scripts/lib/icons.sh ${ORVEL_ICON_PACKAGE}; then configure again.")
        endif()
    endif()

    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${table}")
    file(STRINGS "${table}" lines REGEX "^OV_SYMBOL")
    set(files "")
    foreach(line IN LISTS lines)
        string(REGEX MATCH "\"[^\"]+\", \"([^\"]+)\", \"([^\"]+)\"" names "${line}")
        foreach(file "regular/${CMAKE_MATCH_1}.svg" "fill/${CMAKE_MATCH_2}.svg")
            set(path "${ORVEL_ICON_PACKAGE}/assets/${file}")
            if(NOT EXISTS "${path}")
                message(FATAL_ERROR "${table}: the icon package has no ${file}")
            endif()
            get_filename_component(name "${file}" NAME)
            set_source_files_properties("${path}" PROPERTIES QT_RESOURCE_ALIAS "${name}")
            list(APPEND files "${path}")
        endforeach()
    endforeach()
    list(REMOVE_DUPLICATES files)
    qt_add_resources(${target} "${target}_icons" PREFIX /icons FILES ${files})
endfunction()
