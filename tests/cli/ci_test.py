#!/usr/bin/env python3
"""The recipes of docs/ci.md, run as far as that is possible without the servers they are for.

Usage: ci_test.py PROGRAM
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

try:
    import yaml
except ImportError:  # Debian's package, for a Python that is not Debian's
    sys.path.append("/usr/lib/python3/dist-packages")
    import yaml

PROGRAM = ""
ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
RECIPES = re.findall(r"^## (.*?)$|^```(\w+)\n(.*?)^```$", (ROOT / "docs/ci.md").read_text(encoding="utf-8"),
                     re.MULTILINE | re.DOTALL)


def recipes():
    """Heading, language and text of each."""
    heading = ""
    for title, language, text in RECIPES:
        if title:
            heading = title
        else:
            yield heading, language, text


def texts(heading, language):
    return [text for title, kind, text in recipes() if (title, kind) == (heading, language)]


class Recipe(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name).resolve()
        self.project = pathlib.Path(shutil.copytree(ROOT / "examples/Harbour", self.folder / "Harbour"))
        (self.folder / "bin").mkdir()
        os.symlink(PROGRAM, self.folder / "bin/glossmill-cli")
        self.environment = os.environ | {"PATH": f"{self.folder}/bin:{os.environ['PATH']}", "HOME": str(self.folder),
                                         "GIT_CONFIG_NOSYSTEM": "1"}

    def run_in_project(self, *command):
        return subprocess.run(command, cwd=self.project, env=self.environment, capture_output=True, text=True, check=False)

    def shell(self, text):
        return self.run_in_project("sh", "-e", "-c", text)

    def test_there_are_no_others(self):
        self.assertEqual([(heading, language) for heading, language, _ in recipes()],
                         [("A step of a shell script", "sh"), ("A project that has many findings already", "sh"),
                          ("A project that has many findings already", "sh"), ("GitHub", "yaml"), ("GitHub", "yaml"),
                          ("GitLab", "yaml"), ("Before a commit", "sh")])

    def test_a_step_of_a_shell_script_fails_as_long_as_something_is_missing(self):
        text, = texts("A step of a shell script", "sh")
        run = self.shell(text)
        self.assertEqual(run.returncode, 1, run.stderr)
        self.assertIn("[missing]", run.stdout)

    def test_a_baseline_makes_it_pass_until_something_new_comes(self):
        write, use = texts("A project that has many findings already", "sh")
        self.assertEqual(self.shell(write).returncode, 0)
        run = self.shell(use)
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
        self.remove_berths()
        run = self.shell(use)
        self.assertEqual(run.returncode, 1)
        self.assertIn('"Berths"', run.stdout)

    def remove_berths(self):
        strings = self.project / "Resources/de.lproj/Localizable.strings"
        text = strings.read_text(encoding="utf-16")
        self.assertIn('\n"Berths" = ', text)
        strings.write_text(re.sub(r'\n"Berths" = .*', "", text), encoding="utf-16")

    def check_steps(self, steps):
        """Runs the steps that check; the others need the server."""
        commands = [step["run"] for step in steps if "check" in step.get("run", "")]
        self.assertEqual(len(commands), 1)
        run = self.shell(commands[0])
        self.assertEqual(run.returncode, 1, run.stderr)
        return run.stdout

    def test_the_workflows_of_github_are_yaml_and_upload_what_the_check_wrote(self):
        uploading, annotating = (yaml.safe_load(text) for text in texts("GitHub", "yaml"))
        steps = uploading["jobs"]["check"]["steps"]
        self.check_steps(steps)
        uploaded, = [step["with"]["sarif_file"] for step in steps if "upload-sarif" in step.get("uses", "")]
        log = json.loads((self.project / uploaded).read_text(encoding="utf-8"))
        self.assertTrue(log["runs"][0]["results"])
        self.assertEqual(uploading["permissions"]["security-events"], "write")
        self.assertTrue(self.check_steps(annotating["jobs"]["check"]["steps"]).startswith("::error file="))

    def test_the_job_of_gitlab_is_yaml_and_reports_what_the_check_wrote(self):
        text, = texts("GitLab", "yaml")
        job = yaml.safe_load(text)["translations"]
        self.assertEqual([self.shell(command).returncode for command in job["script"]], [1])
        self.assertEqual(job["artifacts"]["when"], "always")
        report = xml.etree.ElementTree.parse(self.project / job["artifacts"]["reports"]["junit"])
        self.assertTrue(list(report.iter("failure")))

    def git(self, *arguments, code=0):
        run = self.run_in_project("git", "-c", "user.name=A", "-c", "user.email=a@example.org", *arguments)
        self.assertEqual(run.returncode, code, run.stdout + run.stderr)
        return run.stdout + run.stderr

    def make_small_project(self):
        """Without a mistake."""
        self.project = self.folder / "Small"
        for name, text in (("App.xcodeproj/project.pbxproj", "{ A = { path = main.m; }; }\n"),
                           ("main.m", 'NSLocalizedString(@"Receipt for %@", @"");\n'),
                           ("de.lproj/Localizable.strings", '"Receipt for %@" = "Quittung für %@";\n')):
            file = self.project / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8")
        return self.project / "de.lproj/Localizable.strings"

    def test_the_hook_keeps_a_mistake_out_of_a_commit_and_nothing_else(self):
        text, = texts("Before a commit", "sh")
        strings = self.make_small_project()
        self.git("init", "-q")
        self.git("add", ".")
        self.git("commit", "-qm", "Begin")
        hook = self.project / ".git/hooks/pre-commit"
        hook.parent.mkdir(exist_ok=True)
        hook.write_text(text, encoding="utf-8")
        hook.chmod(0o755)
        good = strings.read_text(encoding="utf-8")
        broken = good.replace("für %@", "für %d")
        strings.write_text(broken, encoding="utf-8")
        self.assertIn("[format]", self.git("commit", "-qam", "Break it", code=1))
        # What is not about to be committed does not matter.
        (self.project / "notes.txt").write_text("Ahoy\n", encoding="utf-8")
        self.git("add", "notes.txt")
        self.git("commit", "-qm", "Take a note", "notes.txt")
        strings.write_text(good + "\n", encoding="utf-8")
        self.git("add", ".")
        strings.write_text(broken, encoding="utf-8")
        self.git("commit", "-qm", "Add a line")


if __name__ == "__main__":
    PROGRAM = str(pathlib.Path(sys.argv.pop(1)).resolve())
    with tempfile.TemporaryDirectory() as state:
        os.environ["XDG_STATE_HOME"] = state
        unittest.main()
