# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What tools/lab does before there is a machine: its image is whole or not there, and nothing in use is removed."""
import os
import subprocess
import sys
import tempfile
import unittest
from unittest import mock

TOOLS = os.path.join(os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__)))), "tools")
sys.path[:0] = [os.path.join(TOOLS, "lab.d"), os.path.join(TOOLS, "sandbox.d")]

import common  # noqa: E402
import image  # noqa: E402
import kernel  # noqa: E402


class LabTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        for module in (common, image):
            patch = mock.patch.object(module, "KEPT", self.folder)
            patch.start()
            self.addCleanup(patch.stop)

    def write(self, name, text=""):
        path = os.path.join(self.folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w") as file:
            file.write(text)

    def test_an_image_that_could_not_be_made_is_not_there(self):
        def half(_release, _sources, root, _making, _log):
            os.makedirs(os.path.join(root, "half"))
            raise common.LabError("the archive is away")
        with mock.patch.object(image, "bootstrap", half), mock.patch("builtins.print"):
            for _ in range(2):
                with self.assertRaisesRegex(common.LabError, "the archive is away"):
                    image.Image()
        self.assertEqual(set(os.listdir(self.folder)), {"lock", "image.log"})

    def test_an_image_is_named_by_what_goes_into_it(self):
        packages = os.path.join(self.folder, "packages")
        names = {image.name("one", ["deb a"]), image.name("other", ["deb a"]), image.name("one", ["deb b"])}
        for text in ("systemd", "systemd udev"):
            self.write("packages", text)
            with mock.patch.object(image, "PACKAGES", packages):
                names.add(image.name("one", ["deb a"]))
                self.assertEqual(image.name("one", ["deb a"]), image.name("one", ["deb a"]))
        self.assertEqual(len(names), 5)

    def test_what_is_in_use_stays(self):
        for name in ("job-used", "job-left", "other"):
            os.mkdir(os.path.join(self.folder, name))
        descriptor = common.use(os.path.join(self.folder, "job-used"))
        # Somebody else looks: a lock of one's own is no hindrance.
        subprocess.run([sys.executable, "-B", "-c", "import sys; sys.path[:0] = sys.argv[2:]; import common; "
                        "common.KEPT = sys.argv[1]; common.remove_unused('job-*')", self.folder, *sys.path[:2]],
                       check=True)
        self.assertEqual(set(os.listdir(self.folder)), {"job-used", "other"})
        os.close(descriptor)
        common.remove_unused("job-*")
        self.assertEqual(os.listdir(self.folder), ["other"])

    def test_modules_come_after_what_they_need(self):
        for name in ("a", "b_c", "d", "e"):
            self.write(f"drivers/{name}.ko")
        self.write("modules.builtin", "kernel/drivers/inside.ko\n")
        # The kernel's list has what is needed first at the end.
        self.write("modules.dep", "drivers/a.ko: drivers/b_c.ko drivers/d.ko\ndrivers/b_c.ko: drivers/d.ko\n"
                                  "drivers/d.ko:\ndrivers/e.ko:\n")
        modules = kernel.Modules(self.folder)
        modules.read_dependencies()
        self.assertEqual(modules.in_order(["inside", "gone|e", "a", "b-c"]), ["e", "d", "b_c", "a"])
        with self.assertRaisesRegex(common.LabError, "no module gone"):
            modules.in_order(["gone"])

    def test_a_package_of_several_names_is_a_pattern(self):
        self.write("packages", "# why\n\none   a reason\nold-c++|new-c++  another\n")
        with mock.patch.object(image, "PACKAGES", os.path.join(self.folder, "packages")):
            self.assertEqual(image.wishes(), ["one", r'?name("^(old\-c\+\+|new\-c\+\+)$")'])

    def test_each_owner_says_what_it_is(self):
        owners = common.owners()
        self.assertIn("networkmanager", owners)
        for owner in owners:
            folder = os.path.join(common.OWNERS, owner)
            self.assertTrue(common.words_of(os.path.join(folder, "units")), owner)
            self.assertTrue(os.path.exists(os.path.join(folder, "ready")), owner)
            ground = os.path.join(folder, "based-on")
            self.assertLessEqual(set(common.words_of(ground) if os.path.exists(ground) else ()), set(owners))


if __name__ == "__main__":
    unittest.main()
