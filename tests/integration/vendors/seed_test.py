# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The vendor database that the program is shipped with, against the registry as Python reads it."""
import csv
import filecmp
import os
import sqlite3
import subprocess
import tempfile
import unittest

BUILD = os.environ["QUILLON_BUILD"]
REGISTRY = os.environ["QUILLON_REGISTRY_CSV"]
SEED = os.path.join(BUILD, "data", "oui.db")
MAKE_SEED = os.path.join(BUILD, "src", "vendors", "quillon-make-seed")
COLUMNS = ("Assignment", "Organization Address", "Organization Name", "Registry")


class Seed(unittest.TestCase):
    def setUp(self):
        with open(REGISTRY, encoding="utf-8", newline="") as file:
            self.records = [tuple(record[column] for column in COLUMNS) for record in csv.DictReader(file)]
        self.database = sqlite3.connect(f"file:{SEED}?mode=ro", uri=True)
        self.addCleanup(self.database.close)

    def test_holds_every_record_in_the_order_of_the_registry(self):
        rows = self.database.execute(
            "SELECT Assignment, Organization_Address, Organization_Name, Registry FROM vendor ORDER BY id")
        self.assertEqual(rows.fetchall(), self.records)
        ids = self.database.execute("SELECT min(id), max(id), count(*) FROM vendor").fetchone()
        self.assertEqual(ids, (1, len(self.records), len(self.records)))

    def test_is_tried_by_a_registry_with_every_oddity(self):
        """Otherwise the test above would say little."""
        assignments = [record[0] for record in self.records]
        self.assertGreater(len(assignments), 30000)
        self.assertEqual(assignments.count("080030"), 3)
        texts = [text for record in self.records for text in record]
        for oddity in ('"', ",", "\n"):
            self.assertTrue(any(oddity in text for text in texts), repr(oddity))
        self.assertTrue(any(not text.isascii() for text in texts))
        self.assertTrue(any(text != text.strip() for text in texts))
        self.assertIn("", texts)

    def test_has_exactly_the_one_table(self):
        found = self.database.execute("SELECT type, name, sql FROM sqlite_master WHERE name NOT LIKE 'sqlite_%'")
        self.assertEqual(found.fetchall(), [(
            "table", "vendor",
            "CREATE TABLE vendor (id integer primary key autoincrement not null, Assignment text, "
            "Organization_Address text, Organization_Name text, Registry text)")])
        self.assertEqual(self.database.execute("PRAGMA integrity_check").fetchone(), ("ok",))

    def test_is_the_same_bytes_whenever_it_is_made(self):
        with tempfile.TemporaryDirectory() as folder:
            again = os.path.join(folder, "again.db")
            subprocess.run([MAKE_SEED, REGISTRY, again], check=True)
            self.assertTrue(filecmp.cmp(SEED, again, shallow=False))
            self.assertEqual(os.listdir(folder), ["again.db"])

    def test_is_not_made_of_what_is_no_registry(self):
        with tempfile.TemporaryDirectory() as folder:
            wrong = os.path.join(folder, "wrong.csv")
            made = os.path.join(folder, "made.db")
            for content in ("", "Assignment\n", 'Assignment\n1\n"2'):
                with open(wrong, "w", encoding="utf-8") as file:
                    file.write(content)
                for source in (wrong, os.path.join(folder, "nowhere.csv")):
                    result = subprocess.run([MAKE_SEED, source, made], stderr=subprocess.PIPE, check=False)
                    self.assertEqual(result.returncode, 1)
                    self.assertIn(b"no vendor database from", result.stderr)
                    self.assertFalse(os.path.exists(made))


if __name__ == "__main__":
    unittest.main()
