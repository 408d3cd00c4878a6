# Language level, warnings, sanitizers and ccache: the same for every target.
set(CMAKE_CXX_STANDARD 23)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(QT_QML_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/qml")

find_program(ORVEL_CCACHE ccache)
if(ORVEL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Without these ccache never takes a source that starts from a precompiled header.
    set(launcher "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        "${ORVEL_CCACHE}")
    set(CMAKE_C_COMPILER_LAUNCHER "${launcher}")
    set(CMAKE_CXX_COMPILER_LAUNCHER "${launcher}")
endif()

find_program(ORVEL_MOLD mold)
if(ORVEL_MOLD)
    add_link_options(-fuse-ld=mold)
endif()

# Other compilers warn of other things; who packs Orvel with one turns this off.
option(ORVEL_WERROR "Treat warnings as errors" ON)
add_compile_options(-Wall -Wextra -Wpedantic $<$<BOOL:${ORVEL_WERROR}>:-Werror> -Wnon-virtual-dtor -Woverloaded-virtual)
# Records are made with designated initializers, which leave out what keeps its default.
add_compile_options(-Wno-missing-field-initializers)
add_compile_definitions(
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(ORVEL_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(ORVEL_BUILD_FUZZ)
    # clang, unlike g++, counts what the C++ library's own templates use as ours.
    add_compile_options(-fsanitize=fuzzer-no-link -Wno-deprecated-declarations)
endif()
