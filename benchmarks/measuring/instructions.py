"""Counts of instructions, which no neighbour's load disturbs, against those that are kept."""

import datetime
import json
import os
import re
import shutil

from . import processes
from . import product

IMPORT = "import of 2 x 500 lines"
REPORT = "report over 5,206 items"
REPORT_DAYS = 19
SUMMARY = re.compile(r"^summary: (\d+)", re.MULTILINE)


def Count(command, folder):
    """The instructions that a program runs."""
    counts = os.path.join(folder, "callgrind.out")
    processes.Run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={counts}", *command], product.ENVIRONMENT,
                  os.path.join(folder, "callgrind.txt"))
    with open(counts, encoding="utf-8") as text:
        return int(SUMMARY.search(text.read()).group(1))


def Measure(programs):
    """The instructions of an import and of a report."""
    profile = programs.Profile("counted")
    programs.Track(programs.Data(profile), 500, 2)
    counts = {IMPORT: Count(programs.Command(profile, "sync"), programs.folder)}
    shutil.rmtree(profile)
    profile = programs.Profile("counted", REPORT_DAYS)
    first = product.LAST - datetime.timedelta(days=REPORT_DAYS - 1)
    command = programs.Command(profile, "report", "--from", str(first), "--to", str(product.LAST))
    counts[REPORT] = Count(command, programs.folder)
    return counts


def Compare(counts, kept):
    """A line for each count: how it stands to the one that is kept."""
    lines = []
    for name, count in counts.items():
        before = kept.get(name)
        change = "nothing kept" if not before else f"{(count - before) / before * 100:+.2f} % against {before:,}"
        lines.append(f"{name}: {count:,} instructions, {change}")
    return lines


def Load(path):
    """The counts that are kept, none when there is no such file."""
    if not os.path.exists(path):
        return {}
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def Save(path, counts):
    """Keeps counts."""
    with open(path, "w", encoding="utf-8") as file:
        json.dump(counts, file, indent=2)
        file.write("\n")
