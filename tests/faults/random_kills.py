"""Commands that write are killed at random calls, in front of them or behind. What they leave is whole, or seen by the next."""

import random

from project_state import State, is_mixed, torn_files

NOTHING_DONE = 3
THERE_ALREADY = 2  # says add-language when it has got through


def commands(bench):
    """Each with the words that ask for it; import gets a text with something new in it."""
    text = bench.work / "import.txt"
    bench.prepare()
    bench.run(["export", str(bench.copy), "--language", "fr", "--output", str(text), "--quiet"], again=True)
    lines = text.read_text(encoding="utf-8").splitlines(keepends=True)
    text.write_text("".join(line.replace("\n", " x\n") if line[:1].isalpha() else line for line in lines),
                    encoding="utf-8")
    project = str(bench.copy)
    return [["save", project, "--quiet"], ["fill", project, "--language", "de", "--quiet"],
            ["import", project, "--language", "fr", str(text), "--quiet"],
            ["add-language", project, "sv", "--save", "--quiet"]]


def ended(bench, arguments, chance):
    """Ends a save that was cut short, one way or the other; what is wrong with it, or None."""
    refused = bench.run(arguments, again=True)
    if refused.code != NOTHING_DONE:
        return f"a mixed set that the next command does not see, exit {refused.code}"
    forwards = chance.random() < 0.5
    restored = bench.run(["restore", str(bench.copy), *(["--finish"] if forwards else [])], again=True)
    if restored.code != 0:
        return f"it can not be {'finished' if forwards else 'taken back'}, exit {restored.code}: {restored.stderr}"
    if not forwards and restored.state != State(bench.project):
        return "it is not taken back as it was"
    return None


def judged(bench, arguments, undisturbed, chance):
    """The plan, and what went wrong or None."""
    before = State(bench.project)
    plan = f"any:{chance.randint(1, len(undisturbed.trace))}:{chance.choice(['kill-before', 'kill-after'])}"
    killed = bench.run(arguments, plan=plan).state
    name = f"{arguments[0]} {plan}"
    if torn_files(before, undisturbed.state, killed):
        return name, "a torn file"
    if is_mixed(before, undisturbed.state, killed):
        problem = ended(bench, arguments, chance)
        if problem:
            return name, problem
    after = bench.run(arguments, again=True)
    there = after.code == 0 or (after.code == THERE_ALREADY and arguments[0] == "add-language")
    if not there or after.state != undisturbed.state:
        return name, f"the next command does not get there, exit {after.code}: {after.stderr}"
    if after.code == 0 and after.state.temporaries:
        return name, "a temporary file is left"
    return name, None


def trials(bench, count, seed=1984):
    """Yields (command and plan, what went wrong or None)."""
    chance = random.Random(seed)
    choices = [(arguments, bench.run(arguments, traced=True)) for arguments in commands(bench)]
    for _ in range(count):
        arguments, undisturbed = chance.choice(choices)
        yield judged(bench, arguments, undisturbed, chance)
