"""A headless Chromium, worked over a pipe by the DevTools protocol."""

import collections
import json
import os
import select
import shutil
import subprocess
import tempfile
import time

NAMES = ("chromium", "chromium-browser", "google-chrome")

FLAGS = ("--headless", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
         "--disable-component-update", "--disable-sync", "--disable-default-apps", "--disable-extensions",
         "--hide-scrollbars", "--remote-debugging-pipe")

# The browser reads commands from this descriptor and writes answers and events to the next one.
COMMANDS = 3
ANSWERS = 4


class BrowserError(Exception):
    """The browser is absent, died, was silent for too long or refused a command."""


def Find():
    """The path of a Chromium."""
    for name in NAMES:
        path = shutil.which(name)
        if path:
            return path
    raise BrowserError("no Chromium is installed: install the package chromium")


class Browser:
    """A running browser with a profile of its own; use it in a with statement."""

    def __init__(self, seconds=30):
        self.seconds = seconds
        self.events = collections.deque()
        self._answers = {}
        self._last = 0
        self._rest = b""

    def __enter__(self):
        self._profile = tempfile.mkdtemp(prefix="browser-check-")
        commandsOut, self._in = os.pipe()
        self._out, answersIn = os.pipe()
        # The shell puts the pipes, of whatever number, where the browser looks for them.
        place = f'exec "$0" "$@" {COMMANDS}<&{commandsOut} {ANSWERS}>&{answersIn}'
        flags = list(FLAGS) + ["--user-data-dir=" + self._profile]
        if os.geteuid() == 0:
            flags.append("--no-sandbox")
        self._process = subprocess.Popen(["bash", "-c", place, Find()] + flags, stdin=subprocess.DEVNULL,
                                         stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                         pass_fds=(commandsOut, answersIn))
        os.close(commandsOut)
        os.close(answersIn)
        return self

    def __exit__(self, *_):
        try:
            self.Call("Browser.close")
        except BrowserError:
            self._process.kill()
        try:
            self._process.wait(self.seconds)
        except subprocess.TimeoutExpired:
            self._process.kill()
            self._process.wait()
        os.close(self._in)
        os.close(self._out)
        shutil.rmtree(self._profile, ignore_errors=True)

    def Call(self, method, session=None, **parameters):
        """Runs a command and answers its result."""
        number = self._Send(method, session, parameters)
        deadline = time.monotonic() + self.seconds
        while number not in self._answers:
            self._Read(deadline)
        answer = self._answers.pop(number)
        if "error" in answer:
            raise BrowserError(f"{method}: {answer['error'].get('message')}")
        return answer["result"]

    def Wait(self, method, session):
        """Waits until an event has come, and answers what it tells; earlier ones count."""
        deadline = time.monotonic() + self.seconds
        while True:
            for event in self.events:
                if event["method"] == method and event.get("sessionId") == session:
                    return event["params"]
            self._Read(deadline)

    def _Send(self, method, session, parameters):
        self._last += 1
        message = {"id": self._last, "method": method, "params": parameters}
        if session:
            message["sessionId"] = session
        try:
            os.write(self._in, json.dumps(message).encode() + b"\0")
        except OSError as error:
            raise BrowserError(f"the browser is gone: {error}") from error
        return self._last

    def _Read(self, deadline):
        if not select.select([self._out], [], [], max(0.0, deadline - time.monotonic()))[0]:
            raise BrowserError("the browser is silent")
        data = os.read(self._out, 1 << 20)
        if not data:
            raise BrowserError("the browser has ended")
        *messages, self._rest = (self._rest + data).split(b"\0")
        for text in messages:
            message = json.loads(text)
            if "id" in message:
                self._answers[message["id"]] = message
                continue
            self.events.append(message)
            if message["method"] == "Page.javascriptDialogOpening":
                # The page waits for it, and so would every command.
                self._Send("Page.handleJavaScriptDialog", message.get("sessionId"), {"accept": False})
