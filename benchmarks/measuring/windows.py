"""Goal 14: what the desktop program's windows cost, on a screen that nobody sees."""

import datetime
import os
import shutil

from . import figures
from . import processes
from . import product
from .figures import Seconds

DECADE = 3650
# Four days of 274 activities at the end of a week, which begins on Sunday.
WEEK_END = datetime.date(2025, 6, 28)
BUSY_DAYS = 4
FRAME = 16.7
FRAMES = ("scroll", "zoom", "drag", "search")


class Windows:
    """The measurements of windows; a large store is that of the reports."""

    def __init__(self, programs, rounds, importing, reports):
        self._programs = programs
        self._rounds = rounds
        self._importing = importing
        self._reports = reports

    def All(self):
        if not os.path.exists(self._programs.Program("bench-desktop")):
            return [figures.NotMeasured("14", "the desktop program's windows", "Qt isn't there")]
        return self._Frames() + self._Start() + self._Import() + self._Cancel()

    def _Frames(self):
        """A busy week is scrolled, zoomed, dragged in and searched."""
        profile = self._programs.Profile("windows-week")
        self._programs.Other("tempodial-workload", "mailbox", profile, str(WEEK_END), str(BUSY_DAYS))
        results = []
        for goal, scale in (("14a", 1), ("14b", 2)):
            costs = self._Ask("frames", profile, WEEK_END, scale)
            late = {kind: Percentile([cost.cpu for cost in costs[kind]], 95) for kind in costs}
            worst = max(late[kind] for kind in FRAMES)
            said = ", ".join(f"{kind} {Seconds(late[kind])}" for kind in (*FRAMES, "walk"))
            results.append(figures.Result(goal, f"p95 of a frame, a week of {BUSY_DAYS * 274:,}, scale {scale}", said,
                                          worst * 1e3, FRAME, kind="ms processor"))
        return results

    def _Start(self):
        """The first painting over a million activities, and turning a week's page there."""
        profile = self._reports.Profile(DECADE)
        starts, pages = [], []
        for _ in range(self._rounds):
            costs = self._Ask("start", profile, product.LAST)
            starts += costs["start"]
            pages += costs["page"]
        results = []
        for goal, measured, found, bound in (("14c", f"first painting in a store of {DECADE * 274:,}", starts, 300),
                                             ("14d", "turning a week's page there", pages, 50)):
            cpu, wall = figures.Median(processes.Cpus(found)), figures.Median(processes.Walls(found))
            results.append(figures.Result(goal, measured, f"{Seconds(cpu)} of the processor, {Seconds(wall)} by the "
                                          "clock", cpu * 1e3, bound, kind="ms processor"))
        return results

    def _Import(self):
        """22 days of 500 lines with the window open, against the command."""
        programs = self._programs

        def RunWindow():
            profile = self._importing.Tracked("windows-import")
            return self._Ask("import", profile, product.LAST)["import"][0]

        def RunCommand():
            return programs.Run(self._importing.Tracked("windows-import"), "sync")

        windows, commands = processes.Rounds(self._rounds, RunWindow, RunCommand)
        cpu, command = figures.Median(processes.Cpus(windows)), figures.Median(processes.Cpus(commands))
        return [figures.Result("14e", "import with the window open, against sync",
                               f"{Seconds(cpu)}, sync {Seconds(command)}", cpu / command, 1.5, kind="processor")]

    def _Cancel(self, lines=5000, days=22):
        """From the click on Cancel to the end of a long import."""
        programs = self._programs
        found = []
        files = programs.Path("windows-tracked")
        programs.Track(files, lines, days)
        for _ in range(self._rounds):
            profile = programs.Profile("windows-cancel")
            shutil.copytree(files, programs.Data(profile), dirs_exist_ok=True)
            found += self._Ask("cancel", profile, product.LAST)["cancel"]
        shutil.rmtree(files)
        cpu, wall = figures.Median(processes.Cpus(found)), figures.Median(processes.Walls(found))
        return [figures.Result("14f", f"Cancel of an import of {days} x {lines:,} lines",
                               f"{Seconds(cpu)} of the processor, {Seconds(wall)} by the clock", cpu * 1e3, 100,
                               kind="ms processor")]

    def _Ask(self, what, profile, day, scale=1):
        """What was measured, by its name."""
        answer = self._programs.Path("windows.txt")
        environment = dict(product.ENVIRONMENT, QT_QPA_PLATFORM="offscreen", QT_SCALE_FACTOR=str(scale))
        processes.Run([self._programs.Program("bench-desktop"), what, profile, str(day)], environment, answer)
        costs = {}
        with open(answer, encoding="utf-8") as lines:
            for line in lines:
                name, cpu, wall = line.split()
                costs.setdefault(name, []).append(processes.Cost(float(wall), float(cpu), 0))
        return costs


def Percentile(values, percent):
    """The value that so many percent of the values don't exceed."""
    ordered = sorted(values)
    return ordered[min(len(ordered) - 1, len(ordered) * percent // 100)]
