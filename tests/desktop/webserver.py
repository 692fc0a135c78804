# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The web that the program meets in the sandbox: by host name, over HTTPS, as a test says."""
import json
import os
import subprocess
import tempfile

from program import DEADLINE, SANDBOX_TOOLS, wait_until

EXTERNAL_ADDRESS = "/"
REGISTRY = "/oui/oui.csv"
REGISTRY_FILE = "/usr/share/ieee-data/oui.csv"


class Web:
    """Serves what was said last; until then every page is missing."""

    def __init__(self):
        self.folder = tempfile.mkdtemp()
        self.serve({})
        ready = self._path("ready")
        self.process = subprocess.Popen(
            [os.path.join(SANDBOX_TOOLS, "sandbox-web"), "--rules", self._path("rules"),
             "--log", self._path("log"), "--ready", ready], stdin=subprocess.DEVNULL)
        wait_until(lambda: os.path.exists(ready), "the web server did not listen")

    def _path(self, name):
        return os.path.join(self.folder, name)

    def serve(self, pages):
        # The server reads the rules at each request: never half of them.
        with open(self._path("new"), "w") as file:
            json.dump(pages, file)
        os.replace(self._path("new"), self._path("rules"))

    def requests(self, path):
        if not os.path.exists(self._path("log")):
            return []
        with open(self._path("log")) as file:
            entries = [json.loads(line) for line in file if line.endswith("\n")]
        return [entry for entry in entries if entry.get("path") == path]

    def end(self):
        self.process.terminate()
        self.process.wait(DEADLINE)
