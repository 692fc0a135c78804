# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the Debian package's scripts do when it comes, is upgraded and goes, beside a helper that installs itself or not.

A small package is made of the real scripts and the real helper with its files, and installed by dpkg in a copy of this
system: an overlay in the sandbox, of which nothing stays. No service manager runs in it."""
import os
import shutil
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
BUILD = os.environ["QUILLON_BUILD"]
HELPER = "com.orvandel.Quillon4HelperTool"
FILES = {"helper/Quillon4HelperTool": "usr/libexec/quillon4/Quillon4HelperTool",
         "data/helper/packaged/quillon4-helper.service": "usr/lib/systemd/system/quillon4-helper.service",
         "data/helper/packaged/quillon4-helper.conf": "usr/lib/sysusers.d/quillon4-helper.conf",
         f"data/helper/packaged/{HELPER}.conf": f"usr/share/dbus-1/system.d/{HELPER}.conf",
         f"data/helper/packaged/{HELPER}.service": f"usr/share/dbus-1/system-services/{HELPER}.service",
         "data/helper/packaged/com.orvandel.quillon4.policy":
             "usr/share/polkit-1/actions/com.orvandel.quillon4.policy"}
# What debhelper adds to the script after an installation.
MAKES_USER = "systemd-sysusers quillon4-helper.conf"
CONTROL = """\
Package: quillon
Version: {version}
Architecture: all
Maintainer: The Quillon authors <quillon@example.org>
Description: the helper and its scripts
"""
# A system bus and polkit as every system has them; the helper is started by the bus itself.
BUSES = r"""
unset DBUS_SYSTEM_BUS_ADDRESS
mount -t tmpfs none /run
mkdir /run/dbus
dbus-daemon --system --fork
/usr/lib/polkit-1/polkitd --no-debug >/tmp/polkitd.log 2>&1 &
"""
# The copy, and words for what the cases look at.
PRELUDE = r"""
set -eu
copy=$(mktemp -d)
mount -t tmpfs none "$copy"
mkdir "$copy/new" "$copy/work" "$copy/root"
mount -t overlay overlay -o "lowerdir=/,upperdir=$copy/new,workdir=$copy/work" "$copy/root"
for folder in /proc /sys /dev; do mount --rbind "$folder" "$copy/root$folder"; done
mount -t tmpfs none "$copy/root/tmp"
mount -t tmpfs none "$copy/root/mnt"
mkdir "$copy/root/mnt/new" "$copy/root/mnt/old"
mount --bind "$copy/new" "$copy/root/mnt/new"
mount --bind / "$copy/root/mnt/old"
cp "$1" "$2" "$3" "$4" "$copy/root/tmp"
exec chroot "$copy/root" bash -c "$5"
"""
WORDS = r"""
set -eu
own=/usr/local/libexec/quillon4/Quillon4HelperTool
packaged=/usr/libexec/quillon4/Quillon4HelperTool
own_files="$own /usr/local/libexec/quillon4/folders
    /usr/local/share/dbus-1/system-services/com.orvandel.Quillon4HelperTool.service
    /usr/local/share/dbus-1/system-services/com.orvandel.Quillon4HelperTool.Removal.service
    /etc/systemd/system/quillon4-helper.service /etc/systemd/system/quillon4-helper-removal.service
    /etc/dbus-1/system.d/com.orvandel.Quillon4HelperTool.conf"
fail() { echo "FAILED: $*"; exit 1; }
there() { for file in "$@"; do [ -e "$file" ] || fail "$file is missing"; done; }
gone() { for file in "$@"; do [ ! -e "$file" ] || fail "$file is there"; done; }
has_user() { getent passwd quillon4-helper >/dev/null && getent group quillon4-helper >/dev/null; }
has_none() { ! getent passwd quillon4-helper >/dev/null && ! getent group quillon4-helper >/dev/null; }
# What is there that was not before, but for the lists, logs and caches of others.
left() { (cd /mnt/new && find . \( -path ./var/lib/dpkg -o -path ./var/log -o -path ./var/cache \) -prune -o -print) |
    grep -vE '^\./(etc/(passwd|group|shadow|gshadow|subuid|subgid)-|etc/\.pwd\.lock|mnt|tmp)$' |
    while read -r path; do
        if [ -e "/$path" ] && [ ! -e "/mnt/old/$path" ]; then echo "$path"; fi
    done; }
install_own() { /tmp/Quillon4HelperTool install; }
userdel quillon4-helper 2>/dev/null || true
"""


def make_package(folder, version):
    tree = os.path.join(folder, version)
    for source, target in FILES.items():
        target = os.path.join(tree, target)
        os.makedirs(os.path.dirname(target), exist_ok=True)
        shutil.copy(os.path.join(BUILD, source), target)
    os.mkdir(os.path.join(tree, "DEBIAN"))
    with open(os.path.join(tree, "DEBIAN", "control"), "w") as file:
        file.write(CONTROL.format(version=version))
    for name in ("postinst", "prerm", "postrm"):
        with open(os.path.join(ROOT, "debian", f"quillon.{name}")) as file:
            text = file.read().replace("#DEBHELPER#", MAKES_USER if name == "postinst" else "")
        path = os.path.join(tree, "DEBIAN", name)
        with open(path, "w") as file:
            file.write(text)
        os.chmod(path, 0o755)
    package = os.path.join(folder, f"quillon_{version}.deb")
    subprocess.run(["dpkg-deb", "--root-owner-group", "-Znone", "--build", tree, package], check=True,
                   stdout=subprocess.DEVNULL)
    return package


class PackageScriptsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = folder.name
        cls.packages = [make_package(cls.folder, version) for version in ("1", "2")]

    def expect(self, script):
        done = subprocess.run(
            [os.path.join(ROOT, "tools", "sandbox"), "--root", "--no-display", "--no-helper", "--build", BUILD,
             "--bind", self.folder, "unshare", "--mount", "bash", "-c", PRELUDE, "-", *self.packages,
             os.path.join(BUILD, "helper", "Quillon4HelperTool"),
             os.path.join(ROOT, "debian", "tests", "change-address"), WORDS + script],
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        self.assertEqual(done.returncode, 0, done.stdout)
        return done.stdout

    def test_it_comes_is_upgraded_and_goes(self):
        self.expect("""
            dpkg --install /tmp/quillon_1.deb
            there $packaged; has_user
            [ "$(left | wc -l)" -ge 6 ] || fail "only these were installed: $(left)"
            dpkg --install /tmp/quillon_2.deb
            there $packaged; has_user
            dpkg --remove quillon
            gone $packaged; has_user
            [ -z "$(left)" ] || fail "these stay: $(left)"
            dpkg --purge quillon
            has_none || fail "its user stays"
            [ -z "$(left)" ] || fail "these stay: $(left)"
        """)

    def test_its_own_test_holds(self):
        said = self.expect("dpkg --install /tmp/quillon_1.deb" + BUSES + """
            /tmp/change-address || { cat /tmp/polkitd.log; fail "change-address"; }
            # The helper still runs, and nothing is there to stop it.
            [ -n "$(ps -u quillon4-helper -o pid=)" ] || fail "no helper runs"
            dpkg --purge quillon
            has_none || fail "its user stays"
        """)
        self.assertIn("--- done", said.splitlines())

    def test_a_helper_that_installed_itself_gives_way(self):
        self.expect("""
            install_own
            there $own_files; has_user
            dpkg --install /tmp/quillon_1.deb
            gone $own_files /usr/local/libexec/quillon4; has_user
            [ -z "$(dpkg --verify quillon)" ] || fail "the package is damaged"
            # Nor does one come beside it.
            install_own
            gone $own_files
            # One that came nevertheless, by hand or from before there were packages, goes with the next version.
            mkdir -p /usr/local/libexec/quillon4
            cp /tmp/Quillon4HelperTool $own
            dpkg --install /tmp/quillon_2.deb
            gone $own
            dpkg --purge quillon
            has_none || fail "its user stays"
        """)

    def test_a_helper_that_installs_itself_afterwards_keeps_what_it_needs(self):
        self.expect("""
            dpkg --install /tmp/quillon_1.deb
            dpkg --remove quillon
            install_own
            dpkg --purge quillon
            there $own_files /usr/share/polkit-1/actions/com.orvandel.quillon4.policy; has_user
            $own uninstall
            gone $own_files /usr/share/polkit-1/actions/com.orvandel.quillon4.policy
        """)

    def test_what_cannot_be_removed_is_told_and_hinders_nothing(self):
        said = self.expect("""
            install_own
            # Somebody else's folder on the way: nothing is touched there.
            chmod 777 /usr/local/libexec
            dpkg --install /tmp/quillon_1.deb
            [ "$(dpkg-query --show --showformat='${db:Status-Status}' quillon)" = installed ] || fail "not installed"
            there $packaged $own
        """)
        self.assertIn("a helper in /usr/local could not be removed", said)


if __name__ == "__main__":
    unittest.main()
