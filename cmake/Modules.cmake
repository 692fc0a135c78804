# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
# A module is one static library with an explicit file list and explicit dependencies, so that the
# link graph shows the layering. tools/check-layers holds the allowed include edges.

set(QUILLON_COMMON_HEADERS
    <QDateTime> <QObject> <QString> <QStringList> <QVariant> <functional> <memory> <optional> <vector>)

# quillon_precompiled(TARGET OWNER header…)
# The headers that most sources include are compiled once, for OWNER, and used by all others. All have the same
# options; other definitions do not matter to GCC as long as none of the headers asks for them, and it says so
# (-Winvalid-pch) if one does. Other compilers are stricter.
function(quillon_precompiled target owner)
    if(target STREQUAL owner OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_precompile_headers(${target} PRIVATE ${ARGN})
    else()
        target_precompile_headers(${target} REUSE_FROM ${owner})
        # The owner is a library; a program is compiled with -fPIE, unless Qt asks for more.
        target_compile_options(${target} PRIVATE -fPIC)
    endif()
endfunction()

# quillon_module(NAME SOURCES file… USES target…)
function(quillon_module name)
    cmake_parse_arguments(MODULE "" "" "SOURCES;USES" ${ARGN})
    add_library(quillon_${name} STATIC ${MODULE_SOURCES})
    target_include_directories(quillon_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(quillon_${name} PUBLIC Qt6::Core ${MODULE_USES})
    quillon_precompiled(quillon_${name} quillon_base ${QUILLON_COMMON_HEADERS})
    set_target_properties(quillon_${name} PROPERTIES AUTOMOC ON)
endfunction()

set(QUILLON_TEST_HEADERS ${QUILLON_COMMON_HEADERS} <QCoreApplication> <gmock/gmock.h>)

# Seconds after which a test hangs. None depends on how busy the machine is: whatever a test waits for has a
# limit of two minutes of its own, and says what did not come.
set(QUILLON_TEST_LIMIT 900)

# The programs of the unit tests. They are run with the sanitizers, which see more, so a build without
# leaves them out unless they are asked for; those labelled "face" are run both ways.
add_custom_target(unit_tests)

# quillon_test(NAME LABEL label SOURCES file… USES target… [SANDBOX root|user])
# A GoogleTest program; each of its tests is one CTest test. With SANDBOX every test runs in a sandbox
# of its own (tools/sandbox, without a display): as root it may change interfaces and own bus names, as
# user it is what the program is, an ordinary user with a session bus.
function(quillon_test name)
    cmake_parse_arguments(TEST "" "LABEL;SANDBOX" "SOURCES;USES" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE
        "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/tests" "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ${TEST_USES} quillon_test_main)
    quillon_precompiled(${name} quillon_test_main ${QUILLON_TEST_HEADERS})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    if(TEST_SANDBOX)
        set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR
            "${PROJECT_SOURCE_DIR}/tools/sandbox;--${TEST_SANDBOX};--no-display;--build;${PROJECT_BINARY_DIR}")
    endif()
    if(TEST_LABEL STREQUAL "unit")
        set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
    endif()
    if(TEST_LABEL MATCHES "^(unit|face)$")
        add_dependencies(unit_tests ${name})
    endif()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 300
        PROPERTIES LABELS ${TEST_LABEL} TIMEOUT ${QUILLON_TEST_LIMIT})
endfunction()

# quillon_script_tests(FILE LABEL label [PROPERTIES name value…])
# A file of Python unit tests; each of its test methods is one CTest test, named Class.method.
function(quillon_script_tests file)
    cmake_parse_arguments(SCRIPT "" "LABEL" "PROPERTIES" ${ARGN})
    set(path "${CMAKE_CURRENT_SOURCE_DIR}/${file}")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${path}")
    file(STRINGS "${path}" lines REGEX "^(class [A-Za-z]+|    def test_[a-z0-9_]+)")
    foreach(line IN LISTS lines)
        if(line MATCHES "^class ([A-Za-z]+)")
            set(class "${CMAKE_MATCH_1}")
        elseif(line MATCHES "def (test_[a-z0-9_]+)")
            set(test "${class}.${CMAKE_MATCH_1}")
            add_test(NAME "${test}" COMMAND /usr/bin/python3 -B "${path}" "${test}")
            set_tests_properties("${test}" PROPERTIES LABELS ${SCRIPT_LABEL} TIMEOUT ${QUILLON_TEST_LIMIT}
                ENVIRONMENT "QUILLON_BUILD=${PROJECT_BINARY_DIR}" ${SCRIPT_PROPERTIES})
        endif()
    endforeach()
endfunction()
