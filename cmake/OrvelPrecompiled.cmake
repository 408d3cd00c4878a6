# Precompiled headers: most of the time of a build went into reading the same headers hundreds of times.
# Two sets serve every target, so that only two files are made: the toolkit and the C++ library, and those with the
# store on top. Sources still include all that they use; ORVEL_PRECOMPILE=OFF builds without the sets and shows it.

# g++ takes such a file wherever the definitions that it has seen are the same; clang wants the whole command alike.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    option(ORVEL_PRECOMPILE "Build with precompiled headers" ON)
else()
    set(ORVEL_PRECOMPILE OFF)
endif()

# _orvel_add_precompiled(NAME HEADERS...): a set of headers. It is compiled with no more definitions than every target
# has, since g++ wants those of the set at each source that starts from it.
function(_orvel_add_precompiled name)
    set(source "${CMAKE_BINARY_DIR}/${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "")
    add_library(${name} OBJECT "${source}")
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/src")
    target_include_directories(${name} SYSTEM PRIVATE $<TARGET_PROPERTY:Qt6::Qml,INTERFACE_INCLUDE_DIRECTORIES>
        $<TARGET_PROPERTY:Qt6::QmlIntegration,INTERFACE_INCLUDE_DIRECTORIES>)
    target_link_libraries(${name} PRIVATE Qt6::Core)
    target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

if(ORVEL_PRECOMPILE)
    set(toolkit_headers
        <algorithm> <array> <chrono> <expected> <functional> <memory> <optional> <ranges> <span> <string> <variant> <vector>
        <QAbstractListModel> <QDateTime> <QFile> <QHash> <QList> <QLocale> <QMap> <QObject> <QPointer> <QSet> <QString>
        <QStringList> <QTimer> <QUrl> <QUuid> <QVariant> <QtQml/qqmlregistration.h>)
    _orvel_add_precompiled(orvel_precompiled_toolkit ${toolkit_headers})
    _orvel_add_precompiled(orvel_precompiled_store ${toolkit_headers} <QtQml/qqml.h>
        "${CMAKE_SOURCE_DIR}/src/Foundation/CoalescedCall.h"
        "${CMAKE_SOURCE_DIR}/src/Foundation/KeyedListModel.h"
        "${CMAKE_SOURCE_DIR}/src/Store/WorkspaceStore.h")
endif()

# orvel_precompile(SET TARGET...): lets the targets start from a set of headers, toolkit or store.
function(orvel_precompile set)
    if(NOT ORVEL_PRECOMPILE)
        return()
    endif()
    foreach(target IN LISTS ARGN)
        target_precompile_headers(${target} REUSE_FROM "orvel_precompiled_${set}")
    endforeach()
endfunction()
