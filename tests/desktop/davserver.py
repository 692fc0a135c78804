# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A real web server with WebDAV, over HTTPS, for one user of it; root starts it as somebody else."""
import os
import shutil
import socket
import subprocess
import tempfile

from computers import USER
from program import DEADLINE, wait_until

PORT = 4443
AUTHORITY = "/run/quillon-sandbox/authority"

# An empty key of mimetype.assign: without it a GET brings no ETag.
LIGHTTPD = """
server.modules = ("mod_auth", "mod_authn_file", "mod_openssl", "mod_webdav")
server.document-root = "FOLDER/files"
server.bind = "127.0.0.1"
server.port = PORT
server.errorlog = "FOLDER/log"
server.upload-dirs = ("FOLDER")
ssl.engine = "enable"
ssl.pemfile = "FOLDER/certificate.pem"
ssl.privkey = "FOLDER/key.pem"
mimetype.assign = ("" => "application/octet-stream")
auth.backend = "plain"
auth.backend.plain.userfile = "FOLDER/users"
auth.require = ("" => ("method" => "basic", "realm" => "files", "require" => "valid-user"))
webdav.activate = "enable"
webdav.is-readonly = "READONLY"
webdav.sqlite-db-name = "FOLDER/locks.db"
"""
APACHE = """
ServerRoot /usr/lib/apache2
ServerName 127.0.0.1
Listen 127.0.0.1:PORT
PidFile FOLDER/pid
ErrorLog FOLDER/log
DefaultRuntimeDir FOLDER
LoadModule mpm_event_module modules/mod_mpm_event.so
LoadModule authn_core_module modules/mod_authn_core.so
LoadModule authn_file_module modules/mod_authn_file.so
LoadModule authz_core_module modules/mod_authz_core.so
LoadModule authz_user_module modules/mod_authz_user.so
LoadModule auth_basic_module modules/mod_auth_basic.so
LoadModule socache_shmcb_module modules/mod_socache_shmcb.so
LoadModule ssl_module modules/mod_ssl.so
LoadModule dav_module modules/mod_dav.so
LoadModule dav_fs_module modules/mod_dav_fs.so
DavLockDB FOLDER/locks
DocumentRoot FOLDER/files
SSLEngine on
SSLCertificateFile FOLDER/certificate.pem
SSLCertificateKeyFile FOLDER/key.pem
<Directory FOLDER/files>
    Dav On
    AuthType Basic
    AuthName files
    AuthUserFile FOLDER/users
    Require valid-user
</Directory>
"""


def openssl(*arguments):
    return subprocess.run(["openssl", *arguments], check=True, capture_output=True, text=True,
                          stdin=subprocess.DEVNULL, timeout=DEADLINE).stdout.strip()


class DavServer:
    user, first_password = "märy@example.org", "pass wörd:1"

    def __init__(self, trusted):
        """With a certificate by an authority that the computers trust, or by nobody but itself."""
        self.folder = tempfile.mkdtemp()
        self.files = self._path("files")
        self.password = self.first_password
        os.mkdir(self.files)
        self.make_certificate(trusted)
        self.start()

    def make_certificate(self, trusted):
        """From the next start on."""
        self.trusted = trusted
        signer = ("-CA", f"{AUTHORITY}/authority.pem", "-CAkey", f"{AUTHORITY}/authority.key") if trusted else ()
        openssl("req", "-x509", *signer, "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-noenc",
                "-keyout", self._path("key.pem"), "-subj", "/CN=127.0.0.1", "-addext", "subjectAltName=IP:127.0.0.1",
                "-addext", "basicConstraints=critical,CA:FALSE", "-days", "2", "-out", self._path("certificate.pem"))

    def _path(self, name):
        return os.path.join(self.folder, name)

    def _write(self, name, text):
        with open(self._path(name), "w", encoding="utf-8") as file:
            file.write(text.replace("FOLDER", self.folder).replace("PORT", str(PORT)))

    def start(self):
        command, switch = self.prepare(), {}
        if os.geteuid() == 0:
            for folder, folders, names in os.walk(self.folder):
                for name in (".", *folders, *names):
                    os.chown(os.path.join(folder, name), USER, USER)
            switch = {"user": USER, "group": USER, "extra_groups": []}
        self.process = subprocess.Popen(command, stdin=subprocess.DEVNULL, **switch)
        wait_until(self._listens, "the server does not listen")

    def _listens(self):
        if self.process.poll() is not None:
            raise AssertionError("the server did not start")
        with socket.socket() as probe:
            return probe.connect_ex(("127.0.0.1", PORT)) == 0

    def stop(self):
        self.process.terminate()
        self.process.wait(DEADLINE)

    def remove(self):
        self.stop()
        shutil.rmtree(self.folder)

    @property
    def fingerprint(self):
        """Of its certificate, as openssl says it; nothing where nobody is asked about it."""
        return "" if self.trusted else openssl("x509", "-in", self._path("certificate.pem"), "-noout", "-fingerprint",
                                               "-sha256").partition("=")[2]

    @property
    def account(self):
        """What a person types to sign in."""
        return {"address": f" 127.0.0.1:{PORT}/ ", "user": self.user, "password": self.password,
                "fingerprint": self.fingerprint}


class Lighttpd(DavServer):
    is_read_only = False  # from the next start on

    def set_password(self, password):
        """From now on."""
        self.password = password
        # Its list of users ends a name at the first colon, the rest is the password.
        self._write("users", f"{self.user}:{self.password}\n")

    def prepare(self):
        self.set_password(self.password)
        self._write("settings", LIGHTTPD.replace("READONLY", "enable" if self.is_read_only else "disable"))
        return ["/usr/sbin/lighttpd", "-D", "-f", self._path("settings")]


class Apache(DavServer):
    def prepare(self):
        self._write("users", f"{self.user}:{openssl('passwd', '-apr1', self.password)}\n")
        self._write("settings", APACHE)
        return ["/usr/sbin/apache2", "-X", "-f", self._path("settings")]
