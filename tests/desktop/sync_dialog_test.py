# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The dialog in which a person signs in to an account: what it tells assistive technology, its keys, and what it says
of what is missing or wrong. Nobody gets in here (sync_test.py)."""
import os
import unittest

from davserver import Lighttpd
from preferences import PreferencesTest, stored
from program import NAME, accessibility, wait_until, xdotool

TITLE = "Sync Account"
FIELDS = {"Server": "entry", "User name": "entry", "App password": "password", "Passphrase": "password",
          "Folder": "entry"}
PASSPHRASE = "correct horse battery staple"


class DialogTest(PreferencesTest):
    def setUp(self):
        super().setUp()
        self.open_dialog()

    def open_dialog(self):
        self.preferences.find("button", "Account…").press()
        self.dialog = accessibility.window(NAME, TITLE)

    def entry(self, name):
        return self.dialog.find(FIELDS[name], name)

    def focused_name(self):
        """A tab says so whenever it is the current one: the keyboard is at the list of them, which has its name."""
        return next((control.name for control in self.dialog.everything_below()
                     if control.focused and control.role not in accessibility.ROLES["page tab"]), None)

    def expect_focused(self, name):
        wait_until(lambda: self.focused_name() == name,
                   lambda: f"{self.focused_name()} has the keyboard instead of {name}")

    def expect_said(self, text, at):
        wait_until(lambda: self.dialog.has("label", text),
                   lambda: f"nothing says “{text}”; there is {self.dialog.overview()}")
        self.expect_focused(at)

    def expect_order(self, *names):
        """From what has the keyboard, by Tab, and around to it again."""
        self.expect_focused(names[0])
        for name in (*names[1:], names[0]):
            xdotool("key", "Tab")
            self.expect_focused(name)

    def expect_closed(self):
        wait_until(lambda: not accessibility.has_window(NAME, TITLE), "the dialog stays")
        self.assertIsNone(stored().get("cloudAccount"))
        self.assertFalse(self.box("Sync settings, rules and history").checked)

    def fill_in(self, **texts):
        for name, text in texts.items():
            self.entry(name.replace("_", " ")).set_text(text)


class ServerDialogTest(DialogTest):
    def fill_in_all(self, server):
        self.fill_in(Server=server.account["address"], User_name=server.user, App_password=server.password,
                     Passphrase=PASSPHRASE)

    def start_server(self, **how):
        server = Lighttpd(**how)
        self.addCleanup(server.remove)
        return server

    def test_every_control_has_a_name_and_a_role_and_its_place(self):
        fields = ("Server", "User name", "App password", "Passphrase")
        self.expect_order(*fields, "Cancel", "Sign In", "Nextcloud or WebDAV")
        for name in fields:
            self.assertTrue(self.entry(name).description, f"{name} is not described")
            self.assertEqual(self.dialog.labelled(name, FIELDS[name]).name, name)
        for tab in ("Nextcloud or WebDAV", "Folder"):
            self.dialog.find("page tab", tab)
        self.assertFalse(self.dialog.has("password", "Repeat passphrase"))

    def expect_missing(self, *expected):
        for name, typed, said in expected:
            xdotool("key", "Return")
            self.expect_said(said, name)
            xdotool("type", typed)
            wait_until(lambda: not self.dialog.has("label", said), "it is still said")
            if FIELDS[name] == "password":
                self.assertEqual(self.entry(name).text, "", "a password is told to nobody")
                self.assertNotIn(typed, self.dialog.overview())

    def test_return_says_what_is_missing_and_escape_closes_and_forgets_the_passwords(self):
        server = ("Server", "127.0.0.1:4443", "Enter the address of the server.")
        user = ("User name", "me", "Enter your user name.")
        password = ("App password", "secret-word", "Enter an app password.")
        passphrase = ("Passphrase", PASSPHRASE, "Enter a passphrase.")
        self.expect_missing(server, user, password, passphrase)
        xdotool("key", "Return")
        self.expect_said("The server cannot be reached.", "Server")
        xdotool("key", "Escape")
        self.expect_closed()
        self.open_dialog()
        self.expect_focused("App password")
        self.assertEqual((self.entry("Server").text, self.entry("User name").text), ("127.0.0.1:4443", "me"))
        self.expect_missing(password, passphrase)

    def test_a_wrong_password_and_a_new_account(self):
        server = self.start_server(trusted=True)
        self.fill_in_all(server)
        self.fill_in(App_password="wrong")
        xdotool("key", "Return")
        self.expect_said("The server did not accept this name and password.", "App password")
        self.fill_in(App_password=server.password, Passphrase="short")
        xdotool("key", "Return")
        self.expect_said("The passphrase is too short: it needs at least eight characters.", "Passphrase")
        self.fill_in(Passphrase=PASSPHRASE)
        xdotool("key", "Return")
        self.expect_said("This account is new. Repeat the passphrase.", "Repeat passphrase")
        self.expect_order("Repeat passphrase", "Cancel", "Sign In", "Nextcloud or WebDAV", "Server", "User name",
                          "App password", "Passphrase")
        xdotool("type", "another one")
        xdotool("key", "Return")
        self.expect_said("The two passphrases are not the same.", "Repeat passphrase")
        xdotool("key", "Escape")
        self.expect_closed()
        self.assertEqual(os.listdir(os.path.join(server.files, "Quillon")), [], "nothing is left there")

    def test_a_certificate_is_asked_about_and_return_does_not_accept_it(self):
        server = self.start_server(trusted=False)
        self.fill_in_all(server)
        xdotool("key", "Return")
        self.expect_said("The server's certificate is not trusted.", server.fingerprint)
        self.expect_order(server.fingerprint, "Copy Fingerprint", "Accept Certificate", "Cancel", "Sign In",
                          "Nextcloud or WebDAV", "Server", "User name", "App password", "Passphrase")
        xdotool("key", "Return")
        self.expect_said("The server's certificate is not trusted.", server.fingerprint)
        self.fill_in(Server="localhost:4443")
        wait_until(lambda: not self.dialog.has("button", "Accept Certificate"), "another server is not asked about")
        xdotool("key", "Escape")
        self.expect_closed()
        self.assertEqual(os.listdir(server.files), [], "no name and password was sent there")


class FolderDialogTest(DialogTest):
    def setUp(self):
        super().setUp()
        self.dialog.find("page tab", "Folder").press()
        self.entry("Folder").click()

    def test_a_folder_is_said_and_what_is_wrong_with_it(self):
        self.expect_order("Folder", "Choose Folder", "Passphrase", "Cancel", "Sign In", "Folder")
        self.assertTrue(self.entry("Folder").description)
        xdotool("key", "Return")
        self.expect_said("Choose a folder.", "Folder")
        xdotool("type", "files")
        xdotool("key", "Return")
        self.expect_said("Write the whole path of the folder.", "Folder")
        self.fill_in(Folder="~/not there", Passphrase=PASSPHRASE)
        xdotool("key", "Return")
        self.expect_said("This folder is not there at the moment.", "Folder")
        self.fill_in(Folder=os.path.expanduser("~/.bashrc"))
        with open(os.path.expanduser("~/.bashrc"), "w"):
            pass
        xdotool("key", "Return")
        self.expect_said("This is not a folder.", "Folder")
        xdotool("key", "Escape")
        self.expect_closed()


if __name__ == "__main__":
    unittest.main(verbosity=2)
