"""Tests of tools/lint-exports."""

import os
import subprocess
import sys
import tempfile
import unittest

import loading

lint = loading.Load("lint-exports")

WANTED = {"DllCanUnloadNow", "DllGetClassObject"}


def Dump(exports, libraries):
    """What objdump prints, as far as the lint reads it."""
    imports = "".join(f"\tDLL Name: {library}\n\tvma:  Hint/Ord Member-Name Bound-To\n\n" for library in libraries)
    names = "".join(f"\t[{number:4}] {name}\n" for number, name in enumerate(exports))
    return f"{imports}\n[Ordinal/Name Pointer] Table\n{names}\nThe Function Table\n"


def Findings(exports, libraries=("KERNEL32.dll",)):
    return list(lint.Findings(Dump(exports, libraries), WANTED))


class FindingsTest(unittest.TestCase):
    def test_WhatTheDefinitionNames_IsRight(self):
        self.assertEqual(Findings(sorted(WANTED), ("KERNEL32.dll", "OLEAUT32.dll", "msvcrt.dll")), [])

    def test_ExportThatIsNotNamed_IsFound(self):
        self.assertEqual(len(Findings([*sorted(WANTED), "_ZSt4cout"])), 1)
        self.assertIn("_ZSt4cout", Findings([*sorted(WANTED), "_ZSt4cout"])[0])

    def test_ExportWithDecoration_IsFoundTwice(self):
        found = Findings(["DllCanUnloadNow@0", "DllGetClassObject"])
        self.assertEqual([finding.split(",")[0] for finding in found],
                         ["exports DllCanUnloadNow@0", "doesn't export DllCanUnloadNow"])

    def test_ModuleWithoutExports_LacksAll(self):
        self.assertEqual(len(list(lint.Findings("\tDLL Name: USER32.dll\n", WANTED))), 2)

    def test_LibraryThatHasToBeInstalled_IsFound(self):
        found = Findings(sorted(WANTED), ("libstdc++-6.dll", "USER32.dll"))
        self.assertEqual(len(found), 1)
        self.assertIn("libstdc++-6.dll", found[0])


class DefinitionTest(unittest.TestCase):
    def test_Names_AreTheFourOfAnAddIn(self):
        definition = lint.lints.Read(lint.lints.Root(), lint.DEFINITION)
        self.assertEqual(lint.Wanted(definition),
                         {"DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"})


class ProgramTest(unittest.TestCase):
    def Run(self, *arguments):
        program = os.path.join(lint.lints.Root(), "tools", "lint-exports")
        return subprocess.run([sys.executable, "-B", program, *arguments], capture_output=True, text=True, check=False)

    def test_NoModule_IsRefused(self):
        self.assertEqual(self.Run().returncode, 2)

    def test_FileThatIsNoModule_IsAFinding(self):
        with tempfile.NamedTemporaryFile(suffix=".dll") as file:
            file.write(b"no module")
            file.flush()
            done = self.Run(file.name)
        self.assertEqual(done.returncode, 1)
        self.assertIn("can't be read as a module", done.stdout)


if __name__ == "__main__":
    unittest.main()
