# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

# What every target is compiled with: warnings, Qt's strict definitions, sanitizers, coverage.
add_library(torvi_options INTERFACE)
add_library(Torvi::Options ALIAS torvi_options)

target_compile_options(torvi_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${TORVI_WERROR}>:-Werror>)
target_compile_definitions(torvi_options INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
target_include_directories(torvi_options INTERFACE ${PROJECT_SOURCE_DIR})

if(TORVI_SANITIZE)
    # One bad value must fail a test, not scroll by: nothing recovers.
    add_compile_options(-fsanitize=${TORVI_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${TORVI_SANITIZE})
    # Its run time opens a pipe to look at an object, and some tests leave no descriptor to be had.
    add_compile_options(-fno-sanitize=vptr)
    set(TORVI_QML_OPTIONS NO_CACHEGEN) # the code that Qt makes of QML is no code of ours
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        add_compile_options(-fno-sanitize=function) # clang 14 cannot compile coroutines with it
    endif()
endif()
if(TORVI_FUZZERS)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(TORVI_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()

# torvi_compile_for_speed(SOURCE…): what thousands of projects pass through. All else is compiled for
# size: the item stays in memory all day, and its code is run once in a while.
function(torvi_compile_for_speed)
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS "$<$<CONFIG:MinSizeRel>:-O3>")
endfunction()

# torvi_tame_generated(TARGET): what Qt generates for a QML module does not keep our warnings. All of
# its QML cache includes the same large headers, and compiles in groups in a quarter of the time.
function(torvi_tame_generated target)
    get_target_property(alone ${target} SOURCES)
    list(FILTER alone EXCLUDE REGEX "/\\.rcc/qmlcache/")
    set_source_files_properties(${alone} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    list(FILTER alone INCLUDE REGEX "${CMAKE_BINARY_DIR}.*(qmltyperegistrations|_init).*\\.cpp$")
    set_source_files_properties(${alone} PROPERTIES COMPILE_OPTIONS -w)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12
        UNITY_BUILD_CODE_BEFORE_INCLUDE "#pragma GCC diagnostic ignored \"-Wshadow\"
#pragma GCC diagnostic ignored \"-Wconversion\"")
endfunction()
