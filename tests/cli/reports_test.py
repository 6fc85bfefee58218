#!/usr/bin/env python3
"""The reports of check, read by others: a JSON schema, an XML parser and a reader of GitHub's workflow commands.

Usage: reports_test.py SAMPLES, which prints a report of made-up findings in the format that it is given.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import unittest
import urllib.parse
import xml.etree.ElementTree

try:
    import jsonschema
except ImportError:  # Debian's package, for a Python that is not Debian's
    sys.path.append("/usr/lib/python3/dist-packages")
    import jsonschema

SAMPLES = ""
HERE = pathlib.Path(__file__).resolve().parent
TERMINAL_COMMANDS = re.compile("[\x00-\x08\x0b-\x1f\x7f-\x9f\u202a-\u202e\u2066-\u2069]")


def samples(form):
    return subprocess.run([SAMPLES, form], capture_output=True, check=True).stdout.decode("utf-8")


def findings():
    return json.loads(samples("json"))["findings"]


def check_sarif(text):
    log = json.loads(text)
    schema = json.loads((HERE / "sarif-2.1.0.schema.json").read_text(encoding="utf-8"))
    jsonschema.Draft7Validator.check_schema(schema)
    jsonschema.Draft7Validator(schema).validate(log)
    return log["runs"][0]


def read_github(text):
    """The annotations that a runner makes of its log: kind, properties and message of each."""
    for line in text.splitlines():
        kind, properties, message = re.fullmatch(r"::(error|warning|notice) ([^:]*)::(.*)", line).groups()
        pairs = dict(pair.split("=", 1) for pair in properties.split(","))
        yield kind, {name: unescaped(value, {"%3A": ":", "%2C": ","}) for name, value in pairs.items()}, unescaped(message)


def unescaped(text, more=None):
    for code, character in {**(more or {}), "%0A": "\n", "%0D": "\r", "%25": "%"}.items():
        text = text.replace(code, character)
    return text


class Sarif(unittest.TestCase):
    def setUp(self):
        self.text = samples("sarif")
        self.run_ = check_sarif(self.text)

    def test_is_valid_and_the_check_of_that_can_fail(self):
        for broken in (self.text.replace('"startLine": 12', '"startLine": 0'), self.text.replace('"note"', '"info"'),
                       self.text.replace("build%20place", "build place"), self.text.replace('"2.1.0"', '"2.0.0"')):
            self.assertNotEqual(broken, self.text)
            with self.assertRaises(jsonschema.ValidationError):
                check_sarif(broken)

    def test_every_result_leads_to_its_rule_and_has_a_fingerprint_of_its_own(self):
        rules = self.run_["tool"]["driver"]["rules"]
        for result in self.run_["results"]:
            self.assertEqual(rules[result["ruleIndex"]]["id"], result["ruleId"])
        prints = [result["partialFingerprints"]["glossmill/v1"] for result in self.run_["results"]]
        self.assertEqual(prints, [finding["fingerprint"] for finding in findings()])
        self.assertEqual(len(set(prints)), len(prints))

    def test_places_resolve_to_the_files(self):
        base = self.run_["originalUriBaseIds"]["%SRCROOT%"]["uri"]
        for result, finding in zip(self.run_["results"], findings(), strict=True):
            place = result["locations"][0]["physicalLocation"]
            artifact = place["artifactLocation"]
            resolved = urllib.parse.urljoin(base if artifact.get("uriBaseId") else "", artifact["uri"])
            path = urllib.parse.unquote(urllib.parse.urlsplit(resolved).path)
            self.assertEqual(path, os.path.join("/srv/build place/App 2", finding["file"] or "").rstrip("/"))
            self.assertEqual(place.get("region", {}).get("startLine"), finding["line"])
            self.assertEqual(place.get("region", {}).get("startColumn"), finding["column"])

    def test_levels_are_the_standards(self):
        levels = {"error": "error", "warning": "warning", "info": "note"}
        self.assertEqual([result["level"] for result in self.run_["results"]],
                         [levels[finding["severity"]] for finding in findings()])


class JUnit(unittest.TestCase):
    def setUp(self):
        self.text = samples("junit")
        self.root = xml.etree.ElementTree.fromstring(self.text)

    def test_each_language_has_a_suite_and_what_is_about_none_is_in_one_too(self):
        self.assertEqual([suite.get("name") for suite in self.root], ["de", "fr", "nb", "sv", "project"])

    def test_the_counts_are_those_of_the_cases(self):
        for element in [self.root, *self.root]:
            self.assertEqual(int(element.get("tests")), len(list(element.iter("testcase"))))
            self.assertEqual(int(element.get("failures")), len(list(element.iter("failure"))))
        self.assertEqual(int(self.root.get("failures")), 4)

    def test_errors_fail_and_the_rest_passes_with_its_text(self):
        for finding in findings():
            name = f"{finding['language'] or 'project'}.{finding['check']}"
            case, = [case for case in self.root.iter("testcase") if case.get("classname") == name]
            body = case.find("failure" if finding["severity"] == "error" else "system-out")
            self.assertIn("There is no" if finding["check"] == "missing" else finding["sentence"][:20], body.text)

    def test_a_check_that_found_nothing_passes_and_one_that_was_not_made_is_not_there(self):
        passed = [case.get("classname") for case in self.root.iter("testcase") if len(case) == 0]
        self.assertIn("sv.duplicate", passed)
        self.assertNotIn("sv.unused", passed)

    def test_texts_come_out_as_they_went_in_but_for_what_xml_cannot_say(self):
        broken, = [case for case in self.root.iter("testcase") if case.get("classname") == "fr.not-kept"]
        self.assertIn("<a href=\"x\">&amp;</a> ]]> <![CDATA[ --> 'q'", broken.find("failure").text)
        whole = "".join(self.root.itertext()) + "".join(value for each in self.root.iter() for value in each.attrib.values())
        self.assertIsNone(TERMINAL_COMMANDS.search(whole))
        self.assertNotIn("\ufffe", whole)

    def test_a_line_break_stays_one(self):
        case, = [case for case in self.root.iter("testcase") if case.get("classname") == "nb.missing"]
        self.assertEqual(case.find("failure").text.splitlines()[1:],
                         ["There is no translation.", 'key: "Anchor"', 'source: "Drop the anchor"', "nb: no entry"])


class GitHub(unittest.TestCase):
    def test_each_finding_is_one_command_that_reads_as_it_was_meant(self):
        kinds = {"error": "error", "warning": "warning", "info": "notice"}
        annotations = list(read_github(samples("github")))
        for (kind, properties, message), finding in zip(annotations, findings(), strict=True):
            self.assertEqual(kind, kinds[finding["severity"]])
            self.assertEqual(properties["file"], os.path.join("App 2", finding["file"] or "").rstrip("/"))
            self.assertEqual(properties.get("line"), finding["line"] and str(finding["line"]))
            self.assertEqual(properties.get("col"), finding["column"] and str(finding["column"]))
            self.assertEqual(properties["title"], finding["check"])
            self.assertEqual(message.splitlines()[0], TERMINAL_COMMANDS.sub("\ufffd", finding["sentence"]))
            self.assertIsNone(TERMINAL_COMMANDS.search(message))


class Text(unittest.TestCase):
    def setUp(self):
        self.text = samples("text")

    def test_each_finding_begins_as_compilers_say_it(self):
        heads = re.findall(r"^(\S.*?)(?::(\d+))?(?::(\d+))?: \{?(error|warning|info)\}?: (.*) \[([a-z-]+)\]$", self.text, re.MULTILINE)
        self.assertEqual([(head[3], head[5]) for head in heads],
                         [(finding["severity"], finding["check"]) for finding in findings()])
        self.assertEqual(heads[1][:3], ("App 2/de.lproj/Localizable.strings", "12", "9"))

    def test_what_is_at_fault_is_marked(self):
        self.assertIn('    key  "{%d} boats, 100%"\n    de   "{%@} Boote: 100%"\n', self.text)

    def test_nothing_of_a_project_does_a_terminal_harm(self):
        self.assertIsNone(TERMINAL_COMMANDS.search(self.text))

    def test_a_summary_comes_last(self):
        self.assertEqual(self.text.splitlines()[-1], "4 errors, 2 warnings, 1 info; 3 of 4 languages have findings.")


if __name__ == "__main__":
    SAMPLES = str(pathlib.Path(sys.argv.pop(1)).resolve())
    unittest.main()
