#!/usr/bin/env python3
"""A second computation of a band mill: lengths of the band and pieces of the picture, apart from the program.

    machine_reference.py > ../data/machine.jsonl

Writes what comes of some hundred mills, a JSON object a line. The same mills come each time: the random ones
grow from one seed.

    {"given": {WheelDia, CenterToCenter: ft, PlateThick: in}, "places": decimals, "shown": decimals of the text,
     "metric": 0 or 1, "machine": [WheelDia, CenterToCenter] within their limits, "lengths": [inside, ...],
     "wheels": [[centre's Y, radius], ...] the eight circles, "spokes": count of a wheel,
     "band": six pieces, "dimension": seven, each a list of its numbers}

A mill without wheels or without a distance has null from "lengths" on.
"""

import json
import math
import random
import sys

import value_reference

PI = 3.14159265358979
FOOT = 12
NOTHING = dict.fromkeys(("lengths", "wheels", "spokes", "band", "dimension", "text"))


class Cut:
    """The rounding rule: lifted by a twentieth of the last place, then cut toward zero."""

    def __init__(self, places):
        self.scale = 10.0 ** places

    def __call__(self, value):
        return math.trunc((0.05 / self.scale + value) * self.scale) / self.scale


def within(value, least, most):
    """Out of two limits the lower one is looked at first."""
    return least if value < least else most if value > most else value


def lengths(wheel, centers, plate, cut):
    for turns in (1, 2, 3) if plate > 0 else (1,):
        diameter = cut(turns * plate + wheel)
        yield cut(centers + centers + cut(diameter * PI))


def circles(wheel, centers, cut):
    """The radii of one wheel's four circles and its number of spokes."""
    inches = wheel * FOOT
    growth = cut(inches / 12 * 0.1) - 0.1
    bore_area = Cut(15)(inches * 0.065449846949787)
    bore = cut(math.sqrt(Cut(15)(bore_area / PI))) * cut(growth * 4 + 1)
    hub = bore * 1.75
    spoke = cut(cut(inches / 16) / cut(growth * 2 + 1))
    spokes = within(int(2 * hub * PI / (spoke + 0.5) + 1), 5, 12)
    radii = cut(inches / 2), cut(inches / 2 - inches / 48), hub, bore
    return [[y, r] for y in (0, centers * FOOT) for r in radii], spokes


def band(wheel, centers, plate):
    inside, top = wheel * FOOT / 2, centers * FOOT
    outside = inside + plate
    sides = [[x, 0, x, top] for x in (inside, outside, -inside, -outside)]
    return sides + [[0, 0, outside, 180, 360], [0, top, outside, 0, 180]]


def dimension(wheel, centers):
    inches, top = wheel * FOOT, centers * FOOT
    arrow = inches / 20
    far = -inches * 0.85
    line = far + arrow
    middle = top * 0.5

    def head(tip, base):
        return [line, tip, line + arrow / 6, base, line - arrow / 6, base, line, tip]

    return [[-1, 0, far, 0], [-1, top, far, top], [line, 0, line, middle - arrow / 2],
            [line, middle + arrow / 2, line, top], [line, middle, 0.25, 0], head(0, arrow), head(top, top - arrow)]


def mill(given, places, shown, metric):
    """All that comes of a mill."""
    cut = Cut(places)
    wheel, centers, plate = (given[name] for name in ("WheelDia", "CenterToCenter", "PlateThick"))
    if wheel > 0:
        wheel = within(wheel, 0.5, 15)
    outcome = {"given": given, "places": places, "shown": shown, "metric": metric}
    if not (wheel > 0 and centers > 0):
        return outcome | {"machine": [wheel, centers]} | NOTHING
    centers = within(centers, wheel * 1.02, wheel * 6)
    wheels, spokes = circles(wheel, centers, cut)
    text, _ = value_reference.FormatValue(value_reference.DecimalText(centers), 2, metric, shown, places)
    return outcome | {"machine": [wheel, centers], "lengths": list(lengths(wheel, centers, plate, cut)),
                      "wheels": wheels, "spokes": spokes, "band": band(wheel, centers, plate),
                      "dimension": dimension(wheel, centers), "text": text}


# --- mills -----------------------------------------------------------------------------------------------------

LIMITS = (0, 0.25, 0.5, 0.50001, 0.75, 1, 5, 14.99999, 15, 15.00001, 20, -1)


def random_mills(seed, count):
    """Measures as people type them, measures with every digit, and some out of all bounds."""
    dice = random.Random(seed)

    def measure(most):
        value = dice.uniform(0, most)
        return value if dice.random() < 0.4 else round(value, dice.choice((0, 1, 2, 3, 4)))

    for _ in range(count):
        wheel = dice.choice(LIMITS) if dice.random() < 0.1 else measure(16)
        centers = dice.choice(LIMITS) if dice.random() < 0.05 else measure(max(1, abs(wheel)) * 7)
        plate = dice.choice((0, 0, 0.05, 0.083, -0.05, measure(0.2), measure(3)))
        yield {"WheelDia": wheel, "CenterToCenter": centers, "PlateThick": plate}


def edges():
    for wheel in LIMITS:
        for centers in (0, 0.5, wheel * 1.02, wheel * 2, wheel * 6, wheel * 6 + 0.00001, 1000):
            yield {"WheelDia": wheel, "CenterToCenter": centers, "PlateThick": 0.05}


def main():
    dice = random.Random(60)
    for given in [*edges(), *random_mills(61, 120)]:
        row = mill(given, dice.choice((4, 5, 5, 6, 8, 10)), dice.choice((2, 3, 4, 5)), dice.choice((0, 1)))
        print(json.dumps(row, separators=(",", ":")))
    return 0


if __name__ == "__main__":
    sys.exit(main())
