# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The web of the private machine: the hosts that the build asks are on loopback, and trusted.

A certificate authority of our own signs for them; its certificate is in the private copy of the system's
trust store, so what runs inside needs no switch to reach them. The authority is made once for a build and
kept in its folder. Its keys are no secret: nobody outside a sandbox trusts them.
"""
import hashlib
import os
import shutil
import subprocess
import tempfile
from urllib.parse import urlsplit

from common import STATE, SandboxError

AUTHORITY = os.path.join(STATE, "authority")  # read by sandbox-web
ADDRESS = "127.0.0.1"
# Beside the build's hosts, whatever they are: one that is trusted like them, one whose certificate is for
# other names, one whose certificate is too old, one whose authority nobody knows.
TRUSTED, WRONG_NAME, EXPIRED, UNTRUSTED = (
    "trusted.test", "wrong-name.test", "expired.test", "untrusted.test")
FORMAT = "2"  # raised whenever make() makes something else
DAYS = "3650"
TRUST_STORE = "/etc/ssl/certs"
CA_CONFIG = """\
[ca]
default_ca = past
[past]
database = {folder}/index
serial = {folder}/serial
default_md = sha256
copy_extensions = copy
policy = any
[any]
commonName = supplied
"""
KEY = ("-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes")


def hosts(build):
    """The hosts that the build asks; none when it is not configured."""
    try:
        with open(os.path.join(build, "services.txt")) as file:
            values = dict(line.rstrip("\n").split("=", 1) for line in file if "=" in line)
    except OSError:
        return []
    return sorted({values["QUILLON_EXTERNAL_ADDRESS_HOST"], urlsplit(values["QUILLON_REGISTRY_URL"]).hostname})


def install(build):
    names = hosts(build)
    if not names:
        return
    folder = authority(build, names)
    os.symlink(folder, AUTHORITY)
    # A minimal system has no such file.
    with open("/etc/hosts", "a") as file:
        file.write(f"\n127.0.0.1 localhost\n{ADDRESS} {' '.join([*names, TRUSTED, WRONG_NAME, EXPIRED, UNTRUSTED])}\n")
    # Nobody answers for other names: without this, asking for one takes until the far server is given up.
    if os.path.lexists("/etc/resolv.conf"):
        os.unlink("/etc/resolv.conf")
    with open("/etc/resolv.conf", "w") as file:
        file.write(f"nameserver {ADDRESS}\n")
    trust(folder)


def trust(folder):
    """As a file of its own under the name by which OpenSSL looks for it, and in the file of all."""
    os.makedirs(TRUST_STORE, exist_ok=True)
    with open(os.path.join(folder, "authority.pem")) as file:
        certificate = file.read()
    with open(os.path.join(folder, "hash")) as file:
        name = file.read().strip()
    with open(os.path.join(TRUST_STORE, "quillon-sandbox.pem"), "w") as file:
        file.write(certificate)
    number = 0
    while os.path.lexists(link := os.path.join(TRUST_STORE, f"{name}.{number}")):
        number += 1
    os.symlink("quillon-sandbox.pem", link)
    with open(os.path.join(TRUST_STORE, "ca-certificates.crt"), "a") as file:
        file.write(certificate)


def authority(build, names):
    """The folder with the certificates, which is made whole or not at all: others may start beside us."""
    mark = hashlib.sha256(" ".join([FORMAT, *names]).encode()).hexdigest()[:12]
    folder = os.path.join(build, f"sandbox-authority-{mark}")
    if os.path.isdir(folder):
        return folder
    owner = os.stat(build)
    making = tempfile.mkdtemp(dir=build, prefix=".sandbox-authority-")
    try:
        make(making, names)
        os.chmod(making, 0o755)
        for name in ("", *os.listdir(making)):
            os.chown(os.path.join(making, name), owner.st_uid, owner.st_gid)
        os.rename(making, folder)
    except OSError:
        if not os.path.isdir(folder):
            raise
    finally:
        shutil.rmtree(making, ignore_errors=True)
    return folder


def make(folder, names):
    def openssl(*arguments):
        try:
            result = subprocess.run(["openssl", *arguments], cwd=folder, capture_output=True, text=True)
        except OSError as error:
            raise SandboxError(f"openssl cannot be started: {error} (tools/setup installs it)") from error
        if result.returncode != 0:
            raise SandboxError(f"openssl {' '.join(arguments)} failed:\n{result.stderr}")
        return result.stdout

    def sign(name, issuer, *alternatives):
        """A server's certificate and key in one file, as Python's ssl reads them."""
        openssl("req", "-x509", "-CA", f"{issuer}.pem", "-CAkey", f"{issuer}.key", *KEY, "-days", DAYS,
                "-subj", f"/CN={name}", "-addext", f"subjectAltName={','.join(alternatives)}",
                "-addext", "basicConstraints=critical,CA:FALSE", "-addext", "extendedKeyUsage=serverAuth",
                "-keyout", f"{name}.key", "-out", f"{name}.pem")

    for issuer in ("authority", "stranger"):
        openssl("req", "-x509", *KEY, "-days", DAYS, "-subj", f"/CN=Quillon sandbox {issuer}",
                "-addext", "keyUsage=critical,keyCertSign", "-keyout", f"{issuer}.key", "-out", f"{issuer}.pem")
    sign("site", "authority", *(f"DNS:{name}" for name in (*names, TRUSTED, "localhost")), f"IP:{ADDRESS}")
    sign(UNTRUSTED, "stranger", f"DNS:{UNTRUSTED}")
    # Of the commands that sign, only "ca" takes an end in the past in every version of OpenSSL 3.
    openssl("req", *KEY, "-subj", f"/CN={EXPIRED}", "-addext", f"subjectAltName=DNS:{EXPIRED}",
            "-keyout", f"{EXPIRED}.key", "-out", "request")
    with tempfile.TemporaryDirectory() as register:
        with open(os.path.join(register, "config"), "w") as file:
            file.write(CA_CONFIG.format(folder=register))
        open(os.path.join(register, "index"), "w").close()
        with open(os.path.join(register, "serial"), "w") as file:
            file.write("01\n")
        openssl("ca", "-batch", "-notext", "-config", os.path.join(register, "config"),
                "-cert", "authority.pem", "-keyfile", "authority.key", "-outdir", register,
                "-startdate", "20200101000000Z", "-enddate", "20210101000000Z",
                "-in", "request", "-out", f"{EXPIRED}.pem")
    with open(os.path.join(folder, "hash"), "w") as file:
        file.write(openssl("x509", "-in", "authority.pem", "-noout", "-hash"))
    os.unlink(os.path.join(folder, "request"))
    for name in os.listdir(folder):
        os.chmod(os.path.join(folder, name), 0o644)
