"""Goal 12: what people ask of their log, and taking back what they did."""

import datetime
import os

from . import figures
from . import processes
from . import product
from .figures import Seconds

YEAR = 365
DECADE = 3650
PREVIEWED = 21
MANY = 10_000
DAY_ITEMS = 274


class Reviews:
    """The measurements over the stores that the reports were measured with."""

    def __init__(self, programs, rounds, reports, peer):
        self._programs = programs
        self._rounds = rounds
        self._reports = reports
        self._peer = peer

    def All(self):
        return self._Summary() + self._Unassigned() + self._Preview() + self._Undo()

    def _Summary(self):
        """A year in a store of a million, against the sum in plain SQL and the peer."""
        programs = self._programs
        profile = self._reports.Profile(DECADE)
        first = product.LAST - datetime.timedelta(days=YEAR - 1)
        bounds = [str(product.Seconds(first)), str(product.Seconds(product.LAST) + 86400)]
        runs = [lambda: programs.Run(profile, "summary", "--from", str(first), "--to", str(product.LAST)),
                lambda: programs.Other("floor-summary", os.path.join(profile, "mailbox.db"), *bounds)]
        measured = f"summary of a year in a store of {DECADE * DAY_ITEMS:,}"
        if self._peer.Find():
            runs.append(lambda: self._reports.Peer(DECADE).Summary(first, product.LAST))
        costs, floors, *peers = processes.Rounds(self._rounds, *runs)
        cpu, least = figures.Median(processes.Cpus(costs)), figures.Median(processes.Cpus(floors))
        results = [figures.Result("12a", f"{measured} against a sum in SQL", f"{Seconds(cpu)}, sum {Seconds(least)}",
                                  cpu / least, 2.0, kind="processor")]
        if peers:
            other = figures.Median(processes.Cpus(peers[0]))
            results.append(figures.Result("12b", "the same against timew summary",
                                          f"{Seconds(cpu)}, timew {Seconds(other)}", cpu / other, 1.0,
                                          kind="processor"))
        else:
            results.append(figures.NotMeasured("12b", "the same against timew summary", "timewarrior isn't installed"))
        return results

    def _Unassigned(self):
        profile = self._reports.Profile(DECADE)
        return self._Times("12c", f"unassigned of {PREVIEWED} days", profile, "unassigned", f"-{PREVIEWED}d")

    def _Preview(self):
        """The changes of all rules over 21 days; the template has 50 projects with a rule each."""
        profile = self._reports.Profile(DECADE)
        return self._Times("12d", f"rules preview of {PREVIEWED} days, 50 rules", profile, "apply", "--all",
                           f"-{PREVIEWED}d", "--preview")

    def _Times(self, goal, measured, profile, *arguments):
        costs, = processes.Rounds(2 * self._rounds, lambda: self._programs.Run(profile, *arguments))
        wall, cpu = figures.Median(processes.Walls(costs)), figures.Median(processes.Cpus(costs))
        said = f"{Seconds(cpu)} of the processor, {Seconds(wall)} by the clock"
        return [figures.Result(goal, measured, said, cpu * 1e3, 20, kind="ms processor"),
                figures.Result(goal, "the same", said, wall * 1e3, 100, kind="ms clock")]

    def _Undo(self):
        """A project for ten thousand activities, which is then taken back; and what of it the step costs."""
        programs = self._programs
        days = -(-MANY // DAY_ITEMS)
        profile = programs.Profile("steps", days)
        first = product.LAST - datetime.timedelta(days=days - 1)
        behind = product.LAST + datetime.timedelta(days=1)
        product.Sync()
        commands, undos = processes.Rounds(
            self._rounds,
            lambda: programs.Run(profile, "assign", "New", "--from", f"{first}T00:00", "--to", f"{behind}T00:00",
                                 "--overwrite"),
            lambda: programs.Run(profile, "undo"))
        cpu, undo = figures.Median(processes.Cpus(commands)), figures.Median(processes.Cpus(undos))
        wall, undoWall = figures.Median(processes.Walls(commands)), figures.Median(processes.Walls(undos))
        with_, without = self._StepTimes(profile)
        return [figures.Result("12e", f"undo of {days * DAY_ITEMS:,} activities against their command",
                               f"{Seconds(undo)}, command {Seconds(cpu)}; by the clock {Seconds(undoWall)}, "
                               f"{Seconds(wall)}", undo / cpu, 1.5, kind="processor"),
                figures.Result("12f", "what a step costs of that command",
                               f"{Seconds(with_)} with it, {Seconds(without)} without, command {Seconds(cpu)}",
                               (with_ - without) / cpu, 0.15, kind="processor")]

    def _StepTimes(self, profile):
        """The seconds of as many changes with a step and without, in the same process."""
        answer = self._programs.Path("steps.txt")
        times = []
        for _ in range(self._rounds):
            self._programs.Other("bench-steps", profile, str(MANY), output=answer)
            with open(answer, encoding="utf-8") as text:
                times.append([float(word) for word in text.read().split()])
        return (figures.Median([pair[0] for pair in times]), figures.Median([pair[1] for pair in times]))
