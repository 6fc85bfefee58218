"""Two write at once: the window and a command, or a program and an editor. Whoever is told that it was saved finds its words in the file."""

import os
import random
import subprocess
import time

from project_state import entries_of

TIME_LIMIT = 60  # seconds
LATEST = 0.12  # seconds by which the second comes later, or the first
LANGUAGE = "pt-BR"
STRINGS = "Resources/pt-BR.lproj/Localizable.strings"
BY_WINDOW = ("Arrivals", "by the window")
BY_COMMAND = ("Draught", "by the command")
BY_EDITOR = ("Berths", "by the editor")


def entries(bench):
    return entries_of((bench.copy / STRINGS).read_bytes())


def without(bench, *keys):
    """Takes the entries out of the file, so that somebody can add them."""
    path = bench.copy / STRINGS
    lines = path.read_text().splitlines(keepends=True)
    path.write_text("".join(line for line in lines if not any(line.startswith(f'"{key}"') for key in keys)))


def edit(bench, key, text):
    """As an editor does: reads, replaces one value, and puts a new file in the place of the old one."""
    path = bench.copy / STRINGS
    lines = path.read_text().splitlines(keepends=True)
    changed = [f'"{key}" = "{text}";\n' if line.startswith(f'"{key}"') else line for line in lines]
    beside = path.with_name("editor~")
    beside.write_text("".join(changed))
    os.replace(beside, path)


class Window:
    """The window on the project, ready to store and save."""

    def __init__(self, bench, driver):
        environment = dict(bench.environment(), QT_QPA_PLATFORM="offscreen", HOME=str(bench.work))
        environment.pop("LD_PRELOAD")
        self.process = subprocess.Popen([str(driver), str(bench.copy), LANGUAGE, *BY_WINDOW], env=environment, text=True,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        if self.process.stdout.readline().strip() != "ready":
            raise RuntimeError("the window does not open")

    def save(self):
        self.process.stdin.write("\n")
        self.process.stdin.flush()

    def saved(self):
        stdout, _ = self.process.communicate(timeout=TIME_LIMIT)
        word = stdout.strip()
        if word not in ("saved", "refused"):
            raise RuntimeError(f"the window says {word!r}")
        return word == "saved"


def start_import(bench):
    text = bench.work / "import.txt"
    text.write_text(f"\n--- 0 ---\n/* */\n{BY_COMMAND[0]}\n{BY_COMMAND[1]}\n\n")
    return bench.start(["import", str(bench.copy), "--language", LANGUAGE, str(text), "--quiet"])


def wait_a_little(number, moment):
    delay = random.Random(number).uniform(-LATEST, LATEST)
    if (delay > 0) == moment:
        time.sleep(abs(delay))


def missing(bench, claims):
    """What somebody was told to be saved and is not there."""
    found = entries(bench)
    return [name for name, is_claimed, (key, text) in claims if is_claimed and found.get(key) != text]


def window_and_command(bench, driver, number):
    bench.prepare()
    without(bench, BY_WINDOW[0], BY_COMMAND[0])
    window = Window(bench, driver)
    wait_a_little(number, False)
    command = start_import(bench)
    wait_a_little(number, True)
    window.save()
    code = bench.finish(command).code
    saved = window.saved()
    if not saved and code != 0:
        return "neither got through"
    lost = missing(bench, [("window", saved, BY_WINDOW), ("command", code == 0, BY_COMMAND)])
    return f"lost what was saved by: {lost}" if lost else None


def window_and_editor(bench, driver, number):
    bench.prepare()
    without(bench, BY_WINDOW[0])
    window = Window(bench, driver)
    window.save()
    time.sleep(random.Random(number).uniform(0, LATEST / 4))
    edit(bench, *BY_EDITOR)
    saved = window.saved()
    found = entries(bench)
    return "lost the editor's words" if saved and found.get(BY_EDITOR[0]) != BY_EDITOR[1] else None


def command_and_editor(bench, _, number):
    bench.prepare()
    without(bench, BY_COMMAND[0])
    command = start_import(bench)
    time.sleep(random.Random(number).uniform(0, LATEST / 2))
    edit(bench, *BY_EDITOR)
    code = bench.finish(command).code
    found = entries(bench)
    return "lost the editor's words" if code == 0 and found.get(BY_EDITOR[0]) != BY_EDITOR[1] else None


def start_other_import(bench):
    text = bench.work / "other.txt"
    text.write_text(f"\n--- 0 ---\n/* */\n{BY_WINDOW[0]}\n{BY_WINDOW[1]}\n\n")
    return bench.start(["import", str(bench.copy), "--language", LANGUAGE, str(text), "--quiet", "--wait", "30"])


def two_commands(bench, _, number):
    bench.prepare()
    without(bench, BY_WINDOW[0], BY_COMMAND[0])
    one = start_other_import(bench)
    time.sleep(random.Random(number).uniform(0, LATEST / 2))
    other = start_import(bench)
    codes = bench.finish(one).code, bench.finish(other).code
    if codes != (0, 0):
        return f"one of them does not get through: {codes}"
    lost = missing(bench, [("one", True, BY_WINDOW), ("other", True, BY_COMMAND)])
    return f"lost what was saved by: {lost}" if lost else None


def trials(race, bench, driver, count):
    """Yields (number, what went wrong or None)."""
    for number in range(count):
        yield number, race(bench, driver, number)
