"""timewarrior, which people might use instead."""

import datetime
import os
import shutil

from . import place
from . import processes

ORIGIN = datetime.datetime(1899, 12, 30)
MOMENT = "%Y%m%dT%H%M%SZ"


def Find():
    """The path of the program, None when it isn't installed."""
    return shutil.which("timew")


class Peer:
    """A database of timewarrior in a folder."""

    def __init__(self, folder):
        self.folder = place.Fresh(folder)
        self._environment = {"TIMEWARRIORDB": folder, "TZ": "UTC", "LC_ALL": "C.UTF-8"}
        os.makedirs(os.path.join(folder, "data"))
        os.makedirs(os.path.join(folder, "extensions"))
        with open(os.path.join(folder, "timewarrior.cfg"), "w", encoding="utf-8") as config:
            config.write("confirmation = off\nverbose = off\n")

    def Fill(self, intervals):
        """Writes a database of intervals in order of time: start and end in seconds since 1899-12-30, and two tags."""
        data = None
        for start, end, *tags in intervals:
            began = ORIGIN + datetime.timedelta(seconds=start)
            ended = ORIGIN + datetime.timedelta(seconds=end)
            words = " ".join('"' + tag.replace('"', "'") + '"' for tag in tags)
            path = os.path.join(self.folder, "data", f"{began:%Y-%m}.data")
            if data is None or data.name != path:
                if data is not None:
                    data.close()
                data = open(path, "w", encoding="utf-8")
            data.write(f"inc {began:{MOMENT}} - {ended:{MOMENT}} # {words}\n")
        if data is not None:
            data.close()

    def Track(self, begin, minutes, *tags):
        """Takes in one item, and answers the cost."""
        end = begin + datetime.timedelta(minutes=minutes)
        return self._Run("track", f"{begin:%Y-%m-%dT%H:%M:%S}", "-", f"{end:%Y-%m-%dT%H:%M:%S}", *tags)

    def Summary(self, first, last):
        """Shows the items of days, the last one included, and answers the cost."""
        return self._Run("summary", str(first), "-", str(last + datetime.timedelta(days=1)))

    def _Run(self, *arguments):
        return processes.Run([Find(), *arguments], self._environment)
