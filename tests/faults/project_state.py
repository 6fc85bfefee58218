"""What a project's strings files hold, so that an outcome is judged by content and not by what a program says."""

import os
import pathlib
import re
import shutil

ENTRY = re.compile(r'"((?:[^"\\]|\\.)*)"\s*=\s*"((?:[^"\\]|\\.)*)"')
COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)
TEMPORARY = re.compile(r"^\.glossmill-.*\.tmp$")


def decoded(data):
    if data.startswith((b"\xff\xfe", b"\xfe\xff")):
        return data.decode("utf-16", errors="replace")
    return data.decode("utf-8-sig", errors="replace")


def entries_of(data):
    """Key to value, by a reading of our own; comments hold no entries."""
    return dict(ENTRY.findall(COMMENT.sub("", decoded(data))))


class State:
    """The bytes of every strings file below a directory."""

    def __init__(self, directory):
        self.files = {}
        self.temporaries = []
        for folder, _, names in os.walk(directory):
            for name in names:
                path = pathlib.Path(folder, name)
                relative = str(path.relative_to(directory))
                if TEMPORARY.match(name):
                    self.temporaries.append(relative)
                elif name.endswith(".strings") and path.is_file():
                    self.files[relative] = path.read_bytes()

    def entries(self):
        """All of (file, key, value)."""
        return {(name, key, value) for name, data in self.files.items() for key, value in entries_of(data).items()}

    def __eq__(self, other):
        return self.files == other.files


def lost_entries(expected, found):
    """What `expected` holds and `found` does not."""
    return expected.entries() - found.entries()


def torn_files(before, expected, found):
    """Files that are neither as they were nor as they were to become."""
    return [name for name, data in found.files.items()
            if data != before.files.get(name) and data != expected.files.get(name)]


def is_mixed(before, expected, found):
    """Some files are old and some are new, of those that were to change."""
    changing = [name for name in expected.files if expected.files[name] != before.files.get(name)]
    new = [name for name in changing if found.files.get(name) == expected.files[name]]
    return 0 < len(new) < len(changing)


def fresh_copy(source, target):
    """Puts a copy of the directory in the place of `target`."""
    if target.exists():
        for folder, _, _ in os.walk(target):
            os.chmod(folder, 0o755)
        shutil.rmtree(target)
    shutil.copytree(source, target, symlinks=True)
