"""What assistive programs see of the desktop program, and what they do there, under X11 and under Wayland."""

import os
import re
import sys
import time
import unittest

import screens

# One kind of screen a process, since toolkits look for it once.
(screens.StartWayland if "--wayland" in sys.argv else screens.StartX11)()

import pyatspi  # noqa: E402

from program import DAYS, Do, Hand, Is, IsSeen, Program, Walk  # noqa: E402
from screens import WaitFor  # noqa: E402

# Name, day, times, project.
SAID = re.compile(r"^(?P<name>.+), (?P<day>\w+day, \d+ \w+ \d{4}), (?P<begin>\d\d:\d\d) to (?P<end>\d\d:\d\d), "
                  r"(?P<project>[^,]+)(, selected)?$", re.DOTALL)


class AccessTest(unittest.TestCase):
    def setUp(self):
        self.program = Program()
        self.addCleanup(lambda: self.program.process and screens.End(self.program.process))
        self.program.MakeUpDays()
        self.program.Run("sync")
        self.program.Open()
        WaitFor(self.program.Activities, "activities")

    def test_Tree_EveryActivityHasNameDayTimesProjectAndState(self):
        items = self.program.Ask("list", "-7d")
        activities = self.program.Activities()
        self.assertEqual(len(activities), len(items))
        self.assertGreater(len(items), 10 * DAYS)
        days = set()
        for activity in activities:
            said = SAID.match(activity.name)
            self.assertTrue(said, activity.name)
            days.add(said["day"])
            for state in (pyatspi.STATE_FOCUSABLE, pyatspi.STATE_SELECTABLE, pyatspi.STATE_ENABLED):
                self.assertTrue(Is(activity, state), activity.name)
            self.assertFalse(Is(activity, pyatspi.STATE_SELECTED), activity.name)
            self.assertIn("min" if "min" in activity.description else " h", activity.description)
        self.assertEqual(len(days), DAYS)
        self.assertTrue(any(IsSeen(activity) for activity in activities))
        self.assertEqual(sorted(item["project"] for item in map(self.Facts, items)),
                         sorted(SAID.match(activity.name)["project"] for activity in activities))

    @staticmethod
    def Facts(item):
        return {"project": item.get("project") or item["properties"]["Project"]}

    def test_Tree_WhatCanBePressed_HasAName(self):
        for node in Walk(self.program.Window()):
            if node.getRoleName() in ("push button", "check box", "text", "tree", "list", "combo box") and IsSeen(node):
                # The button that empties a field is a part of the toolkit's own.
                if node.parent.getRoleName() != "text":
                    self.assertTrue(node.name, node.parent.name)

    def test_Open_ShowsTheActivitysWindow(self):
        activity = self.program.Activity("No Project")
        Do(activity, "Open")
        name = SAID.match(activity.name)["name"]
        window = WaitFor(lambda: next((shown for shown in self.program.Windows() if shown.name != "Tempodial"
                                       and "Activity" in shown.name and IsSeen(shown)), None), "the window")
        self.assertTrue(any(name in node.name or name in Text(node) for node in Walk(window)), name)

    @unittest.skipIf("DISPLAY" not in os.environ, "nobody presses keys under Wayland here")
    def test_SetProject_OffersTheProjectsAndSetsOne(self):
        activity = self.program.Activity("No Project")
        name = activity.name.rsplit(", ", 1)[0]
        Do(activity, "Set Project")
        # The menu has the focus, and its first entry is the likeliest project.
        WaitFor(lambda: Is(self.program.Activity(name), pyatspi.STATE_SELECTED), "the selection")
        time.sleep(1)
        Hand().Keys("Down", "Return")
        WaitFor(lambda: any(name in node.name and "No Project" not in node.name for node in self.program.Activities()),
                "the project")

    def test_Delete_TakesItFromTheLog(self):
        before = len(self.program.Activities())
        activity = self.program.Activity("No Project")
        name = activity.name
        Do(activity, "Delete")
        WaitFor(lambda: len(self.program.Activities()) == before - 1, "an activity less")
        self.assertEqual(len(self.program.Ask("list", "-7d")), before - 1)
        self.assertFalse([node for node in self.program.Activities() if node.name == name])

    def test_SetFocus_SaysWhichHasIt(self):
        activity = self.program.Activity("No Project")
        Do(activity, "SetFocus")
        WaitFor(lambda: Is(self.program.Activity("No Project"), pyatspi.STATE_SELECTED), "the selection")


def Text(node):
    """What is written in a node, if that can be asked."""
    try:
        text = node.queryText()
        return text.getText(0, -1)
    except NotImplementedError:
        return ""


if __name__ == "__main__":
    unittest.main(argv=[argument for argument in sys.argv if argument != "--wayland"])
