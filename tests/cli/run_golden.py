#!/usr/bin/env python3
"""Runs glossmill-cli on golden cases and compares what it prints, its exit code and the files it leaves behind.

A case is a folder:
  input/           the project; a copy of it, named App, is what the command works on
  input-of         or the name of the case whose input/ is used
  command          the arguments; $INPUT stands for the copy's absolute path, and the copy lies in the working directory
  env              optional: NAME=VALUE lines
  terminal         optional: when this file exists, standard output is a terminal
  expected-stdout  with $INPUT for the copy's path and $WORK for the working directory's
  expected-stderr  optional: without it standard error is not compared
  expected-exit    optional: without it the exit code is 0
  expected-tree/   optional: the copy afterwards; without it nothing in the copy may have changed

Git keeps no empty directories, so .gitkeep in an expected tree stands for nothing.
"""

import argparse
import difflib
import filecmp
import os
import pathlib
import pty
import shlex
import shutil
import subprocess
import sys
import tempfile
import termios

MOST_DIFF_LINES = 30
TIME_LIMIT = 60  # seconds; only a program that hangs gets there
KEEP = ".gitkeep"


class Case:
    def __init__(self, folder):
        self.folder = folder
        shared = folder / "input-of"
        owner = folder.parent / shared.read_text(encoding="utf-8").strip() if shared.exists() else folder
        self.input = owner / "input"
        if not self.input.is_dir():
            raise SystemExit(f"{folder.name}: {self.input} is no directory")

    def text(self, name, default=""):
        path = self.folder / name
        return path.read_bytes().decode("utf-8") if path.exists() else default

    def environment(self):
        inherited = {name: value for name, value in os.environ.items() if name not in ("NO_COLOR", "TERM")}
        lines = self.text("env").splitlines()
        return inherited | {"TERM": "xterm"} | dict(line.split("=", 1) for line in lines if line)


class Outcome:
    """What one run printed, its exit code, and where its copy of the project lies."""

    def __init__(self, code, stdout, stderr, tree):
        self.code, self.tree = code, tree
        self.stdout, self.stderr = (self.portable(output) for output in (stdout, stderr))

    def portable(self, output):
        return output.decode("utf-8").replace(str(self.tree), "$INPUT").replace(str(self.tree.parent), "$WORK")


def read_terminal(descriptor):
    """Everything that comes out of a terminal until its last writer is gone, which Linux reports as an error."""
    output = b""
    while True:
        try:
            chunk = os.read(descriptor, 65536)
        except OSError:
            return output
        if not chunk:
            return output
        output += chunk


def run_on_terminal(command, **options):
    reader, writer = pty.openpty()
    attributes = termios.tcgetattr(writer)
    attributes[1] &= ~termios.OPOST  # line feeds come out as they went in
    termios.tcsetattr(writer, termios.TCSANOW, attributes)
    with tempfile.TemporaryFile() as messages, subprocess.Popen(
        command, stdout=writer, stderr=messages, **options
    ) as process:
        os.close(writer)
        stdout = read_terminal(reader)
        os.close(reader)
        code = process.wait(TIME_LIMIT)
        messages.seek(0)
        return code, stdout, messages.read()


def run_on_pipes(command, **options):
    run = subprocess.run(command, capture_output=True, timeout=TIME_LIMIT, check=False, **options)
    return run.returncode, run.stdout, run.stderr


def run(cli, case, work):
    tree = work / "App"
    shutil.copytree(case.input, tree, symlinks=True)
    arguments = [word.replace("$INPUT", str(tree)) for word in shlex.split(case.text("command"))]
    runner = run_on_terminal if (case.folder / "terminal").exists() else run_on_pipes
    environment = case.environment() | {"XDG_STATE_HOME": str(work / "state")}
    code, stdout, stderr = runner([cli, *arguments], cwd=work, env=environment, stdin=subprocess.DEVNULL)
    return Outcome(code, stdout, stderr, tree)


def diff(name, expected, actual):
    lines = list(difflib.unified_diff(expected.splitlines(), actual.splitlines(), "expected", "actual", "", "", 2, ""))
    more = [f"… and {len(lines) - MOST_DIFF_LINES} lines more"] if len(lines) > MOST_DIFF_LINES else []
    ending = [] if lines else ["only the line ends differ"]
    return [f"{name} is another:", *lines[:MOST_DIFF_LINES], *more, *ending]


def entries(tree):
    """Path below the tree to entry, without the files that only keep directories."""
    return {path.relative_to(tree).as_posix(): path for path in sorted(tree.rglob("*")) if path.name != KEEP}


def tree_differences(expected, actual):
    wanted, found = entries(expected), entries(actual)
    for name in sorted(wanted.keys() - found.keys()):
        yield f"{name} is missing"
    for name in sorted(found.keys() - wanted.keys()):
        yield f"{name} should not be there"
    for name in sorted(wanted.keys() & found.keys()):
        yield from entry_differences(name, wanted[name], found[name])


def entry_differences(name, wanted, found):
    if (wanted.is_dir(), wanted.is_symlink()) != (found.is_dir(), found.is_symlink()):
        yield f"{name} is of another kind"
    elif wanted.is_file() and not filecmp.cmp(wanted, found, shallow=False):
        yield from diff(name, wanted.read_text("utf-8", "backslashreplace"), found.read_text("utf-8", "backslashreplace"))


def differences(case, outcome):
    expected_code = int(case.text("expected-exit", "0"))
    if outcome.code != expected_code:
        yield f"exit code {outcome.code}, expected {expected_code}"
        yield outcome.stderr
    if outcome.stdout != case.text("expected-stdout"):
        yield from diff("standard output", case.text("expected-stdout"), outcome.stdout)
    if (case.folder / "expected-stderr").exists() and outcome.stderr != case.text("expected-stderr"):
        yield from diff("standard error", case.text("expected-stderr"), outcome.stderr)
    tree = case.folder / "expected-tree"
    yield from tree_differences(tree if tree.exists() else case.input, outcome.tree)


def rewrite(case, outcome):
    """Takes what came out for what is expected, to be looked at before it is kept."""
    (case.folder / "expected-stdout").write_bytes(outcome.stdout.encode("utf-8"))
    if (case.folder / "expected-stderr").exists():
        (case.folder / "expected-stderr").write_bytes(outcome.stderr.encode("utf-8"))
    code = case.folder / "expected-exit"
    code.unlink(missing_ok=True)
    if outcome.code:
        code.write_text(f"{outcome.code}\n", encoding="utf-8")
    rewrite_tree(case, outcome)


def rewrite_tree(case, outcome):
    tree = case.folder / "expected-tree"
    shutil.rmtree(tree, ignore_errors=True)
    if not any(tree_differences(case.input, outcome.tree)):
        return
    shutil.copytree(outcome.tree, tree, symlinks=True)
    for directory in [path for path in tree.rglob("*") if path.is_dir() and not any(path.iterdir())]:
        (directory / KEEP).touch()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--cli", required=True, type=pathlib.Path, help="the program to run")
    parser.add_argument("--rewrite", action="store_true", help="make the outcome the expected one")
    parser.add_argument("cases", nargs="+", type=pathlib.Path, help="folders of cases")
    options = parser.parse_args()
    failed = 0
    for folder in options.cases:
        case = Case(folder.resolve())
        with tempfile.TemporaryDirectory() as work:
            outcome = run(str(options.cli.resolve()), case, pathlib.Path(work).resolve())
            if options.rewrite:
                rewrite(case, outcome)
                continue
            problems = list(differences(case, outcome))
        if problems:
            failed += 1
            print(f"{case.folder.name}: glossmill-cli {case.text('command').strip()}", *problems, sep="\n")
    sys.exit(f"{failed} of {len(options.cases)} cases failed" if failed else 0)


if __name__ == "__main__":
    main()
