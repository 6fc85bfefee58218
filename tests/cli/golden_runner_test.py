#!/usr/bin/env python3
"""The runner of the golden cases itself: it has to fail when anything is not as expected.

Usage: golden_runner_test.py [PROGRAM]; the program is not used, a small script stands in for it.
"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

RUNNER = pathlib.Path(__file__).resolve().parent / "run_golden.py"
PROGRAM = """#!/bin/sh
echo "path $1"
echo warning >&2
echo new >"$1/new"
mkdir "$1/empty"
exit 3
"""


class GoldenRunner(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.case = pathlib.Path(folder.name) / "a-case"
        self.program = pathlib.Path(folder.name) / "program"
        self.program.write_text(PROGRAM, encoding="utf-8")
        self.program.chmod(0o755)
        for name, text in {
            "input/old": "old\n",
            "command": "$INPUT\n",
            "expected-stdout": "path $INPUT\n",
            "expected-stderr": "warning\n",
            "expected-exit": "3\n",
            "expected-tree/old": "old\n",
            "expected-tree/new": "new\n",
            "expected-tree/empty/.gitkeep": "",
        }.items():
            self.write(name, text)

    def write(self, name, text):
        (self.case / name).parent.mkdir(parents=True, exist_ok=True)
        (self.case / name).write_text(text, encoding="utf-8")

    def run_case(self, *options):
        command = [sys.executable, RUNNER, "--cli", self.program, *options, self.case]
        return subprocess.run(command, capture_output=True, check=False, text=True)

    def assert_fails_with(self, text):
        run = self.run_case()
        self.assertEqual(run.returncode, 1)
        self.assertIn(text, run.stdout)

    def test_a_case_that_is_as_expected_passes(self):
        self.assertEqual(self.run_case().returncode, 0)

    def test_other_standard_output_fails(self):
        self.write("expected-stdout", "path\n")
        self.assert_fails_with("-path\n+path $INPUT")

    def test_other_standard_error_fails(self):
        self.write("expected-stderr", "")
        self.assert_fails_with("+warning")

    def test_another_exit_code_fails(self):
        self.write("expected-exit", "0\n")
        self.assert_fails_with("exit code 3, expected 0")

    def test_another_file_fails(self):
        self.write("expected-tree/new", "newer\n")
        self.assert_fails_with("-newer\n+new")

    def test_a_missing_file_fails(self):
        self.write("expected-tree/more", "")
        self.assert_fails_with("more is missing")

    def test_an_unexpected_directory_fails(self):
        (self.case / "expected-tree/empty/.gitkeep").unlink()
        (self.case / "expected-tree/empty").rmdir()
        self.assert_fails_with("empty should not be there")

    def test_a_change_without_an_expected_tree_fails(self):
        (self.case / "expected-tree").rename(self.case / "other-tree")
        self.assert_fails_with("new should not be there")

    def test_rewriting_makes_the_case_pass(self):
        for name in ("expected-stdout", "expected-stderr", "expected-exit", "expected-tree/new", "expected-tree/old"):
            self.write(name, "9\n")
        self.assertEqual(self.run_case("--rewrite").returncode, 0)
        self.assertEqual(self.run_case().returncode, 0)
        self.assertTrue((self.case / "expected-tree/empty/.gitkeep").exists())


if __name__ == "__main__":
    del sys.argv[1:]
    unittest.main()
