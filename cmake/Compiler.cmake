# One standard, one set of warnings and one set of sanitizers for everything that is built here.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)

set(QUILLON_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them")

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(quillon_compiler INTERFACE)
target_compile_options(quillon_compiler INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -fvisibility=hidden -pthread)
# What the oldest Qt does not deprecate has no other way there.
target_compile_definitions(quillon_compiler INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_WARN_DEPRECATED_UP_TO=0x060400)
target_include_directories(quillon_compiler INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(QUILLON_SANITIZE)
    target_compile_options(quillon_compiler INTERFACE
        -fsanitize=${QUILLON_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(quillon_compiler INTERFACE -fsanitize=${QUILLON_SANITIZE})
    target_compile_definitions(quillon_compiler INTERFACE QUILLON_SANITIZED)
    # Under sanitizers GCC 12 reports these inside the standard library where there is nothing wrong.
    target_compile_options(quillon_compiler INTERFACE
        "$<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized;-Wno-array-bounds;-Wno-stringop-overflow>"
        $<$<CONFIG:Debug>:-O1>)
endif()
