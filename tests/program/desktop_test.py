"""Tests of the desktop program as a process: one for a profile, and what others say beside it."""

import fcntl
import os
import pathlib
import signal
import subprocess
import tempfile
import time
import unittest

PROGRAM = pathlib.Path(os.environ["TEMPODIAL_EXECUTABLE"])
DESKTOP = PROGRAM.with_name("tempodial-desktop")
# Lets a command run without the administrator's rights.
UNPRIVILEGED = ["setpriv", "--reuid", "65534", "--regid", "65534", "--clear-groups"] if os.getuid() == 0 else []


@unittest.skipUnless(DESKTOP.exists(), "it isn't built")
class DesktopTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.profile = self.folder / "profile"
        # What starts programs.
        self.front = []
        self.environment = dict(os.environ, HOME=str(self.folder), XDG_CONFIG_HOME=str(self.folder / "config"),
                                XDG_RUNTIME_DIR=str(self.folder), QT_QPA_PLATFORM="offscreen", TZ="UTC")
        self.environment.pop("TEMPODIAL_PROFILE", None)

    def Run(self, program, *arguments):
        return subprocess.run([*self.front, program, "--profile", self.profile, *arguments], env=self.environment, text=True,
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

    def Refusal(self, *arguments, status=1):
        """What a start says that ends at once with a status, and leaves the profile as it is."""
        def State():
            return {path: path.read_bytes() for path in self.profile.glob("*.*") if path.suffix in (".db", ".toml")}
        before = State()
        refused = self.Run(DESKTOP, *arguments)
        self.assertEqual(refused.returncode, status, refused.stderr)
        self.assertEqual(State(), before)
        return refused.stderr.removeprefix("tempodial-desktop: ").strip()

    def test_Start_DamagedMailbox_SaysWhatToDoAndLeavesIt(self):
        self.assertEqual(self.Run(PROGRAM, "--quiet", "demo", "--days", "2").returncode, 0)
        mailbox = self.profile / "mailbox.db"
        whole = mailbox.read_bytes()
        name = f"the mailbox {mailbox} "
        for damaged, text in (
                (b"garbage", "isn't a mailbox: move it away, or name another profile"),
                (b"", "is empty, so it is no mailbox: move it away and put a good copy"),
                (whole[:20000], "is damaged: it is shorter than it says: move it away and put a good copy"),
                (whole[:8192] + bytes(20480) + whole[28672:], "is damaged: check the disk"),
                (whole[:60] + b"\0\0\0\x63" + whole[64:], "comes from a newer version of Tempodial")):
            with self.subTest(text):
                mailbox.write_bytes(damaged)
                self.assertTrue(self.Refusal().startswith(name + text))
        mailbox.write_bytes(whole)
        self.StartDesktop()

    def test_Start_DamagedProjects_SaysWhatToDoAndLeavesThem(self):
        self.assertEqual(self.Run(PROGRAM, "--quiet", "demo", "--days", "2").returncode, 0)
        (self.profile / "registry.toml").write_text("x = [")
        self.assertIn("registry.toml can't be read, line 1", self.Refusal())

    def test_Start_ProfileIsInUse_EndsAsCommandsDo(self):
        self.assertEqual(self.Run(PROGRAM, "--quiet", "demo", "--days", "2").returncode, 0)
        holder = os.open(self.profile, os.O_RDONLY)
        self.addCleanup(os.close, holder)
        fcntl.flock(holder, fcntl.LOCK_EX)
        self.assertIn("is in use by", self.Refusal(status=3))

    def test_Start_WithoutAScreen_SaysWhatToDo(self):
        for name in ("DISPLAY", "WAYLAND_DISPLAY"):
            self.environment.pop(name, None)
        self.environment["QT_QPA_PLATFORM"] = "xcb"
        self.assertTrue(self.Refusal().endswith("no window can be opened: start it within a desktop session, or use "
                                                "\"tempodial\" in a terminal"))

    def test_Start_DamageInTheMidstOfALargeMailbox_SaysWhatToDoAndLeavesIt(self):
        tracker = self.profile / "Tempodial"
        tracker.mkdir(parents=True)
        for day in range(1, 13):
            lines = [f"<slot><StartTime>{start}</StartTime><EndTime>{start + 100}</EndTime><AppType>2</AppType>"
                     f"<WordDocName>{'x' * 300}{start}.doc</WordDocName></slot>" for start in range(20000, 60000, 100)]
            (tracker / f"tracker_granules200611{day:02}.out").write_text("\r\n".join(["tracker", *lines, ""]))
        now = ("--now", "2006-11-12T20:00:00")
        self.assertEqual(self.Run(PROGRAM, *now, "--quiet", "sync").returncode, 0)
        mailbox = self.profile / "mailbox.db"
        content = mailbox.read_bytes()
        middle = len(content) // 8192 * 4096
        mailbox.write_bytes(content[:middle] + b"\xee" * 245760 + content[middle + 245760:])
        self.assertIn(f"The mailbox {mailbox} is damaged", self.Refusal(*now))

    def test_Start_ProfileIsReadOnly_SaysWhatToDo(self):
        self.assertEqual(self.Run(PROGRAM, "--quiet", "demo", "--days", "2").returncode, 0)
        self.folder.chmod(0o755)
        for path in [*self.profile.rglob("*"), self.profile]:
            path.chmod(0o555 if path.is_dir() else 0o444)
        self.addCleanup(self.profile.chmod, 0o700)
        self.front = UNPRIVILEGED
        self.assertIn("can't be read and written: check who owns it and its permissions", self.Refusal())

    def test_Start_WithoutABus_OpensTheLog(self):
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={self.folder}/none"
        settings = self.folder / "config" / "tempodial" / "desktop.toml"
        settings.parent.mkdir(parents=True)
        settings.write_text("[[desktop]]\ntray = true\nstart-hidden = true\n")
        first = self.StartDesktop()
        self.assertEqual(self.Run(DESKTOP).returncode, 0)
        self.assertIsNone(first.poll())

    def test_Start_BrokenSettings_OpensAndLeavesThem(self):
        settings = self.folder / "config" / "tempodial" / "desktop.toml"
        settings.parent.mkdir(parents=True)
        settings.write_text("[[desktop]]\nzoom = 3\n")
        self.StartDesktop().terminate()
        self.assertEqual(settings.read_text(), "[[desktop]]\nzoom = 3\n")


if __name__ == "__main__":
    unittest.main()
