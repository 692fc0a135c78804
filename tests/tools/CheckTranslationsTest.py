# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/check-translations finds what is missing in a table of texts, and what does not fit its text."""
import os
import subprocess
import unittest
from xml.sax.saxutils import escape

from SourceCheck import ROOT, SourceCheckTest

TABLE = "translations/quillon_de.ts"


class CheckTranslationsTest(SourceCheckTest):
    check = "check-translations"

    def setUp(self):
        super().setUp()
        # A folder that is fine, to which each test adds something.
        self.texts = {"Address": "Adresse"}
        self.source('localized("Address");')
        self.table()

    def source(self, *lines, file="src/ui/Window.cpp"):
        self.write(file, "namespace quillon {", "void Window::show()", "{", *lines, "}", "}")

    def table(self, **unfinished):
        messages = [self.message(text, translation, text in unfinished) for text, translation in self.texts.items()]
        self.write(TABLE, '<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>",
                   '<TS version="2.1" language="de" sourcelanguage="en">', "<context><name>Quillon</name>",
                   *messages, "</context></TS>")

    @staticmethod
    def message(text, translation, is_unfinished):
        """A list is what is said for each number."""
        is_counted = isinstance(translation, list)
        forms = "".join(f"<numerusform>{escape(form)}</numerusform>" for form in translation) if is_counted else ""
        return (f"<message{' numerus=%s' % repr('yes') if is_counted else ''}><source>{escape(text)}</source>"
                f"<translation{' type=%s' % repr('unfinished') if is_unfinished else ''}>"
                f"{forms or escape(translation)}</translation></message>")

    def translate(self, text, translation):
        """Both in the source and in the table."""
        self.texts[text] = translation
        quoted = text.replace("\n", "\\n").replace('"', '\\"')
        self.source('localized("Address");', f'localized("{quoted}");')
        self.table()

    def fix(self):
        return subprocess.run([os.path.join(ROOT, "tools", self.check), "--fix", self.folder.name],
                              capture_output=True, text=True, stdin=subprocess.DEVNULL)

    def test_says_nothing_of_a_table_that_fits(self):
        self.assertEqual(self.problems(), [])
        self.translate('%@\n\nThe "%d" & … · <b>', "%@\n\nDas „%d“ & … · <b>")
        self.assertEqual(self.problems(), [])

    def test_finds_a_text_without_a_translation_wherever_it_stands(self):
        self.source('localized("Address");', 'filled(localized("%@ is "', '                 "new"), {localized(',
                    '    "Name")});', 'const char *c = QT_TRANSLATE_NOOP("Quillon", "Marked");',
                    'isInAnyLanguage(text(a, b), "Random");', "localized(label);", '// localized("Comment")')
        self.assertEqual(self.problems(), [
            "src/ui/Window.cpp:5: not in translations/quillon_de.ts: '%@ is new'",
            "src/ui/Window.cpp:6: not in translations/quillon_de.ts: 'Name'",
            "src/ui/Window.cpp:8: not in translations/quillon_de.ts: 'Marked'",
            "src/ui/Window.cpp:9: not in translations/quillon_de.ts: 'Random'"])

    def test_finds_a_text_that_is_hidden_in_an_expression(self):
        self.source('localized("Address");', "localized(", '    isNew ? "New" : name(")", "("));')
        self.assertEqual(self.problems(), [
            "src/ui/Window.cpp:5: a text within an expression, which lupdate does not see: "
            "localized(isNew ? \"New\" : name(\")\", \"(\"))"])

    def test_finds_what_nobody_shows_any_more(self):
        self.texts["Gone"] = "Weg"
        self.table()
        self.assertEqual(self.problems(), [f"{TABLE}: unused: 'Gone'"])

    def test_finds_what_is_not_translated_yet(self):
        self.table(Address=True)
        self.assertEqual(self.problems(), [f"{TABLE}: unfinished: 'Address'"])
        self.texts["Address"] = ""
        self.table()
        self.assertEqual(self.problems(), [f"{TABLE}: unfinished: 'Address'"])

    def test_finds_translations_that_do_not_fit(self):
        for text, translation, problem in (
                ("%@ of %d", "%d von %@", "other placeholders"), ("%@ is", "%@ ist %@", "other placeholders"),
                ("Current Address · %@", "Aktuelle Adresse: %@", "other separators “ · ”"),
                ("Random", "Zufall · frei", "other separators “ · ”"),
                ("a\nb", "a b", "other line breaks"),
                ("&Apply", "Anwenden", "other mnemonics"), ("Apply", "&Anwenden", "other mnemonics"),
                ("Loading...", "Lädt…", "other ellipses at the end"), ("New…", "Neu", "other ellipses at the end"),
                ("    %@", "%@", "other blanks at the beginning"), ("to ", "zu", "other blanks at the end"),
                ("the “name”", 'der "Name"', "straight quotation marks")):
            with self.subTest(text):
                self.texts = {"Address": "Adresse"}
                self.translate(text, translation)
                self.assertEqual(self.problems(), [f"{TABLE}: {problem}: {text!r} → {translation!r}"])

    def count(self, *forms, text="%Ln rules"):
        """The forms of a text that a number changes, in the source and in the table."""
        self.source('localized("Address");', f'filled(localized("one", "{text}", rules.size()), list);')
        self.texts[text] = list(forms)
        self.table()

    def test_says_nothing_of_forms_that_fit(self):
        self.count("%Ln Regel", "%Ln Regeln")
        self.assertEqual(self.problems(), [])
        self.count("Regel", "%Ln Regeln")
        self.assertEqual(self.problems(), [])
        self.count("%@: eine von %@", "%@: %n von %@", text="%@: %n of %@")
        self.assertEqual(self.problems()[-1:], [f"{TABLE}: unused: '%Ln rules'"])

    def test_finds_a_text_without_forms_wherever_it_stands(self):
        self.source('localized("Address");', 'localized("one"', '    " of %@",', '    "%n "', '    "of %@", count(a, b));',
                    'const char *c = QT_TRANSLATE_N_NOOP("Quillon", "%n marked");', 'localized("Name");')
        self.assertEqual(self.problems(), [
            "src/ui/Window.cpp:5: not in translations/quillon_de.ts: '%n of %@'",
            "src/ui/Window.cpp:9: not in translations/quillon_de.ts: '%n marked'",
            "src/ui/Window.cpp:10: not in translations/quillon_de.ts: 'Name'"])

    def test_finds_a_form_that_is_hidden_in_an_expression(self):
        self.source('localized("Address");', 'localized("one", isNew ? "new" : "old", 3);')
        self.assertEqual(self.problems(), [
            "src/ui/Window.cpp:5: a text within an expression, which lupdate does not see: "
            "localized(\"one\", isNew ? \"new\" : \"old\", 3)"])

    def test_finds_forms_that_do_not_fit(self):
        self.count("%Ln Regel", "")
        self.assertEqual(self.problems(), [f"{TABLE}: unfinished: '%Ln rules'"])
        for form, problem in (("%n Regeln", "other placeholders"), ("%Ln Regeln %@", "other placeholders"),
                              ("Regeln…", "other ellipses at the end"), ('%Ln "Regeln"', "straight quotation marks")):
            with self.subTest(form):
                self.count("Regel", form)
                self.assertEqual(self.problems(), [f"{TABLE}: {problem}: '%Ln rules' → {form!r}"])

    def test_finds_another_number_of_forms(self):
        reason = "other plural forms than the text and the language have"
        for forms in (["Regel"], ["Regel", "%Ln Regeln", "%Ln Regeln"]):
            with self.subTest(forms):
                self.count(*forms)
                self.assertEqual(self.problems(), [f"{TABLE}: {reason}: '%Ln rules'"])
        self.texts["%Ln rules"] = "%Ln Regeln"
        self.table()
        self.assertEqual(self.problems(), [f"{TABLE}: {reason}: '%Ln rules'"])

    def test_knows_how_many_forms_a_language_has(self):
        forms = {"ja": 1, "zh_CN": 1, "de": 2, "fr": 2, "es": 2, "pt_BR": 2, "ar": 6}
        os.remove(os.path.join(self.folder.name, TABLE))
        for language, number in forms.items():
            self.count(*["%Ln x"] * number)
            with open(os.path.join(self.folder.name, TABLE)) as table:
                content = table.read().replace('language="de"', f'language="{language}"')
            os.remove(os.path.join(self.folder.name, TABLE))
            self.write(f"translations/quillon_{language}.ts", content)
        self.assertEqual(self.problems(), [])

    def test_finds_what_is_not_as_the_language_wants_it(self):
        def write(language, text, translation):
            self.texts = {"Address": "x", text: translation}
            self.source('localized("Address");', f'localized("{text}");')
            self.table()
            with open(os.path.join(self.folder.name, TABLE), encoding="utf-8") as table:
                content = table.read().replace('language="de"', f'language="{language}"')
            self.write(TABLE, content)

        mnemonic = "a mnemonic that is not “(&X)” at the end"
        bare = "a placeholder that is not between U+2068 and U+2069"
        begins = "begins left to right: put U+200F before it"
        for language, text, translation, problem in (
                ("ja", "&Apply", "適用(&A)", None), ("zh_CN", "&Open…", "打开(&O)…", None),
                ("ja", "&Apply", "&適用", mnemonic), ("zh_CN", "&Apply", "应(&A)用", mnemonic),
                ("de", "&Apply", "&Anwenden", None), ("ar", "&Apply", "&تطبيق", None),
                ("ar", "Rule %@", "قاعدة \u2068%@\u2069", None), ("de", "Rule %@", "Regel %@", None),
                ("ar", "Rule %@", "قاعدة %@", bare), ("ar", "Rule %@", "قاعدة \u2068%@", bare),
                ("ar", "%@Current · %@", "%@الحالي · \u2068%@\u2069", None),
                ("ar", "%@Current · %@", "%@الحالي · %@", bare),
                ("ar", "%Ln rules", "%Ln قواعد", None),
                ("ar", "Quit Quillon", "Quillon: إنهاء", begins), ("ar", "Quit Quillon", "\u200fQuillon: إنهاء", None),
                ("ar", "%@ is new", "\u2068%@\u2069 جديد", None), ("ar", "MAC", "MAC", None),
                ("ar", "%@: %@", "\u2068%@\u2069: \u2068%@\u2069", begins),
                ("ar", "%@: %@", "\u200f\u2068%@\u2069: \u2068%@\u2069", None)):
            with self.subTest(language + " " + translation):
                write(language, text, translation)
                expected = [f"{TABLE}: {problem}: {text!r} → {translation!r}"] if problem else []
                self.assertEqual(self.problems(), expected)

    def test_looks_at_every_table(self):
        with open(os.path.join(self.folder.name, TABLE)) as table:
            self.write("translations/quillon_fr.ts", table.read().replace("Address", "Adress"))
        self.assertEqual(self.problems(), [
            "src/ui/Window.cpp:4: not in translations/quillon_fr.ts: 'Address'",
            "translations/quillon_fr.ts: unused: 'Adress'"])

    def test_refuses_a_folder_without_tables(self):
        os.remove(os.path.join(self.folder.name, TABLE))
        self.assertEqual(len(self.problems()), 1)

    def test_puts_in_what_is_missing_and_takes_out_what_is_unused(self):
        self.texts["Gone"] = "Weg"
        self.table()
        self.source('localized("Address");', 'localized("New");')
        result = self.fix()
        self.assertEqual((result.returncode, result.stdout, result.stderr), (1, f"{TABLE}: unfinished: 'New'\n", ""))
        with open(os.path.join(self.folder.name, TABLE)) as table:
            content = table.read()
        self.assertIn("<translation>Adresse</translation>", content)
        self.assertNotIn("Weg", content)
        self.assertEqual(self.problems(), [f"{TABLE}: unfinished: 'New'"])


if __name__ == "__main__":
    unittest.main()
