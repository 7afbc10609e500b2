"""Tests that the recorder follows the login manager: locks, and sleep, which waits until the slot in hand is written."""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import dbus

BUILD = pathlib.Path(os.environ["TEMPODIAL_BUILD_DIR"])
CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>system</type><listen>unix:path={path}</listen>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy>
</busconfig>"""
MOCK = "org.freedesktop.DBus.Mock"
LOGIN = "org.freedesktop.login1"
MANAGER = "/org/freedesktop/login1"
DAY = "profile/Tempodial/tracker_granules20261123.out"


def WaitUntil(is_so, seconds=20):
    """Waits until something is so, at most that long."""
    end = time.monotonic() + seconds
    while not is_so():
        if time.monotonic() > end:
            return False
        time.sleep(0.02)
    return True


class SessionTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.MakeTree()
        socket = self.folder / "bus"
        (self.folder / "bus.conf").write_text(CONFIGURATION.format(path=socket))
        self.environment = dict(os.environ, DBUS_SYSTEM_BUS_ADDRESS=f"unix:path={socket}", TZ="UTC",
                                FAKE_DESKTOP=str(self.folder / "desktop"), XDG_RUNTIME_DIR=str(self.folder))
        self.environment.pop("XDG_SESSION_ID", None)
        self.Start("dbus-daemon", "--nofork", f"--config-file={self.folder / 'bus.conf'}")
        self.assertTrue(WaitUntil(socket.exists))
        self.Start(sys.executable, "-m", "dbusmock", "--system", "--template", "logind")
        self.bus = dbus.bus.BusConnection(f"unix:path={socket}")
        self.addCleanup(self.bus.close)
        self.assertTrue(WaitUntil(lambda: self.bus.name_has_owner(LOGIN)))
        self.manager = self.bus.get_object(LOGIN, MANAGER)
        path = self.manager.AddSession("c7", "seat0", dbus.UInt32(os.getuid()), "ann", True, dbus_interface=MOCK)
        self.session = self.bus.get_object(LOGIN, path)

    def MakeTree(self):
        """The programs with the real session and a desktop that the test directs."""
        tree = self.folder / "tree"
        (tree / "bin").mkdir(parents=True)
        (tree / "lib/tempodial").mkdir(parents=True)
        (tree / "share").mkdir()
        for program in ("tempodial", "tempodial-track"):
            shutil.copy(BUILD / "bin" / program, tree / "bin")
        (tree / "share/tempodial").symlink_to(BUILD / "share/tempodial")
        modules = tree / "lib/tempodial"
        (modules / "tempodial-track-x11.so").symlink_to(BUILD / "tests/fake-desktop.so")
        (modules / "tempodial-track-session.so").symlink_to(BUILD / "lib/tempodial/tempodial-track-session.so")
        os.mkfifo(self.folder / "desktop")
        self.desktop = os.open(self.folder / "desktop", os.O_RDWR)
        self.addCleanup(os.close, self.desktop)

    def Start(self, *arguments):
        """A program that ends with the test."""
        process = subprocess.Popen(arguments, env=self.environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)

        def End():
            process.kill()
            process.wait()

        self.addCleanup(End)
        return process

    def Status(self):
        run = subprocess.run([self.folder / "tree/bin/tempodial", "--profile", self.folder / "profile", "track",
                              "status"], env=self.environment, capture_output=True, text=True, check=False)
        return run.stdout

    def Record(self):
        os.write(self.desktop, b"window alpha 0 First\nidle 0\n")
        recorder = self.Start(self.folder / "tree/bin/tempodial", "--profile", self.folder / "profile", "--now",
                              "2026-11-23T10:00:00", "track", "--speed", "600")
        self.assertTrue(WaitUntil(lambda: "Alpha" in self.Status()))
        return recorder

    def Day(self):
        path = self.folder / DAY
        return path.read_text() if path.exists() else ""

    def test_Lock_HintOrSignal_IsAwayAtOnceAndWritesWhatWaits(self):
        recorder = self.Record()
        time.sleep(0.9)
        self.session.SetLockedHint(True, dbus_interface=LOGIN + ".Session")
        self.assertTrue(WaitUntil(lambda: "nobody there" in self.Status()))
        self.assertIn("<EndTime>36300</EndTime>", self.Day())
        self.session.SetLockedHint(False, dbus_interface=LOGIN + ".Session")
        self.assertTrue(WaitUntil(lambda: "Alpha" in self.Status()))
        self.session.EmitSignal(LOGIN + ".Session", "Lock", "", [], dbus_interface=MOCK)
        self.assertTrue(WaitUntil(lambda: "nobody there" in self.Status()))
        self.session.EmitSignal(LOGIN + ".Session", "Unlock", "", [], dbus_interface=MOCK)
        self.assertTrue(WaitUntil(lambda: "Alpha" in self.Status()))
        recorder.send_signal(signal.SIGTERM)
        self.assertEqual(recorder.wait(20), 0)

    def Holds(self):
        """What keeps the machine awake, by the login manager."""
        return [str(hold[1]) for hold in self.manager.ListInhibitors(dbus_interface=LOGIN + ".Manager")]

    def test_Sleep_Announced_IsHeldUntilTheSlotIsWritten(self):
        self.Record()
        self.assertTrue(WaitUntil(lambda: self.Holds() == ["Tempodial"]))
        time.sleep(0.9)
        self.manager.EmitSignal(LOGIN + ".Manager", "PrepareForSleep", "b", [True], dbus_interface=MOCK)
        self.assertTrue(WaitUntil(lambda: not self.Holds()))
        self.assertIn("<EndTime>36300</EndTime>", self.Day())
        self.assertIn("nobody there", self.Status())
        self.manager.EmitSignal(LOGIN + ".Manager", "PrepareForSleep", "b", [False], dbus_interface=MOCK)
        self.assertTrue(WaitUntil(lambda: "Alpha" in self.Status()))
        self.assertTrue(WaitUntil(lambda: self.Holds() == ["Tempodial"]))


if __name__ == "__main__":
    unittest.main()
