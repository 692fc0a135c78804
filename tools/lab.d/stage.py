# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Quillon as it would be installed from a build, in a folder that the machine copies in."""
import os

from common import LabError, run


def make(build, folder, log):
    """Under the prefix that the build was configured for: some of its files name others by full paths."""
    if not os.path.exists(os.path.join(build, "cmake_install.cmake")):
        raise LabError(f"there is no build in {build}; make one: cmake --preset dev && cmake --build --preset dev")
    run(["cmake", "--install", build], log, env={**os.environ, "DESTDIR": folder})
