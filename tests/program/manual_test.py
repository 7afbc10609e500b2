"""Tests of the manual pages, as they are made of what the program tells of itself."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

import shells

ROOT = pathlib.Path(__file__).resolve().parents[2]


class ManualTest(shells.Shells):
    def setUp(self):
        super().setUp()
        self.commands = json.loads(self.Program("completion", "outline"))
        outline = self.folder / "outline.json"
        outline.write_text(json.dumps(self.commands), encoding="utf-8")
        self.Run(sys.executable, "-B", ROOT / "tools/make-man", outline, self.folder / "man")
        self.pages = {page.name: page for page in self.folder.glob("man/*/*")}

    def Page(self, command):
        text = self.pages["-".join(["tempodial", *command["name"].split()]) + ".1"].read_text(encoding="utf-8")
        return text.replace("\\-", "-").replace("\\e", "\\").replace("\\(ti", "~")

    def test_Pages_AreThereForEachCommandAndEachFile(self):
        expected = {"-".join(["tempodial", *command["name"].split()]) + ".1" for command in self.commands}
        expected |= {page.name for page in (ROOT / "docs/man").glob("*.[15]")}
        self.assertEqual(set(self.pages), expected)

    def test_Page_OfACommand_HasItsArguments(self):
        for command in self.commands:
            page = self.Page(command)
            for argument in command["arguments"]:
                if argument["names"][-1] != "--help":
                    self.assertIn(argument["names"][-1], page, command["name"])
                    self.assertIn(" ".join(argument["help"].split()[:3]), page.replace("\n", " "), command["name"])

    def test_Page_OfTheDesktop_HasItsOptions(self):
        program = shells.PROGRAM.with_name("tempodial-desktop")
        if not program.exists():
            self.skipTest("it isn't built")
        told = re.findall(r"^  (?:-h,)?--(\S+)", self.Run(program, "--help"), re.MULTILINE)
        page = self.pages["tempodial-desktop.1"].read_text(encoding="utf-8")
        self.assertEqual(sorted(told), sorted(set(re.findall(r"^\.It .*Fl -(\S+)", page, re.MULTILINE))))

    def test_Examples_StandAsTheyAre(self):
        for command in self.commands:
            page = self.Page(command)
            for line in command["details"].split("\n"):
                if line.startswith("  tempodial "):
                    self.assertIn("\n" + line[2:] + "\n", page, command["name"])

    def test_References_NamePagesThatAreThere(self):
        for name, page in self.pages.items():
            text = page.read_text(encoding="utf-8").replace("\\-", "-")
            found = re.findall(r"^\.Xr (tempodial\S*) (\d)", text, re.MULTILINE)
            found += re.findall(r"^\.BR (tempodial\S*) \((\d)\)", text, re.MULTILINE)
            self.assertTrue(found, name)
            for other, section in found:
                self.assertIn(f"{other}.{section}", self.pages, name)

    def test_Pages_AreSound(self):
        if not shutil.which("mandoc") and "TEMPODIAL_ALL_TOOLS" not in os.environ:
            self.skipTest("mandoc isn't there")
        lint = subprocess.run(["mandoc", "-Tlint", *self.pages.values()], capture_output=True, text=True, check=False)
        # It looks for other pages where they would be installed.
        faults = [line for line in lint.stdout.splitlines() if "referenced manual not found" not in line]
        self.assertEqual((faults, lint.stderr), ([], ""))


if __name__ == "__main__":
    unittest.main()
