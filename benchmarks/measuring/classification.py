"""Goal 9: finding the project of a subject."""

from . import figures

# Microseconds that a subject may cost, by the number of rules.
BOUNDS = {50: 0.7, 500: 4.5}


def Measure(programs, rounds):
    """The median of runs, each of which measures many rounds itself."""
    times = {rules: [] for rules in BOUNDS}
    answer = programs.Path("classification.txt")
    for _ in range(rounds):
        programs.Other("bench-classification", output=answer)
        with open(answer, encoding="utf-8") as text:
            for line in text:
                rules, time = line.split()
                times[int(rules)].append(float(time))
    return [figures.Result("9a" if rules == 50 else "9b", f"classification of a subject against {rules} rules",
                           f"{figures.Short(figures.Median(values))} µs", figures.Median(values), BOUNDS[rules],
                           kind="µs") for rules, values in times.items()]
