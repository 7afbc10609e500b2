"""What assistive programs see of the desktop program, and what they do there, under X11 and under Wayland."""

import os
import re
import sys
import unittest

import screens

# One kind of screen a process, since toolkits look for it once.
(screens.StartWayland if "--wayland" in sys.argv else screens.StartX11)()

import pyatspi  # noqa: E402

from program import DAYS, Children, Do, Hand, Is, IsSeen, Listener, Program, Walk  # noqa: E402
from screens import WaitFor  # noqa: E402

# Name, day, times, project.
SAID = re.compile(r"^(?P<name>.+), (?P<day>\w+day, \d+ \w+ \d{4}), (?P<begin>\d\d:\d\d) to (?P<end>\d\d:\d\d), "
                  r"(?P<project>[^,]+)$", re.DOTALL)
# Length, application, and what else is painted.
LENGTH = re.compile(r"^(\d+ h( \d\d)?|\d+ min), [^,]+(, after (\d+ h( \d\d)?|\d+ min) without a record)?"
                    r"(, may still grow)?$", re.DOTALL)
HEAD = re.compile(r"^(?P<day>\w+day, \d+ \w+ \d{4}) · (?P<total>\d+ h( \d\d)?|\d+ min)$")
DAYS_OF_WEEK = 7


class AccessTest(unittest.TestCase):
    def setUp(self):
        self.program = Program()
        self.addCleanup(lambda: self.program.process and screens.End(self.program.process))
        self.program.MakeUpDays()
        self.program.Run("sync")
        self.program.Open()
        WaitFor(self.program.Activities, "activities")

    def Listen(self, *names):
        listener = Listener(*names)
        self.addCleanup(listener.End)
        return listener

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
            self.assertRegex(activity.description, LENGTH)
        self.assertEqual(len(days), DAYS)
        self.assertTrue(any(IsSeen(activity) for activity in activities))
        self.assertEqual(sorted(item.get("project") or item["properties"]["Project"] for item in items),
                         sorted(SAID.match(activity.name)["project"] for activity in activities))

    def test_Tree_IsATableWithAColumnADay(self):
        agenda = self.program.Agenda()
        table = agenda.queryTable()
        self.assertEqual(table.nColumns, DAYS_OF_WEEK)
        heads = [node for node in Children(agenda) if node.getRoleName() == "table column header"]
        self.assertEqual(len(heads), DAYS_OF_WEEK)
        columns = [[] for _ in heads]
        for activity in self.program.Activities():
            index = activity.getIndexInParent()
            row, column = table.getRowAtIndex(index), table.getColumnAtIndex(index)
            self.assertEqual(row, len(columns[column]), activity.name)
            self.assertEqual(table.getAccessibleAt(row, column).name, activity.name)
            columns[column].append(activity.name)
        self.assertEqual(table.nRows, max(map(len, columns)))
        for column, head in enumerate(heads):
            said = HEAD.match(head.name)
            self.assertTrue(said, head.name)
            self.assertTrue(IsSeen(head), head.name)
            self.assertEqual({SAID.match(name)["day"] for name in columns[column]} | {said["day"]}, {said["day"]})
            self.assertEqual(bool(columns[column]), said["total"] != "0 min", head.name)
            self.assertEqual(table.getColumnHeader(column).name, head.name)
            self.assertEqual(bool(head.description), bool(columns[column]), head.name)
        # What has nothing in it, and what is no place at all, is blank and harms nothing.
        shortest = min(range(DAYS_OF_WEEK), key=lambda column: len(columns[column]))
        self.assertEqual(table.getAccessibleAt(table.nRows - 1, shortest).name, "")
        table.getRowColumnExtentsAtIndex(table.nRows * DAYS_OF_WEEK + 99)
        self.assertTrue(self.program.Activities())

    def test_Tree_TheMonthIsATableOfDays(self):
        month = self.program.Find("table", "Calendar")
        days = Children(month)
        self.assertEqual(len(days), 6 * DAYS_OF_WEEK)
        for day in days:
            self.assertRegex(day.name, HEAD)
        heads = [node.name for node in Children(self.program.Agenda())[:DAYS_OF_WEEK]]
        self.assertEqual([day.name for day in days if Is(day, pyatspi.STATE_SELECTED)], heads)
        Do(days[0], "Press")
        WaitFor(lambda: Children(self.program.Agenda())[0].name == days[0].name, "the first week of the month")
        note = WaitFor(lambda: next((node for node in Children(self.program.Agenda())
                                     if node.getRoleName() == "label" and IsSeen(node)), None), "why nothing is there")
        self.assertGreater(len(note.name), 20)

    def test_Tree_TheSumsOfTheWeekAreThere(self):
        panel = self.program.Find("panel", "Days and projects")
        rows = {node.name: node.description for node in Walk(panel)
                if node.getRoleName() in ("check box", "push button") and IsSeen(node)}
        projects = {SAID.match(activity.name)["project"] for activity in self.program.Activities()}
        self.assertTrue(projects <= set(rows), (projects, rows))
        for project in projects:
            self.assertRegex(rows[project], r"\d+ (h|min)")
        self.assertTrue(any(re.match(r"This week \d+ h", node.name) for node in Walk(panel)))

    def test_Tree_WhatCanBePressed_HasAName(self):
        activity = self.program.Activity("No Project")
        Do(activity, "Open")
        window = self.ItemWindow()
        for root in (self.program.Window(), window):
            self.CheckNames(root)

    def CheckNames(self, root):
        for node in Walk(root):
            if node.getRoleName() in ("push button", "check box", "text", "tree", "table", "combo box") and IsSeen(node):
                # The button that empties a field is a part of the toolkit's own.
                if node.parent.getRoleName() != "text":
                    self.assertTrue(node.name, node.parent.name)
            self.assertNotIn("<p", node.description, node.name)

    def ItemWindow(self):
        return WaitFor(lambda: next((shown for shown in self.program.Windows() if shown.name != "Tempodial"
                                     and "Activity" in shown.name and IsSeen(shown)), None), "the window")

    def test_Open_ShowsTheActivitysWindow(self):
        activity = self.program.Activity("No Project")
        name = SAID.match(activity.name)["name"]
        Do(activity, "Open")
        window = self.ItemWindow()
        self.assertEqual(window.getRoleName(), "frame")
        self.assertTrue(any(name in node.name or name in Text(node) for node in Walk(window)), name)

    def test_SetProject_OffersTheProjectsAndSetsOne(self):
        activity = self.program.Activity("No Project")
        name = activity.name.rsplit(", ", 1)[0]
        # A menu that is open is no part of the tree, but it tells when it is shown.
        listener = self.Listen("object:state-changed:showing")
        Do(activity, "Set Project")
        menu = listener.Heard(lambda role, name, isShown: role == "popup menu" and isShown, "the menu")
        entry = WaitFor(lambda: next((item for item in Children(menu) if item.name.startswith("Atlas")), None), "Atlas")
        Do(entry, "Press")
        WaitFor(lambda: any(node.name == name + ", Atlas" for node in self.program.Activities()), "the project")
        WaitFor(lambda: not IsSeen(menu), "the end of the menu")

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
        name = activity.name
        listener = self.Listen("object:state-changed:focused", "object:state-changed:selected")
        Do(activity, "SetFocus")
        WaitFor(lambda: Is(self.program.Activity("No Project"), pyatspi.STATE_SELECTED), "the selection")
        if "DISPLAY" in os.environ:
            # Without a keyboard, as under Wayland here, no window has the focus.
            WaitFor(lambda: Is(self.program.Activity("No Project"), pyatspi.STATE_FOCUSED), "the focus")
        listener.Heard(lambda role, said, isSet: role == "table cell" and said == name and isSet, "an event")
        table = self.program.Agenda().queryTable()
        self.assertEqual(table.nSelectedColumns, 0)
        selected = [node.name for node in self.program.Activities() if Is(node, pyatspi.STATE_SELECTED)]
        self.assertEqual(selected, [name])

    @unittest.skipIf("DISPLAY" not in os.environ, "nobody presses keys under Wayland here")
    def test_MoveByKey_TellsTheNewTimes(self):
        activity = self.program.Activities()[0]
        Do(activity, "SetFocus")
        WaitFor(lambda: Is(activity, pyatspi.STATE_FOCUSED), "the focus")
        listener = self.Listen("object:property-change:accessible-name", "object:property-change:accessible-description")
        said = SAID.match(activity.name)
        Hand().Keys("alt+Up")
        begin, end = Earlier(said["begin"]), Earlier(said["end"])
        listener.Heard(lambda role, name, _: role == "table cell" and f", {begin} to {end}, " in name, "the new times")
        self.assertTrue(Is(activity, pyatspi.STATE_FOCUSED))


def Earlier(time):
    """Five minutes before."""
    hour, minute = map(int, time.split(":"))
    minutes = hour * 60 + minute - 5
    return f"{minutes // 60:02}:{minutes % 60:02}"


def Text(node):
    """What is written in a node, if that can be asked."""
    try:
        text = node.queryText()
        return text.getText(0, -1)
    except NotImplementedError:
        return ""


if __name__ == "__main__":
    unittest.main(argv=[argument for argument in sys.argv if argument != "--wayland"])
