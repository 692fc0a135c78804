# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Two computers and one account on a real web server that does not do what it should, and programs that are killed: what
is wrong is told, and nothing is lost."""
import os
import unittest

from program import wait_until
from signed_in import PASSPHRASE, SignedIn

WRONG_PASSWORD = "The server did not accept this name and password."
READ_ONLY = "This folder cannot be written."
FULL = "There is no space left in this account."


class FaultsTest(SignedIn, unittest.TestCase):
    def test_a_password_that_was_changed(self):
        self.server.set_password("another one")
        record = self.a.randomize()
        self.a.says(WRONG_PASSWORD)
        self.give_to_tell(self.b)
        self.b.says(WRONG_PASSWORD)
        for computer in self.computers:
            computer.sign_in(self.server.account, PASSPHRASE, False)
            computer.says_not(WRONG_PASSWORD)
        self.expect_on(self.b, record)
        self.expect_equal()

    def set_read_only(self, is_read_only):
        if self.server.is_read_only != is_read_only:
            self.server.stop()
            self.server.is_read_only = is_read_only
            self.server.start()

    def test_a_server_that_must_not_be_written(self):
        self.assertEqual(self.b.end(), 0)
        record = self.send_from_a()
        # Who asks while the server is away asks again after half a minute.
        self.assertEqual(self.a.end(), 0)
        self.set_read_only(True)
        self.addCleanup(self.set_read_only, False)
        self.b.start()
        wait_until(lambda: record in self.b.records()["history"], "it was not read")
        mine = self.b.randomize()
        self.b.says(READ_ONLY)
        self.set_read_only(False)
        self.a.start()
        self.restart(self.b)
        self.expect_on(self.a, mine)
        self.b.says_not(READ_ONLY)
        self.expect_equal()

    def test_a_server_that_is_full(self):
        self.assertEqual(self.b.end(), 0)
        before = self.in_account()
        filler = os.path.join(self.server.files, "filler")
        with open(filler, "wb", buffering=0) as file:
            try:
                while True:
                    file.write(b"\0" * 4096)
            except OSError:
                pass
        record = self.a.randomize()
        self.a.says(FULL)
        self.assertLessEqual(before.items(), self.in_account().items(), "nothing that was there is cut")
        os.unlink(filler)
        self.restart(self.a)
        self.b.start()
        self.expect_on(self.b, record)
        self.a.says_not(FULL)
        self.expect_equal()

    def test_a_kill_while_it_sends(self):
        self.network.hold_answers()
        self.addCleanup(self.network.let_through)
        record = self.a.randomize()
        self.network.wait_until_asked(self.a)
        self.a.kill()
        self.network.let_through()
        self.a.start()
        self.expect_on(self.b, record)
        self.expect_equal()

    def test_a_kill_between_the_file_and_the_head(self):
        record = self.send_from_a()
        self.a.kill()
        self.a.start()
        self.expect_on(self.b, record)
        self.expect_equal()

    def test_a_kill_while_it_reads(self):
        self.assertEqual(self.b.end(), 0)
        record = self.send_from_a()
        self.network.hold_answers()
        self.addCleanup(self.network.let_through)
        self.b.start()
        self.network.wait_until_asked(self.b)
        self.b.kill()
        self.network.let_through()
        self.b.start()
        self.expect_on(self.b, record)
        self.expect_equal()

    def test_a_kill_of_what_was_not_sent(self):
        self.assertEqual(self.b.end(), 0)
        self.network.unplug()
        record = self.a.randomize()
        self.a.kill()
        self.network.plug()
        self.a.start()
        self.b.start()
        self.expect_on(self.b, record)
        self.expect_equal()


if __name__ == "__main__":
    unittest.main(verbosity=2)
