"""Tests that the recorder sees real windows: under an X server without a screen, with a window manager, xterm, and hands
that are xdotool's. What it opens besides its files is looked at, too."""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import threading
import time
import unittest

PROGRAM = pathlib.Path(os.environ["TEMPODIAL_EXECUTABLE"])
NEEDED = ("Xvfb", "openbox", "xterm", "xdotool", "strace")
# So much faster than the wall's clock are those of the recorder.
SPEED = 150


def WaitUntil(is_so, seconds=30):
    """Waits until something is so, at most that long."""
    end = time.monotonic() + seconds
    while not is_so():
        if time.monotonic() > end:
            return False
        time.sleep(0.05)
    return True


@unittest.skipIf([name for name in NEEDED if not shutil.which(name)], "needs " + ", ".join(NEEDED))
class RecordingTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.profile = self.folder / "profile"
        self.environment = dict(os.environ, HOME=folder.name, XDG_RUNTIME_DIR=folder.name, TZ="UTC",
                                LC_ALL="en_US.UTF-8", TEMPODIAL_PROFILE=str(self.profile),
                                DBUS_SYSTEM_BUS_ADDRESS=f"unix:path={folder.name}/none",
                                DBUS_SESSION_BUS_ADDRESS=f"unix:path={folder.name}/none")
        for name in ("WAYLAND_DISPLAY", "DISPLAY", "XDG_SESSION_ID"):
            self.environment.pop(name, None)
        self.environment["DISPLAY"] = self.StartServer()
        self.Start("openbox")
        self.assertTrue(WaitUntil(lambda: self.Do("xdotool", "get_num_desktops", check=False)))

    def StartServer(self):
        """Starts an X server; gives its display. Of two that start at once one may find none."""
        for _ in range(5):
            reading, writing = os.pipe()
            process = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "800x600x24", "-noreset",
                                        "-nolisten", "tcp"], pass_fds=[writing], stderr=subprocess.DEVNULL)
            os.close(writing)
            self.addCleanup(process.wait)
            self.addCleanup(process.kill)
            with os.fdopen(reading) as answer:
                number = answer.readline().strip()
            if number:
                return ":" + number
        self.fail("Xvfb doesn't start")

    def Start(self, *arguments, **more):
        """A program that ends with the test."""
        process = subprocess.Popen(arguments, env=self.environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, **more)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        return process

    def Try(self, *arguments):
        """Runs a program, which may fail."""
        return subprocess.run(arguments, env=self.environment, capture_output=True, text=True, check=False, timeout=60)

    def Do(self, *arguments, check=True):
        """What a program prints, also when it fails and may."""
        run = self.Try(*arguments)
        if check:
            self.assertEqual(run.returncode, 0, (arguments, run.stderr))
        return run.stdout

    def Show(self, name, title):
        """A window of its own class. A window manager that has only just begun may leave one unseen."""
        for _ in range(5):
            terminal = self.Start("xterm", "-class", name, "-T", title, "-e", "sleep", "1000")
            if WaitUntil(lambda: self.Do("xdotool", "search", "--onlyvisible", "--class", name, check=False), 6):
                return
            terminal.kill()
        self.fail(f"no window of {name} is shown")

    def Focus(self, name):
        """Brings a window to the front, once the window manager does that."""
        activate = ("xdotool", "search", "--onlyvisible", "--class", name, "windowactivate", "--sync")
        self.assertTrue(WaitUntil(lambda: self.Try(*activate).returncode == 0))

    def Hands(self):
        """Presses a key now and then, until it is told to stop."""
        stopped = threading.Event()

        def Press():
            while not stopped.wait(0.2):
                self.Do("xdotool", "key", "Shift_L", check=False)

        thread = threading.Thread(target=Press)
        thread.start()
        self.addCleanup(thread.join)
        self.addCleanup(stopped.set)
        return stopped

    def Record(self):
        recorder = self.Start("strace", "-f", "-e", "trace=socket", "-o", str(self.folder / "calls"), str(PROGRAM),
                              "--now", "2026-11-23T10:00:00", "track", "--speed", str(SPEED))
        self.assertTrue(WaitUntil(lambda: '"running": true' in self.Do(PROGRAM, "--json", "track", "status")))
        return recorder

    def Minutes(self, number):
        time.sleep(number * 60 / SPEED)

    def End(self, recorder):
        """Ends the recorder below strace, which then ends with its status."""
        children = pathlib.Path(f"/proc/{recorder.pid}/task/{recorder.pid}/children").read_text().split()
        os.kill(int(children[0]), signal.SIGTERM)
        self.assertEqual(recorder.wait(30), 0)

    def Slots(self):
        """Programs of the day's file, with how many slots each has in a row."""
        slots = []
        path = self.profile / "Tempodial/tracker_granules20261123.out"
        for line in path.read_text().splitlines() if path.exists() else []:
            program = re.search("<AppName>(.*)</AppName>", line)
            if program and "<Detail>" not in line:
                if slots and slots[-1][0] == program[1]:
                    slots[-1][1] += 1
                else:
                    slots.append([program[1], 1])
        return slots

    def test_ThreeWindows_AreThreeActivitiesInTheirOrder(self):
        for name, title in (("Alpha", "First"), ("Beta", "Second"), ("Gamma", "Third")):
            self.Show(name, title)
        self.Hands()
        self.Focus("Alpha")
        self.assertEqual(self.Do(PROGRAM, "track", "--once"), "Alpha, First\n")
        probe = self.Do(PROGRAM, "--json", "track", "probe")
        self.assertRegex(probe, r'"backend": "x11",\n +"window": true,\n +"title": true,\n +"idle": true')
        recorder = self.Record()
        self.Minutes(12)
        self.Focus("Beta")
        self.Minutes(6)
        self.Focus("Gamma")
        self.Minutes(11)
        self.End(recorder)
        self.assertEqual([program for program, _ in self.Slots()], ["Alpha", "Beta", "Gamma"])
        self.assertIn(sum(count for _, count in self.Slots()), (5, 6))
        self.Do(PROGRAM, "--now", "2026-11-23T18:00:00", "sync")
        listed = self.Do(PROGRAM, "--now", "2026-11-23T18:00:00", "list")
        for words in ('Alpha, "First"', 'Beta, "Second"', 'Gamma, "Third"'):
            self.assertIn(words, listed)
        sockets = (self.folder / "calls").read_text()
        self.assertIn("AF_UNIX", sockets)
        self.assertEqual(re.findall(r"socket\((?!AF_UNIX)\w+", sockets), [])

    def test_Idle_ForLong_IsNobodysTime(self):
        self.Show("Alpha", "First")
        hands = self.Hands()
        self.Focus("Alpha")
        recorder = self.Record()
        self.Minutes(14)
        hands.set()
        self.Minutes(40)
        self.Hands()
        self.Minutes(14)
        self.End(recorder)
        day = (self.profile / "Tempodial/tracker_granules20261123.out").read_text()
        ends = [int(end) for end in re.findall("<EndTime>(.*?)</EndTime>", day)]
        self.assertIn(36900, ends)
        self.assertEqual([end for end in ends if 37500 < end < 39300], [])
        self.assertTrue([end for end in ends if end > 39300])


if __name__ == "__main__":
    unittest.main()
