"""What somebody does with the panel of the variable pitch editor: rows for variable_editor.py, always the same."""

import random

BANDS = {
    "square": {"ToothStyle": 1, "GulletInfo.Radius": 0.3},
    "round": {"ToothStyle": 2, "GulletInfo.Radius": 0.3, "GulletInfo.BackRadius": 0.2},
    "double": {"ToothStyle": 4, "GulletInfo.Radius1": 0.2, "GulletInfo.Radius2": 0.45, "GulletInfo.Width": 0.68},
    "triple": {"ToothStyle": 5, "GulletInfo.Radius1": 0.2, "GulletInfo.Radius2": 0.5, "GulletInfo.Radius3": 0.3,
               "GulletInfo.Width": 0.7},
    "flat": {"ToothStyle": 6, "GulletInfo.Radius1": 0.2, "GulletInfo.Radius2": 0.3, "GulletInfo.Width": 0.8},
    "frost": {"ToothStyle": 9, "GulletInfo.Radius1": 0.3, "GulletInfo.FrostWidth": 0.1, "GulletInfo.FrostHeight": 0.2,
              "GulletInfo.FrostRadius": 0.05, "GulletInfo.FrostAngle": 25},
}


def band(kind="square", teeth=60, pitch=2.0, **more):
    saw = {"Length": teeth * pitch / 12, "NumTeeth": teeth, "Width": 6, "HookAngle": 20, "ClearAngle": 12,
           "GulletInfo.BackAngle": 20, "GulletInfo.Depth": 0.8, **BANDS[kind]}
    saw.update({name.replace("__", "."): value for name, value in more.items()})
    return saw


def variable(n, pitches, depths=None, teeth=60, pattern=0, **more):
    given = {"GeneralInfo.VariablePitch": -1, "GeneralInfo.NumVariables": n, "GeneralInfo.VarPitch": pitches,
             "DesignInfo.VarPattern": pattern}
    if depths:
        given.update({"GeneralInfo.VariableDepth": -1, "GeneralInfo.VarDepth": depths})
    return {**band(teeth=teeth, **more), **given}


def row(name, saw, *steps, system=0, display=3, places=5):
    return {"name": name, "DecimalPlaces": places, "ImpMetric": system, "DisplayPlaces": display, "saw": saw,
            "steps": [{"do": list(step)} for step in (("open",), *steps)]}


def planned_rows():
    """Every sentence about a control at least once, and what lies at the edges."""
    for teeth in (100, 98, 60, 420, 105, 12, 96, 121):
        yield row(f"opens on {teeth} teeth", band(teeth=teeth))
    for pattern in range(4):
        for entry in range(1, 5):
            yield row(f"pattern {pattern} of entry {entry}", band(teeth=60), ("pattern", pattern), ("entry", entry))
    yield row("seven teeth, mixed", band(teeth=98), ("pattern", 3), ("tick", True), ("pattern", 0))
    yield row("six and seven teeth", band(teeth=84), ("entry", 3), ("entry", 4), ("pattern", 2), ("entry", 3))
    yield row("None and back", band(), ("entry", 2), ("tick", True), ("entry", 0), ("entry", 3), ("entry", 0))
    yield row("None twice", band(), ("entry", 0), ("entry", 0), ("pattern", 2), ("entry", 2))
    yield row("patterns without a segment", band(), ("entry", 0), ("pattern", 3), ("pattern", 0), ("entry", 1))
    yield row("a tick without a segment", band(), ("entry", 0), ("tick", True), ("tick", False), ("entry", 1))
    yield row("a tick that None leaves", band(), ("tick", True), ("entry", 0), ("tick", False), ("entry", 1))
    yield row("a tick that None leaves, reset", band(), ("tick", True), ("entry", 0), ("reset",), ("entry", 2))
    yield row("the same entry again", band(), ("entry", 1), ("pitch", 0, "2.1"), ("entry", 1), ("pattern", 1))
    yield row("the same entry again without a pattern", band(), ("pitch", 0, "2.1"), ("entry", 1))
    yield row("a depth of its own", band("round"), ("pattern", 1), ("tick", True), ("gullet", 1, "0.9"), ("tick", False))
    yield row("a depth beyond its limits", band(), ("tick", True), ("gullet", 0, "9"), ("gullet", 2, "0.01"),
              ("gullet", 1, "-3"))
    yield row("a depth that is not variable", band(), ("gullet", 0, "1"), ("pattern", 1), ("gullet", 2, "1"))
    yield row("a depth beyond the segment", band(), ("tick", True), ("gullet", 3, "1"), ("gullet", 6, "1"))
    yield row("the pitch that is computed", band(), ("pitch", 2, "2.2"), ("pitch", 5, "2.2"))
    yield row("pitches", band(teeth=100), ("pitch", 0, "2.2"), ("pitch", 1, "1.9"), ("pitch", 2, "1.95"))
    yield row("pitches beyond their limits", band(), ("pitch", 0, "99"), ("pitch", 1, "0.1"), ("pitch", 1, "99"),
              ("pitch", 0, "0"), ("pitch", 1, "-5"))
    yield row("all at the most", band(teeth=98), *[("pitch", k, "9") for k in range(6)])
    yield row("all at the least", band(teeth=98), *[("pitch", k, "0") for k in range(6)])
    yield row("a neighbour gives, with depths", band(teeth=100), ("tick", True), ("pitch", 0, "9"), ("pitch", 1, "9"),
              ("pitch", 2, "9"), ("pattern", 0))
    yield row("dialogs that are cancelled", band(), ("pitch", 0, None), ("tick", True), ("gullet", 0, None))
    yield row("reset at once", band(), ("reset",))
    yield row("reset of everything", band(), ("entry", 3), ("tick", True), ("pitch", 1, "2.3"), ("reset",), ("reset",))
    yield row("metric", band(teeth=100), ("entry", 2), ("pitch", 0, "5.5"), ("tick", True), ("gullet", 0, "2.4"),
              system=1)
    yield row("units that change", band(), ("pattern", 2), ("units", 1), ("pitch", 0, "5 cm"), ("units", 0))
    yield row("equations", band(), ("pitch", 0, "2 1/16 in"), ("pitch", 1, "4/2-.125"))
    for kind in BANDS:
        yield row(f"{kind} with depths", band(kind, teeth=40), ("entry", 2), ("tick", True), ("pattern", 3),
                  ("gullet", 0, "0.7"), ("tick", False))
    for places in (4, 6, 10):
        yield row(f"{places} decimals", band(teeth=100, pitch=1.7), ("pattern", 1), ("tick", True), ("pitch", 1, "1.61"),
                  places=places)
    for display in (0, 1, 6, 10, 11):
        yield row(f"{display} shown", band(teeth=100, pitch=1.7), ("pattern", 3), display=display)
    yield row("a variable band", variable(4, [2.1, 2.0, 1.8, 2.1]), ("tick", True), ("pitch", 0, "2"))
    yield row("a variable band with depths", variable(3, [2.1, 2.0, 1.9], [0.9, 0.8, 0.7]), ("tick", False))
    yield row("depths that are not set", variable(3, [2.1, 2.0, 1.9], [0.9, 0, -1, 0.7]), ("gullet", 0, "0.85"))
    yield row("depths that the radii do not allow", variable(3, [2.1, 2.0, 1.9], [0.1, 0.2, 0.9], kind="double"),
              ("pitch", 0, "2"), ("gullet", 1, "0.1"))
    yield row("a count that no longer divides", variable(4, [2.1, 2.0, 1.8, 2.1], teeth=63), ("tick", True),
              ("pitch", 0, "2"), ("pattern", 1), ("entry", 1))
    yield row("a count that no longer divides, None", variable(5, [2.0] * 5, [0.8] * 5, teeth=63), ("entry", 0),
              ("reset",))
    yield row("a variable band of no teeth in its segment", variable(0, [2.0] * 7), ("pattern", 1), ("entry", 1))
    for pattern in (-1, 1, 2, 3, 4, 77):
        yield row(f"stored pattern {pattern}", variable(3, [2.1, 2.0, 1.9], pattern=pattern), ("entry", 2))
    yield row("a segment that does not add up", variable(3, [2.1, 2.1, 2.1]), ("tick", True), ("tick", False))
    yield row("a segment that cannot balance", variable(3, [9.0, 9.0, 9.0]), ("tick", True))
    yield row("a segment out of its limits", variable(5, [0.1, 0.1, 9.0, 9.0, 1.0]), ("pitch", 4, "2"), ("pitch", 3, "2"))
    yield row("a constant band that keeps pitches", {**band(), "GeneralInfo.VarPitch": [3.0] * 10,
                                                     "GeneralInfo.VarDepth": [3.0] * 10}, ("entry", 0), ("entry", 1))
    yield row("a depth flag without pitch", {**band(), "GeneralInfo.VariableDepth": -1}, ("pitch", 0, "2.1"), ("reset",))


def typed_length(dice, low, high):
    return format(dice.uniform(low, high), f".{dice.choice((1, 2, 3, 4))}f")


def step_of(dice, pitch, system):
    factor = 2.54 if system == 1 else 1
    kind = dice.choice(("entry", "pattern", "tick", "pitch", "pitch", "pitch", "gullet", "gullet", "reset"))
    if kind == "entry":
        return ("entry", dice.choice((0, 1, 1)))
    if kind == "pattern":
        return ("pattern", dice.randint(0, 3))
    if kind == "tick":
        return ("tick", dice.random() < 0.8)
    if kind == "pitch":
        return ("pitch", dice.randint(0, 6), typed_length(dice, 0.5 * pitch * factor, 1.5 * pitch * factor))
    if kind == "gullet":
        return ("gullet", dice.randint(0, 6), typed_length(dice, 0.1 * factor, 1.6 * factor))
    return ("reset",) if dice.random() < 0.3 else ("pattern", 0)


def random_rows(count):
    dice = random.Random(32)
    for number in range(count):
        teeth = dice.choice((12, 15, 20, 21, 24, 28, 30, 35, 36, 42, 49, 60))
        pitch = dice.choice((2.0, 1.75, 1.5, round(dice.uniform(1.4, 2.6), 4)))
        system = dice.choice((0, 0, 1))
        saw = band(dice.choice(sorted(BANDS)), teeth, pitch)
        divisors = [n for n in (3, 4, 5, 6, 7) if teeth % n == 0]
        steps = [("entry", dice.randint(1, len(divisors)))]
        steps += [step_of(dice, pitch, system) for _ in range(dice.randint(6, 12))]
        yield row(f"random {number}", saw, *steps, system=system, display=dice.choice((3, 3, 4, 5)),
                  places=dice.choice((5, 5, 5, 4, 6, 8)))


def all_rows():
    yield from planned_rows()
    yield from random_rows(60)
