"""Runs a command on a fresh copy of a project, with faults or without, and tells what became of it."""

import os
import pathlib
import subprocess

from project_state import State, fresh_copy

TIME_LIMIT = 60  # seconds; a command that takes longer hangs


class Outcome:
    def __init__(self, code, stdout, stderr, state, trace):
        self.code, self.stdout, self.stderr, self.state, self.trace = code, stdout, stderr, state, trace


class Bench:
    """A project to copy, a place to work in, and the program under test."""

    def __init__(self, program, shim, project, work):
        self.program, self.shim, self.project = str(program), str(shim), pathlib.Path(project)
        self.work = pathlib.Path(work)
        self.copy = self.work / "project"
        self.state_home = self.work / "state"

    def environment(self, plan="", command="", trace=None):
        environment = dict(os.environ, XDG_STATE_HOME=str(self.state_home), LC_ALL="C.UTF-8")
        environment.update(LD_PRELOAD=self.shim, FAULTS_ROOT=f"{self.copy}:{self.state_home}", FAULTS_PLAN=plan,
                           FAULTS_COMMAND=command)
        if trace:
            environment["FAULTS_TRACE"] = str(trace)
        return environment

    def prepare(self):
        fresh_copy(self.project, self.copy)
        if self.state_home.exists():
            fresh_copy(self.empty(), self.state_home)

    def empty(self):
        path = self.work / "empty"
        path.mkdir(exist_ok=True)
        return path

    def start(self, arguments, plan="", command="", trace=None):
        return subprocess.Popen([self.program, *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, env=self.environment(plan, command, trace))

    def finish(self, process, trace=None):
        try:
            stdout, stderr = process.communicate(timeout=TIME_LIMIT)
        except subprocess.TimeoutExpired:
            process.kill()
            stdout, stderr = process.communicate()
            return Outcome("hangs", stdout, stderr, State(self.copy), [])
        lines = trace.read_text().splitlines() if trace and trace.exists() else []
        return Outcome(process.returncode, stdout.decode(errors="replace"), stderr.decode(errors="replace"),
                       State(self.copy), lines)

    def run(self, arguments, plan="", command="", traced=False, again=False):
        """One run; on a fresh copy unless it is to go on where the last one ended."""
        if not again:
            self.prepare()
        trace = self.work / "trace" if traced else None
        if trace:
            trace.unlink(missing_ok=True)
        return self.finish(self.start(arguments, plan, command, trace), trace)
