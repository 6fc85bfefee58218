"""A display without a screen, with a window manager, and what goes on on it."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import time

TOOLS = ("Xvfb", "matchbox-window-manager", "xdotool")
TIME_LIMIT = 60  # seconds; whatever takes longer hangs
MOMENT = 0.005


def missing_tools():
    return [tool for tool in TOOLS if not shutil.which(tool)]


@contextlib.contextmanager
def display(work):
    """Gives the server's process and the environment for programs on it."""
    reader, writer = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", "1400x1000x24", "-nolisten", "tcp"],
                              pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writer)
    with os.fdopen(reader) as numbers:
        number = numbers.readline().strip()
    runtime = pathlib.Path(work, "runtime")
    runtime.mkdir(mode=0o700, exist_ok=True)
    environment = dict(os.environ, DISPLAY=f":{number}", QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8", HOME=str(work),
                       XDG_CONFIG_HOME=str(work / "settings"), XDG_RUNTIME_DIR=str(runtime))
    manager = subprocess.Popen(["matchbox-window-manager"], env=environment, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    try:
        yield server, environment
    finally:
        for process in (manager, server):
            process.terminate()
            process.wait()


def runs(process):
    """Whether one of its threads has anything to do; None when it has ended."""
    try:
        for task in os.listdir(f"/proc/{process.pid}/task"):
            state = pathlib.Path(f"/proc/{process.pid}/task/{task}/stat").read_text(encoding="utf-8").rsplit(")", 1)[1]
            if state.split()[0] == "R":
                return True
            if state.split()[0] in "ZX":
                return None
    except (FileNotFoundError, ProcessLookupError):
        return None
    return False


def settle(*processes):
    """Returns when none of them has anything to do: a key that was sent before has been worked off. False when one of
    them has ended."""
    deadline = time.monotonic() + TIME_LIMIT
    quiet = 0
    while quiet < 3 and time.monotonic() < deadline:
        states = [runs(process) for process in processes]
        if None in states:
            return False
        quiet = 0 if True in states else quiet + 1
        time.sleep(MOMENT)
    return quiet == 3
