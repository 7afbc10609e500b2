"""Goals 1 to 5 and 11: taking in what the tracker wrote, and what another did."""

import datetime
import os
import shutil

from . import figures
from . import place
from . import processes
from . import product
from .figures import Seconds

DAYS = 22
LINES = 500
LINE_BYTES = 351
MIB = 1 << 20
GIB = 1 << 30


class Imports:
    """The measurements of imports; the number of rounds is that of each."""

    def __init__(self, programs, rounds, peer):
        self._programs = programs
        self._rounds = rounds
        self._peer = peer
        self._files = programs.Path("tracked")
        self._days = programs.Path("tracked-days")
        self._importCosts = None

    def AgainstFloor(self):
        """Goal 1: 22 days of 500 lines."""
        programs = self._programs
        profile = self.Tracked("import")
        blocks, singles = programs.RunTraced(profile, "sync")
        items = programs.Items(profile)
        if items * 10 != DAYS * LINES * 6:
            raise processes.RunError(f"the import made {items} items of {DAYS * LINES} lines, not six of ten")
        floor = programs.Path("import-floor")
        ready = programs.Path("import-floor-ready")
        programs.Other("floor-import", place.Fresh(ready), "prepare")

        def RunProduct():
            self.Tracked("import")
            product.Sync()
            return programs.Run(profile, "sync")

        def RunFloor():
            shutil.rmtree(floor, ignore_errors=True)
            shutil.copytree(ready, floor)
            shutil.copytree(self._days, floor, dirs_exist_ok=True)
            product.Sync()
            return programs.Other("floor-import", floor, str(DAYS * LINES),
                                  *(str(number) for number in blocks + singles))

        costs, floors = processes.Rounds(self._rounds, RunProduct, RunFloor)
        self._importCosts = costs
        all_ = DAYS * LINES
        wall, least = figures.Median(processes.Walls(costs)), figures.Median(processes.Walls(floors))
        cpu, leastCpu = figures.Median(processes.Cpus(costs)), figures.Median(processes.Cpus(floors))
        return [figures.Result("1", f"import of {DAYS} x {LINES} lines against F",
                               f"{Seconds(wall / all_)} a line, F {Seconds(least / all_)}; processor "
                               f"{Seconds(cpu / all_)}, F {Seconds(leastCpu / all_)}; {blocks[0] / all_:.1f} lines of "
                               f"trace and {items / all_:.2f} items a line", wall / least, 1.3, kind="clock")]

    def AgainstPeer(self, items=2000):
        """Goal 2: a line against an item of the peer, from empty to 2,000."""
        measured = f"a line against an item of timew, {items} of them"
        if not self._peer.Find():
            return [figures.NotMeasured("2", measured, "timewarrior isn't installed")]
        if self._importCosts is None:
            self.AgainstFloor()
        begin = datetime.datetime(2025, 6, 1)
        totals = []
        for _ in range(self._rounds):
            database = self._peer.Peer(self._programs.Path("peer-track"))
            costs = [database.Track(begin + datetime.timedelta(minutes=5 * item), 5, "Bramford", f"budget {item}")
                     for item in range(items)]
            totals.append(sum(processes.Walls(costs)) / items)
        line = figures.Median(processes.Walls(self._importCosts)) / (DAYS * LINES)
        item = figures.Median(totals)
        return [figures.Result("2", measured, f"{Seconds(line)} a line, timew {Seconds(item)} an item", item / line,
                               180, least=True, kind="clock")]

    def ByLength(self, large=1_000_000, small=100_000):
        """Goal 3: a line of a long file against one of a shorter, and one into a large store against an empty one."""
        programs = self._programs
        files = {lines: programs.Path(f"tracked-{lines}") for lines in (large, small)}
        for lines, folder in files.items():
            programs.Track(folder, lines)

        def Runner(lines):
            def Run():
                profile = self._Tracked("import-long", files[lines])
                product.Sync()
                return programs.Run(profile, "sync")
            return Run

        longer, shorter = processes.Rounds(self._rounds, Runner(large), Runner(small))
        perLong = figures.Median(processes.Cpus(longer)) / large
        perShort = figures.Median(processes.Cpus(shorter)) / small
        for folder in files.values():
            shutil.rmtree(folder)
        shutil.rmtree(programs.Path("import-long"))
        return [figures.Result("3a", f"a line of {large:,} against one of {small:,}",
                               f"{Seconds(perLong)} and {Seconds(perShort)}", perLong / perShort, 1.15,
                               kind="processor")]

    def ByStore(self, full):
        """Goal 3: a line into a store of a million against one into an empty store."""
        programs = self._programs
        # Other days each time, so that the large store needn't be made anew for each.
        days = iter(product.LAST + datetime.timedelta(days=30 * (round_ + 1)) for round_ in range(2 * self._rounds))

        def Prepare(profile, day):
            programs.Track(programs.Data(profile), LINES, DAYS, day)
            product.Sync()

        def RunFull():
            day = next(days)
            Prepare(full, day)
            return programs.Run(full, "sync", day=day)

        def RunEmpty():
            day = next(days)
            profile = programs.Profile("import-empty")
            Prepare(profile, day)
            return programs.Run(profile, "sync", day=day)

        before = programs.Items(full)
        fulls, empties = processes.Rounds(self._rounds, RunFull, RunEmpty)
        all_ = DAYS * LINES
        perFull = figures.Median(processes.Cpus(fulls)) / all_
        perEmpty = figures.Median(processes.Cpus(empties)) / all_
        return [figures.Result("3b", f"a line into a store of {before:,} items against an empty one",
                               f"{Seconds(perFull)} and {Seconds(perEmpty)}", perFull / perEmpty, 1.15,
                               kind="processor")]

    def Memory(self, size=GIB, small=4 * MIB):
        """Goal 4: the peak of memory with a file of 1 GiB, and against that of 4 MB."""
        programs = self._programs
        measured = f"peak of memory, a file of {size // MIB} MiB"
        needed = 5 * size
        if place.Free(programs.folder) < needed:
            why = f"the disk has less than {needed // GIB} GiB free"
            return [figures.NotMeasured("4a", measured, why), figures.NotMeasured("4b", measured, why)]
        peaks = []
        for bytes_ in (small, size):
            profile = programs.Profile("import-memory")
            programs.Track(programs.Data(profile), bytes_ // LINE_BYTES)
            peaks.append(programs.Run(profile, "sync").peak)
            shutil.rmtree(profile)
        peak = peaks[1] / MIB
        return [figures.Result("4a", measured, f"{peak:.1f} MiB", peak, 24, kind="MiB"),
                figures.Result("4b", f"the same against a file of {small // MIB} MiB",
                               f"{peak:.1f} and {peaks[0] / MIB:.1f} MiB", peaks[1] / peaks[0], 1.1, kind="MiB")]

    def OneLine(self, rounds=31):
        """Goal 5: one new line, durable, besides what starting costs."""
        programs = self._programs
        programs.Track(self._files, LINES)
        name = f"tracker_granules{product.LAST:%Y%m%d}.out"
        profile = programs.Profile("import-line")
        tracked = os.path.join(programs.Data(profile), name)
        with open(os.path.join(self._files, name), "rb") as file:
            lines = iter(file.readlines())
        with open(tracked, "wb") as file:
            for _ in range(100):
                file.write(next(lines))
        programs.Run(profile, "sync")
        waits = []

        def RunLine():
            with open(tracked, "ab") as file:
                file.write(next(lines))
            product.Sync()
            return programs.Run(profile, "sync")

        def RunStart():
            product.Sync()
            return programs.Run(profile, "projects")

        def RunWait():
            answer = programs.Path("wait.txt")
            programs.Other("floor-durable", programs.Path("wait.bin"), "5", output=answer)
            with open(answer, encoding="utf-8") as text:
                waits.append(float(text.read()) / 1e6)
            return None

        synced, started, _ = processes.Rounds(rounds, RunLine, RunStart, RunWait)
        sync, start = figures.Median(processes.Walls(synced)), figures.Median(processes.Walls(started))
        wait = figures.Median(waits)
        return [figures.Result("5", "one new line besides start-up, against fdatasync",
                               f"{Seconds(sync)} less {Seconds(start)}; fdatasync {Seconds(wait)}",
                               (sync - start) / wait, 8, kind="clock")]

    def Foreign(self, days=365, events=2740):
        """Goal 11: a year of another tracker's export, from its file to the work log."""
        programs = self._programs
        export = programs.Path("watched.json")
        programs.Other("tempodial-workload", "watched", export, str(product.LAST), str(days), str(events))
        size = os.path.getsize(export)
        profile = programs.Profile("import-foreign")
        product.Sync()
        cost = programs.Run(profile, "import", "activitywatch", export, day=product.LAST + datetime.timedelta(days=1))
        items = programs.Items(profile)
        if items < days * 5:
            raise processes.RunError(f"the import made only {items} items of {days} days")
        os.remove(export)
        shutil.rmtree(profile)
        measured = f"{days * events:,} events of ActivityWatch, {size / 1e6:.0f} MB, from file to log"
        return [figures.Result("11a", measured, f"{Seconds(cost.wall)}, {Seconds(cost.cpu)} of the processor; "
                               f"{items:,} items", cost.wall, 60, kind="seconds"),
                figures.Result("11b", "the peak of memory then", f"{cost.peak / 1e6:.0f} MB", cost.peak / 1e6, 400,
                               kind="MB")]

    def Tracked(self, name):
        """A new profile without activities, with tracker files of 22 days of 500 lines."""
        if not os.path.exists(self._days):
            self._programs.Track(self._days, LINES, DAYS)
        return self._Tracked(name, self._days)

    def _Tracked(self, name, files):
        """A new profile without activities, with the tracker files of a folder."""
        profile = self._programs.Profile(name)
        shutil.copytree(files, self._programs.Data(profile), dirs_exist_ok=True)
        return profile
