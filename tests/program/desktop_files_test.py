"""Tests of what desktops know the desktop program by."""

import os
import pathlib
import re
import shutil
import subprocess
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
FILES = ROOT / "resources/desktop"
ID = "io.github.tempodial.Tempodial"


class DesktopFilesTest(unittest.TestCase):
    def Validate(self, *words):
        if not shutil.which(words[0]) and "TEMPODIAL_ALL_TOOLS" not in os.environ:
            self.skipTest(f"{words[0]} isn't there")
        result = subprocess.run(words, capture_output=True, text=True, check=False)
        self.assertEqual((result.returncode, result.stdout + result.stderr if result.returncode else ""), (0, ""))
        return result.stdout

    def test_Entry_IsValid(self):
        self.assertEqual(self.Validate("desktop-file-validate", FILES / f"{ID}.desktop"), "")

    def test_Description_IsValid(self):
        self.Validate("appstreamcli", "validate", "--no-net", FILES / f"{ID}.metainfo.xml")

    def test_Description_NamesTheNewestVersion(self):
        changelog = (ROOT / "debian/changelog").read_text(encoding="utf-8")
        version = re.match(r"\S+ \((\S+)\)", changelog).group(1)
        described = (FILES / f"{ID}.metainfo.xml").read_text(encoding="utf-8")
        self.assertEqual(re.search(r'<release version="([^"]+)"', described).group(1), version)


if __name__ == "__main__":
    unittest.main()
