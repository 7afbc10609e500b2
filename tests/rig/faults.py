"""The calls of the add-in that can be made to fail, as src/faults names them."""

import glob
import json
import os
import re

CLASS = re.compile(r"\n(?=(?:template <[^>]*> )?class )")
HEAD = re.compile(r"(?:template <[^>]*> )?class (\w+)[^{]*?<(\w+)>")
NAME = re.compile(r'struct ClassNames<(\w+)>\s*\{\s*static constexpr std::string_view All\[\] \{ "(\w+)"')
MEMBER = re.compile(r'\w+\(\{? ?"([A-Z]\w+)"')
# What classes are called that others are made of.
SHARED = {"InterposedControl": "CommandBarControl", "InterposedItem": "OutlookItem", "InterposedXml": "XmlNode"}
# Calls that the journal of imports has, which only the host knows; and events that automation connects by an older
# interface when the newer is refused, so that nothing fails.
ELSEWHERE = re.compile(r"ImportJournal\.|(Application|Explorer|Inspector|AppointmentItem)\.Subscribe$")
# How automation says that events can't be connected, whatever the reason.
NO_EVENTS = 438
# How many calls pass before the one that fails.
SKIPS = (0, 3)


def Calls(root):
    """All calls as `Class.Member` that both hosts have."""
    texts = []
    for path in sorted(glob.glob(os.path.join(root, "src", "faults", "Interposed*.cpp"))):
        with open(path, encoding="utf-8") as source:
            texts.append(source.read())
    names = dict(pair for text in texts for pair in NAME.findall(text))
    calls = set()
    for text in texts:
        for part in CLASS.split(text):
            head = HEAD.match(part)
            name = head and (names.get(head.group(2)) or SHARED.get(head.group(1)))
            if name:
                calls.update(f"{name}.{member}" for member in MEMBER.findall(part.split("\n};")[0]))
    return sorted(call for call in calls if not ELSEWHERE.match(call))


def WithFaults(commands, root, step):
    """The same commands with one call failing in each, of every so many: what fails, and the commands."""
    planned = [(call, skip) for skip in SKIPS for call in Calls(root)]
    for call, skip in planned[::step]:
        fault = {"do": "fail", "call": call, "skip": skip}
        if call.endswith(".Subscribe"):
            fault["number"] = NO_EVENTS
        yield f"{call} after {skip}", json.dumps(fault) + "\n" + commands
