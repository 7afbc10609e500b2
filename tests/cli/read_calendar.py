"""Prints as JSON what another program reads in a calendar file: its head, its events, and what is wrong with its lines."""

import json
import sys

import icalendar

TEXTS = ("UID", "SUMMARY", "DESCRIPTION", "TRANSP", "X-TEMPODIAL-APPLICATION", "X-TEMPODIAL-DESCRIPTION",
         "X-TEMPODIAL-PEOPLE")
MOMENTS = ("DTSTART", "DTEND", "DTSTAMP", "LAST-MODIFIED")


def Event(component):
    """The properties of an event; moments as text, which has an offset unless the time is that of the wall clock."""
    event = {name: str(component[name]) for name in TEXTS if name in component}
    event.update((name, component[name].dt.isoformat()) for name in MOMENTS if name in component)
    if "CATEGORIES" in component:
        event["CATEGORIES"] = [str(category) for category in component["CATEGORIES"].cats]
    return event


def Findings(raw):
    """What the format doesn't allow: bare line ends, long lines, control characters."""
    lines = raw.split(b"\r\n")
    found = [f"{len(line)} bytes in a line" for line in lines if len(line) > 75]
    found += [f"control character in {line}" for line in lines if any(byte < 32 or byte == 127 for byte in line)]
    return found


def Main(path):
    with open(path, "rb") as stream:
        raw = stream.read()
    calendar = icalendar.Calendar.from_ical(raw)
    json.dump({
        "version": str(calendar["VERSION"]),
        "prodid": str(calendar["PRODID"]),
        "name": str(calendar["X-WR-CALNAME"]),
        "errors": [error for component in calendar.walk() for error in component.errors],
        "findings": Findings(raw),
        "events": [Event(component) for component in calendar.walk("VEVENT")],
    }, sys.stdout)


if __name__ == "__main__":
    Main(sys.argv[1])
