# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Two computers and one account on a real web server, of which somebody takes files away, damages or restores them, whose
certificate is another one; and people who leave it and come back."""
import os
import shutil
import unittest

from program import wait_until
from signed_in import PASSPHRASE, SignedIn

UNTRUSTED = "The server's certificate is not trusted."
DAMAGED = "A file in the account is damaged, or somebody has changed it. It is left alone."
OTHER_PASSPHRASE = "The account has another passphrase."


class AccountTest(SignedIn, unittest.TestCase):
    def read(self, name):
        with open(self.path(name), "rb") as file:
            return file.read()

    def write(self, name, data):
        with open(self.path(name), "wb") as file:
            file.write(data)

    def test_who_signs_out_keeps_what_is_there_and_comes_back_by_the_passphrase_alone(self):
        before = self.b.records()
        self.b.sign_out()
        wait_until(lambda: self.b.secrets() == {}, lambda: f"the keyring holds {list(self.b.secrets())}")
        self.assertEqual(self.b.records(), before)
        mine, other = self.b.randomize(), self.a.randomize()
        self.b.sign_in_in_vain(self.server.account, PASSPHRASE + "s", OTHER_PASSPHRASE)
        self.assertEqual(self.b.secrets(), {})
        self.b.sign_in(self.server.account, PASSPHRASE, False)
        self.expect_on(self.b, other)
        self.expect_on(self.a, mine)
        self.expect_equal()

    def test_what_was_done_while_it_was_off(self):
        self.a.toggle("Sync settings, rules and history")
        mine, other = self.a.randomize(), self.b.randomize()
        self.assertNotIn(other, self.a.records()["history"])
        self.a.toggle("Sync settings, rules and history")
        self.expect_on(self.a, other)
        self.expect_on(self.b, mine)
        self.expect_equal()

    def test_another_certificate_is_told_of_and_believed_when_the_person_says_so(self):
        for computer in self.computers:
            self.assertEqual(computer.end(), 0)
        self.server.stop()
        self.server.make_certificate(trusted=False)
        self.server.start()
        before = self.in_account()
        for computer in self.computers:
            computer.start()
        record = self.a.randomize()
        for computer in self.computers:
            computer.says(UNTRUSTED)
        self.assertEqual(self.in_account(), before)
        for computer in self.computers:
            computer.sign_in(self.server.account, PASSPHRASE, False)
            computer.says_not(UNTRUSTED)
        self.expect_on(self.b, record)
        self.expect_equal()

    def test_a_key_file_that_was_removed_is_put_back(self):
        key = self.read("key")
        os.unlink(self.path("key"))
        self.restart(self.b)
        wait_until(lambda: "key" in self.in_account() and self.read("key") == key, "it is not put back")
        self.expect_on(self.b, self.a.randomize())
        self.expect_equal()

    def test_a_file_that_was_damaged_is_told_of_and_left_alone(self):
        self.assertEqual(self.b.end(), 0)
        before = set(self.in_account())
        record = self.send_from_a()
        name = next(name for name in set(self.in_account()) - before if name.endswith(".change"))
        # What is told of a file is in the head, after it.
        self.assertEqual(self.a.end(), 0)
        whole = self.read(name)
        self.write(name, whole[:40] + bytes([whole[40] ^ 1]) + whole[41:])
        self.b.start()
        self.b.says(DAMAGED)
        self.assertNotIn(record, self.b.records()["history"])
        self.assertNotEqual(self.read(name), whole)
        self.a.start()
        self.expect_on(self.b, self.a.randomize())
        self.write(name, whole)
        self.restart(self.b)
        self.expect_on(self.b, record)
        self.b.says_not(DAMAGED)
        self.expect_equal()

    def test_a_server_that_was_set_back(self):
        backup = os.path.join(self.server.files, "backup")
        self.assertEqual(self.b.end(), 0)
        shutil.copytree(self.path(), backup, copy_function=shutil.copy2)
        record = self.send_from_a()
        self.assertEqual(self.a.end(), 0)
        for name in os.listdir(self.path()):
            os.unlink(self.path(name))
        shutil.copytree(backup, self.path(), copy_function=shutil.copy2, dirs_exist_ok=True)
        for folder, _, names in os.walk(self.path()):
            for name in (".", *names):
                os.chown(os.path.join(folder, name), *os.stat(self.server.files)[4:6])
        shutil.rmtree(backup)
        # It is believed when it is so twice in succession. A start looks at everything, before it sends anything.
        for _ in range(2):
            self.a.start()
            names = set(self.in_account())
            self.give_to_tell(self.a)
            self.wait_for_new(names)
            self.assertEqual(self.a.end(), 0)
        self.a.start()
        self.b.start()
        self.expect_on(self.b, record)
        self.expect_equal()


if __name__ == "__main__":
    unittest.main(verbosity=2)
