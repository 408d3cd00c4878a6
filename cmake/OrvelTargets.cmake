# Every target of the house is declared through these functions, which is what keeps the tiers honest:
# a library names its tier, and linking anything that does not lie strictly below it stops the configuration.

# The tiers from the bottom up. Two targets of one tier may not link each other, except where a feature
# names another one under BUILDS_ON.
set(ORVEL_TIERS Foundation Models Support Store DesignSystem Session Engine Feature App)

function(_orvel_check_tier target tier builds_on)
    list(FIND ORVEL_TIERS "${tier}" own)
    if(own LESS 0)
        message(FATAL_ERROR "${target}: '${tier}' is no tier; the tiers are ${ORVEL_TIERS}")
    endif()
    set_property(GLOBAL PROPERTY "ORVEL_TIER_${target}" "${own}")
    foreach(link IN LISTS ARGN)
        get_property(other GLOBAL PROPERTY "ORVEL_TIER_${link}")
        if("${other}" STREQUAL "" OR link IN_LIST builds_on)
            continue()
        endif()
        if(NOT "${other}" LESS "${own}")
            message(FATAL_ERROR "${target} (tier ${tier}) may not link ${link}: arrows point downwards only")
        endif()
    endforeach()
endfunction()

# Headers of the store serve only targets of tiers that are built on it.
function(_orvel_precompile_tier tier)
    if(tier MATCHES "^(Store|Session|Feature|App)$")
        orvel_precompile(store ${ARGN})
    else()
        orvel_precompile(toolkit ${ARGN})
    endif()
endfunction()

# orvel_add_library(NAME TIER SOURCES... LINKS... [BUILDS_ON...]): a library without QML.
function(orvel_add_library name)
    cmake_parse_arguments(ARG "" "TIER" "SOURCES;LINKS;BUILDS_ON" ${ARGN})
    qt_add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} ${ARG_BUILDS_ON})
    # QML modules above may make the objects of this library known to QML.
    qt_extract_metatypes(${name})
    _orvel_check_tier(${name} "${ARG_TIER}" "${ARG_BUILDS_ON}" ${ARG_LINKS} ${ARG_BUILDS_ON})
    _orvel_precompile_tier("${ARG_TIER}" ${name})
endfunction()

# Compiles the sources that were made of QML files twenty at a time: each is small beside the headers that it reads.
function(_orvel_join_compiled_qml target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/.*_qml\\.cpp$")
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    set(count 0)
    foreach(source IN LISTS sources)
        math(EXPR group "${count} / 20")
        math(EXPR count "${count} + 1")
        set_source_files_properties("${source}" PROPERTIES UNITY_GROUP "qml${group}")
    endforeach()
endfunction()

# orvel_add_qml_module(NAME TIER URI SOURCES... QML... [SINGLETONS...] LINKS... [IMPORTS...] [BUILDS_ON...]):
# a QML module with its C++ types; whoever links it can import it.
function(orvel_add_qml_module name)
    cmake_parse_arguments(ARG "" "TIER;URI" "SOURCES;QML;SINGLETONS;RESOURCES;LINKS;IMPORTS;BUILDS_ON" ${ARGN})
    if(ARG_SINGLETONS)
        set_source_files_properties(${ARG_SINGLETONS} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
    endif()
    # Compiled QML makes the release start faster; a debug build starts from the sources and builds faster.
    set(cachegen "")
    if(NOT CMAKE_BUILD_TYPE STREQUAL "Release")
        set(cachegen NO_CACHEGEN)
    endif()
    # What the C++ types stand on, for the tools that read their descriptions.
    set(dependencies QtQuick QtQml.Models)
    foreach(link IN LISTS ARG_LINKS ARG_BUILDS_ON)
        get_property(uri GLOBAL PROPERTY "ORVEL_URI_${link}")
        list(APPEND dependencies ${uri})
    endforeach()
    set_property(GLOBAL PROPERTY "ORVEL_URI_${name}" "${ARG_URI}")

    qt_add_library(${name} STATIC)
    qt_add_qml_module(${name}
        URI ${ARG_URI}
        VERSION 1.0
        RESOURCE_PREFIX /qt/qml
        SOURCES ${ARG_SOURCES}
        QML_FILES ${ARG_QML} ${ARG_SINGLETONS}
        RESOURCES ${ARG_RESOURCES}
        IMPORTS ${ARG_IMPORTS}
        DEPENDENCIES ${dependencies}
        ${cachegen})
    _orvel_join_compiled_qml(${name})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}/src" PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC Qt6::Quick ${ARG_LINKS} ${ARG_BUILDS_ON})
    target_link_libraries(${name} INTERFACE ${name}plugin)
    _orvel_check_tier(${name} "${ARG_TIER}" "${ARG_BUILDS_ON}" ${ARG_LINKS} ${ARG_BUILDS_ON})
    _orvel_precompile_tier("${ARG_TIER}" ${name} ${name}plugin)
    set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${name}plugin_autogen/mocs_compilation.cpp"
        PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    # The toolkit makes these of generated sources without objects.
    get_property(generated DIRECTORY PROPERTY BUILDSYSTEM_TARGETS)
    list(FILTER generated INCLUDE REGEX "^${name}(_resources_[0-9]+|plugin_init)$")
    set_target_properties(${generated} PROPERTIES AUTOMOC OFF)
endfunction()
