#!/usr/bin/env python3
"""No entry is lost without a word, whatever call for a file fails and wherever a save is killed.

Usage: faults_test.py PROGRAM SHIM PROJECT [--all] [--window DRIVER]

Without --all only some calls are tried; scripts/test-faults tries all of them. The table at the end counts what was tried and what went wrong.
"""

import argparse
import pathlib
import sys
import tempfile

import kills
import races
import random_kills
import read_faults
import write_faults
from command_runs import Bench

QUICK_STEP = 29
QUICK_KILLS, ALL_KILLS = 20, 1000
QUICK_RACES, ALL_RACES = 5, 70


def counted(name, trials):
    """Prints a line for the trials and gives what went wrong."""
    tried, wrong = 0, []
    for plan, problem in trials:
        tried += 1
        if problem:
            wrong.append(f"{name}: {plan}: {problem}")
    print(f"{name:<24} {tried:>6} tried {len(wrong):>6} wrong")
    return tried, wrong


def raced(bench, window, count):
    pairs = [("two commands", races.two_commands), ("command and editor", races.command_and_editor)]
    if window:
        pairs += [("window and command", races.window_and_command), ("window and editor", races.window_and_editor)]
    return [counted(name, races.trials(race, bench, window, count)) for name, race in pairs]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", type=pathlib.Path)
    parser.add_argument("shim", type=pathlib.Path)
    parser.add_argument("project", type=pathlib.Path)
    parser.add_argument("--all", action="store_true", help="every call")
    parser.add_argument("--window", type=pathlib.Path, help="the driver of the real window, for the races with it")
    options = parser.parse_args()
    every = 1 if options.all else QUICK_STEP
    with tempfile.TemporaryDirectory() as work:
        bench = Bench(options.program.resolve(), options.shim.resolve(), options.project, pathlib.Path(work).resolve())
        save = ["save", str(bench.copy), "--quiet"]
        results = [counted("read faults, save", read_faults.trials(bench, save, every)),
                   counted("write faults, save", write_faults.trials(bench, save, every)),
                   counted("kills, save", kills.trials(bench, save, every)),
                   counted("random kills", random_kills.trials(bench, ALL_KILLS if options.all else QUICK_KILLS))]
        results += raced(bench, options.window, ALL_RACES if options.all else QUICK_RACES)
    wrong = [line for _, lines in results for line in lines]
    print(*wrong, sep="\n", end="\n" if wrong else "")
    if any(tried == 0 for tried, _ in results):
        sys.exit("faults_test: nothing was tried")
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
