"""The project trees that are measured: made when they are not there yet, and reused."""

import os
import pathlib
import shutil
import subprocess
import tempfile

DEFAULT_DIRECTORY = os.path.join(tempfile.gettempdir(), "glossmill-bench")


def made_tree(directory, maker, kind, size=None):
    """The directory of a tree below `directory`; one that was not finished is made anew."""
    trees = pathlib.Path(directory)
    name = kind if size is None else f"{kind}-{size}"
    path = trees / name
    if not path.is_dir():
        unfinished = trees / f"{name}.unfinished"
        shutil.rmtree(unfinished, ignore_errors=True)
        trees.mkdir(parents=True, exist_ok=True)
        command = [maker, kind, str(unfinished)] + ([] if size is None else [str(size)])
        subprocess.run(command, stdout=subprocess.DEVNULL, check=True)
        unfinished.rename(path)
    return path
