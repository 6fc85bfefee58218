"""Running programs against the clock, and saying whether a target was reached."""

import os
import statistics
import subprocess
import sys
import time
from dataclasses import dataclass


class CannotRun(Exception):
    pass


@dataclass
class Run:
    seconds: float
    peak_bytes: int


def measured(command, accepted=(0,)):
    """Runs a command with its output thrown away. The peak is never below that of this small process."""
    silence = [(os.POSIX_SPAWN_OPEN, stream, os.devnull, os.O_RDWR, 0) for stream in (0, 1, 2)]
    begin = time.perf_counter()
    pid = os.posix_spawnp(command[0], command, os.environ, file_actions=silence)
    _, status, usage = os.wait4(pid, 0)
    seconds = time.perf_counter() - begin
    code = os.waitstatus_to_exitcode(status)
    if code not in accepted:
        raise CannotRun(f"exit code {code} from: {' '.join(command[:8])}")
    unit = 1 if sys.platform == "darwin" else 1024
    return Run(seconds, usage.ru_maxrss * unit)


def interleaved(commands, rounds, warmed=False):
    """The runs of each named command; one after the other in every round, so that a slow moment meets them all.

    Warmed: each is run twice and the second counts. What a process leaves free a virtual machine may give back to its
    host within seconds, and getting a GiB again takes a second, which would be counted against the largest command.
    """
    runs = {name: [] for name in commands}
    for _ in range(rounds):
        for name, command in commands.items():
            if warmed:
                measured(command)
            runs[name].append(measured(command))
    return runs


def median_seconds(runs):
    return statistics.median(run.seconds for run in runs)


def median_peak(runs):
    return statistics.median(run.peak_bytes for run in runs)


def counted_in_output(command, words):
    """How often each word stands in what a command prints, which may be far too much to hold."""
    counts = [0] * len(words)
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as process:
        rest = b""
        while chunk := process.stdout.read(1 << 20):
            for index, word in enumerate(words):
                # What is carried over is shorter than the word, so nothing counts twice.
                counts[index] += (rest[1 - len(word) :] + chunk).count(word)
            rest = chunk[-64:]
    return counts


class Report:
    """Prints rows and remembers whether anything was missed."""

    def __init__(self):
        self.missed = 0

    def verdict(self, ok):
        self.missed += not ok
        return "reached" if ok else "MISSED"

    def at_most(self, what, value, limit, unit):
        print(f"    {what:<34}{value:>10.2f} {unit:<7} at most {limit:>5g}   {self.verdict(value <= limit)}")

    def at_least(self, what, value, limit, unit):
        print(f"    {what:<34}{value:>10.2f} {unit:<7} at least {limit:>4g}   {self.verdict(value >= limit)}")

    def result(self, found, expected):
        ok = found == expected
        self.missed += not ok
        print("    result: " + (f"right ({expected})" if ok else f"WRONG ({found}; expected {expected})"))
