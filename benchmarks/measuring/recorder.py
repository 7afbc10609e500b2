"""What the recorder costs while a window is in front and nothing changes."""

import os
import shutil
import subprocess
import tempfile
import time

from . import figures
from . import processes

NEEDED = ("Xvfb", "openbox", "xterm")
SECONDS = 120


def Measure(programs):
    """Goal 13: processor, wake-ups and memory under X11."""
    missing = [name for name in NEEDED if not shutil.which(name)]
    if missing:
        return [figures.NotMeasured("13", "the recorder under X11", "needs " + ", ".join(missing))]
    with tempfile.TemporaryDirectory() as folder:
        environment = dict(os.environ, HOME=folder, XDG_RUNTIME_DIR=folder, TZ="UTC", LC_ALL="C.UTF-8")
        for name in ("WAYLAND_DISPLAY", "XDG_SESSION_ID"):
            environment.pop(name, None)
        started = []
        try:
            environment["DISPLAY"] = _StartServer(started)
            _Start(started, environment, "openbox")
            _Start(started, environment, "xterm", "-e", "sleep", "1000")
            time.sleep(3)
            recorder = _Start(started, environment, programs.Program("tempodial-track"), "--profile",
                              os.path.join(folder, "profile"))
            # What starting costs is no part of a day.
            time.sleep(20)
            return _Figures(recorder)
        finally:
            for process in reversed(started):
                process.kill()
                process.wait()


def _StartServer(started):
    reading, writing = os.pipe()
    started.append(subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "800x600x24", "-noreset",
                                     "-nolisten", "tcp"], pass_fds=[writing], stderr=subprocess.DEVNULL))
    os.close(writing)
    with os.fdopen(reading) as number:
        return ":" + number.readline().strip()


def _Start(started, environment, *command):
    started.append(subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
    return started[-1]


def _Figures(recorder):
    ran, woken = _Ran(recorder.pid), _Woken(recorder.pid)
    time.sleep(SECONDS)
    if recorder.poll() is not None:
        raise processes.RunError(f"the recorder ended with {recorder.returncode}")
    share = (_Ran(recorder.pid) - ran) / SECONDS * 100
    wakes = (_Woken(recorder.pid) - woken) * 60 / SECONDS
    memory = _Status(recorder.pid, "VmRSS") * 1024 / 1e6
    measured = f"the recorder under X11 with nothing changing, {SECONDS} s: share of a processor"
    return [figures.Result("13a", measured, f"{figures.Short(share)} %", share, 0.05, kind="processor"),
            figures.Result("13b", "its wake-ups in a minute", figures.Short(wakes), wakes, 5, kind="count"),
            figures.Result("13c", "its memory", f"{figures.Short(memory)} MB", memory, 12, kind="MB")]


def _Ran(process):
    """Seconds for which a process has run."""
    with open(f"/proc/{process}/schedstat", encoding="ascii") as file:
        return int(file.read().split()[0]) / 1e9


def _Woken(process):
    return _Status(process, "voluntary_ctxt_switches")


def _Status(process, name):
    with open(f"/proc/{process}/status", encoding="ascii") as file:
        return next(int(line.split()[1]) for line in file if line.startswith(name + ":"))
