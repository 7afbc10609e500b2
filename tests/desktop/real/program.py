"""The desktop program on a profile of made-up days, seen through the accessibility tree and worked by real input."""

import json
import os
import pathlib
import subprocess
import time

import pyatspi
from gi.repository import GLib

import screens
from screens import WaitFor

BIN = pathlib.Path(os.environ["TEMPODIAL_NATIVE_BUILD"]) / "bin"
NOW = "2026-11-20T16:12:00"
DAYS = 5


def Children(node):
    return [child for child in (node.get_child_at_index(i) for i in range(node.get_child_count())) if child]


def Walk(node):
    """A node and all below it."""
    yield node
    for child in Children(node):
        yield from Walk(child)


def Box(node):
    """Left, top, width and height on the screen."""
    place = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return place.x, place.y, place.width, place.height


def Centre(node):
    left, top, width, height = Box(node)
    return left + width // 2, top + height // 2


def IsSeen(node):
    return node.getState().contains(pyatspi.STATE_SHOWING) and min(Box(node)[2:]) > 0


def Is(node, state):
    return node.getState().contains(state)


def Do(node, action):
    """Does an action of a node by its name."""
    actions = node.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    actions.doAction(names.index(action))


class Listener:
    """Hears events of the accessibility bus."""

    def __init__(self, *names):
        self.heard = []
        self.names = names
        pyatspi.Registry.registerEventListener(self._Take, *names)

    def _Take(self, event):
        try:
            self.heard.append((event.source, event.source.getRoleName(), event.source.name, event.detail1))
        except RuntimeError:
            # What it was about has gone.
            pass

    def Heard(self, fits, what):
        """The source of the first event whose role, name and detail fit."""
        def Look():
            while GLib.MainContext.default().iteration(False):
                pass
            return next((source for source, *about in self.heard if fits(*about)), None)
        return WaitFor(Look, what)

    def End(self):
        pyatspi.Registry.deregisterEventListener(self._Take, *self.names)


class Program:
    """A profile in a folder of its own, with the programs that work on it."""

    def __init__(self):
        self.folder = pathlib.Path(screens.Folder())
        self.profile = self.folder / "profile"
        self.environment = dict(os.environ, HOME=str(self.folder), XDG_CONFIG_HOME=str(self.folder / "config"),
                                TZ="UTC", LC_ALL="C.UTF-8")
        self.environment.setdefault("XDG_RUNTIME_DIR", str(self.folder))
        self.environment.pop("TEMPODIAL_PROFILE", None)
        self.process = None

    def Arguments(self, name, *arguments):
        return [BIN / name, "--profile", self.profile, "--locale", "en_GB", "--now", NOW, *arguments]

    def Run(self, *arguments, name="tempodial"):
        """A command on the profile, to its end."""
        return subprocess.run(self.Arguments(name, *arguments), env=self.environment, text=True, capture_output=True,
                              timeout=60, check=False)

    def Ask(self, *arguments):
        """What a command answers, as JSON."""
        return json.loads(self.Run("--json", *arguments).stdout)

    def MakeUpDays(self):
        self.Run("demo", "--days", str(DAYS))

    def Settings(self, text):
        """Writes the desktop program's settings, which it reads when it starts."""
        path = self.folder / "config/tempodial/desktop.toml"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def Start(self):
        """Starts the program."""
        self.process = screens.Start(*self.Arguments("tempodial-desktop"), environment=self.environment)

    def Open(self):
        """Starts it and waits for its window."""
        self.Start()
        self.Window()

    def Application(self):
        """The program in the tree, nothing while it isn't there."""
        for application in Children(pyatspi.Registry.getDesktop(0)):
            try:
                if application.get_process_id() == self.process.pid:
                    # What was seen once is asked for again each time.
                    application.set_cache_mask(0)
                    return application
            except RuntimeError:
                pass
        return None

    def Windows(self):
        application = self.Application()
        return Children(application) if application else []

    def Window(self, title="Tempodial"):
        """The window whose title has that part, once it is seen."""
        return WaitFor(lambda: next((window for window in self.Windows() if title in window.name and IsSeen(window)),
                                    None), f"the window {title!r}")

    def Find(self, role, name, within=None, isSeen=True):
        """What has that role and name, or a name that it is a part of when it ends with an ellipsis."""
        def Fits(node):
            isNamed = name[:-1] in node.name if name.endswith("*") else node.name == name
            return isNamed and node.getRoleName() == role and (not isSeen or IsSeen(node))

        def Look():
            try:
                return next((node for node in Walk(within or self.Window()) if Fits(node)), None)
            except (RuntimeError, LookupError):
                return None
        return WaitFor(Look, f"{role} {name!r}")

    def Agenda(self):
        return self.Find("table", "Activities")

    def Activities(self):
        """The activities in the tree, in the order in which it has them."""
        return [node for node in Children(self.Agenda()) if node.getRoleName() == "table cell"]

    def Activity(self, part):
        """The first activity whose name has that part."""
        return WaitFor(lambda: next((node for node in self.Activities() if part in node.name), None),
                       f"an activity {part!r}")

    def Ended(self, seconds=20):
        """The exit status, once it has ended."""
        WaitFor(lambda: self.process.poll() is not None, "the end of the program", seconds)
        return self.process.returncode


class Hand:
    """A person's hand on mouse and keys, under X11."""

    @staticmethod
    def _Do(*arguments):
        subprocess.run(["xdotool", *map(str, arguments)], check=True, timeout=20)
        # What is pressed is seen before the next is.
        time.sleep(0.1)

    def Click(self, place, button=1, times=1):
        self._Do("mousemove", *place)
        self._Do("click", "--repeat", times, "--delay", 60, button)

    def Drag(self, place, to):
        self._Do("mousemove", *place)
        self._Do("mousedown", 1)
        steps = 8
        for step in range(1, steps + 1):
            self._Do("mousemove", *(round(a + (b - a) * step / steps) for a, b in zip(place, to)))
        self._Do("mouseup", 1)

    def Keys(self, *keys):
        self._Do("key", "--delay", 60, *keys)

    @staticmethod
    def Front():
        """The process of the window in front, nothing while there is none."""
        answer = subprocess.run(["xdotool", "getactivewindow", "getwindowpid"], text=True, capture_output=True,
                                timeout=20, check=False).stdout.strip()
        return int(answer) if answer.isdigit() else None
