"""Every call that writes fails once, in each way it can: files are whole, and whoever ends with 0 has written all."""

import plans
from project_state import State, lost_entries, torn_files

ERRORS = {
    "open": ("ENOSPC", "EMFILE"),
    "write": ("ENOSPC", "EIO", "short", "end"),
    "fsync": ("EIO",),
    "rename": ("EIO", "EACCES"),
    "mkdir": ("EACCES", "ENOSPC"),
    "unlink": ("EIO",),
    "chmod": ("EPERM", "EIO"),
    "xattr": ("ENOSPC",),
    "readlink": ("EIO", "EACCES"),
    "lock": ("EIO",),
}


def judged(bench, arguments, plan, undisturbed):
    """What went wrong, or None."""
    before = State(bench.project)
    outcome = bench.run(arguments, plan=plan)
    if outcome.code == "hangs":
        return "hangs"
    if torn_files(before, undisturbed.state, outcome.state):
        return "a torn file"
    if outcome.code == 0 and lost_entries(undisturbed.state, outcome.state):
        return "lost entries, exit 0"
    again = bench.run(arguments, again=True)
    if again.code != 0 or again.state != undisturbed.state:
        return f"the next command does not get there, exit {again.code}"
    return "a temporary file is left" if again.state.temporaries else None


def trials(bench, arguments, every=1):
    """Yields (plan, what went wrong or None)."""
    return plans.trials(bench, arguments, ERRORS, judged, every)
