# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The helper's system files in two variants from one source: "packaged" is what the distribution's
# package brings, "installed" what the helper's own `install` writes (its texts are built into the
# helper). The package's paths are fixed, whatever prefix this build has, so that a helper that was
# built elsewhere still recognizes a packaged one.
set(QUILLON_PACKAGED_TOOL "/usr/libexec/quillon4/Quillon4HelperTool" CACHE STRING
    "Where the distribution's package puts the helper")
set(QUILLON_PACKAGED_UNIT "/usr/lib/systemd/system/quillon4-helper.service" CACHE STRING
    "Where the distribution's package puts the helper's unit")
mark_as_advanced(QUILLON_PACKAGED_TOOL QUILLON_PACKAGED_UNIT)
set(QUILLON_INSTALLED_TOOL "/usr/local/libexec/quillon4/Quillon4HelperTool")

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
