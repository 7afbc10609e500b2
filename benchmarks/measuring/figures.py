"""Medians, ratios, and the verdict on a goal."""

import math

HELD = "held"
NOT_HELD = "NOT HELD"
NOT_MEASURED = "not measured"


def Median(values):
    """The middle of some numbers, between the middle two when their number is even."""
    ordered = sorted(values)
    if not ordered:
        raise ValueError("no values")
    middle = len(ordered) // 2
    return ordered[middle] if len(ordered) % 2 else (ordered[middle - 1] + ordered[middle]) / 2


def Ratio(values, others):
    """The ratio of two medians; infinite when the second is nothing."""
    below = Median(others)
    return Median(values) / below if below else math.inf


def Exponent(small, large, times):
    """The power of the size with which a cost grows, from the costs at one size and at so many times that."""
    return math.log(Median(large) / Median(small)) / math.log(times)


class Result:
    """One line of the table: a goal, what was measured, the figure that the goal is about, and its bound."""

    def __init__(self, goal, measured, figures, value, bound, least=False, kind=""):
        self.goal = goal
        self.measured = measured
        self.figures = figures
        self.value = value
        self.bound = bound
        self.least = least
        self.kind = kind

    def Verdict(self):
        if self.value is None:
            return NOT_MEASURED
        return HELD if (self.value >= self.bound if self.least else self.value <= self.bound) else NOT_HELD

    def ValueText(self):
        return "-" if self.value is None else Short(self.value)

    def BoundText(self):
        return ("at least " if self.least else "at most ") + Short(self.bound)

    def Row(self):
        return [self.goal, self.measured, self.figures, self.ValueText(), self.BoundText(), self.kind, self.Verdict()]


def NotMeasured(goal, measured, why):
    """The line of a goal that couldn't be measured, with the reason."""
    return Result(goal, measured, why, None, 0)


def Short(number):
    """A number with three digits that count."""
    if number == 0 or not math.isfinite(number):
        return str(number)
    digits = max(0, 2 - math.floor(math.log10(abs(number))))
    return f"{number:.{digits}f}"


def Seconds(seconds):
    """A time in the unit that suits it."""
    for limit, factor, unit in ((1, 1, "s"), (1e-3, 1e3, "ms"), (0, 1e6, "µs")):
        if seconds >= limit:
            return f"{Short(seconds * factor)} {unit}"
    return f"{seconds} s"


def Table(results):
    """The table of results, with columns as wide as they need."""
    rows = [["goal", "measured", "figures", "value", "goal is", "by", "verdict"]]
    rows += [result.Row() for result in results]
    widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]))]
    return "\n".join("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip() for row in rows)
