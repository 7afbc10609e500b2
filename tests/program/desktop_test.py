"""Tests of the desktop program as a process: one for a profile, and what others say beside it."""

import os
import pathlib
import signal
import subprocess
import tempfile
import time
import unittest

PROGRAM = pathlib.Path(os.environ["TEMPODIAL_EXECUTABLE"])
DESKTOP = PROGRAM.with_name("tempodial-desktop")


@unittest.skipUnless(DESKTOP.exists(), "it isn't built")
class DesktopTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.profile = self.folder / "profile"
        self.environment = dict(os.environ, HOME=str(self.folder), XDG_CONFIG_HOME=str(self.folder / "config"),
                                XDG_RUNTIME_DIR=str(self.folder), QT_QPA_PLATFORM="offscreen", TZ="UTC")
        self.environment.pop("TEMPODIAL_PROFILE", None)

    def Run(self, program, *arguments):
        return subprocess.run([program, "--profile", self.profile, *arguments], env=self.environment, text=True,
                              capture_output=True, timeout=60, check=False)

    def Sockets(self):
        return {path: path.stat().st_mtime_ns for path in self.folder.glob("tempodial-*.sock")}

    def StartDesktop(self):
        """A desktop program that listens."""
        left = self.Sockets()
        process = subprocess.Popen([DESKTOP, "--profile", self.profile], env=self.environment,
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        end = time.monotonic() + 30
        while not self.Sockets() or self.Sockets() == left:
            self.assertIsNone(process.poll())
            self.assertLess(time.monotonic(), end)
            time.sleep(0.05)
        return process

    def test_SecondStart_ReachesTheFirstAndEnds(self):
        first = self.StartDesktop()
        second = self.Run(DESKTOP)
        self.assertEqual(second.returncode, 0, second.stderr)
        self.assertIsNone(first.poll())

    def test_FirstStart_AfterOneThatWasKilled_IsTheFirst(self):
        killed = self.StartDesktop()
        killed.send_signal(signal.SIGKILL)
        killed.wait()
        self.assertTrue(self.Sockets())
        first = self.StartDesktop()
        self.assertEqual(self.Run(DESKTOP).returncode, 0)
        self.assertIsNone(first.poll())

    def test_CommandsThatWrite_BesideIt_SayWhoHoldsTheProfile(self):
        desktop = self.StartDesktop()
        sync = self.Run(PROGRAM, "--wait", "0", "sync")
        self.assertEqual(sync.returncode, 3)
        self.assertIn(f"the profile {self.profile} is in use by tempodial-desktop (process {desktop.pid}): the desktop "
                      "program has it open: it imports by itself; close it, or wait with --wait SECONDS", sync.stderr)

    def test_CommandsThatRead_BesideIt_AreAnswered(self):
        self.StartDesktop()
        self.assertEqual(self.Run(PROGRAM, "list", "today").returncode, 0)


if __name__ == "__main__":
    unittest.main()
