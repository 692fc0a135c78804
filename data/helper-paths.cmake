# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Where the helper is. The package's paths are fixed, whatever prefix this build has, so that a helper
# that was built elsewhere still recognizes a packaged one.
set(QUILLON_PACKAGED_TOOL "/usr/libexec/quillon4/Quillon4HelperTool" CACHE STRING
    "Where the distribution's package puts the helper")
set(QUILLON_PACKAGED_UNIT "/usr/lib/systemd/system/quillon4-helper.service" CACHE STRING
    "Where the distribution's package puts the helper's unit")
mark_as_advanced(QUILLON_PACKAGED_TOOL QUILLON_PACKAGED_UNIT)
set(QUILLON_INSTALLED_TOOL "/usr/local/libexec/quillon4/Quillon4HelperTool")
# What the helper is installed from. It never is the installed helper itself: that would replace an
# older one by the same.
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(QUILLON_SEED_TOOL "${QUILLON_PACKAGED_TOOL}")
else()
    set(QUILLON_SEED_TOOL "${CMAKE_INSTALL_FULL_LIBEXECDIR}/quillon4/seed/Quillon4HelperTool")
endif()
