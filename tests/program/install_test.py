"""Tests of the program as it is installed, with the tests' own build."""

import os
import pathlib
import unittest

import shells

ROOT = pathlib.Path(__file__).resolve().parents[2]


class InstallTest(shells.Shells):
    def setUp(self):
        super().setUp()
        self.prefix = self.folder / "a prefix"
        self.installed = self.prefix / "bin/tempodial"
        if "TEMPODIAL_BUILD_DIR" in os.environ:
            self.Run("cmake", "--install", os.environ["TEMPODIAL_BUILD_DIR"], "--prefix", self.prefix)
        else:
            # An unpacked package is installed already.
            (self.folder / "a prefix").symlink_to(shells.PROGRAM.parents[1])

    def test_InstalledProgram_DoesADaysWork(self):
        self.Run(self.installed, "--quiet", "demo", "--days", "3")
        self.Run(self.installed, "--quiet", "sync")
        self.assertIn("min", self.Run(self.installed, "list", "-7d"))
        self.Run(self.installed, "report", "-7d", "--out", self.folder / "report.eml")
        self.assertIn("multipart/mixed", (self.folder / "report.eml").read_text(encoding="utf-8"))

    def test_InstalledProgram_TakesItsOwnTemplates(self):
        mark = "<p>a template of its own</p>"
        template = self.prefix / "share/tempodial/ReportHeaderTemplate.html"
        self.assertTrue(template.is_file())
        if "TEMPODIAL_BUILD_DIR" not in os.environ:
            self.skipTest("an unpacked package isn't changed")
        template.write_text(mark, encoding="utf-8")
        self.assertIn(mark, self.Run(self.installed, "report"))

    def test_ManualAndCompletions_AreInstalled(self):
        share = self.prefix / "share"
        names = {path.name.removesuffix(".gz") for path in (share / "man").glob("man?/*")}
        self.assertLessEqual({"tempodial.1", "tempodial-sync.1", "tempodial-profile.5"}, names)
        for shell, pattern in (("bash", "bash-completion/completions/tempodial"), ("zsh", "zsh/*/_tempodial"),
                               ("fish", "fish/vendor_completions.d/tempodial.fish")):
            scripts = list(share.glob(pattern))
            self.assertEqual(len(scripts), 1, shell)
            self.assertEqual(scripts[0].read_text(encoding="utf-8"), self.Run(self.installed, "completion", shell))

    def test_InstalledFiles_DontNameTheBuild(self):
        if "TEMPODIAL_BUILD_DIR" in os.environ:
            self.skipTest("a build for debugging names its sources")
        for path in self.prefix.resolve().rglob("*"):
            if path.is_file():
                self.assertNotIn(os.fsencode(ROOT), path.read_bytes(), path)


if __name__ == "__main__":
    unittest.main()
