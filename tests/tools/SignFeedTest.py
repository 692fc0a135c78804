# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/sign-feed: keys are made, lists looked through, signed and checked."""
import os
import stat
import subprocess
import tempfile
import unittest

ROOT = os.path.realpath(os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", ".."))
DATA = os.path.join(ROOT, "tests", "data", "updates")
TEST_KEY = os.path.join(DATA, "test-key.pem")


class SignFeedTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        with open(os.path.join(DATA, "feed.xml"), "rb") as file:
            self.feed = file.read()

    def path(self, name):
        return os.path.join(self.folder, name)

    def write(self, name, content):
        with open(self.path(name), "wb") as file:
            file.write(content)
        return self.path(name)

    def run_tool(self, *words):
        return subprocess.run([os.path.join(ROOT, "tools", "sign-feed"), *words], stdin=subprocess.DEVNULL,
                              capture_output=True, text=True)

    def expect_refused(self, feed, why):
        done = self.run_tool("sign", TEST_KEY, self.write("feed", feed), self.path("signed"))
        self.assertEqual(done.returncode, 1)
        self.assertIn(why, done.stderr)
        self.assertFalse(os.path.exists(self.path("signed")))

    def test_a_new_key_is_its_owners_and_signs(self):
        made = self.run_tool("new-key", self.path("key"))
        self.assertRegex(made.stdout, r"\A[A-Za-z0-9+/]{43}=\n\Z")
        self.assertEqual(stat.S_IMODE(os.stat(self.path("key")).st_mode), 0o600)
        self.assertEqual(self.run_tool("public", self.path("key")).stdout, made.stdout)
        signed = self.path("signed")
        feed = self.write("feed", self.feed)
        self.assertEqual(self.run_tool("sign", self.path("key"), feed, signed).returncode, 0)
        self.assertEqual(self.run_tool("check", made.stdout.strip(), signed).returncode, 0)
        other = self.run_tool("public", TEST_KEY).stdout.strip()
        self.assertEqual(self.run_tool("check", other, signed).returncode, 1)

    def test_a_key_is_never_written_over(self):
        self.assertEqual(self.run_tool("new-key", self.write("key", b"precious")).returncode, 1)
        with open(self.path("key"), "rb") as file:
            self.assertEqual(file.read(), b"precious")

    def test_the_same_list_gives_the_same_file(self):
        signed = self.path("signed")
        self.run_tool("sign", TEST_KEY, os.path.join(DATA, "feed.xml"), signed)
        with open(signed, "rb") as file, open(os.path.join(DATA, "feed-signed.xml"), "rb") as expected:
            self.assertEqual(file.read(), expected.read())

    def test_a_list_that_the_program_would_refuse_is_not_signed(self):
        feed = self.feed
        self.expect_refused(feed[:-1], "line feed")
        self.expect_refused(b"{}\n", "not XML")
        self.expect_refused(feed.replace(b"<rss", b"<!DOCTYPE rss><rss"), "document type")
        self.expect_refused(feed.replace(b"Quillon4<", b"Other<"), "application")
        self.expect_refused(feed.replace(b">4.1<", b">4.1-beta<"), "4.1-beta")
        self.expect_refused(feed.replace(b">4.1<", b">04.1<"), "04.1")
        self.expect_refused(feed.replace(b"https://trusted.test/quillon-4.1", b"http://trusted.test/"), "http:")
        self.expect_refused(feed.replace(b"2025-06-01T", b"2025-06-41T"), "moment")
        self.expect_refused(feed.replace(b"2025-06-01T", b"2999-06-01T"), "future")
        self.expect_refused(feed.replace(b"</channel>", b"</channel><channel/>"), "one channel")
        self.expect_refused(feed.replace(b"faster.", b"x" * 70000), "65536")

    def test_a_list_is_signed_once(self):
        with open(os.path.join(DATA, "feed-signed.xml"), "rb") as file:
            self.expect_refused(file.read(), "already")

    def test_what_was_changed_since_is_not_in_order(self):
        with open(os.path.join(DATA, "feed-signed.xml"), "rb") as file:
            signed = file.read()
        public = self.run_tool("public", TEST_KEY).stdout.strip()
        for changed in (signed.replace(b"4.0.1", b"4.0.2"), signed + b"\n", signed[:-1], self.feed, b""):
            done = self.run_tool("check", public, self.write("changed", changed))
            self.assertEqual(done.returncode, 1)
            self.assertTrue(done.stderr.startswith("sign-feed: "))

    def test_other_words_show_how_it_is_used(self):
        self.assertEqual(self.run_tool().returncode, 2)
        self.assertEqual(self.run_tool("sign").returncode, 2)
        self.assertIn("usage:", self.run_tool("--help").stdout)


if __name__ == "__main__":
    unittest.main(verbosity=2)
