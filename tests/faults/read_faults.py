"""Every call that reads fails once, in each way it can: nobody may lose a word by a read that was not whole."""

import plans
from project_state import State, lost_entries, torn_files

ERRORS = {
    "open": ("EIO", "EACCES", "EMFILE"),
    "opendir": ("EIO", "EACCES", "EMFILE"),
    "readdir": ("EIO",),
    "read": ("EIO", "short", "end"),
    "stat": ("EIO", "EACCES"),
}


def judged(bench, arguments, plan, undisturbed):
    """What went wrong, or None."""
    before = State(bench.project)
    outcome = bench.run(arguments, plan=plan)
    if outcome.code == "hangs":
        return "hangs"
    if torn_files(before, undisturbed.state, outcome.state):
        changed = State(bench.copy)
        lost = lost_entries(undisturbed.state, changed)
        return f"wrote {len(lost)} entries less, exit {outcome.code}" if lost else "wrote something else"
    if outcome.code == 0 and lost_entries(undisturbed.state, outcome.state):
        return "lost entries, exit 0"
    return None


def trials(bench, arguments, every=1):
    """Yields (plan, what went wrong or None)."""
    return plans.trials(bench, arguments, ERRORS, judged, every)
