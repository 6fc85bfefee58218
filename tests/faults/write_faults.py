"""Every call that writes fails once, in each way it can: files are whole, and whoever ends with 0 has written all."""

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


def calls_of(outcome, kind):
    return sum(1 for line in outcome.trace if line.split(" ", 1)[0] == kind)


def plans_for(outcome, every=1):
    for kind, effects in ERRORS.items():
        for number in range(1, calls_of(outcome, kind) + 1, every):
            for effect in effects:
                yield f"{kind}:{number}:{effect}"


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
    undisturbed = bench.run(arguments, traced=True)
    for plan in plans_for(undisturbed, every):
        yield plan, judged(bench, arguments, plan, undisturbed)
