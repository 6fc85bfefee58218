#!/usr/bin/env python3
"""The window is killed at random moments while a script types into it: what was typed a second before is there again.

Usage: desktop_kills_test.py GLOSSMILL GLOSSMILL_CLI [--trials N] [--seed N]

Each trial opens a project three times. The first session is killed while its first texts are typed, the second one
while it applies what the first has left and goes on, and the last one gets a SIGTERM, which nothing may be lost by.
What is there is asked of the command line. Ends with 77 when a tool is missing.
"""

import argparse
import json
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

import display

STRINGS = 60
PROMISED = 1.0  # seconds within which a text is on the disk
LONGEST = 3.0  # seconds that a session is typed into
TOKENS = 12  # of one string


def make_project(directory):
    directory.mkdir()
    (directory / "App.xcodeproj").mkdir()
    (directory / "App.xcodeproj" / "project.pbxproj").write_text("main.m", encoding="utf-8")
    calls = "".join(f'NSLocalizedString(@"key {number}", @"");\n' for number in range(STRINGS))
    (directory / "main.m").write_text(calls, encoding="utf-8")
    (directory / "de.lproj").mkdir()
    (directory / "de.lproj" / "Localizable.strings").write_text("", encoding="utf-8")


class Typist(threading.Thread):
    """Types into one string after the other until the program has ended, and notes what has arrived when."""

    def __init__(self, trial, session, program):
        super().__init__()
        self.trial, self.session, self.program = trial, session, program
        self.arrived = []  # (moment, text of a string so far)
        self.random = random.Random(trial.random.random())

    def keys(self, *arguments):
        subprocess.run(["xdotool", *arguments], env=self.trial.environment, check=False, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        return display.settle(self.trial.server, self.program)

    def run(self):
        if self.session == 2 and not (self.keys("key", "F6") and self.keys("key", "Return")):
            return
        # Two strings of the former sessions at most are typed into once more.
        for _ in range(self.trial.typed):
            if not self.keys("key", "alt+Down"):
                return
        while self.program.poll() is None and self.trial.typed < STRINGS - 1:
            if not self.keys("key", "alt+Down"):
                return
            self.trial.typed += 1
            if not self.type_one():
                return

    def type_one(self):
        text = f"s{self.session}n{self.trial.typed}"
        if not self.keys("type", "--delay", "1", text):
            return False
        for token in range(self.random.randrange(1, TOKENS)):
            self.arrived.append((time.monotonic(), text))
            word = f"x{token}"
            if not self.keys("type", "--delay", "1", word):
                return False
            text += word
        self.arrived.append((time.monotonic(), text))
        return True


class Trial:
    def __init__(self, options, server, environment, work, seed):
        self.options, self.server = options, server
        self.random = random.Random(seed)
        self.project = work / "App"
        self.state = work / "state"
        self.environment = dict(environment, XDG_STATE_HOME=str(self.state))
        self.typed = 0
        self.known = {}  # the beginning that makes a text known: what has to be there of it
        make_project(self.project)

    def start(self):
        program = subprocess.Popen([str(self.options.program), str(self.project)], env=self.environment,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        deadline = time.monotonic() + display.TIME_LIMIT
        while not self.shows_project(program):
            if time.monotonic() > deadline:
                raise TimeoutError("the window does not come")
        display.settle(self.server, program)
        return program

    def shows_project(self, program):
        """The search fails, too, when another window goes away meanwhile."""
        search = ["xdotool", "search", "--onlyvisible", "--pid", str(program.pid), "--name", "^App"]
        return subprocess.run(search, env=self.environment, check=False, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL).returncode == 0

    def session(self, number, how):
        """Gives what went wrong, or None."""
        program = self.start()
        typist = Typist(self, number, program)
        typist.start()
        time.sleep(self.random.uniform(0.1, LONGEST))
        if how == signal.SIGTERM:
            self.typed = STRINGS  # comes to an end of its own, so that it is known what has arrived
            typist.join(display.TIME_LIMIT)
        moment = time.monotonic()
        program.send_signal(how)
        code = program.wait(display.TIME_LIMIT)
        typist.join(display.TIME_LIMIT)
        if how == signal.SIGTERM and code != 128 + how:
            return f"session {number} ended with {code}"
        return self.judged(number, typist.arrived, moment - (PROMISED if how == signal.SIGKILL else 0))

    def judged(self, number, arrived, until):
        for moment, text in arrived:
            if moment <= until:
                self.known[text.split("x")[0]] = text
        texts = self.kept_texts()
        for beginning, text in self.known.items():
            if not any(kept.startswith(text) for kept in texts if kept.split("x")[0] == beginning):
                return f"session {number}: {text!r} is lost; there is {texts}"
        return None

    def kept_texts(self):
        run = subprocess.run([str(self.options.cli), "recover", "--quiet", "--json", str(self.project)],
                             env=self.environment, capture_output=True, check=True)
        return [edit["unsaved"] or "" for edit in json.loads(run.stdout)["edits"]]

    def run(self):
        for number, how in ((1, signal.SIGKILL), (2, signal.SIGKILL), (3, signal.SIGTERM)):
            problem = self.session(number, how)
            if problem:
                return problem
        return None


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", type=pathlib.Path)
    parser.add_argument("cli", type=pathlib.Path)
    parser.add_argument("--trials", type=int, default=2)
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    missing = display.missing_tools()
    if missing:
        print("missing:", *missing)
        sys.exit(77)
    wrong, texts = [], 0
    with tempfile.TemporaryDirectory() as name:
        work = pathlib.Path(name).resolve()
        with display.display(work) as (server, environment):
            for number in range(options.trials):
                folder = work / "trial"
                folder.mkdir()
                trial = Trial(options, server, environment, folder, options.seed + number)
                problem = trial.run()
                texts += len(trial.known)
                wrong += [f"trial with --seed {options.seed + number}: {problem}"] if problem else []
                shutil.rmtree(folder)
    print(*wrong, sep="\n", end="\n" if wrong else "")
    print(f"{'kills, window':<24} {options.trials:>6} tried {len(wrong):>6} wrong, {texts} texts looked for")
    if texts == 0:
        sys.exit("desktop_kills_test: nothing was typed")
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
