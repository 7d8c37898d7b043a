#!/usr/bin/env python3
"""Random designs, plausible and degenerate, for holding the program against its second computation.

    random_designs.py SEED COUNT [--styles 1,2,...] [--no-variable] [--plausible]

Prints a design a line, as tarnwick_reference.py reads them.  The same seed gives the same designs.  Bands are kept
short (mostly 1 to 40 teeth), so that thousands are compared in a minute or two.
"""

import argparse
import json
import random

STYLES = (1, 2, 4, 5, 6, 7, 8, 9)
ODD_STYLES = (0, 3, 10, -1)
ODD_LENGTHS = (0, 0, -1, -0.25, 1e-12, 1e-6, 0.00004, 0.5, 3, 100, 1e6, 1e15, 1e100, 1e160, 1e300, -1e6, -1e300)
ODD_ANGLES = (0, 0, 90, -90, 45, -45, 89.999, 0.00001, 180, 270, 359.5, 360, 361, 540, 720, -270, -360, -400, 1e6,
              1e300, -15.5)
LENGTHS = ("Length", "Width", "TipClear", "SeatInfo.Width", "SeatInfo.Height", "GulletInfo.Radius",
           "GulletInfo.Depth", "GulletInfo.BackRadius", "GulletInfo.Radius1", "GulletInfo.Radius2",
           "GulletInfo.Radius3", "GulletInfo.Width", "GulletInfo.FrostWidth", "GulletInfo.FrostHeight",
           "GulletInfo.FrostRadius", "GeneralInfo.PlateThick", "Pitch")
ANGLES = ("HookAngle", "ClearAngle", "GulletInfo.BackAngle", "GulletInfo.BottomAngle", "GulletInfo.FrostAngle")


class Dice:
    def __init__(self, seed):
        self.random = random.Random(seed)

    def chance(self, share):
        return self.random.random() < share

    def choice(self, items):
        return self.random.choice(items)

    def whole(self, low, high):
        return self.random.randint(low, high)

    def between(self, low, high):
        """Mostly as somebody would type it, now and then with all its digits, now and then on a round value."""
        value = self.random.uniform(low, high)
        places = self.choice((1, 2, 3, 3, 4, 4, 5, 17))
        return round(value, places) if places < 17 else value

    def angle(self, low, high):
        return self.choice((0, low, high, 10, 15)) if self.chance(0.15) else self.between(low, high)


def settings(dice):
    return {"DecimalPlaces": dice.choice((5, 5, 5, 4, 6, 7, 8, 9, 10)), "TeethDirection": dice.choice((1, 2)),
            "MemorySize": 8000 if dice.chance(0.03) else 128000, "DxfSaveColor": dice.whole(0, 9)}


def plausible(dice, style):
    """A band that somebody could order."""
    pitch = dice.between(0.75, 3)
    teeth = 200 if dice.chance(0.01) else dice.whole(3, 40)
    depth = dice.between(0.2, 0.6) * pitch
    saw = {"ToothStyle": style, "Length": teeth * pitch / 12, "Width": dice.between(3, 12),
           "HookAngle": dice.angle(5, 35), "ClearAngle": dice.angle(5, 25), "TipClear": 0,
           "GulletInfo.BackAngle": dice.angle(0, 40), "GulletInfo.Depth": depth}
    if dice.chance(0.5):
        saw["Pitch"] = pitch
        saw["Length"] = round(saw["Length"], 2)
    else:
        saw["NumTeeth"] = teeth
    if dice.chance(0.3):
        saw["TipClear"] = dice.between(0, 0.08)
    if dice.chance(0.1):
        saw["Width"] = dice.choice((0, depth, depth * 1.05))
    if dice.chance(0.2):
        saw["GulletInfo.Depth"] = dice.choice((0, dice.between(0.01, 0.3)))
    if dice.chance(0.1):
        saw["HookAngle"] = dice.angle(-20, 0)
    if dice.chance(0.4):
        saw.update({"SeatInfo.State": -1, "SeatInfo.Width": dice.between(0.02, 0.1),
                    "SeatInfo.Height": dice.between(0.05, 0.2)})
    add_radii(dice, saw, style, pitch)
    add_options(dice, saw)
    return saw


def add_radii(dice, saw, style, pitch):
    if style in (1, 2, 7) or style not in STYLES:
        saw["GulletInfo.Radius"] = dice.between(0.05, 0.4) * pitch
    else:
        saw["GulletInfo.Radius1"] = dice.between(0.04, 0.25) * pitch
        if style != 8 and not (style == 9 and dice.chance(0.4)):
            saw["GulletInfo.Radius2"] = dice.between(0.1, 0.6) * pitch
        if style == 5 or (style == 9 and dice.chance(0.4)):
            saw["GulletInfo.Radius3"] = dice.between(0.05, 0.5) * pitch
        if dice.chance(0.6):
            saw["GulletInfo.Width"] = dice.between(0.2, 0.9) * pitch
        if dice.chance(0.15) or (style == 9 and dice.chance(0.6)):
            saw["GulletInfo.Radius"] = dice.between(0.05, 0.3) * pitch
    if style == 6:
        saw["GulletInfo.BottomAngle"] = dice.angle(0, 20)
    if style == 9:
        saw.update({"GulletInfo.FrostRadius": dice.between(0.03, 0.12), "GulletInfo.FrostAngle": dice.angle(5, 40)})
        if dice.chance(0.7):
            saw["GulletInfo.FrostWidth"] = dice.between(0.05, 0.3)
            saw["GulletInfo.FrostHeight"] = dice.between(0.1, 0.4)


def add_options(dice, saw):
    if dice.chance(0.4):
        saw["GulletInfo.BackRadius"] = dice.choice((dice.between(0.01, 0.3), dice.between(0.3, 4), -1))
    if dice.chance(0.3):
        saw["BothEdges"] = -1
    if dice.chance(0.3):
        saw.update({"DesignInfo.JoinStyle": 1, "GeneralInfo.PlateThick": dice.between(0.03, 0.15)})


def add_segment(dice, saw):
    """A segment of teeth of different pitch, whose whole number fills the band (or nearly so)."""
    n = dice.whole(3, 7)
    teeth = n * dice.whole(1, 6)
    pitch = dice.between(0.8, 2.5)
    if dice.chance(0.15):
        teeth += dice.whole(1, n)
    if dice.chance(0.08):
        n = dice.choice((0, 1, 2, 8, 9, 10, 11, 12, -1))
    saw.pop("Pitch", None)
    saw.update({"NumTeeth": teeth, "Length": teeth * pitch / 12, "GeneralInfo.VariablePitch": -1,
                "GeneralInfo.NumVariables": n,
                "GeneralInfo.VarPitch": [pitch * dice.between(0.75, 1.25) for _ in range(10)]})
    if dice.chance(0.5):
        depth = saw.get("GulletInfo.Depth", 0.5)
        saw.update({"GeneralInfo.VariableDepth": -1,
                    "GeneralInfo.VarDepth": [depth * dice.between(0.6, 1.3) for _ in range(10)]})
    if dice.chance(0.1):
        saw["GeneralInfo.VarPitch"][dice.whole(0, 9)] = dice.choice(ODD_LENGTHS)
    if dice.chance(0.1) and "GeneralInfo.VarDepth" in saw:
        saw["GeneralInfo.VarDepth"][dice.whole(0, 9)] = dice.choice(ODD_LENGTHS)
    if dice.chance(0.2):
        saw["DesignInfo.VarArea"] = [dice.between(0, 1) for _ in range(10)]


def spoil(dice, saw):
    """One to four fields get a value that nobody meant."""
    for _ in range(dice.whole(1, 4)):
        kind = dice.random.random()
        if kind < 0.04:
            saw[dice.choice(("BothEdges", "SeatInfo.State", "DesignInfo.JoinStyle"))] = dice.choice((1, 2, -1, -2))
        elif kind < 0.08:
            saw.update({"Pitch": dice.between(0.5, 3), "Length": -dice.between(0, 5)})
        elif kind < 0.5:
            name = dice.choice(LENGTHS)
            saw[name] = dice.choice(ODD_LENGTHS) if dice.chance(0.7) else saw.get(name, 1) * dice.choice((0.01, -1, 10))
        elif kind < 0.8:
            saw[dice.choice(ANGLES)] = dice.choice(ODD_ANGLES) if dice.chance(0.6) else dice.between(-400, 400)
        elif kind < 0.95:
            saw["NumTeeth"] = dice.choice((0, 1, 2, 3, -1, -5, 40))
            if dice.chance(0.5):
                saw["Pitch"] = 0
        else:
            saw["ToothStyle"] = dice.choice(ODD_STYLES)
    keep_short(saw)


def keep_short(saw):
    """A typed pitch must not ask for thousands of teeth, unless for more than the count can hold."""
    length, pitch = saw.get("Length", 0), saw.get("Pitch", 0)
    if pitch > 0 and 200 < abs(length) * 12 / pitch < 1e6:
        saw["Pitch"] = abs(length) * 12 / 40


def design(dice, styles, variable, only_plausible):
    style = dice.choice(styles)
    saw = plausible(dice, style)
    is_variable = variable and style not in (7, 8) and dice.chance(0.3)
    if is_variable or (variable and dice.chance(0.03)):
        add_segment(dice, saw)
    if not only_plausible and dice.chance(0.4):
        spoil(dice, saw)
    op = "segment" if "GeneralInfo.NumVariables" in saw and dice.chance(0.35) else "band"
    if variable and dice.chance(0.01):
        op = "segment"
    return {"op": op, "settings": settings(dice), "saw": saw}


def main():
    parser = argparse.ArgumentParser(description="Random designs, one JSON object a line.")
    parser.add_argument("seed", type=int)
    parser.add_argument("count", type=int)
    parser.add_argument("--styles", default=",".join(map(str, STYLES)), help="comma-separated, all eight by default")
    parser.add_argument("--no-variable", action="store_true", help="constant pitch only")
    parser.add_argument("--plausible", action="store_true", help="nothing degenerate")
    options = parser.parse_args()
    dice = Dice(options.seed)
    styles = [int(word) for word in options.styles.split(",")]
    for i in range(options.count):
        one = design(dice, styles, not options.no_variable, options.plausible)
        print(json.dumps({"name": f"{options.seed}-{i + 1}", **one}, separators=(",", ":")))


if __name__ == "__main__":
    main()
