# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
# How everything here is compiled: standard, warnings, hardening, cache, sanitizers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(QUILLON_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(QUILLON_BENCH "Build the benchmarks" OFF)
option(QUILLON_FUZZ "Build the fuzz targets, which need clang (tools/fuzz)" OFF)
option(QUILLON_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

find_program(CCACHE ccache)
if(CCACHE)
    # GCC's precompiled headers are only cached when ccache may overlook their defines and times.
    set(launcher "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime "${CCACHE}")
    set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
    set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wconversion -Wsign-conversion -Wnull-dereference -Wimplicit-fallthrough -Wswitch-enum
    -fstack-protector-strong -fpch-preprocess)
if(QUILLON_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()
# The oldest Qt that we build with is the measure: what a later one deprecates often has no successor
# that the oldest has too.
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400 QT_WARN_DEPRECATED_UP_TO=0x060400)
add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)

if(QUILLON_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "QUILLON_FUZZ needs clang: use tools/fuzz, or the preset fuzz")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=fuzzer-no-link,address,undefined)
elseif(QUILLON_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
elseif(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
    # What users get. A distribution's build is of no type and brings its own degree of _FORTIFY_SOURCE; CET is the
    # processor's check of jumps and returns, which Debian 12 does not ask for by itself.
    if(CMAKE_BUILD_TYPE AND NOT CMAKE_BUILD_TYPE STREQUAL "None")
        add_compile_definitions(_FORTIFY_SOURCE=2)
    endif()
    # Debian's compiler makes PIE anyway; others have to be told when they link, too.
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)
    include(CheckCXXCompilerFlag)
    foreach(flag IN ITEMS -fcf-protection -fstack-clash-protection)
        string(MAKE_C_IDENTIFIER "QUILLON_HAS${flag}" has)
        check_cxx_compiler_flag(${flag} ${has})
        if(${has})
            add_compile_options(${flag})
        endif()
    endforeach()
endif()
