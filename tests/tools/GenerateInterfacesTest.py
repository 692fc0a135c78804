# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""contract/generate-interfaces refuses a description of which the two sides could make different things."""
import os
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
ERROR = "com.orvandel.Quillon4.Error."


def method(name, *contents):
    return f'<method name="{name}">{"".join(contents)}</method>'


def error(name, code):
    return f'<annotation name="{name}" value="{code}"/>'


class GenerateInterfacesTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.header = os.path.join(self.folder.name, "Interfaces.h")

    def generate(self, *methods):
        """The header, or what was said against the description."""
        path = os.path.join(self.folder.name, "thing.xml")
        with open(path, "w") as file:
            file.write(f'<node name="/thing"><interface name="com.Thing">{"".join(methods)}</interface></node>')
        result = subprocess.run([os.path.join(ROOT, "contract/generate-interfaces"), self.header, f"thing={path}"],
                                text=True, capture_output=True, stdin=subprocess.DEVNULL)
        self.assertEqual(result.stdout, "")
        self.assertEqual(os.path.exists(self.header), result.returncode == 0)
        if result.returncode != 0:
            self.assertEqual(len(result.stderr.splitlines()), 1, result.stderr)
            return result.stderr
        with open(self.header) as file:
            return file.read()

    def test_writes_what_goes_in_and_what_comes_out(self):
        text = self.generate(method("DoIt", '<arg name="out" type="ay" direction="out"/>',
                                    '<arg name="one" type="s" direction="in"/>',
                                    '<arg name="two" type="b" direction="in"/>'))
        self.assertIn("namespace thing {", text)
        self.assertIn('inline constexpr char path[] = "/thing";', text)
        self.assertIn('inline constexpr char interface[] = "com.Thing";', text)
        self.assertIn('Method doIt{"DoIt", "sb", {"one", "two"}, "ay", {"out"}};', text)

    def test_writes_an_error_of_several_methods_once_in_the_order_of_the_codes(self):
        text = self.generate(method("One", error(ERROR + "Late", 2), error(ERROR + "Early", 1)),
                             method("Two", error(ERROR + "Late", 2)))
        early = f'inline constexpr ErrorName early{{"{ERROR}Early", 1}};'
        late = f'inline constexpr ErrorName late{{"{ERROR}Late", 2}};'
        self.assertIn(f"{early}\n{late}\n}}", text)
        self.assertIn("error::early,\n    error::late,\n}", text)

    def test_refuses_an_error_with_two_codes(self):
        text = self.generate(method("One", error(ERROR + "Late", 2)), method("Two", error(ERROR + "Late", 3)))
        self.assertIn("Late has the codes 2 and 3", text)

    def test_refuses_a_code_of_two_errors(self):
        text = self.generate(method("One", error(ERROR + "Late", 2), error(ERROR + "Early", 2)))
        self.assertIn("two errors have the same code", text)

    def test_refuses_an_error_that_is_not_ours(self):
        self.assertIn("no error of ours", self.generate(method("One", error("com.example.Error.Late", 2))))

    def test_refuses_an_error_without_a_number(self):
        self.assertIn("ValueError", self.generate(method("One", error(ERROR + "Late", ""))))

    def test_refuses_an_argument_without_direction_or_type(self):
        self.assertIn("direction", self.generate(method("One", '<arg name="one" type="s"/>')))
        self.assertIn("type", self.generate(method("One", '<arg name="one" direction="in"/>')))

    def test_refuses_what_is_no_xml(self):
        self.assertIn("ParseError", self.generate("<method"))


if __name__ == "__main__":
    unittest.main()
