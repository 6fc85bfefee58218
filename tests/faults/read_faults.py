"""Every call that reads fails once, in each way it can: nobody may lose a word by a read that was not whole."""

from project_state import State, lost_entries, torn_files

ERRORS = {
    "open": ("EIO", "EACCES", "EMFILE"),
    "opendir": ("EIO", "EACCES", "EMFILE"),
    "readdir": ("EIO",),
    "read": ("EIO", "short", "end"),
    "stat": ("EIO", "EACCES"),
}


def calls_of(outcome, kind):
    return sum(1 for line in outcome.trace if line.split(" ", 1)[0] == kind)


def plans_for(outcome, every=1):
    """A plan for each call and each effect; of each kind only every so many calls."""
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
        changed = State(bench.copy)
        lost = lost_entries(undisturbed.state, changed)
        return f"wrote {len(lost)} entries less, exit {outcome.code}" if lost else "wrote something else"
    if outcome.code == 0 and lost_entries(undisturbed.state, outcome.state):
        return "lost entries, exit 0"
    return None


def trials(bench, arguments, every=1):
    """Yields (plan, what went wrong or None)."""
    undisturbed = bench.run(arguments, traced=True)
    for plan in plans_for(undisturbed, every):
        yield plan, judged(bench, arguments, plan, undisturbed)
