# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The lab's kernel out of Debian's package: what is booted, the modules that are needed, the first file system."""
import glob
import lzma
import os
import shutil
import struct
import subprocess

from common import GUEST, HERE, LabError, run

MODULES = os.path.join(HERE, "modules")
INIT = os.path.join(GUEST, "init")
BUSYBOX = "/bin/busybox"
# Where the boot protocol has the place of the compressed kernel (Documentation/arch/x86/boot.rst).
SETUP_SECTORS, PAYLOAD = 0x1F1, 0x248


def wanted():
    """The modules of the list: those of its chapter "first", and those of its chapter "later"."""
    chapters, here = {"first": [], "later": []}, None
    with open(MODULES) as file:
        for line in file:
            if line.startswith("#"):
                here = chapters.get(line[1:].strip().split(":")[0], here)
            elif line.strip():
                here.append(line.split()[0])
    return chapters["first"], chapters["later"]


class Modules:
    """The modules of one kernel, by the names of their files, where "-" and "_" are the same."""

    def __init__(self, folder):
        self.folder = folder
        self.files = {self.name(path): os.path.relpath(path, folder)
                      for path in glob.glob(os.path.join(folder, "**", "*.ko*"), recursive=True)}
        with open(os.path.join(folder, "modules.builtin")) as file:
            self.builtin = {self.name(line.strip()) for line in file}
        self.needs = {}

    @staticmethod
    def name(path):
        return os.path.basename(path).split(".ko")[0].replace("-", "_")

    def read_dependencies(self):
        with open(os.path.join(self.folder, "modules.dep")) as file:
            for line in file:
                module, _, needed = line.partition(":")
                # What is needed first stands last.
                self.needs[self.name(module)] = [self.name(path) for path in reversed(needed.split())]

    def in_order(self, wishes):
        """The modules with all that they depend on, in an order in which they can be loaded."""
        order = []
        for wish in wishes:
            names = [name.replace("-", "_") for name in wish.split("|")]
            found = [name for name in names if name in self.files]
            if not found and not self.builtin.intersection(names):
                raise LabError(f"the kernel has no module {wish}")
            for module in found[:1]:
                order += [name for name in (*self.needs[module], module) if name not in order]
        return order


def unpack(package, folder, log):
    """Unpacks Debian's package into `folder`, below the machine's root. Returns the kernel's release."""
    run(["dpkg-deb", "-x", package, folder], log)
    if not os.path.lexists(os.path.join(folder, "lib")):
        os.symlink("usr/lib", os.path.join(folder, "lib"))  # Debian 13 has its modules there
    return os.path.basename(glob.glob(os.path.join(folder, "boot", "vmlinuz-*"))[0]).split("-", 1)[1]


def install_modules(unpacked, release, root, making, log):
    """Puts what is needed of the modules into the machine's root, and the first of them into the first file
    system, which is made in `making`."""
    modules = Modules(os.path.join(unpacked, "lib", "modules", release))
    depmod = ["chroot", root, "depmod", release]  # the machine's own: not every host has one
    run([*depmod, "-b", "/" + os.path.basename(unpacked)], log)
    modules.read_dependencies()
    first, later = wanted()
    target = os.path.join(root, "lib", "modules", release)
    for name in modules.in_order([*first, *later]):
        path = os.path.join(target, modules.files[name])
        os.makedirs(os.path.dirname(path), exist_ok=True)
        copy_module(os.path.join(modules.folder, modules.files[name]), path)
    for name in ("modules.order", "modules.builtin", "modules.builtin.modinfo"):
        shutil.copy(os.path.join(modules.folder, name), target)
    run(depmod, log)
    make_initramfs(modules, modules.in_order(first), making, log)


def copy_module(source, target):
    """Packages of Debian 13 have their modules compressed; what is not is read sooner."""
    if source.endswith(".xz"):
        with lzma.open(source) as packed, open(target.removesuffix(".xz"), "wb") as plain:
            shutil.copyfileobj(packed, plain)
    else:
        shutil.copy(source, target)


def make_initramfs(modules, order, making, log):
    folder = os.path.join(making, "initramfs.d")
    for name in ("bin", "dev", "modules", "new", "proc", "sys"):
        os.makedirs(os.path.join(folder, name))
    shutil.copy(BUSYBOX, os.path.join(folder, "bin", "busybox"))
    shutil.copy(INIT, os.path.join(folder, "init"))
    os.chmod(os.path.join(folder, "init"), 0o755)
    for name in order:
        file = os.path.basename(modules.files[name])
        copy_module(os.path.join(modules.folder, modules.files[name]), os.path.join(folder, "modules", file))
    with open(os.path.join(folder, "modules", "order"), "w") as file:
        file.writelines(os.path.basename(modules.files[name]).removesuffix(".xz") + "\n" for name in order)
    with open(os.path.join(making, "initramfs"), "wb") as archive:
        files = subprocess.run(["find", ".", "-print0"], cwd=folder, check=True, capture_output=True).stdout
        subprocess.run([BUSYBOX, "cpio", "-o", "-0", "-H", "newc"], input=files, cwd=folder, check=True,
                       stdout=archive, stderr=log)
    shutil.rmtree(folder)


def extract(image, target):
    """The kernel itself out of the image that unpacks itself: QEMU starts it as it is, which saves the unpacking
    in an emulated processor. What we cannot unpack is booted as it is."""
    with open(image, "rb") as file:
        data = file.read()
    offset, length = struct.unpack_from("<II", data, PAYLOAD)
    start = (data[SETUP_SECTORS] + 1) * 512 + offset
    packed = data[start:start + length]
    if packed.startswith(b"\xfd7zXZ\0"):
        kernel = lzma.LZMADecompressor().decompress(packed)
    elif packed.startswith(b"\x28\xb5\x2f\xfd") and shutil.which("zstd"):
        # Behind the packed data stands the unpacked size, which is no zstd any more.
        kernel = subprocess.run(["zstd", "-dc"], input=packed[:-4], check=True, capture_output=True).stdout
    else:
        kernel = data
    with open(target, "wb") as file:
        file.write(kernel)
