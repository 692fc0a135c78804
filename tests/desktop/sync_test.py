# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Two computers with the built program and one account: over real web servers and over a folder. Rules, history and
settings go over and back, a rule made on one acts on the other, and nobody but the two can read any of it."""
import base64
import os
import socket
import unittest
import zlib

import cleartext
from computers import Network, TwoComputers
from davserver import PORT, Apache, DavServer, Lighttpd
from program import wait_until

PASSPHRASE = "correct horse battery staple"
RULE, OFFLINE_RULE = "Cafe by the harbor", "Only at home, says A"
HOME_NETWORK = {"BSSID": "a4:2b:b0:11:22:33", "SSID": "Harbor Guests", "name": "The harbor's own"}
PRINTER = {"address": "a4:83:e7:01:02:03", "name": "Printer by the door"}
NETWORKS, ADDRESSES = {HOME_NETWORK["BSSID"]: HOME_NETWORK}, {PRINTER["address"]: PRINTER}


class OneAccount(TwoComputers):
    """One has a saved network, the other a saved address; both are signed in to one account, which the first makes."""

    def setUp(self):
        self.make_account()
        self.a.write_setting("savedNetworks", NETWORKS)
        self.b.write_setting("savedAddresses", ADDRESSES)
        for computer in self.computers:
            computer.start()
            self.addCleanup(self.end, computer)
        self.a.sign_in(self.account, PASSPHRASE, True)
        self.b.sign_in(self.account, PASSPHRASE, False)

    def end(self, computer):
        self.assertEqual(computer.end(), 0)
        computer.forget()

    def test_what_is_done_on_one_is_on_the_other_and_nobody_else_knows(self):
        self.go_over_and_back()
        self.act_on_the_other()
        self.edit_offline()
        self.expect_secrets_in_the_keyring()
        self.expect_nothing_in_the_clear()

    def go_over_and_back(self):
        self.first = self.a.randomize()
        self.a.toggle("Show notifications")
        self.expect_come(self.b, self.first, displayNotifications=False, savedNetworks=NETWORKS)
        self.second = self.b.randomize()
        self.b.toggle("Show notifications")
        self.expect_come(self.a, self.second, displayNotifications=True, savedAddresses=ADDRESSES)

    def expect_come(self, computer, record, **settings):
        self.wait_on(computer, lambda: record in computer.records()["history"] and
                     settings.items() <= computer.settings().items(),
                     lambda: f"there are {computer.records()['history']} and {computer.settings()}")

    def act_on_the_other(self):
        a, b = self.a, self.b
        a.make_rule(RULE, "enp2s0")
        self.expect_address_changed(a, lambda: a.switch_rule(RULE))
        self.wait_on(b, lambda: self.rules_of(b) == {RULE: True}, lambda: f"there are {self.rules_of(b)}")
        wait_until(lambda: b.shows_rule(RULE), "the window does not show it")
        # As when it joins a network. A cable that is out for a moment only need not be noticed.
        self.expect_address_changed(b, lambda: b.ip("address", "add", "198.51.100.7/24", "dev", "enp2s0"))

    def expect_address_changed(self, computer, act):
        before = computer.addresses()
        act()
        wait_until(lambda: computer.addresses()["enp2s0"] != before["enp2s0"], "the kernel kept the address")
        self.assertEqual({**computer.addresses(), "enp2s0": ""}, {**before, "enp2s0": ""})

    def edit_offline(self):
        """Each does something of its own, and both something to the same rule and the same setting."""
        a, b = self.a, self.b
        self.go_offline()
        a.make_rule(OFFLINE_RULE, "enp1s0")
        a.switch_rule(RULE)
        a.toggle("Do not open the window at login")
        a.set_minutes(77)
        mine = a.randomize()
        b.delete_rule(RULE)
        b.toggle("Show window")
        other = b.randomize()
        for computer in self.computers:
            computer.says(self.OFFLINE)
        # The later one.
        b.set_minutes(88)
        self.assertEqual((self.rules_of(a), self.rules_of(b)), ({RULE: False, OFFLINE_RULE: False}, {}))
        self.assertEqual([mine in b.records()["history"], other in a.records()["history"]], [False, False])
        self.go_online()
        for computer in self.computers:
            # What failed is tried again after half a minute, and by a start at once.
            self.assertEqual(computer.end(), 0)
            computer.start()
            computer.says_not(self.OFFLINE)
        expected = {"hideOnLaunch": True, "showKeyEnabled": True, "defaultTimerMinutes": 88,
                    "savedNetworks": NETWORKS, "savedAddresses": ADDRESSES}
        for computer in self.computers:
            self.wait_on(computer, lambda: self.rules_of(computer) == {OFFLINE_RULE: False} and
                         all(record in computer.records()["history"] for record in (mine, other)) and
                         expected.items() <= computer.settings().items(),
                         lambda: f"there are {computer.records()} and {computer.settings()}")
        self.wait_on(b, lambda: a.records() == b.records(), lambda: f"{a.records()} is not {b.records()}")

    def expect_secrets_in_the_keyring(self):
        for computer in self.computers:
            secrets = computer.secrets()
            keys = [secret for name, secret in secrets.items() if name.startswith("key of account ")]
            self.assertEqual(len(keys), 1, list(secrets))
            key = base64.b64decode(keys[0].partition(".")[0])
            self.assertEqual(len(key), 32)
            passwords = [secret for name, secret in secrets.items() if not name.startswith("key of account ")]
            self.assertEqual(passwords, [self.account["password"]] if "password" in self.account else [])
            written = [text.encode(kind) for text in (PASSPHRASE, *passwords) for kind in ("utf-8", "utf-16-le")]
            found, files = computer.has_written(*(secret.hex() for secret in (key, *written)))
            self.assertEqual(found, [])
            self.assertLess({".local/share/Quillon/Quillon.sqlite", ".local/share/keyrings/login.keyring"}, set(files), files)

    def expect_nothing_in_the_clear(self):
        files = cleartext.files_in(self.account_folder)
        self.assertIn("key", files)
        self.assertGreater(len(files), 4, list(files))
        addresses = {record["address"] for record in self.a.records()["history"]}
        self.assertGreaterEqual(len(addresses), 4)
        secrets = [PASSPHRASE, RULE, OFFLINE_RULE, *HOME_NETWORK.values(), *PRINTER.values(), *addresses,
                   "enp1s0", "enp2s0", "Ethernet", "Random Address", "savedNetworks", "displayNotifications",
                   socket.gethostname(), "quillon", DavServer.user, DavServer.first_password]
        self.assertEqual(cleartext.find(secrets, files), [])


class OnAServer(OneAccount):
    OFFLINE = "The server cannot be reached."

    def make_account(self):
        self.server = self.make_server()
        self.addCleanup(self.server.remove)
        self.account = self.server.account
        self.account_folder = os.path.join(self.server.files, "Quillon")
        self.network = Network(self.computers, PORT)
        self.addCleanup(self.network.unplug)

    def go_offline(self):
        self.network.unplug()
        self.server.stop()

    def go_online(self):
        self.server.start()
        self.network.plug()


class LighttpdTest(OnAServer, unittest.TestCase):
    """Nobody knows its certificate: the person compares it."""

    def make_server(self):
        return Lighttpd(trusted=False)


class ApacheTest(OnAServer, unittest.TestCase):
    def make_server(self):
        return Apache(trusted=True)


class FolderTest(OneAccount, unittest.TestCase):
    OFFLINE = "This folder is not there at the moment."

    def make_account(self):
        self.account_folder = os.path.join(self.shared, "Files of märy")
        os.mkdir(self.account_folder)
        os.chown(self.account_folder, *os.stat(self.shared)[4:6])
        self.account = {"folder": self.account_folder}

    def give_to_tell(self, computer):
        """It watches the folder."""

    def go_offline(self):
        os.rename(self.account_folder, self.account_folder + ".away")

    def go_online(self):
        os.rename(self.account_folder + ".away", self.account_folder)


class SearchTest(unittest.TestCase):
    """What the search above must find."""

    def test_it_finds_what_is_packed_or_spelled_in_another_way(self):
        address = "02:00:5e:0a:53:01"
        for word, content in ((RULE, RULE.encode()), (RULE, RULE.upper().encode("utf-16-le")),
                              (RULE, b"??" + base64.b64encode(b"x" + RULE.encode() + b"yz")),
                              (RULE, b"QLS" + zlib.compress(b"a" + RULE.encode())),
                              (RULE, b"QLS" + zlib.compress(RULE.encode())[2:]),
                              (address, b"02-00-5E-0A-53-01"), (address, b"0200.5e0a.5301"),
                              (address, bytes.fromhex("02005e0a5301")), (address, b"2:0:5e:a:53:1"),
                              (bytes(range(32)), b"..." + bytes(range(32)).hex().encode())):
            self.assertEqual(cleartext.find([word], {"file": b"before" + content + b"after"}), [(word, "file")])
        self.assertEqual(cleartext.find([RULE], {RULE + ".change": b""}), [(RULE, RULE + ".change")])
        self.assertEqual(cleartext.find([RULE, address], {"file": os.urandom(2000)}), [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
