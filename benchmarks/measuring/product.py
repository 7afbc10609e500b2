"""The programs that are measured, and the profiles that they work on."""

import datetime
import os
import shutil
import sqlite3

from . import place
from . import processes

# The last day of all invented data; nothing of it depends on the day of the measurement.
LAST = datetime.date(2025, 6, 30)
ENVIRONMENT = {"LC_ALL": "C.UTF-8", "TZ": "UTC"}
LOCALE = "en_US"


class Product:
    """The build, the folder of work, and a profile with its projects to copy from."""

    def __init__(self, build, folder):
        self.folder = folder
        self._bin = os.path.join(build, "bin")
        self._template = os.path.join(folder, "template")

    def Program(self, name):
        return os.path.join(self._bin, name)

    def Path(self, name):
        return os.path.join(self.folder, name)

    def Command(self, profile, *arguments, day=LAST):
        """The command line of the product on a profile, at noon of a day."""
        return [self.Program("tempodial"), "--profile", profile, "--locale", LOCALE, "--now", f"{day}T12:00:00",
                "--quiet", *arguments]

    def Run(self, profile, *arguments, day=LAST, output=os.devnull):
        """Runs the product on a profile and answers the cost."""
        return processes.Run(self.Command(profile, *arguments, day=day), ENVIRONMENT, output)

    def Other(self, name, *arguments, output=os.devnull):
        """Runs one of the programs beside the product and answers the cost."""
        return processes.Run([self.Program(name), *arguments], ENVIRONMENT, output)

    def MakeTemplate(self):
        """Makes the profile that the others are copies of: a work log without items, and 50 projects with a rule."""
        place.Fresh(self._template)
        listed = self.Path("projects.txt")
        self.Other("tempodial-workload", "projects", output=listed)
        with open(listed, encoding="utf-8") as projects:
            for line in projects:
                name, rule = line.rstrip("\n").split("\t")
                self.Run(self._template, "projects", "set", name, "--subject", rule)
        for name in ("Critical", "Other", "Personal", "Supportive", "Wish"):
            self.Run(self._template, "projects", "remove", name)
        self.Run(self._template, "sync")
        # What follows begins without a trace and without a history.
        for name in os.listdir(self.Data(self._template)):
            os.remove(os.path.join(self.Data(self._template), name))

    def Data(self, profile):
        """The folder of a profile's tracker files."""
        return os.path.join(profile, "Tempodial")

    def Profile(self, name, days=0):
        """A new profile with that many days of activities."""
        profile = self.Path(name)
        shutil.rmtree(profile, ignore_errors=True)
        shutil.copytree(self._template, profile)
        if days:
            self.Other("tempodial-workload", "mailbox", profile, str(LAST), str(days))
        return profile

    def Track(self, folder, lines, days=1, day=LAST):
        """Writes tracker files of so many lines for each of the days up to a last one."""
        os.makedirs(folder, exist_ok=True)
        self.Other("tempodial-workload", "tracker", folder, str(day), str(days), str(lines))

    def RunTraced(self, profile, *arguments):
        """Runs the product so that all of its trace is kept, and answers what was written in blocks and what line by
        line: numbers of lines and of bytes."""
        # A folder in the place of the second file keeps the first from being rolled over; the product says that it
        # couldn't, by its status.
        os.makedirs(os.path.join(self.Data(profile), "WorkLogTrace2.out"), exist_ok=True)
        trace = os.path.join(self.Data(profile), "WorkLogTrace1.out")
        if os.path.exists(trace):
            os.remove(trace)
        processes.Run(self.Command(profile, *arguments), ENVIRONMENT, accepted=(0, 1))
        blocks = [0, 0]
        singles = [0, 0]
        counted = singles
        with open(trace, "rb") as lines:
            for line in lines:
                # The lines of an import are collected from its first step on.
                if b"TDDataHandler historyfile: " in line:
                    counted = blocks
                counted[0] += 1
                counted[1] += len(line)
                if b"TDDataHandler Exiting syncdata" in line:
                    counted = singles
        return blocks, singles

    def Items(self, profile):
        """The number of activities in a profile."""
        return next(self._Ask(profile, "SELECT count(*) FROM item"))[0]

    def Intervals(self, profile):
        """All activities of a profile: start and end in seconds since 1899-12-30, project, description."""
        return self._Ask(profile, "SELECT starts, ends, mileage, billing FROM item ORDER BY starts")

    @staticmethod
    def _Ask(profile, question):
        database = sqlite3.connect(os.path.join(profile, "mailbox.db"))
        try:
            yield from database.execute(question)
        finally:
            database.close()


def Seconds(day):
    """The midnight of a day as the mailbox counts it."""
    return (day - datetime.date(1899, 12, 30)).days * 86400


def Sync():
    """Waits until the disks have what was prepared, so that it isn't paid for by what is measured."""
    os.sync()
