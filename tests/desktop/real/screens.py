"""A desktop without a screen for the tests here: a server of X11 with a window manager, or one of Wayland."""

import atexit
import os
import shutil
import subprocess
import tempfile
import time


class Gone(Exception):
    """Something that was waited for did not come."""


def WaitFor(find, what, seconds=20):
    """What `find` answers as soon as it is true; fails with `Gone` when that takes too long."""
    end = time.monotonic() + seconds
    while True:
        found = find()
        if found:
            return found
        if time.monotonic() > end:
            raise Gone(f"{what} didn't come within {seconds} s")
        time.sleep(0.05)


def Start(*command, environment=None, **more):
    """Starts a program that ends with the test program at the latest."""
    process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL, **more)
    atexit.register(End, process)
    return process


def End(process):
    if process.poll() is None:
        process.kill()
    process.wait()


def Folder():
    """A folder that goes at the end."""
    folder = tempfile.mkdtemp(prefix="tempodial-desktop-")
    atexit.register(shutil.rmtree, folder, True)
    return folder


def StartX11():
    """Starts a server and a window manager; what is started later is shown there."""
    os.environ.pop("WAYLAND_DISPLAY", None)
    reading, writing = os.pipe()
    Start("Xvfb", "-displayfd", str(writing), "-screen", "0", "1440x900x24", "-noreset", "-nolisten", "tcp",
          pass_fds=[writing])
    os.close(writing)
    with os.fdopen(reading) as number:
        os.environ["DISPLAY"] = ":" + number.readline().strip()
    os.environ["QT_QPA_PLATFORM"] = "xcb"
    Start("openbox", "--sm-disable")
    WaitFor(lambda: "window id" in subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], text=True,
                                                  capture_output=True, check=False).stdout, "the window manager")
    StartAccess()


def StartWayland():
    """Starts a compositor without a screen; what is started later is shown there."""
    os.environ.pop("DISPLAY", None)
    folder = Folder()
    os.environ["XDG_RUNTIME_DIR"] = folder
    Start("weston", "--backend=headless-backend.so", "--width=1440", "--height=900", "--socket=wayland-tempodial",
          "--idle-time=0", "--no-config")
    WaitFor(lambda: os.path.exists(os.path.join(folder, "wayland-tempodial")), "the compositor")
    os.environ["WAYLAND_DISPLAY"] = "wayland-tempodial"
    os.environ["QT_QPA_PLATFORM"] = "wayland"
    StartAccess()


def StartAccess():
    """Starts the bus on which assistive programs see others."""
    os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
    for launcher in ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher"):
        if os.path.exists(launcher):
            Start(launcher, "--launch-immediately")
            return
    raise Gone("at-spi2-core isn't installed, so its bus")


def Beside(name):
    """The path of a file beside this one."""
    return os.path.join(os.path.dirname(os.path.abspath(__file__)), name)
