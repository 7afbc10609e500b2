"""Goals 6 to 8 and 10: reports, lists and starting."""

import datetime
import os

from . import figures
from . import processes
from . import product
from .figures import Seconds

MIB = 1 << 20
DAY_ITEMS = 274
YEAR = 365
DECADE = 3650
FEW = 4


class Reports:
    """The measurements of reports; the stores hold four days, a year and ten years, of 274 activities a day."""

    def __init__(self, programs, rounds, peer):
        self._programs = programs
        self._rounds = rounds
        self._peer = peer
        self._profiles = {}
        self._peers = {}

    def Profile(self, days):
        """The profile with that many days of activities; it is made on first use."""
        if days not in self._profiles:
            profile = self._programs.Profile(f"store-{days}", days)
            items = self._programs.Items(profile)
            if items != days * DAY_ITEMS:
                raise processes.RunError(f"a store of {days} days has {items} items")
            self._profiles[days] = profile
            product.Sync()
        return self._profiles[days]

    def YearAgainstFloor(self):
        """Goal 6: a year of 100,000 in a store of as many, against the floor and the peer."""
        programs = self._programs
        counted = programs.Profile("report-trace", 1)
        _, withDay = programs.RunTraced(counted, *_Report(product.LAST, product.LAST))
        free = product.LAST + datetime.timedelta(days=1)
        _, without = programs.RunTraced(counted, *_Report(free, free))
        # The lines of starting and ending are in both, so the difference is that of a day.
        lines, size = (few + (many - few) * YEAR for many, few in zip(withDay, without))

        profile = self.Profile(YEAR)
        items = programs.Items(profile)
        first = _First(YEAR)
        floor = programs.Path("report-floor")
        os.makedirs(floor, exist_ok=True)

        def RunProduct():
            return self._Report(profile, first, product.LAST, programs.Path("report.html"))

        def RunFloor():
            until = product.Seconds(product.LAST) + 86400
            return programs.Other("floor-report", os.path.join(profile, "mailbox.db"), str(product.Seconds(first)),
                                  str(until), floor, str(items), str(lines), str(size),
                                  output=programs.Path("floor.html"))

        runs = [RunProduct, RunFloor]
        if self._peer.Find():
            database = self.Peer(YEAR)
            runs.append(lambda: database.Summary(first, product.LAST))
        costs, floors, *peers = processes.Rounds(self._rounds, *runs)
        cpu, least = figures.Median(processes.Cpus(costs)), figures.Median(processes.Cpus(floors))
        wall, leastWall = figures.Median(processes.Walls(costs)), figures.Median(processes.Walls(floors))
        results = [figures.Result("6a", f"report over a year of {items:,} items against F",
                                  f"{Seconds(cpu / items)} an item, F {Seconds(least / items)}; by the clock "
                                  f"{Seconds(wall)}, F {Seconds(leastWall)}; {lines / items:.2f} lines of trace an "
                                  "item", cpu / least, 1.0, kind="processor")]
        measured = "the same against timew summary"
        if peers:
            other = figures.Median(processes.Cpus(peers[0]))
            results.append(figures.Result("6b", measured, f"{Seconds(cpu)}, timew {Seconds(other)}", cpu / other, 0.95,
                                          kind="processor"))
        else:
            results.append(figures.NotMeasured("6b", measured, "timewarrior isn't installed"))
        return results

    def ByStore(self):
        """Goal 7: the same year in a store of a million, and one day in a million against a thousand."""
        results = []
        for goal, days, small, rounds in (("7a", YEAR, YEAR, self._rounds), ("7b", 1, FEW, 4 * self._rounds)):
            large, little = self.Profile(DECADE), self.Profile(small)
            first = _First(days)
            larges, littles = processes.Rounds(rounds, lambda: self._Report(large, first, product.LAST),
                                               lambda: self._Report(little, first, product.LAST))
            what = "a year" if days == YEAR else "a day"
            above, below = figures.Median(processes.Cpus(larges)), figures.Median(processes.Cpus(littles))
            results.append(figures.Result(goal, f"report over {what} in a store of {DECADE * DAY_ITEMS:,} against "
                                          f"{small * DAY_ITEMS:,}", f"{Seconds(above)} and {Seconds(below)}",
                                          above / below, 1.1, kind="processor"))
        return results

    def Everything(self):
        """Goal 8: everything of a million items: how the cost grows, and the peak of memory."""
        large, small = self.Profile(DECADE), self.Profile(YEAR)
        text = self._programs.Path("everything.html")
        larges, smalls = processes.Rounds(
            self._rounds, lambda: self._Report(large, _First(DECADE), product.LAST, text),
            lambda: self._Report(small, _First(YEAR), product.LAST))
        exponent = figures.Exponent(processes.Cpus(smalls), processes.Cpus(larges), DECADE / YEAR)
        size = os.path.getsize(text)
        peak = max(cost.peak for cost in larges)
        return [figures.Result("8a", f"report over {DECADE * DAY_ITEMS:,} items, exponent from {YEAR * DAY_ITEMS:,}",
                               f"{Seconds(figures.Median(processes.Cpus(larges)))} and "
                               f"{Seconds(figures.Median(processes.Cpus(smalls)))}", exponent, 1.10,
                               kind="processor"),
                figures.Result("8b", "the same, peak of memory",
                               f"{peak / MIB:.0f} MiB for {size / MIB:.0f} MiB of text", peak / MIB, 500,
                               kind="MiB")]

    def Starting(self):
        """Goal 10: the version, and the list of a day in a store of a million."""
        programs = self._programs
        rounds = 6 * self._rounds
        versions, empties = processes.Rounds(rounds, lambda: programs.Other("tempodial", "--version"),
                                             lambda: programs.Other("floor-empty"))
        version, empty = figures.Median(processes.Cpus(versions)), figures.Median(processes.Cpus(empties))
        byClock = figures.Ratio(processes.Walls(versions), processes.Walls(empties))
        results = [figures.Result("10a", "tempodial --version against an empty program",
                                  f"{Seconds(version)}, empty {Seconds(empty)}; by the clock "
                                  f"{figures.Short(byClock)} times", version / empty, 5.5, kind="processor")]
        measured = f"list of a day in a store of {DECADE * DAY_ITEMS:,} against timew summary"
        if not self._peer.Find():
            return results + [figures.NotMeasured("10b", measured, "timewarrior isn't installed")]
        profile, database = self.Profile(DECADE), self.Peer(DECADE)
        day = str(product.LAST)
        lists, peers = processes.Rounds(rounds, lambda: programs.Run(profile, "list", "--from", day, "--to", day),
                                        lambda: database.Summary(product.LAST, product.LAST))
        mine, other = figures.Median(processes.Cpus(lists)), figures.Median(processes.Cpus(peers))
        results.append(figures.Result("10b", measured, f"{Seconds(mine)}, timew {Seconds(other)}", mine / other, 0.01,
                                      kind="processor"))
        return results

    def _Report(self, profile, first, last, output=os.devnull):
        return self._programs.Run(profile, *_Report(first, last), output=output)

    def Peer(self, days):
        """The database of the peer with what the profile of that many days holds."""
        if days not in self._peers:
            database = self._peer.Peer(self._programs.Path(f"peer-{days}"))
            database.Fill(self._programs.Intervals(self.Profile(days)))
            self._peers[days] = database
        return self._peers[days]


def _First(days):
    return product.LAST - datetime.timedelta(days=days - 1)


def _Report(first, last):
    return ["report", "--from", str(first), "--to", str(last)]
