"""Tests of tools/lint-files."""

import os
import subprocess
import sys
import tempfile
import unittest

import loading

lint = loading.Load("lint-files")


def Findings(file, text, others=()):
    return lint.Check(file, text, others.__contains__)


class CheckTest(unittest.TestCase):
    def Refuses(self, file, text, words):
        found = Findings(file, text)
        self.assertEqual(len(found), 1, found)
        self.assertIn(words, found[0])

    def test_GoodFile_HasNoFindings(self):
        self.assertEqual(Findings("src/base/Date.h", "#pragma once\n\nint Day();\n"), [])

    def test_LastLine_HasOneEnd(self):
        self.Refuses("README.md", "word", "no end")
        self.Refuses("README.md", "word\n\n", "empty lines at the end")

    def test_TabsAndBlanks_AreRefused(self):
        self.Refuses("src/base/Date.cpp", "int a;\tint b;\n", ":1: a tab")
        self.assertEqual(Findings("debian/rules", "%:\n\tdh $@\n"), [])
        self.Refuses("src/base/Date.cpp", "int a;\nint b; \n", ":2: blanks")
        self.Refuses("src/base/Date.cpp", "int a;\r\n", "carriage return")

    def test_UndoneWork_IsRefused(self):
        self.Refuses("src/base/Date.cpp", "// TO" + "DO: more\n", "left undone")
        self.Refuses("check", "# FIX" + "ME\n", "left undone")
        self.assertEqual(Findings("src/base/Date.cpp", "int mastodons;\n"), [])

    def test_LongSource_IsRefused(self):
        self.assertEqual(Findings("src/base/Date.cpp", "int a;\n" * 500), [])
        self.Refuses("src/base/Date.cpp", "int a;\n" * 501, "501 lines")
        self.Refuses("tools/lint-files", "pass\n" * 501, "501 lines")
        self.assertEqual(Findings("ARCHITECTURE.md", "word\n" * 501), [])

    def test_Header_IsReadOnce(self):
        self.Refuses("src/base/Date.h", "int Day();\n", "#pragma once")

    def test_Tests_AreNamedTest(self):
        self.assertEqual(Findings("tests/base/DateTest.cpp", "int a;\n"), [])
        self.Refuses("tests/base/Dates.cpp", "int a;\n", "...Test.cpp")
        self.assertEqual(Findings("tests/packaging/main.cpp", "int main();\n"), [])
        self.assertEqual(Findings("tests/base/Dates.cpp", "int a;\n", {"tests/base/Dates.h"}), [])
        self.assertEqual(Findings("tests/support/Dates.cpp", "int a;\n"), [])


class ChoiceTest(unittest.TestCase):
    def test_Texts_AreOurs(self):
        for file in ("src/base/Date.h", "check", ".ci/run", "tools/lint-files", "CMakeLists.txt", ".gitignore"):
            self.assertTrue(lint.IsText(file), file)
        for file in ("resources/report.txt", "tests/scenarios/data/day.txt", "resources/logo.bmp"):
            self.assertFalse(lint.IsText(file), file)


class ProgramTest(unittest.TestCase):
    def Run(self, root):
        program = os.path.join(loading.TOOLS, "lint-files")
        return subprocess.run([sys.executable, "-B", program, root], capture_output=True, text=True, check=False)

    def test_Status_TellsWhetherThereAreFindings(self):
        with tempfile.TemporaryDirectory() as root:
            loading.Write(root, "src/base/Date.cpp", "int a;\n")
            self.assertEqual(self.Run(root).returncode, 0)
            loading.Write(root, "src/base/Number.cpp", "int a; \n")
            bad = self.Run(root)
            self.assertEqual(bad.returncode, 1)
            self.assertIn("src/base/Number.cpp:1: ", bad.stdout)

    def test_TextThatIsNotUtf8_IsRefused(self):
        with tempfile.TemporaryDirectory() as root:
            with open(os.path.join(root, "README.md"), "wb") as stream:
                stream.write(b"\xff\n")
            bad = self.Run(root)
            self.assertEqual((bad.returncode, bad.stdout.splitlines()[0]), (1, "README.md:1: not UTF-8"))


if __name__ == "__main__":
    unittest.main()
