"""Running programs and what they cost."""

import os
import time


class Cost:
    """What a run cost: seconds by the clock, seconds of the processor in program and system, and the peak of memory in
    bytes."""

    def __init__(self, wall, cpu, peak):
        self.wall = wall
        self.cpu = cpu
        self.peak = peak


class RunError(Exception):
    """A program that is measured failed."""


def Run(command, environment=None, output=os.devnull, errors=os.devnull, accepted=(0,)):
    """Runs a program to its end and answers its cost; its output goes to a file."""
    actions = [(os.POSIX_SPAWN_OPEN, 0, os.devnull, os.O_RDONLY, 0),
               (os.POSIX_SPAWN_OPEN, 1, output, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600),
               (os.POSIX_SPAWN_OPEN, 2, errors, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600)]
    everything = dict(os.environ, **(environment or {}))
    start = time.perf_counter()
    process = os.posix_spawnp(command[0], [str(word) for word in command], everything, file_actions=actions)
    _, status, usage = os.wait4(process, 0)
    wall = time.perf_counter() - start
    code = os.waitstatus_to_exitcode(status)
    if code not in accepted:
        raise RunError(f"{' '.join(str(word) for word in command)} ended with {code}")
    return Cost(wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss * 1024)


def Rounds(count, *runs):
    """Runs functions one after the other, again and again, and answers a list of the costs of each. What is compared
    so meets the same neighbours."""
    costs = [[] for _ in runs]
    for _ in range(count):
        for run, list_ in zip(runs, costs):
            list_.append(run())
    return costs


def Walls(costs):
    return [cost.wall for cost in costs]


def Cpus(costs):
    return [cost.cpu for cost in costs]
