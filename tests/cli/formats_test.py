#!/usr/bin/env python3
"""What other programs make of exported files, what comes back of them, and what becomes of files that mean harm.

Usage: formats_test.py PROGRAM
"""

import csv
import json
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

PROGRAM = ""
DATA = pathlib.Path(__file__).resolve().parent.parent / "data"
FORMATS = ("text", "po", "csv", "tsv", "xliff", "xliff2", "xcloc")
PIECES = ['"', "\\", "\n", "\r", "\t", "=", "+", "-", "@", ",", ";", "<", ">", "&", "]]>", "%@", "%ld", "%1$@", "100%", "'",
          " ", ":", "a", "Ä", "語", "\u2028", "🚢", "---", "\x07", "\x7f", "\ufeff", "\uffff", "word "]
XLIFF = "{urn:oasis:names:tc:xliff:document:1.2}"


def escaped(text):
    escapes = {'"': '\\"', "\\": "\\\\", "\n": "\\n", "\r": "\\r", "\t": "\\t", "\x07": "\\a"}
    return "".join(escapes.get(character, character) for character in text)


def random_texts(seed, count):
    """Key, source text and translation of each."""
    chance = random.Random(seed)

    def text():
        return "".join(chance.choice(PIECES) for _ in range(chance.randrange(1, 8)))

    return {f"{number} {text()}": (text(), text()) for number in range(count)}


def guarded(text):
    """With an apostrophe in front of what a spreadsheet would calculate."""
    return "'" + text if re.match(r"'*[=+\-@\t\r]", text) else text


def contents(tree):
    return {path.relative_to(tree).as_posix(): path.read_bytes() for path in tree.rglob("*") if path.is_file()}


class FormatTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.project = pathlib.Path(shutil.copytree(DATA / "xcode-save" / "input", self.folder / "App"))
        self.texts = random_texts(7, 150)
        (self.project / "da.lproj").mkdir()
        for language, which in (("en", 0), ("da", 1)):
            with open(self.project / f"{language}.lproj/Localizable.strings", "a", encoding="utf-8", newline="") as file:
                for key, pair in self.texts.items():
                    file.write(f'/* x */\n"{escaped(key)}" = "{escaped(pair[which])}";\n')

    def run_cli(self, *arguments, code=0):
        command = [PROGRAM, *map(str, arguments)]
        environment = os.environ | {"XDG_STATE_HOME": str(self.folder / "state")}
        done = subprocess.run(command, capture_output=True, check=False, env=environment, timeout=300)
        self.assertEqual(done.returncode, code, done.stderr.decode("utf-8", "replace")[-2000:])
        return done

    def exported(self, name, *arguments):
        target = self.folder / f"out.{name}"
        self.run_cli("export", self.project, "--rules", "xcode", "--format", name, "--output", target, "--quiet",
                     *arguments)
        return target

    def test_what_was_exported_comes_back_and_changes_nothing(self):
        before = contents(self.project)
        for name in FORMATS:
            target = self.exported(name, "--language", "da")
            done = self.run_cli("import", self.project, "--rules", "xcode", "--format", name, "--language", "da",
                                "--use-fuzzy", "--json", target)
            report = json.loads(done.stdout)
            self.assertEqual((report["newEntries"], report["changedEntries"], report["unknownEntries"]), (0, 0, 0), name)
            self.assertGreater(report["unchangedEntries"], 60, name)
            self.assertEqual(report["rejected"], [], name)
            self.assertEqual(contents(self.project), before, name)

    def test_texts_come_back_into_a_language_that_has_none(self):
        plain = {key: pair for key, pair in self.texts.items() if not any(c in key + "".join(pair) for c in "\x07\uffff")}
        for name in FORMATS:
            target = self.exported(name, "--language", "da")
            other = pathlib.Path(shutil.copytree(self.project, self.folder / f"other-{name}"))
            (other / "da.lproj/Localizable.strings").write_bytes(b"")
            self.run_cli("import", other, "--rules", "xcode", "--format", name, "--language", "da", "--use-fuzzy", target)
            document = json.loads(self.run_cli("scan", other, "--rules", "xcode", "--json").stdout)
            found = {string["name"]: string["translations"].get("da") for string in document["strings"]
                     if string["table"] == "Localizable"}
            for key, pair in plain.items():
                self.assertEqual(found[key], pair[1], name)

    def test_msgfmt_accepts_po_files(self):
        for language in ("da", "nl", "de"):
            target = self.exported("po", "--language", language)
            done = subprocess.run(["msgfmt", "--check", "--output-file=/dev/null", target], capture_output=True, check=False)
            self.assertEqual((done.returncode, done.stderr), (0, b""))

    def test_msgfmt_refuses_what_lacks_its_mark(self):
        target = self.exported("po", "--language", "da")
        text = target.read_text("utf-8")
        self.assertIn("#, fuzzy", text)
        target.write_text(text.replace("#, fuzzy", "#,"), "utf-8")
        done = subprocess.run(["msgfmt", "--check", "--output-file=/dev/null", target], capture_output=True, check=False)
        self.assertEqual(done.returncode, 1)

    def test_xmllint_accepts_xliff_and_a_parser_finds_the_texts(self):
        for name in ("xliff", "xliff2"):
            subprocess.run(["xmllint", "--noout", self.exported(name, "--language", "da")], check=True)
        root = ElementTree.parse(self.exported("xliff", "--language", "da")).getroot()
        found = {unit.get("id"): unit.find(XLIFF + "target") for file in root.iter(XLIFF + "file")
                 for unit in file.iter(XLIFF + "trans-unit") if file.get("original") == "en.lproj/Localizable.strings"}
        for key, (_, text) in self.texts.items():
            if any(character in key + text + self.texts[key][0] for character in "\x07\uffff"):
                self.assertNotIn(key, found)
            else:
                self.assertEqual(found[key].text, text)

    def test_another_reader_of_csv_finds_the_texts(self):
        for name, dialect in (("csv", "excel"), ("tsv", "excel-tab")):
            with open(self.exported(name), encoding="utf-8", newline="") as file:
                rows = {row["key"]: row for row in csv.DictReader(file, dialect=dialect) if row["table"] == "Localizable"}
            for key, (source, text) in self.texts.items():
                row = rows[key]
                self.assertEqual((row["source"], row["da"]), (guarded(source), guarded(text)))
                self.assertNotIn(row["da"][:1], list("=+-@\t\r"))

    def test_a_mark_for_spreadsheets_is_there_when_it_is_asked_for(self):
        self.assertTrue(self.exported("csv", "--bom").read_bytes().startswith(b"\xef\xbb\xbftable,"))
        self.assertTrue(self.exported("csv").read_bytes().startswith(b"table,"))

    def test_a_bundle_of_xcodes_says_what_it_is_about(self):
        bundle = self.exported("xcloc", "--language", "da")
        about = json.loads((bundle / "contents.json").read_text("utf-8"))
        self.assertEqual((about["developmentRegion"], about["targetLocale"], about["version"]), ("en", "da", "1.0"))
        self.assertTrue((bundle / "Localized Contents/da.xliff").is_file())

    def assert_refused(self, name, text, sentence):
        """One sentence, exit code 3, and nothing was touched."""
        file = self.folder / name
        file.write_bytes(text)
        before = contents(self.project)
        done = self.run_cli("import", self.project, "--rules", "xcode", "--language", "da", "--quiet", file, code=3)
        lines = done.stderr.decode("utf-8").splitlines()
        self.assertEqual(len(lines), 1, lines)
        self.assertIn(f"cannot read \"{file}\": ", lines[0])
        self.assertIn(sentence, lines[0])
        self.assertEqual(contents(self.project), before)

    def test_files_that_mean_harm_end_in_one_sentence(self):
        bomb = b'<!DOCTYPE x [<!ENTITY a "aaaa">' + b"".join(
            b'<!ENTITY %c "&%c;&%c;&%c;">' % (c + 1, c, c, c) for c in range(ord("a"), ord("y"))) + b"]><xliff>&y;</xliff>"
        self.assert_refused("bomb.xliff", bomb, "line 1: It has entities of its own")
        outside = b'<!DOCTYPE x SYSTEM "file:///etc/passwd"><xliff>&x;</xliff>'
        self.assert_refused("outside.xliff", outside, "line 1: “&” begins no character that XML knows.")
        self.assert_refused("deep.xliff", b"<a>" * 1_000_000, "line 1: Its elements lie too deep")
        self.assert_refused("many.xliff", b"<xliff>" + b"<a/>" * 10_500_000, "It has too many elements.")
        self.assert_refused("long.xliff", b"<xliff><file original='" + b"x" * 20_000_000, "line 1: ")
        self.assert_refused("latin.xliff", "<?xml version='1.0' encoding='ISO-8859-1'?><xliff/>".encode("latin-1"),
                            "line 1: It is not in UTF-8 or UTF-16")
        self.assert_refused("bytes.xliff", b"<xliff>\xff\xfe</xliff>", "UTF-8")
        self.assert_refused("cut.xliff", b"<xliff><file>\n<body>", "line 2: An element is not closed.")
        self.assert_refused("quote.po", b'msgid "' + b"x" * 20_000_000, "line 1: The quotes do not fit.")
        self.assert_refused("bytes.po", b'msgid "\xc3"\nmsgstr ""\n', "UTF-8")
        self.assert_refused("quote.csv", b'key,da\n"' + b"x\n" * 10_000_000, "line 2: The quote of a cell is not closed.")
        self.assert_refused("commas.csv", b"," * 5_000_000, "line 1: No column is named “key”.")
        self.assert_refused("empty.tsv", b"", "line 1: No column is named “key”.")


if __name__ == "__main__":
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    unittest.main()
