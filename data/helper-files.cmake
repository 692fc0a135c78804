# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The helper's system files in two variants from one source: "packaged" is what the distribution's
# package brings, "installed" what the helper's own `install` writes (its texts are built into the
# helper).
include("${CMAKE_CURRENT_LIST_DIR}/helper-paths.cmake")

set(QUILLON_HELPER_FILES "${PROJECT_BINARY_DIR}/data/helper")

function(quillon_helper_files variant QUILLON_HELPER_TOOL)
    set(folder "${QUILLON_HELPER_FILES}/${variant}")
    foreach(file systemd/quillon4-helper.service dbus/com.orvandel.Quillon4HelperTool.service
            polkit/com.orvandel.quillon4.policy ${ARGN})
        get_filename_component(name "${file}" NAME)
        configure_file("${PROJECT_SOURCE_DIR}/data/${file}.in" "${folder}/${name}" @ONLY)
    endforeach()
    configure_file("${PROJECT_SOURCE_DIR}/data/dbus/com.orvandel.Quillon4HelperTool.conf"
        "${folder}/com.orvandel.Quillon4HelperTool.conf" COPYONLY)
    configure_file("${PROJECT_SOURCE_DIR}/data/sysusers/quillon4-helper.conf"
        "${folder}/quillon4-helper.conf" COPYONLY)
endfunction()

quillon_helper_files(packaged "${QUILLON_PACKAGED_TOOL}")
# What installs itself can also remove itself.
quillon_helper_files(installed "${QUILLON_INSTALLED_TOOL}" systemd/quillon4-helper-removal.service
    dbus/com.orvandel.Quillon4HelperTool.Removal.service)

# The words of the first prompt: until the helper is installed, polkit knows no action of it.
set(QUILLON_SEED_POLICY "${QUILLON_HELPER_FILES}/com.orvandel.quillon4.seed.policy")
configure_file("${PROJECT_SOURCE_DIR}/data/polkit/com.orvandel.quillon4.seed.policy.in" "${QUILLON_SEED_POLICY}" @ONLY)
