"""A save is killed in front of each call that changes something: what it leaves is whole, or seen by the next command."""

from project_state import State, is_mixed, torn_files

CHANGING = ("open", "write", "fsync", "rename", "mkdir", "unlink")
NOTHING_DONE = 3


def places(outcome):
    """The numbers, among all calls, of those that may change something."""
    for line in outcome.trace:
        kind, _, number, _ = line.split(" ", 3)
        if kind in CHANGING:
            yield int(number)


def judged(bench, arguments, number, undisturbed):
    """What went wrong, or None."""
    before = State(bench.project)
    killed = bench.run(arguments, plan=f"any:{number}:kill-before").state
    if torn_files(before, undisturbed.state, killed):
        return "a torn file"
    mixed = is_mixed(before, undisturbed.state, killed)
    after = bench.run(arguments, again=True)
    if mixed and after.code != NOTHING_DONE:
        return f"a mixed set that the next command does not see, exit {after.code}"
    if mixed:
        bench.run(["restore", str(bench.copy), "--finish"], again=True)
        after = bench.run(arguments, again=True)
    if after.code != 0 or State(bench.copy) != undisturbed.state:
        return f"the next command does not get there, exit {after.code}"
    return "a temporary file is left" if State(bench.copy).temporaries else None


def trials(bench, arguments, every=1):
    """Yields (number of the call, what went wrong or None)."""
    undisturbed = bench.run(arguments, traced=True)
    for number in list(places(undisturbed))[::every]:
        yield number, judged(bench, arguments, number, undisturbed)
