"""Tests of the program as it is installed, with the tests' own build."""

import os
import pathlib
import shutil
import subprocess
import unittest

import shells

ROOT = pathlib.Path(__file__).resolve().parents[2]
UNITS = ("tempodial-track.service", "tempodial-sync.service", "tempodial-sync.timer")


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
        self.assertLessEqual({"tempodial.1", "tempodial-sync.1", "tempodial-profile.5"}, names,
                             "build the target manual first")
        for shell, pattern in (("bash", "bash-completion/completions/tempodial"), ("zsh", "zsh/*/_tempodial"),
                               ("fish", "fish/vendor_completions.d/tempodial.fish")):
            scripts = list(share.glob(pattern))
            self.assertEqual(len(scripts), 1, f"{shell}: build the target manual first")
            self.assertEqual(scripts[0].read_text(encoding="utf-8"), self.Run(self.installed, "completion", shell))

    def Shipped(self, unit):
        """A unit for all users. What an unpacked package names isn't installed here, so it is put in its place."""
        text = (self.prefix / "lib/systemd/user" / unit).read_text(encoding="utf-8")
        if "TEMPODIAL_BUILD_DIR" not in os.environ:
            text = text.replace('"/usr/bin/', f'"{self.prefix.resolve()}/bin/')
        return text

    def Written(self):
        """The units that `track install` writes for one user, whose session doesn't answer; their folder."""
        self.environment.update(XDG_RUNTIME_DIR=str(self.folder), XDG_CONFIG_HOME=str(self.folder / "config"),
                                DBUS_SESSION_BUS_ADDRESS=f"unix:path={self.folder}/none")
        subprocess.run([self.installed, "--quiet", "track", "install"], env=self.environment, capture_output=True,
                       check=True, timeout=60)
        return self.folder / "config/systemd/user"

    def test_Units_ForAllUsers_AreThoseForOneUserWithoutAProfile(self):
        written = self.Written()
        profile = f' --profile "{self.folder}/data/tempodial"'
        for unit in UNITS:
            text = (written / unit).read_text(encoding="utf-8")
            self.assertEqual(text.replace(profile, ""), self.Shipped(unit))
            if unit.endswith(".service"):
                self.assertIn(profile, text)
                self.assertIn("\nRestrictAddressFamilies=AF_UNIX\n", text)
        for unit, command in (("tempodial-track.service", "tempodial-track\""),
                              ("tempodial-sync.service", "tempodial\" --quiet sync")):
            self.assertIn(f'\nExecStart="{self.prefix.resolve()}/bin/{command}\n', self.Shipped(unit))

    def test_Units_AreSound(self):
        if not shutil.which("systemd-analyze") and "TEMPODIAL_ALL_TOOLS" not in os.environ:
            self.skipTest("systemd-analyze isn't there")
        written = self.Written()
        shipped = self.folder / "shipped"
        shipped.mkdir()
        for unit in UNITS:
            (shipped / unit).write_text(self.Shipped(unit), encoding="utf-8")
        for folder in (written, shipped):
            # The pages of the manual aren't where it looks for them.
            said = self.Run("systemd-analyze", "verify", "--user", "--man=no", *(folder / unit for unit in UNITS))
            self.assertEqual(said, "", folder)

    def test_InstalledFiles_DontNameTheBuild(self):
        if "TEMPODIAL_BUILD_DIR" in os.environ:
            self.skipTest("a build for debugging names its sources")
        for path in self.prefix.resolve().rglob("*"):
            if path.is_file():
                self.assertNotIn(os.fsencode(ROOT), path.read_bytes(), path)


if __name__ == "__main__":
    unittest.main()
