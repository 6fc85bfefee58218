#!/usr/bin/env python3
"""glossmill-cli as a process among others: signals, terminals, full disks and file names of any kind.

Usage: process_test.py PROGRAM
"""

import fcntl
import json
import os
import pathlib
import pty
import resource
import signal
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM = ""
TIME_LIMIT = 60  # seconds; only a program that hangs gets there
# Each of them is a message, and all of them are far more than a pipe holds: who reads the pipe decides when they end.
REJECTED_CALLS = 20_000


class ProcessTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.project = pathlib.Path(self.folder.name) / "App"
        self.write("App.xcodeproj/project.pbxproj", "path = main.m;")
        self.write("main.m", 'NSLocalizedString(@"Hello", @"Greeting");\n')
        self.write("en.lproj/Localizable.strings", '"Hello" = "Hello";\n')

    def write(self, name, text):
        path = os.path.join(os.fsencode(self.project), name if isinstance(name, bytes) else name.encode())
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)

    def start(self, *arguments, **options):
        process = subprocess.Popen([PROGRAM, *arguments, str(self.project)], **options)
        self.addCleanup(process.wait, TIME_LIMIT)
        self.addCleanup(process.kill)
        return process

    def start_and_hold(self, command):
        """Starts a command that is at work and cannot end before its messages are read."""
        self.write("main.m", 'NSLocalizedString(x, @"")\n' * REJECTED_CALLS)
        process = self.start(command, "--log", stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.stderr.close)
        self.assertTrue(os.read(process.stderr.fileno(), 1))
        return process

    def output(self, *arguments):
        run = subprocess.run([PROGRAM, *arguments, str(self.project)], capture_output=True, check=True)
        return run.stdout.decode("utf-8")


class Interrupt(ProcessTest):
    def test_the_first_cancels_and_nothing_is_printed_or_written(self):
        process = self.start_and_hold("save")
        process.send_signal(signal.SIGINT)
        stdout, stderr = process.communicate(timeout=TIME_LIMIT)
        self.assertEqual(process.returncode, 130)
        self.assertEqual(stdout, b"")
        self.assertTrue(stderr.endswith(b"\nglossmill-cli: Canceled.\n"), stderr[-200:])
        strings = self.project / "en.lproj" / "Localizable.strings"
        self.assertEqual(strings.read_text(encoding="utf-8"), '"Hello" = "Hello";\n')

    @unittest.skipUnless(os.path.exists("/proc/self/status"), "tells from /proc that the first one has arrived")
    def test_the_second_ends_the_process(self):
        process = self.start_and_hold("scan")
        process.send_signal(signal.SIGINT)
        deadline = time.monotonic() + TIME_LIMIT
        while self.catches_interrupt(process) and time.monotonic() < deadline:
            os.sched_yield()
        process.send_signal(signal.SIGINT)
        self.assertEqual(process.wait(TIME_LIMIT), -signal.SIGINT)

    @staticmethod
    def catches_interrupt(process):
        lines = pathlib.Path(f"/proc/{process.pid}/status").read_text(encoding="ascii").splitlines()
        caught = next(line.split()[1] for line in lines if line.startswith("SigCgt:"))
        return int(caught, 16) >> (signal.SIGINT - 1) & 1

    def test_a_process_that_was_told_to_ignore_it_goes_on(self):
        def ignore():
            signal.signal(signal.SIGINT, signal.SIG_IGN)

        self.write("main.m", 'NSLocalizedString(x, @"")\n' * REJECTED_CALLS)
        process = self.start("scan", "--log", stdout=subprocess.PIPE, stderr=subprocess.PIPE, preexec_fn=ignore)
        self.assertTrue(os.read(process.stderr.fileno(), 1))
        process.send_signal(signal.SIGINT)
        stdout, _ = process.communicate(timeout=TIME_LIMIT)
        self.assertEqual(process.returncode, 0)
        self.assertIn(f"{REJECTED_CALLS} calls".encode(), stdout)


TAKEN_AWAY = b"\r\x1b[K"  # the last line of the terminal is empty again


class Progress(ProcessTest):
    def test_a_long_job_shows_a_line_on_a_terminal_and_takes_it_away(self):
        self.write("main.m", 'NSLocalizedString(x, @"")\n' * REJECTED_CALLS)
        reader, writer = pty.openpty()
        self.addCleanup(os.close, reader)
        process = self.start("scan", "--log", stdout=subprocess.DEVNULL, stderr=writer, env=os.environ | {"TERM": "xterm"})
        os.close(writer)
        shown = os.read(reader, 1)
        time.sleep(0.6)  # the job waits for its reader, so that it is a long one by now
        shown += self.rest(reader)
        self.assertEqual(process.wait(TIME_LIMIT), 0)
        self.assertIn(b"Parsing project directory... 0 s" + TAKEN_AWAY, shown)
        self.assertTrue(shown.endswith((b"\n", TAKEN_AWAY)), shown[-200:])

    @staticmethod
    def rest(reader):
        shown = b""
        while True:
            try:
                chunk = os.read(reader, 65536)
            except OSError:  # the last writer is gone
                return shown
            if not chunk:
                return shown
            shown += chunk


class Output(ProcessTest):
    @unittest.skipUnless(os.path.exists("/dev/full"), "there is no disk that is always full")
    def test_a_full_disk_is_an_error(self):
        with open("/dev/full", "wb") as full:
            process = self.start("scan", stdout=full, stderr=subprocess.PIPE)
            _, stderr = process.communicate(timeout=TIME_LIMIT)
        self.assertEqual(process.returncode, 3)
        self.assertIn(b"cannot write to standard output", stderr)

    def test_names_with_control_characters_do_a_terminal_no_harm(self):
        self.write("x\x1b[31m\n.lproj/Localizable.strings", '"Hello" = "Hi";\n')
        table = self.output("scan", "--quiet")
        self.assertIn("x\ufffd[31m\ufffd", table)
        self.assertNotIn("\x1b", table)

    def test_directions_of_text_are_shown_as_codes(self):
        self.write("x\u202ey.lproj/Localizable.strings", '"Hello" = "Hi";\n')
        self.assertIn("x<U+202E>y.lproj", self.output("scan", "--quiet"))
        self.assertIn("x<U+202E>y.lproj", self.output("save", "--dry-run", "--quiet"))

    def test_json_holds_no_control_character_that_a_terminal_knows(self):
        self.write("en.lproj/Localizable.strings", '"Hello" = "\x7f\x80\x9f\xa0é";\n')
        text = self.output("scan", "--json", "--quiet")
        self.assertIn("\\u007f\\u0080\\u009f\xa0é", text)
        self.assertEqual(json.loads(text)["strings"][0]["translations"]["en"], "\x7f\x80\x9f\xa0é")

    def test_a_rejected_line_is_clipped_where_it_is_shown_and_whole_in_json(self):
        self.write("en.lproj/Localizable.strings", "x" * 5000 + "\n")
        run = subprocess.run([PROGRAM, "scan", "--json", "--verbose", str(self.project)], capture_output=True, check=True)
        self.assertNotIn(b"x" * 81, run.stderr)
        self.assertEqual(run.stderr.count(b"x" * 80), 2)
        document = json.loads(run.stdout)
        self.assertTrue(document["log"][-1].endswith("x" * 5000))
        self.assertTrue(document["systemLog"][-1].endswith("x" * 5000))

    @unittest.skipIf(os.geteuid() == 0, "nothing is kept from this user")
    def test_a_directory_that_cannot_be_listed_is_named(self):
        self.write("locked/a.m", "")
        os.chmod(self.project / "locked", 0)
        self.addCleanup(os.chmod, self.project / "locked", 0o755)
        self.assertIn("1 place could not be read completely:\n  locked: ", self.output("scan", "--quiet"))
        unread = json.loads(self.output("scan", "--json", "--quiet"))["unread"]
        self.assertEqual([(file["file"], file["kind"], file["reason"]) for file in unread],
                         [("locked", "directory", "unread")])

    def test_names_that_are_not_utf8_give_valid_json(self):
        self.write(b"\xff.lproj/Localizable.strings", '"Hello" = "Hi";\n')
        document = json.loads(self.output("scan", "--json", "--quiet"))
        self.assertEqual([language["iso639"] for language in document["languages"]], ["en", "\ufffd"])
        self.assertEqual(document["languages"][1]["path"], "\ufffd.lproj/Localizable.strings")

    def test_wide_and_combining_characters_keep_the_columns_aligned(self):
        self.write("日本.lproj/Localizable.strings", "")
        self.write("e\u0301.lproj/Localizable.strings", "")
        lines = self.output("scan", "--quiet").splitlines()
        gap = {code: line.index(" - ") for line in lines for code in ("日本", "e\u0301") if line.startswith(code)}
        self.assertEqual(gap, {"日本": 4, "e\u0301": 7})


class Links(ProcessTest):
    def link_into_one_another(self, count):
        folders = [self.project / f"d{number}" for number in range(count)]
        for folder in folders:
            folder.mkdir()
        for folder in folders:
            for other in folders:
                os.symlink(other, folder / f"to{other.name}")

    def test_that_lead_into_one_another_come_to_an_end(self):
        self.link_into_one_another(38)
        run = subprocess.run([PROGRAM, "scan", "--json", str(self.project)], capture_output=True, check=True,
                             timeout=TIME_LIMIT)
        self.assertEqual(run.stderr.count(b"too many are reached through links"), 1)
        unread = json.loads(run.stdout)["unread"]
        self.assertIn("Too many directories are reached through links.", [place["message"] for place in unread])

    def test_that_lead_into_one_another_keep_a_project_from_being_saved(self):
        self.link_into_one_another(72)
        run = subprocess.run([PROGRAM, "save", "--quiet", str(self.project)], capture_output=True, check=False,
                             timeout=TIME_LIMIT)
        self.assertEqual(run.returncode, 3)
        self.assertIn(b"--allow incomplete", run.stderr)


class Limits(ProcessTest):
    def test_a_file_that_grows_too_large_is_an_error_like_a_full_disk(self):
        self.write("main.m", "".join(f'NSLocalizedString(@"key {n}", @"");\n' for n in range(1000)))
        before = '"key 1" = "one";\n'
        self.write("en.lproj/Localizable.strings", before)
        run = subprocess.run([PROGRAM, "fill", "--language", "en", str(self.project)], capture_output=True, check=False,
                             preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (4096, 4096)))
        self.assertEqual(run.returncode, 3)
        self.assertIn(b"larger than the system allows", run.stderr)
        self.assertEqual((self.project / "en.lproj" / "Localizable.strings").read_text(encoding="utf-8"), before)
        self.assertEqual(os.listdir(self.project / "en.lproj"), ["Localizable.strings"])

    def test_no_language_is_added_behind_a_link_out_of_the_project(self):
        outside = pathlib.Path(self.folder.name) / "outside"
        outside.mkdir()
        os.symlink(outside, self.project / "App")
        for options in ((), ("--save",), ("--save", "--dry-run")):
            run = subprocess.run([PROGRAM, "add-language", *options, str(self.project), "sv"], capture_output=True,
                                 check=False)
            self.assertEqual(run.returncode, 3, options)
            self.assertIn(f"It lies outside the project: it is {outside}/sv.lproj".encode(), run.stderr)
            self.assertEqual(os.listdir(outside), [])
        run = subprocess.run([PROGRAM, "add-language", "--save", "--allow", "outside", str(self.project), "sv"],
                             capture_output=True, check=False)
        self.assertEqual((run.returncode, os.listdir(outside)), (0, ["sv.lproj"]))


class Dropping(ProcessTest):
    STRINGS = '"Hello" = "Hello";\n"Bye" = "Bye";\n'

    def setUp(self):
        super().setUp()
        self.write("en.lproj/Localizable.strings", self.STRINGS)

    def save(self, *options):
        return subprocess.run([PROGRAM, "save", "--quiet", *options, str(self.project)], capture_output=True, text=True,
                              check=False)

    def strings(self):
        return (self.project / "en.lproj" / "Localizable.strings").read_text(encoding="utf-8")

    def test_more_than_may_be_dropped_is_refused_beforehand(self):
        for options in ((), ("--json",), ("--dry-run",)):
            run = self.save("--max-dropped", "0", *options)
            self.assertEqual(run.returncode, 3)
            self.assertEqual(run.stderr, "glossmill-cli: nothing was written: 1 entry would not be written again, "
                                         "more than --max-dropped allows\n")
            self.assertEqual(self.strings(), self.STRINGS)
        self.assertEqual(self.save("--max-dropped", "1").returncode, 0)
        self.assertNotIn("Bye", self.strings())

    def test_json_tells_what_was_not_written_again_and_by_what_it_is_brought_back(self):
        told = json.loads(self.save("--json", "--dry-run").stdout)
        self.assertEqual((told["dryRun"], told["save"]), (True, None))
        written = json.loads(self.save("--json").stdout)
        self.assertEqual(written["languages"],
                         [{"iso639": "en", "file": "en.lproj/Localizable.strings", "error": None, "entriesBefore": 2,
                           "entriesAfter": 1, "notWrittenAgain": 1}])
        self.assertEqual(written["files"], told["files"])
        run = subprocess.run([PROGRAM, "restore", "--json", "--from", written["save"], str(self.project)],
                             capture_output=True, check=True)
        self.assertEqual(json.loads(run.stdout)["files"][0]["change"], "changed")
        self.assertEqual(self.strings(), self.STRINGS)


class Recovering(ProcessTest):
    """The window has ended with two edits that no save wrote, one of them to a text that is another one by now."""

    def setUp(self):
        super().setUp()
        self.state = pathlib.Path(self.folder.name) / "state"
        self.write("main.m", 'NSLocalizedString(@"Hello", @"Greeting"); NSLocalizedString(@"Bye", @"");\n')
        self.write("en.lproj/Localizable.strings", '"Hello" = "Hello";\n')
        # Any save makes the place where the program keeps what it knows of the project.
        subprocess.run([PROGRAM, "save", "--quiet", str(self.project)], env=self.environment(), check=True,
                       capture_output=True)
        place, = (self.state / "glossmill" / "projects").iterdir()
        self.journal = place / "journals" / "1795283100-7-1" / "edits"
        self.journal.parent.mkdir(parents=True)
        self.journal.write_text("edit 1795283100 % Hello en Hi Good%20day .\nedit 1795283100 % Bye en %- Bye .\n"
                                "edit 1795283101 % Bye en Bye See%20", encoding="utf-8")

    def environment(self):
        return os.environ | {"XDG_STATE_HOME": str(self.state)}

    def run_recover(self, *options):
        return subprocess.run([PROGRAM, "recover", "--quiet", *options, str(self.project)], env=self.environment(),
                              capture_output=True, text=True, check=False)

    def edits(self):
        return [(edit["name"], edit["unsaved"], edit["fit"])
                for edit in json.loads(self.run_recover("--json").stdout)["edits"]]

    def strings(self):
        return (self.project / "en.lproj" / "Localizable.strings").read_text(encoding="utf-8")

    def test_edits_are_listed_as_text_and_as_json_and_nothing_is_written(self):
        before = self.strings()
        run = self.run_recover()
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        self.assertEqual(run.stdout,
                         '2026-11-21T17-45-00Z  en  "Hello"\n    was      "Hi"\n    unsaved  "Good day"\n'
                         '    now      "Hello", changed since\n'
                         '2026-11-21T17-45-00Z  en  "Bye"\n    was      no entry\n    unsaved  "Bye"\n')
        self.assertEqual(self.edits(), [("Hello", "Good day", "changed since"), ("Bye", "Bye", "applies")])
        self.assertEqual(self.strings(), before)

    def test_what_fits_is_applied_and_saved_and_the_conflict_is_kept(self):
        run = self.run_recover("--apply")
        self.assertEqual(run.returncode, 3)
        self.assertEqual(run.stderr, "glossmill-cli: 1 edit does not fit what is there now and is kept; "
                                     "see: glossmill-cli recover\n")
        self.assertIn('"Bye" = "Bye"', self.strings())
        self.assertIn('"Hello" = "Hello"', self.strings())
        self.assertEqual(self.edits(), [("Hello", "Good day", "changed since")])

    def test_a_dry_run_writes_and_forgets_nothing(self):
        before = self.strings()
        self.run_recover("--apply", "--dry-run")
        self.run_recover("--discard", "--dry-run")
        self.assertEqual(self.strings(), before)
        self.assertEqual(len(self.edits()), 2)

    def test_what_is_discarded_is_gone(self):
        run = self.run_recover("--discard")
        self.assertEqual((run.returncode, run.stdout), (0, "discarded  2 edits\n"))
        self.assertEqual(self.edits(), [])
        self.assertFalse(self.journal.exists())

    def test_a_save_that_fails_keeps_them(self):
        (self.project / "en.lproj" / "Localizable.strings").unlink()
        (self.project / "en.lproj" / "Localizable.strings").mkdir()
        self.assertEqual(self.run_recover("--apply", "--allow", "incomplete", "--allow", "changed").returncode, 3)
        self.assertTrue(self.journal.exists())

    def test_a_journal_that_a_window_still_writes_is_left_alone(self):
        held = os.open(self.journal.parent, os.O_RDONLY)
        self.addCleanup(os.close, held)
        fcntl.flock(held, fcntl.LOCK_EX)
        self.assertEqual(self.edits(), [])
        self.run_recover("--discard")
        self.assertTrue(self.journal.exists())


if __name__ == "__main__":
    PROGRAM = sys.argv.pop(1)
    with tempfile.TemporaryDirectory() as state:
        os.environ["XDG_STATE_HOME"] = state
        unittest.main()
