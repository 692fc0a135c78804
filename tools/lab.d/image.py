# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The machine's disk, kernel and first file system: made once out of Debian's packages, and kept.

An image is a folder whose name is a hash of all that goes into it. It is made beside and renamed when it is
whole, so that a half-made one is never used. Who uses one holds a lock on it; one that is out of date goes when
nobody does.
"""
import glob
import hashlib
import os
import re
import shutil
import subprocess
import tempfile
import time

import kernel
from common import HERE, KEPT, LabError, alone, give_back, remove_unused, run, use, words_of

PACKAGES = os.path.join(HERE, "packages")
ROOM = 512 << 20  # what may be written while the machine runs
USER, USER_ID = "quillon", 1000
# Nobody reads them in the lab, and they are a third of the files.
LEFT_OUT = ("/usr/share/doc/*", "/usr/share/man/*", "/usr/share/locale/*", "/usr/share/info/*", "/usr/share/lintian/*")


def host_release():
    """The code name of the Debian that we are on: the machine is of the same."""
    with open("/etc/os-release") as file:
        values = dict(line.rstrip("\n").split("=", 1) for line in file if "=" in line)
    if values.get("ID", "").strip('"') != "debian" or "VERSION_CODENAME" not in values:
        raise LabError("the lab is made of the packages of the Debian that it runs on; this is none")
    if os.uname().machine != "x86_64":
        raise LabError("the lab knows how to start a kernel on amd64 only")
    return values["VERSION_CODENAME"].strip('"')


def host_sources(release):
    """Where this Debian gets the packages of its release from, as lines for apt. None means: the usual places."""
    try:
        answer = subprocess.run(["apt-get", "indextargets", "--format",
                                 "$(CREATED_BY) $(ORIGIN) $(REPO_URI) $(RELEASE) $(COMPONENT)"],
                                capture_output=True, text=True, stdin=subprocess.DEVNULL)
    except OSError as error:
        raise LabError(f"apt-get cannot be started: {error}") from error
    suites = (release, f"{release}-updates", f"{release}-security")
    found = [line.split() for line in answer.stdout.splitlines()]
    return sorted({f"deb {line[2]} {line[3]} {line[4]}" for line in found
                   if len(line) == 5 and line[:2] == ["Packages", "Debian"] and line[3] in suites})


def wishes():
    """The packages as mmdebstrap takes them: "a|b" as a pattern, which is whichever there is."""
    def pattern(word):
        return '?name("^(' + "|".join(re.escape(name) for name in word.split("|")) + ')$")'
    return [pattern(word) if "|" in word else word for word in words_of(PACKAGES)]


def name(release, sources):
    """Changes with everything that goes in, but for what the archive has at the time."""
    mark = hashlib.sha256("\n".join([release, *sources]).encode())
    for path in (PACKAGES, kernel.MODULES, kernel.INIT, kernel.__file__, __file__):
        with open(path, "rb") as file:
            mark.update(b"\0" + file.read())
    return f"image-{release}-{mark.hexdigest()[:16]}"


class Image:
    """An image in use. `made_in` says how long it took, when it was not there."""

    def __init__(self):
        release = host_release()
        sources = host_sources(release)
        self.folder = os.path.join(KEPT, name(release, sources))
        self.made_in = None
        with alone():  # two that start together need one image, not two
            if not os.path.isdir(self.folder):
                before = time.monotonic()
                make(self.folder, release, sources)
                self.made_in = time.monotonic() - before
            self.in_use = use(self.folder)
            remove_unused("image-*", but=self.folder)

    def path(self, file):
        return os.path.join(self.folder, file)


def make(folder, release, sources):
    print("lab: making the machine's image, which takes a minute or so", flush=True)
    remove_unused(".making-*")
    making = tempfile.mkdtemp(dir=KEPT, prefix=".making-")
    root = os.path.join(making, "root")
    try:
        with open(os.path.join(KEPT, "image.log"), "w") as log:
            bootstrap(release, sources, root, making, log)
            unpacked = os.path.join(root, "kernel")
            version = kernel.unpack(glob.glob(os.path.join(making, "linux-image-*.deb"))[0], unpacked, log)
            kernel.install_modules(unpacked, version, root, making, log)
            kernel.extract(os.path.join(unpacked, "boot", f"vmlinuz-{version}"), os.path.join(making, "kernel.image"))
            shutil.rmtree(unpacked)
            furnish(root)
            make_disk(root, os.path.join(making, "disk"), log)
        shutil.rmtree(root)
        for package in glob.glob(os.path.join(making, "*.deb")):
            os.unlink(package)
        os.chmod(making, 0o755)
        for path in (making, *glob.glob(os.path.join(making, "*"))):
            give_back(path)
        os.rename(making, folder)
    finally:
        shutil.rmtree(making, ignore_errors=True)


def is_root_mounted():
    """As proc(5) tells: the root of a chroot(2) may be a folder of somebody else's mount."""
    with open("/proc/self/mountinfo") as file:
        return any(line.split()[4] == "/" for line in file)


def bootstrap(release, sources, root, making, log):
    """The packages by mmdebstrap; the kernel's package lies beside them in `making`. It is not installed: of its
    hundreds of megabytes a few are needed, and nothing of its machinery for boot loaders."""
    fetch = ("cd /var/cache/apt/archives && apt-get download $(apt-cache depends linux-image-amd64 | "
             "sed -n 's/^ *Depends: \\(linux-image-[0-9]\\)/\\1/p')")
    # In namespaces of its own: when we are killed, it goes with its children, and with what it has mounted. In a
    # changed root that is no mount of its own there is nothing to make private.
    propagation = "private" if is_root_mounted() else "unchanged"
    run(["unshare", "--mount", "--propagation", propagation, "--pid", "--fork", "--kill-child", "--mount-proc",
         "mmdebstrap", "--mode=root", "--variant=minbase", f"--include={','.join(wishes())}",
         "--aptopt=APT::Install-Recommends false", "--aptopt=Acquire::Languages none",
         "--aptopt=Acquire::Retries 3", "--dpkgopt=force-unsafe-io",
         *(f"--dpkgopt=path-exclude={path}" for path in LEFT_OUT),
         f'--customize-hook=chroot "$1" sh -c "$FETCH" && mv "$1"/var/cache/apt/archives/linux-image-*.deb "$MAKING"',
         "--customize-hook=chroot \"$1\" useradd --create-home --user-group --shell /bin/bash "
         f"--uid {USER_ID} {USER}",
         release, root, *sources], log, env={**os.environ, "FETCH": fetch, "MAKING": making})


def furnish(root):
    def write(path, text):
        with open(os.path.join(root, path), "w") as file:
            file.write(text)
    # A system without one enables, at its first boot, whatever its packages would like to run.
    write("etc/machine-id", hashlib.sha256(b"quillon lab").hexdigest()[:32] + "\n")
    write("etc/hostname", "lab\n")
    write("etc/hosts", "127.0.0.1 localhost lab\n::1 localhost\n")
    resolver = os.path.join(root, "etc", "resolv.conf")
    if os.path.lexists(resolver):
        os.unlink(resolver)  # mmdebstrap leaves the host's
    write("etc/resolv.conf", "")


def make_disk(root, disk, log):
    used = int(subprocess.run(["du", "-s", "--block-size=1", root], check=True, capture_output=True,
                              text=True).stdout.split()[0])
    with open(disk, "wb") as file:
        file.truncate((used * 5 // 4 + ROOM) // 4096 * 4096)
    # Without a journal: the machine never sees this disk again after a crash.
    run(["/sbin/mke2fs", "-q", "-t", "ext4", "-O", "^has_journal", "-m", "0", "-L", "lab", "-d", root, disk], log)
