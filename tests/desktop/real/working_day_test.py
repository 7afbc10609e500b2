"""A working day with the desktop program under X11, by mouse and keys as a person has them."""

import signal
import sqlite3
import time
import unittest

import screens

screens.StartX11()

from program import Box, Centre, Children, Hand, IsSeen, Program, Walk  # noqa: E402
from screens import WaitFor  # noqa: E402

# All but the moment at which it was saved, which is another each time.
ITEMS = """SELECT id, folder, kind, message_class, starts, ends, span, recurring, subject, mileage, billing, properties,
 body, by_hand FROM item ORDER BY id"""

NO_PROJECT = "No Project"


class WorkingDayTest(unittest.TestCase):
    def setUp(self):
        self.program = Program()
        self.hand = Hand()
        self.addCleanup(lambda: self.program.process and screens.End(self.program.process))

    def OpenWithDays(self):
        """The window with days of work, which were imported by its button."""
        self.program.MakeUpDays()
        self.program.Open()
        self.Refresh()

    def Refresh(self):
        self.Click("push button", "Refresh Tempodial")
        WaitFor(self.program.Activities, "activities")
        WaitFor(lambda: not self.IsThere("push button", "Cancel"), "the end of the import")

    def IsThere(self, role, name):
        return any(node.getRoleName() == role and node.name == name and IsSeen(node)
                   for node in Walk(self.program.Window()))

    def Click(self, role, name, within=None, **how):
        self.hand.Click(Centre(self.program.Find(role, name, within)), **how)

    def Kept(self):
        """All that the profile holds of activities and of rules, byte for byte."""
        with sqlite3.connect(f"file:{self.program.profile / 'mailbox.db'}?mode=ro", uri=True) as database:
            items = database.execute(ITEMS).fetchall()
        registry = [path.read_bytes() for path in sorted(self.program.profile.glob("registry*"))]
        self.assertTrue(registry)
        return items, registry

    def SeenUnassigned(self):
        """An activity without a project that a pointer finds, high enough to be dragged."""
        top = Box(self.program.Agenda())[1]
        return next(node for node in self.program.Activities()
                    if "No Project" in node.name and IsSeen(node) and Box(node)[3] > 24 and Box(node)[1] > top + 60)

    def Numbered(self, name):
        return [node for node in self.program.Activities() if name in node.name]

    def SelectUnassigned(self):
        """Selects such an activity, and answers the part of its name that stays."""
        node = self.SeenUnassigned()
        name = node.name.rsplit(", ", 1)[0]
        self.hand.Click(Centre(node))
        self.program.Find("push button", "Open")
        return name

    def WaitForProject(self, name, project):
        WaitFor(lambda: any(f", {project}" in node.name for node in self.Numbered(name)), f"{project} on {name}")

    def test_Day_FromImportToClosing(self):
        self.OpenWithDays()
        listed = self.program.Ask("list", "-7d")
        self.assertEqual(len(self.program.Activities()), len(listed))
        before = self.Kept()

        # Two clicks give a project, one key takes it back.
        name = self.SelectUnassigned()
        chip = next(node for node in Walk(self.program.Find("panel", "Selection"))
                    if node.name.startswith("Set project ") and node.getRoleName() == "push button" and IsSeen(node))
        project = chip.name.removeprefix("Set project ")
        self.hand.Click(Centre(chip))
        self.WaitForProject(name, project)
        self.assertNotEqual(self.Kept(), before)
        self.hand.Keys("ctrl+z")
        self.WaitForProject(name, "No Project")
        self.assertEqual(self.Kept(), before)

        # So do a click and a key.
        name = self.SelectUnassigned()
        self.hand.Keys("2")
        WaitFor(lambda: self.Kept() != before, "the project of the second key")
        self.hand.Keys("ctrl+z")
        WaitFor(lambda: self.Kept() == before, "the activity as it was")

        self.DragAnEdge()
        self.SortOut()
        self.Report()

        closing = self.program.process
        self.hand.Keys("alt+F4")
        self.assertEqual(self.program.Ended(), 0)
        self.assertEqual(closing.returncode, 0)

    def DragAnEdge(self):
        """The lower edge of an activity goes up by a quarter of an hour and some."""
        before = self.Kept()
        node = self.SeenUnassigned()
        name = node.name
        left, top, width, height = Box(node)
        edge = (left + width // 2, top + height - 2)
        self.hand.Drag(edge, (edge[0], edge[1] - 18))
        WaitFor(lambda: not self.Numbered(name), "another end")
        self.assertTrue(self.Numbered(name.split(" to ")[0]), "it has another beginning too")
        self.hand.Keys("ctrl+z")
        WaitFor(lambda: self.Kept() == before, "the times as they were")

    def SortOut(self):
        """A group gets a project by one key, and the next is selected."""
        self.hand.Keys("ctrl+4")
        tree = self.program.Find("tree", "Without a project*")
        groups = len([node for node in Children(tree) if IsSeen(node)])
        before = len(self.Unassigned())
        self.assertGreater(groups, 1)
        for _ in range(2):
            count = len(self.Unassigned())
            self.hand.Keys("1")
            WaitFor(lambda: len(self.Unassigned()) < count, "a group less")
        self.hand.Keys("ctrl+z", "ctrl+z")
        WaitFor(lambda: len(self.Unassigned()) == before, "the groups as they were")
        self.hand.Keys("ctrl+2")
        self.program.Agenda()

    def Unassigned(self):
        return [item for item in self.Kept()[0] if NO_PROJECT in item]

    def Report(self):
        """The product's form asks what is to be in the report, and the report comes up as a window."""
        window = self.program.Window()
        self.Click("menu item", "Tempodial", window)
        self.Click("menu item", "Create Activity Report*", window)
        form = WaitFor(lambda: next((shown for shown in self.program.Windows()
                                     if shown.name not in ("", window.name) and IsSeen(shown)), None), "the form")
        known = len(self.program.Windows())
        self.Click("push button", "OK", form)
        report = WaitFor(lambda: next((shown for shown in self.program.Windows() if IsSeen(shown)
                                       and any(node.name == "Save as PDF" for node in Walk(shown))), None),
                         "the report's window")
        self.assertLessEqual(len(self.program.Windows()), known + 1)
        self.hand.Click(Centre(report))
        self.hand.Keys("alt+F4")
        WaitFor(lambda: all("Save as PDF" not in (node.name for node in Walk(shown))
                            for shown in self.program.Windows()), "the report's end")

    def test_StartedTwice_OneWindowIsRaised(self):
        self.OpenWithDays()
        # Another window lies above it.
        other = screens.Start("xterm", "-geometry", "200x60+0+0")
        self.addCleanup(screens.End, other)
        WaitFor(lambda: self.hand.Front() == other.pid, "the other window in front")
        second = self.program.Run(name="tempodial-desktop")
        self.assertEqual(second.returncode, 0, second.stderr)
        WaitFor(lambda: self.hand.Front() == self.program.process.pid, "the window in front")
        self.assertEqual([window.name for window in self.program.Windows() if IsSeen(window)], ["Tempodial"])

    def test_SyncBesideIt_IsRefusedWithTheReason(self):
        self.OpenWithDays()
        sync = self.program.Run("--wait", "0", "sync")
        self.assertEqual(sync.returncode, 3)
        self.assertIn("the desktop program has it open: it imports by itself; close it, or wait with --wait SECONDS",
                      sync.stderr)

    def test_Killed_NextStartNeedsNoRepair(self):
        self.OpenWithDays()
        name = self.SelectUnassigned()
        self.hand.Keys("1")
        WaitFor(lambda: not any("No Project" in node.name for node in self.Numbered(name)), "a project")
        kept = self.Kept()
        self.program.process.send_signal(signal.SIGKILL)
        self.program.process.wait()
        self.program.Open()
        WaitFor(self.program.Activities, "the activities")
        self.assertEqual(self.Kept()[0], kept[0])
        self.hand.Keys("ctrl+q")
        self.assertEqual(self.program.Ended(), 0)

    def test_KilledInAnImport_NextStartGoesOn(self):
        self.program.MakeUpDays()
        self.program.Open()
        self.Click("push button", "Refresh Tempodial")
        time.sleep(0.2)
        self.program.process.send_signal(signal.SIGKILL)
        self.program.process.wait()
        self.program.Open()
        self.Refresh()
        everything = Program()
        everything.MakeUpDays()
        everything.Run("sync")

        def Said(program):
            return [(item["subject"], item["start"], item["end"]) for item in program.Ask("list", "-7d")]
        self.assertEqual(Said(self.program), Said(everything))


if __name__ == "__main__":
    unittest.main()
