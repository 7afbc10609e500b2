"""The desktop program with and without a tray: it never runs without a way to reach it."""

import subprocess
import time
import unittest

import screens

screens.StartX11()

from program import Hand, IsSeen, Program  # noqa: E402
from screens import WaitFor  # noqa: E402

TRAY = "[[desktop]]\ntray = true\n"
HIDDEN = TRAY + "start-hidden = true\n"


class TrayTest(unittest.TestCase):
    def setUp(self):
        self.program = Program()
        self.addCleanup(lambda: self.program.process and screens.End(self.program.process))

    def StartTray(self):
        """A tray, at the place of the session's bus where desktops have theirs."""
        tray = screens.Start("/usr/bin/python3", screens.Beside("fake_tray.py"))
        self.addCleanup(screens.End, tray)
        WaitFor(self.IsTrayThere, "the tray")
        return tray

    @staticmethod
    def IsTrayThere():
        return "true" in subprocess.run(
            ["dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/",
             "org.freedesktop.DBus.NameHasOwner", "string:org.kde.StatusNotifierWatcher"], text=True, capture_output=True, check=False).stdout

    def SeenWindows(self):
        return [window.name for window in self.program.Windows() if IsSeen(window)]

    def Close(self):
        self.program.Window()
        WaitFor(lambda: Hand.Front() == self.program.process.pid, "the window in front")
        # Keys pressed as soon as a window is in front may reach nobody.
        time.sleep(0.5)
        Hand().Keys("alt+F4")

    def test_NoTray_ClosingTheLastWindowEndsIt(self):
        self.program.Settings(TRAY)
        self.program.Open()
        self.Close()
        self.assertEqual(self.program.Ended(), 0)

    def test_NoTray_StartedHidden_ShowsItsWindow(self):
        self.program.Settings(HIDDEN)
        self.program.Start()
        time.sleep(3)
        self.assertEqual(self.SeenWindows(), [])
        WaitFor(lambda: self.SeenWindows() == ["Tempodial"], "the window", 20)
        self.Close()
        self.assertEqual(self.program.Ended(), 0)

    def test_Tray_ClosingHides_ASecondStartBringsItBack(self):
        self.StartTray()
        self.program.Settings(TRAY)
        self.program.Open()
        self.Close()
        WaitFor(lambda: not self.SeenWindows(), "the window's end")
        self.assertIsNone(self.program.process.poll())
        self.assertEqual(self.program.Run(name="tempodial-desktop").returncode, 0)
        WaitFor(lambda: self.SeenWindows() == ["Tempodial"], "the window")

    def test_TrayGoesWhileItIsHidden_ShowsItsWindow(self):
        tray = self.StartTray()
        self.program.Settings(TRAY)
        self.program.Open()
        self.Close()
        WaitFor(lambda: not self.SeenWindows(), "the window's end")
        screens.End(tray)
        WaitFor(lambda: self.SeenWindows() == ["Tempodial"], "the window", 20)
        self.Close()
        self.assertEqual(self.program.Ended(), 0)

    def test_TrayComesLate_ClosingHides(self):
        self.program.Settings(TRAY)
        self.program.Open()
        self.StartTray()
        time.sleep(3)
        self.Close()
        WaitFor(lambda: not self.SeenWindows(), "the window's end")
        self.assertIsNone(self.program.process.poll())


if __name__ == "__main__":
    unittest.main()
