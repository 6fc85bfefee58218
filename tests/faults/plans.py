"""Which call fails, and how: one plan for each call of an undisturbed run and each effect that its kind can have."""


def calls_of(outcome, kind):
    return sum(1 for line in outcome.trace if line.split(" ", 1)[0] == kind)


def plans_for(outcome, effects_by_kind, every=1):
    """Of each kind only every so many calls."""
    for kind, effects in effects_by_kind.items():
        for number in range(1, calls_of(outcome, kind) + 1, every):
            for effect in effects:
                yield f"{kind}:{number}:{effect}"


def trials(bench, arguments, effects_by_kind, judged, every=1):
    """Yields (plan, what went wrong or None)."""
    undisturbed = bench.run(arguments, traced=True)
    for plan in plans_for(undisturbed, effects_by_kind, every):
        yield plan, judged(bench, arguments, plan, undisturbed)
