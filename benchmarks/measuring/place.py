"""The folder in which is measured, and the machine."""

import os
import platform
import shutil

MEMORY = ("tmpfs", "ramfs")


def FileSystem(folder):
    """The kind of file system that a folder is on, and where that is mounted from."""
    best = ("", "unknown", "unknown")
    real = os.path.realpath(folder)
    with open("/proc/self/mountinfo", encoding="utf-8") as mounts:
        for line in mounts:
            left, _, right = line.partition(" - ")
            point = left.split()[4]
            kind, source = right.split()[:2]
            inside = real == point or real.startswith(point.rstrip("/") + "/")
            if inside and len(point) >= len(best[0]):
                best = (point, kind, source)
    return best[1], best[2]


def Describe(folder):
    """One line on where is measured: what is durable there counts only on a disk."""
    kind, source = FileSystem(folder)
    word = "a RAM disk: goals 1 and 5 say nothing here" if kind in MEMORY else "a disk"
    return f"{folder} ({kind} on {source}, {word})"


def Machine():
    """One line on the machine."""
    name = platform.machine()
    with open("/proc/cpuinfo", encoding="utf-8") as cpus:
        for line in cpus:
            if line.startswith("model name"):
                name = line.partition(":")[2].strip()
                break
    load = os.getloadavg()[0]
    return f"{os.cpu_count()} x {name}, Linux {platform.release()}, load {load:.2f}"


def Free(folder):
    """Bytes that are free on the disk of a folder."""
    return shutil.disk_usage(folder).free


def Fresh(folder):
    """Makes a folder anew and answers it."""
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    return folder
