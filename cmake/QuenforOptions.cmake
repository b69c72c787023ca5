# One INTERFACE target carries the language level, the warnings and Qt's safety defines.
# Every target of the project links it, so all code is held to the same rules.
add_library(quenfor_options INTERFACE)
target_compile_features(quenfor_options INTERFACE cxx_std_20)
if(MSVC)
    target_compile_options(quenfor_options INTERFACE /W4 /utf-8 $<$<BOOL:${QUENFOR_WERROR}>:/WX>)
else()
    target_compile_options(quenfor_options INTERFACE -Wall -Wextra -Wpedantic $<$<BOOL:${QUENFOR_WERROR}>:-Werror>)
endif()
target_compile_definitions(quenfor_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_CONTEXTLESS_CONNECT
    QT_NO_FOREACH
    QUENFOR_VERSION="${PROJECT_VERSION}")
target_include_directories(quenfor_options INTERFACE "${PROJECT_SOURCE_DIR}/src")

# Adds a logic library: Qt Core only, no widgets.
function(quenfor_add_logic_library name)
    add_library(${name} STATIC ${ARGN})
    target_link_libraries(${name} PUBLIC quenfor_options Qt6::Core)
    quenfor_use_pch(${name} CORE)
endfunction()

# AddressSanitizer + UndefinedBehaviorSanitizer for the whole build (the CI runs the test suite
# once this way). Any finding stops the program, so a test cannot pass over it.
option(QUENFOR_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
# libFuzzer harnesses (tests/fuzz) need clang. They run under the same sanitizers, and the whole
# tree carries libFuzzer's coverage marks (the precompiled headers must match every file that
# uses them). Together with QUENFOR_SANITIZE one tree serves the tests and the fuzzers, so the CI
# compiles every file once.
option(QUENFOR_FUZZ "Build the libFuzzer harnesses (needs clang)" OFF)
if(QUENFOR_SANITIZE OR QUENFOR_FUZZ)
    target_compile_options(quenfor_options INTERFACE
        -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(quenfor_options INTERFACE -fsanitize=address,undefined)
endif()
if(QUENFOR_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "QUENFOR_FUZZ needs clang: configure with -DCMAKE_CXX_COMPILER=clang++")
    endif()
    target_compile_options(quenfor_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Precompiled Qt and standard headers: most of a file's compile time is spent in them. Two sets,
# so the logic libraries still see no widget header; every target reuses one of them.
option(QUENFOR_PCH "Precompile the Qt and standard headers" ON)
# A target that only carries precompiled headers (cmake/pch/HEADER) for other targets to reuse.
function(quenfor_add_pch_set name header)
    cmake_parse_arguments(ARG "" "" "LIBS;OPTIONS;INCLUDES" ${ARGN})
    add_library(${name} STATIC "${PROJECT_SOURCE_DIR}/cmake/pch/pch.cpp")
    target_link_libraries(${name} PRIVATE quenfor_options ${ARG_LIBS})
    target_compile_options(${name} PRIVATE ${ARG_OPTIONS})
    target_include_directories(${name} PRIVATE ${ARG_INCLUDES})
    target_precompile_headers(${name} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/pch/${header}")
endfunction()
if(QUENFOR_PCH)
    quenfor_add_pch_set(quenfor_pch_core core.h LIBS Qt6::Core)
    quenfor_add_pch_set(quenfor_pch_widgets widgets.h LIBS Qt6::Widgets)
endif()

# kind: CORE for code that sees Qt Core only, WIDGETS for windows and their tests.
function(quenfor_use_pch target kind)
    if(NOT QUENFOR_PCH)
        return()
    endif()
    if(kind STREQUAL "WIDGETS")
        target_precompile_headers(${target} REUSE_FROM quenfor_pch_widgets)
    else()
        target_precompile_headers(${target} REUSE_FROM quenfor_pch_core)
    endif()
endfunction()
