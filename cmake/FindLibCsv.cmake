# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
# libcsv comes without a file for CMake or pkg-config; its header tells the version. Makes LibCsv::LibCsv.
include(FindPackageHandleStandardArgs)

find_path(CSV_INCLUDE_DIR csv.h)
find_library(CSV_LIBRARY csv)
mark_as_advanced(CSV_INCLUDE_DIR CSV_LIBRARY)

set(numbers "")
if(CSV_INCLUDE_DIR)
    foreach(part IN ITEMS MAJOR MINOR RELEASE)
        file(STRINGS "${CSV_INCLUDE_DIR}/csv.h" line REGEX "^#define CSV_${part} [0-9]+$")
        string(REGEX REPLACE "^.* " "" number "${line}")
        list(APPEND numbers "${number}")
    endforeach()
endif()
list(JOIN numbers "." LibCsv_VERSION)

find_package_handle_standard_args(LibCsv REQUIRED_VARS CSV_LIBRARY CSV_INCLUDE_DIR VERSION_VAR LibCsv_VERSION)
if(LibCsv_FOUND AND NOT TARGET LibCsv::LibCsv)
    add_library(LibCsv::LibCsv INTERFACE IMPORTED)
    target_include_directories(LibCsv::LibCsv SYSTEM INTERFACE "${CSV_INCLUDE_DIR}")
    target_link_libraries(LibCsv::LibCsv INTERFACE "${CSV_LIBRARY}")
endif()
