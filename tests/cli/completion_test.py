#!/usr/bin/env python3
"""Completing in real shells, the manual pages, and whether what is kept of both in packaging/ is that of the program.

Usage: completion_test.py PROGRAM [--rewrite]; with the option what is kept is made anew. Shells that are not installed
are passed over.
"""

import os
import pathlib
import pty
import re
import select
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM = ""
ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PACKAGING = ROOT / "packaging"
KEPT = {
    "bash": PACKAGING / "completions/glossmill-cli.bash",
    "zsh": PACKAGING / "completions/_glossmill-cli",
    "fish": PACKAGING / "completions/glossmill-cli.fish",
    "man": PACKAGING / "man/glossmill-cli.1",
}
SAMPLE = ROOT / "examples/Harbour"
LANGUAGES = {"ar", "de", "en", "fr", "ja", "nb", "pt-BR"}
TIME_LIMIT = 60  # seconds; only a shell that hangs gets there


def output(*arguments):
    return subprocess.run([PROGRAM, *arguments], capture_output=True, check=True, text=True).stdout


def commands():
    return set(re.findall(r"^  ([a-z-]+)  ", output("--help").split("\nCommands:\n")[1].split("\n\n")[0], re.MULTILINE))


def printed(what):
    return output("print", what)


class Kept(unittest.TestCase):
    def test_what_is_kept_is_what_the_program_prints(self):
        for what, path in KEPT.items():
            with self.subTest(what):
                self.assertEqual(path.read_text(encoding="utf-8"), printed(what),
                                 f"make it anew: {pathlib.Path(__file__).name} PROGRAM --rewrite")


class ManPages(unittest.TestCase):
    PAGES = [KEPT["man"], PACKAGING / "man/glossmill.1"]

    @unittest.skipUnless(shutil.which("man"), "man is not installed")
    def test_man_has_no_warnings(self):
        for page in self.PAGES:
            run = subprocess.run(["man", "--warnings=all", "-E", "UTF-8", "-l", "-Tutf8", "-Z", str(page)], check=True,
                                 capture_output=True, env=os.environ | {"MANWIDTH": "80", "MANROFFSEQ": ""})
            self.assertEqual(run.stderr, b"", page)

    @unittest.skipUnless(shutil.which("mandoc"), "mandoc is not installed")
    def test_mandoc_has_no_warnings(self):
        for page in self.PAGES:
            run = subprocess.run(["mandoc", "-T", "lint", "-W", "warning", str(page)], capture_output=True, text=True,
                                 check=False)
            self.assertEqual((run.returncode, run.stdout), (0, ""), page)

    def test_every_command_and_every_option_has_its_place(self):
        page = printed("man").replace("\\-", "-")
        for command in commands():
            text = page[page.index(f".SS {command}\n"):].split(".SS ", 2)[1]
            for option in re.findall(r"^  (?:-\w,)?(--[\w-]+)", output(command, "--help"), re.MULTILINE):
                with self.subTest(command=command, option=option):
                    common = page[page.index(".SH OPTIONS"):page.index(".SH COMMANDS")]
                    self.assertIn(f"\\fB{option}\\fR", common + text)


class Completing:
    """What every shell has to complete; `words(typed)` is what it offers for the last word."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name)
        shutil.copytree(SAMPLE, self.home / "Harbour")
        (self.home / "known.txt").touch()
        (self.home / "bin").mkdir()
        os.symlink(PROGRAM, self.home / "bin/glossmill-cli")

    def environment(self):
        return {"HOME": str(self.home), "PATH": f"{self.home}/bin:{os.environ['PATH']}", "TERM": "dumb", "LANG": "C.UTF-8",
                "INPUTRC": "/dev/null", "XDG_CONFIG_HOME": str(self.home / "config"),
                "XDG_DATA_HOME": str(self.home / "data")}

    def test_commands(self):
        self.assertGreater(len(commands()), 10)
        self.assertEqual(self.words("glossmill-cli "), commands())
        self.assertEqual(self.words("glossmill-cli s"), {"save", "scan", "set", "status"})

    def test_options_of_a_command_only(self):
        self.assertEqual(self.words("glossmill-cli check --f"), {"--fail-on", "--format"})
        self.assertEqual(self.words("glossmill-cli status --mis"), {"--missing"})

    def test_values_of_an_option(self):
        self.assertEqual(self.words("glossmill-cli check --format "), {"text", "json", "sarif", "junit", "github"})
        self.assertEqual(self.words("glossmill-cli check Harbour --fail-on w"), {"warning"})

    def test_several_values_with_commas(self):
        words = self.words("glossmill-cli check --checks missing,white")
        self.assertEqual({word.rsplit(",", 1)[-1] for word in words}, {"white-space"})

    def test_languages_of_the_project(self):
        self.assertEqual(self.words("glossmill-cli export Harbour --language "), LANGUAGES)
        self.assertEqual(self.words("glossmill-cli status ~/Harbour -l p"), {"pt-BR"})

    def test_directories_for_projects(self):
        words = {word.rstrip("/") for word in self.words("glossmill-cli scan ")}
        self.assertIn("Harbour", words)
        self.assertNotIn("known.txt", words)

    def test_files_for_files(self):
        self.assertEqual(self.words("glossmill-cli check Harbour --baseline k"), {"known.txt"})


LINE = r"\n\[([^\]]*)\]\r?\n"


def words_of(shown, typed):
    """What has come into the line behind the last blank."""
    line = re.findall(LINE, shown)[-1]
    before = typed[:typed.rindex(" ") + 1]
    if not line.startswith(before):
        raise AssertionError(f"the line has become another: {line!r}")
    return set(line[len(before):].split())


def on_terminal(command, environment, directory, steps, ending):
    """What comes out of a shell at a terminal: each step is what to wait for and what to type then."""
    reader, writer = pty.openpty()
    process = subprocess.Popen(command, stdin=writer, stdout=writer, stderr=writer, env=environment, cwd=directory,
                               start_new_session=True)
    os.close(writer)
    shown = ""
    try:
        for awaited, typed in [*steps, (ending, None)]:
            start = len(shown)
            deadline = time.monotonic() + TIME_LIMIT
            while not re.search(awaited, shown[start:]):
                if time.monotonic() > deadline or not select.select([reader], [], [], TIME_LIMIT)[0]:
                    raise AssertionError(f"{awaited!r} did not come: {shown!r}")
                shown += os.read(reader, 65536).decode("utf-8", "replace")
            if typed is not None:
                os.write(reader, typed.encode())
        return shown
    finally:
        process.kill()
        process.wait()
        os.close(reader)


@unittest.skipUnless(shutil.which("bash"), "bash is not installed")
class Bash(Completing, unittest.TestCase):
    # Alt+* puts all completions into the line, and Ctrl+G prints the line as it stands.
    PREPARE = ("print_line() {{ printf '\\n[%s]\\n' \"$READLINE_LINE\"; }}; bind -x '\"\\C-g\": print_line'; "
               "source {script}; bind 'set enable-bracketed-paste off'; PS1='>'; echo rea''dy\n")

    def words(self, typed):
        shown = on_terminal(["bash", "--norc", "--noprofile", "-i"], self.environment(), self.home,
                            [("", self.PREPARE.format(script=KEPT["bash"])), ("ready\r?\n>", typed + "\x1b*\x07")], LINE)
        return words_of(shown, typed)


@unittest.skipUnless(shutil.which("zsh"), "zsh is not installed")
class Zsh(Completing, unittest.TestCase):
    PREPARE = ("PS1='>'; RPS1=; unsetopt PROMPT_SP ZLE_BRACKETED_PASTE 2>/dev/null; unset zle_bracketed_paste; "
               "fpath=({folder} $fpath); autoload -Uz compinit; compinit -u -D; "
               "print_line() {{ print -r -- $'\\n'\"[$BUFFER]\"; }}; zle -N print_line; bindkey '^G' print_line; "
               "zle -C all complete-word _generic; bindkey '^X^A' all; "
               "zstyle ':completion:all:*' completer _all_matches _complete; zstyle ':completion:all:*' insert yes; "
               "zstyle ':completion:all:*' old-matches no; echo rea''dy\n")

    def words(self, typed):
        prepare = self.PREPARE.format(folder=KEPT["zsh"].parent)
        shown = on_terminal(["zsh", "-f", "-i"], self.environment(), self.home,
                            [("", prepare), ("ready\r?\n.*>", typed + "\x18\x01\x07")], LINE)
        # What zsh takes away again when something else is typed.
        return {word.rstrip("=,") for word in words_of(shown, typed)}


@unittest.skipUnless(shutil.which("fish"), "fish is not installed")
class Fish(Completing, unittest.TestCase):
    def words(self, typed):
        script = f"source {KEPT['fish']}; complete -C {typed!r}"
        run = subprocess.run(["fish", "--no-config", "-c", script], env=self.environment(), cwd=self.home, check=True,
                             capture_output=True, text=True, timeout=TIME_LIMIT)
        return {line.split("\t")[0] for line in run.stdout.splitlines()}


if __name__ == "__main__":
    PROGRAM = str(pathlib.Path(sys.argv.pop(1)).resolve())
    if sys.argv[1:] == ["--rewrite"]:
        for name, file in KEPT.items():
            file.write_text(printed(name), encoding="utf-8")
    else:
        unittest.main()
