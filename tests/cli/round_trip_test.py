#!/usr/bin/env python3
"""What several commands of glossmill-cli, one after the other, make of a golden project.

Usage: round_trip_test.py PROGRAM
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM = ""
PROJECT = pathlib.Path(__file__).resolve().parent.parent / "data" / "status" / "input"
LANGUAGES = ("de", "en", "nb")


def run(*arguments):
    """Standard output of a command that has to succeed."""
    return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, check=True, text=True).stdout


def contents(tree):
    return {path.relative_to(tree).as_posix(): path.read_bytes() for path in tree.rglob("*") if path.is_file()}


class RoundTrip(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def copy(self, name):
        return pathlib.Path(shutil.copytree(PROJECT, self.folder / name))

    def test_an_unchanged_export_comes_back_as_a_plain_save_would_leave_it(self):
        saved, imported = self.copy("saved"), self.copy("imported")
        run("save", saved)
        text = self.folder / "text.txt"
        for language in LANGUAGES:
            run("export", imported, "--language", language, "--output", text)
            run("import", imported, "--language", language, text)
        self.assertEqual(contents(imported), contents(saved))

    def test_an_export_to_standard_output_is_the_same_as_one_to_a_file(self):
        project, text = self.copy("App"), self.folder / "text.txt"
        run("export", project, "--language", "de", "--output", text)
        self.assertEqual(run("export", project, "--language", "de", "--output", "-"), text.read_text(encoding="utf-8"))

    def test_what_was_saved_is_unchanged_by_the_next_save(self):
        project = self.copy("App")
        run("save", project)
        before = contents(project)
        lines = run("save", project).splitlines()
        self.assertEqual([line.split()[0] for line in lines], ["unchanged"] * len(LANGUAGES))
        self.assertEqual(contents(project), before)

    def test_languages_that_were_filled_pass_the_check(self):
        project = self.copy("App")
        for language in LANGUAGES:
            run("fill", project, "--language", language)
        run("check", project)

    def test_a_language_that_was_added_is_there_at_the_next_scan(self):
        project = self.copy("App")
        run("add-language", project, "sv", "--save")
        run("fill", project, "--language", "sv")
        run("check", project, "--language", "sv")

    def test_a_dry_run_names_the_files_that_the_real_run_writes(self):
        project = self.copy("App")
        real = {"would be created": "created", "would change": "changed", "is unchanged": "unchanged"}
        promised = [line.split("  ", 1) for line in run("save", project, "--dry-run").splitlines()]
        kept = [line.split("  ", 1) for line in run("save", project).splitlines()]
        self.assertEqual([[real[change], name.strip()] for change, name in promised],
                         [[change, name.strip()] for change, name in kept])


if __name__ == "__main__":
    PROGRAM = sys.argv.pop(1)
    with tempfile.TemporaryDirectory() as state:
        os.environ["XDG_STATE_HOME"] = state
        unittest.main()
