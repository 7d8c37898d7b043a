#!/usr/bin/env python3
"""A second computation of what the power windows show, written apart from the program, slow and plain.

    power_windows.py > ../data/power_windows.jsonl

Somebody opens a window on a design and clicks about. An object a line:

    {"op": "Editor" or "Calculator", "metric": 0 or 1, "display": shown decimals, "places": decimals, "index": feed
     index, "saw": {dotted field names; what is missing is zero}, "opened": {boxes with their texts, the empty ones
     left out}, "steps": [...], "out": {fields at the end, those of both sides for the calculator}}
    {"op": "Estimates", ..., "percent": typed percent, "box": the percent as the box shows it, "heading": [window,
     paper], "lines": [window, paper], each line [label, text with its mark]}
    {"op": "Sheet", ..., "lines": [...]}      the calculator's lines on paper

A step is [what is done, ..., the boxes whose texts are other ones now]:

    ["click", side, box, typed text or null for Cancel, accepted or not, texts]     side 0 in the editor
    ["index", entry, texts]    ["clear", side, texts]    ["copy", texts]    ["new", texts]

Texts of the calculator are named with their side: "0 txtRPMs". The same inputs come each time.
"""

import json
import math
import random

import power_reference as power
from failing import Failure, Number, RoundTo, finite
from value_reference import DecimalText, EvaluateEquation, FormatValue, PlainText, ReadNumber, StoredNumber

# box: field, unit kind, dialog's rule of storing; a box without a rule asks nothing
EDITOR = {
    "txtHPSawOD": ("MachineInfo.WheelDia", 2, None),
    "txtHPToothWidth": ("GeneralInfo.Kerf", 5, None),
    "txtHPPlateThick": ("GeneralInfo.PlateThick", 5, None),
    "txtHPGulletArea": ("GulletInfo.Area", 4, None),
    "txtAreaBelowTip": (None, 4, None),
    "txtBite": ("GulletInfo.Bite", 5, None),
    "txtRPMs": ("GeneralInfo.ShaftSpeed", 6, "integer"),
    "txtMaxDepth": ("GeneralInfo.DepthOfCut", 1, "AsTyped"),
    "txtFeedRate": ("GeneralInfo.FeedRate", 7, "AsTyped"),
    "txtSpecificEnergy": ("GeneralInfo.WoodType", None, "text"),
    "txtToothPitch": ("Pitch", 1, None),
    "txtSawVelocity": ("DesignInfo.SawVelocity", 7, None),
    "txtSideClearance": ("GeneralInfo.SideClear", 5, None),
    "txtCapacity": ("GulletInfo.Capacity", 4, None),
    "txtHorsePower": ("GeneralInfo.HorsePower", 0, None),
    "txtMaxFeedRate": ("DesignInfo.MaxFeedRate", 7, None),
}
CALCULATOR = {
    "txtHPSawOD": ("MachineInfo.WheelDia", 2, "MetresToFeet"),
    "txtCenters": ("MachineInfo.CenterToCenter", 2, "MetresToFeet"),
    "txtLength": ("Length", 2, "MetresToFeet"),
    "txtToothPitch": ("Pitch", 1, "CentimetresToInches"),
    "txtNumTeeth": ("NumTeeth", "plain", "integer"),
    "txtHPPlateThick": ("GeneralInfo.PlateThick", 5, "MillimetresToInches"),
    "txtHPToothWidth": ("GeneralInfo.Kerf", 5, "MillimetresToInches"),
    "txtSideClearance": ("GeneralInfo.SideClear", 5, None),
    "txtRPMs": ("GeneralInfo.ShaftSpeed", 6, "integer"),
    "txtSawVelocity": ("DesignInfo.SawVelocity", 7, None),
    "txtMaxDepth": ("GeneralInfo.DepthOfCut", 1, "AsTyped"),
    "txtFeedRate": ("GeneralInfo.FeedRate", 7, "AsTyped"),
    "txtSpecificEnergy": ("GeneralInfo.WoodType", None, "text"),
    "txtBite": ("GulletInfo.Bite", 5, None),
    "txtHPGulletArea": ("GulletInfo.Area", 4, None),
    "txtCapacity": ("GulletInfo.Capacity", 4, None),
    "txtHorsePower": ("GeneralInfo.HorsePower", 0, None),
}
WHOLE_FIELDS = {"GeneralInfo.ShaftSpeed": 32, "DesignInfo.SawVelocity": 32, "NumTeeth": 16}
FIELDS = sorted({field for box in (EDITOR, CALCULATOR) for field, *_ in box.values() if field} | {"Width"})


def blank():
    saw = {field: 0 if field in WHOLE_FIELDS else 0.0 for field in FIELDS}
    saw["GeneralInfo.WoodType"] = ""
    return saw


class World:
    """The settings in force."""

    def __init__(self, metric, display, places, index):
        self.metric, self.display, self.places = metric, display, places
        power.places, power.index = places, Number(index)

    @property
    def index(self):
        return power.index

    def choose(self, entry):
        power.index = RoundTo(Number(10 + 5 * entry) / 100, self.places)

    def shown(self, value, kind):
        if kind is None:
            return value.strip(" ")
        if kind == "plain":
            return DecimalText(value)
        return FormatValue(DecimalText(value), kind, self.metric, self.display, self.places)[0]

    def typed(self, text, rule):
        """What the dialog gives back for a text; None when it stays open."""
        if text == "":
            return None
        if rule == "text":
            return text
        value, _ = EvaluateEquation(text, self.places)
        return None if value is None else PlainText(value)

    def store(self, saw, field, rule, text):
        if rule == "text":
            saw[field] = text.strip(" ")[:30].rstrip(" ")  # the field pads it anyway
        elif rule == "integer":
            try:
                saw[field] = power.whole(ReadNumber(text), WHOLE_FIELDS[field])
            except Failure:
                pass
        else:
            saw[field] = StoredNumber(rule, text, self.metric, self.places)


def cut(value, places):
    return RoundTo(finite(value), places)


# ---- frmPower

class Editor:
    SHOWN = ("txtHPSawOD", "txtHPToothWidth", "txtHPPlateThick", "txtHPGulletArea", "txtAreaBelowTip", "txtBite",
             "txtRPMs", "txtMaxDepth", "txtFeedRate", "txtSpecificEnergy", "txtToothPitch")

    def __init__(self, world, saw):
        self.world, self.saw = world, dict(saw)
        self.texts = {box: "" for box in EDITOR}
        for box in self.SHOWN:
            self.show(box)
        self.work_out("velocity", "clear", "capacity", "power", "most")

    def value(self, box):
        field = EDITOR[box][0]
        return self.saw[field] if field else float(self.world.index) * self.saw["GulletInfo.Area"]

    def is_set(self, box):
        value = self.value(box)
        if box == "txtToothPitch":
            return True
        if box == "txtAreaBelowTip":
            return self.saw["GulletInfo.Area"] != 0
        if box == "txtSpecificEnergy":
            return value.strip(" ") != ""
        if box in ("txtFeedRate", "txtRPMs"):
            return value > 0
        return value != 0

    def text(self, box):
        return self.world.shown(self.value(box), EDITOR[box][1])

    def show(self, box):
        if self.is_set(box):
            self.texts[box] = self.text(box)

    def show_or_clear(self, box):
        value = self.value(box)
        self.texts[box] = self.text(box) if value not in (0, "") else ""

    def work_out(self, *figures):
        saw = self.saw
        speed = lambda: power.CalcSawVelocity(ReadNumber(DecimalText(saw["MachineInfo.WheelDia"])),
                                              saw["GeneralInfo.ShaftSpeed"])
        rules = {
            "velocity": ("txtSawVelocity", speed),
            "clear": ("txtSideClearance",
                      lambda: power.CalcSideClear(saw["GeneralInfo.PlateThick"], saw["GeneralInfo.Kerf"])),
            "bite": ("txtBite", lambda: power.CalcBite(saw["GeneralInfo.FeedRate"], saw["Pitch"],
                                                       saw["DesignInfo.SawVelocity"])),
            "capacity": ("txtCapacity", lambda: power.CalcCapacity(saw["GulletInfo.Bite"],
                                                                   saw["GeneralInfo.DepthOfCut"])),
            "power": ("txtHorsePower",
                      lambda: power.CalcHorsePower(saw["GeneralInfo.WoodType"], saw["GeneralInfo.Kerf"],
                                                   saw["GeneralInfo.FeedRate"], saw["GeneralInfo.DepthOfCut"])),
            "most": ("txtMaxFeedRate",
                     lambda: power.CalcMaxFeedRate(saw["GeneralInfo.DepthOfCut"], saw["GulletInfo.Area"],
                                                   saw["Pitch"], saw["DesignInfo.SawVelocity"])),
        }
        for figure in figures:
            box, rule = rules[figure]
            saw[EDITOR[box][0]] = rule()
            self.show_or_clear(box)

    THEN = {
        "txtRPMs": ("velocity", "bite", "capacity", "power", "most"),
        "txtMaxDepth": ("bite", "capacity", "power", "most"),
        "txtFeedRate": ("bite", "capacity", "power", "most"),
        "txtSpecificEnergy": ("power", "most"),
    }

    def click(self, box, typed):
        field, _, rule = EDITOR[box]
        answer = None if typed is None else self.world.typed(typed, rule)
        if answer is None:
            return False
        self.world.store(self.saw, field, rule, answer)
        self.show_or_clear(box)
        self.work_out(*self.THEN[box])
        return True

    def choose(self, entry):
        self.world.choose(entry)
        for box in self.SHOWN + ("txtSawVelocity", "txtSideClearance"):
            self.show(box)
        self.work_out("capacity", "power", "most")


# ---- frmPowerCalc

class Calculator:
    def __init__(self, world, saw):
        self.world = world
        self.saws = [dict(saw), blank()]
        self.sides = [{box: "" for box in CALCULATOR} for _ in range(2)]
        self.show(0)

    @property
    def texts(self):
        return {f"{side} {box}": text for side in range(2) for box, text in self.sides[side].items()}

    def show(self, side):
        for box, (field, kind, _) in CALCULATOR.items():
            value = self.saws[side][field]
            self.sides[side][box] = self.world.shown(value, kind) if value not in (0, "") else ""

    def calculate(self, side):
        saw = self.saws[side]
        saw["DesignInfo.SawVelocity"] = power.CalcSawVelocity(
            ReadNumber(DecimalText(saw["MachineInfo.WheelDia"])), saw["GeneralInfo.ShaftSpeed"])
        saw["GulletInfo.Bite"] = power.CalcBite(saw["GeneralInfo.FeedRate"], saw["Pitch"],
                                                saw["DesignInfo.SawVelocity"])
        saw["GulletInfo.Capacity"] = power.CalcCapacity(saw["GulletInfo.Bite"], saw["GeneralInfo.DepthOfCut"])
        saw["GeneralInfo.HorsePower"] = power.CalcHorsePower(
            saw["GeneralInfo.WoodType"], saw["GeneralInfo.Kerf"], saw["GeneralInfo.FeedRate"],
            saw["GeneralInfo.DepthOfCut"])

    def follow(self, box, saw):
        inches, places = Number(saw["Length"]) * 12, self.world.places
        if box in ("txtHPPlateThick", "txtHPToothWidth"):
            saw["GeneralInfo.SideClear"] = power.CalcSideClear(saw["GeneralInfo.PlateThick"],
                                                               saw["GeneralInfo.Kerf"])
        elif box in ("txtHPSawOD", "txtCenters"):
            wheel, centers = Number(saw["MachineInfo.WheelDia"]), Number(saw["MachineInfo.CenterToCenter"])
            if wheel > 0 and centers > 0:
                saw["Length"] = cut(centers + centers + cut(wheel * power.PI, places), places)
        elif box in ("txtLength", "txtNumTeeth"):
            saw["Pitch"] = cut(inches / saw["NumTeeth"], places)
        elif box == "txtToothPitch":
            teeth = math.trunc(cut(inches / Number(saw["Pitch"]), places))
            if -32768 <= teeth <= 32767:
                saw["NumTeeth"] = teeth

    def click(self, side, box, typed):
        field, _, rule = CALCULATOR[box]
        saw = self.saws[side]
        answer = None if typed is None else self.world.typed(typed, rule)
        if answer is None:
            return False
        self.world.store(saw, field, rule, answer)
        try:
            self.follow(box, saw)
        except Failure:
            pass
        self.calculate(side)
        self.show(side)
        return True

    def choose(self, entry):
        self.world.choose(entry)
        self.both()

    def both(self):
        for side in range(2):
            self.calculate(side)
            self.show(side)

    def clear(self, side):
        self.saws[side] = blank()
        self.show(side)

    def copy(self):
        self.saws[1] = dict(self.saws[0])
        self.show(1)

    def new(self):
        self.saws = [blank(), blank()]
        self.both()


# ---- lines

def percent_text(index):
    return DecimalText(index * 100) + " Percent"


def estimate_lines(world, rows, on_paper):
    lines = []
    for number, row in enumerate(rows):
        def line(label, text, *marked):
            lines.append([label, text + ("*" if number in marked else "")])

        def figure(label, member, kind, *marked):
            line(label, world.shown(row[member], kind), *marked)

        if number:
            lines.append(["", ""])
        if number == 0:
            lines.append(["Current Estimate" if on_paper else "Current Power Requirements", ""])
        else:
            lines.append([("Estimate # " if on_paper else "Power Estimate # ") + str(number), ""])
        figure("Wheel Diameter:", "WheelDia", 2)
        figure("Wheel RPM's:", "ShaftSpeed", 6, 2)
        figure("Tooth Speed:" if on_paper else "Saw Velocity:", "SawVelocity", 7, 2)
        figure("Tooth Pitch:", "Pitch", 1, 1)
        figure("Plate Thickness:", "PlateThick", 5)
        figure("Tip Kerf:", "Kerf", 5)
        figure("Side Clearance:", "SideClear", 5)
        figure("Depth of Cut:", "DepthOfCut", 1)
        figure("Feed Rate:", "FeedRate", 7, 1, 2, 3)
        lines.append([" ", ""])
        line("Type of Wood:", row["WoodType"].strip(" "))
        figure("Bite:", "Bite", 5, 3)
        figure("Gullet Capacity (Required):", "Capacity", 4, 3)
        figure("Gullet Capacity (Actual):", "AreaBelowTip", 4, 3)
        line("Gullet Feed Index:", percent_text(world.index))
        figure("Horsepower:", "HorsePower", 0, 1, 2, 3)
    return lines


SHEET = (("Wheel Diameter:", "MachineInfo.WheelDia", 2), ("Center to Center:", "MachineInfo.CenterToCenter", 2),
         ("Bandsaw Length:", "Length", 2), ("Tooth Pitch:", "Pitch", 1), ("Number of Teeth:", "NumTeeth", "plain"),
         ("Plate Thickness:", "GeneralInfo.PlateThick", 5), ("Tip Kerf:", "GeneralInfo.Kerf", 5),
         ("Side Clearance:", "GeneralInfo.SideClear", 5), ("Wheel RPM's:", "GeneralInfo.ShaftSpeed", 6),
         ("Tooth Speed:", "DesignInfo.SawVelocity", 7), ("Depth of Cut:", "GeneralInfo.DepthOfCut", 1),
         ("Feed Rate:", "GeneralInfo.FeedRate", 7), (" ", None, None),
         ("Type of Wood:", "GeneralInfo.WoodType", None), ("Bite:", "GulletInfo.Bite", 5),
         ("Total Gullet Area:", "GulletInfo.Area", 4), ("Gullet Capacity:", "GulletInfo.Capacity", 4),
         ("Gullet Feed Index:", "index", None), ("Horsepower:", "GeneralInfo.HorsePower", 0))


def sheet_lines(world, saws):
    lines = []
    for number, saw in enumerate(saws, 1):
        if number > 1:
            lines.append(["", ""])
        lines.append([f"Power Calculation # {number}", ""])
        for label, field, kind in SHEET:
            if field is None:
                text = ""
            elif field == "index":
                text = percent_text(world.index)
            else:
                text = world.shown(saw[field], kind)
            lines.append([label, text])
    return lines


# ---- inputs

chance = random.Random(72)

NUMBERS = ("0", "1", "-5", "3/4", "1 1/2", "12 3/4", "0.5", ".125", "100*2", "(10+2)/4", "1/3", "1e3", "99999", "-.3")
WRONG = ("x", "3 apples", "(1", "", " ")
TYPED = {
    "txtRPMs": ("510", "600", "1200 rpms", "0", "2.5", "3.5", "-300", "2400", "33000", "3000000000", "450.5"),
    "txtFeedRate": ("100", "150 fpm", "350", "0", "-20", "12.5", "33.333", "1/3"),
    "txtMaxDepth": ("10", "12 1/2 in", "24", "0", "-3", "7.0625"),
    "txtHPSawOD": ("5", "5 ft 6 in", "1.25", "0", "7 1/2", "-4"),
    "txtCenters": ("8", "10 ft 3 in", "12.5", "0", "-1"),
    "txtLength": ("40", "25.5 ft", "33 ft 4 in", "0", "1000000", "-10"),
    "txtToothPitch": ("2", "1 3/4 in", "1.75", "0", "0.001", "-1.5", "3.2"),
    "txtNumTeeth": ("240", "137", "0", "12.5", "13.5", "-7", "40000", "1"),
    "txtHPPlateThick": ("0.065", ".05 in", "1.65 mm", "0", "0.2", "-.1"),
    "txtHPToothWidth": ("0.125", ".15", "3 mm", "0", "-.1", "0.06"),
    "txtSpecificEnergy": ("Oak (White)", " Redwood ", "Popular", "Softwoods:", "teak", "oak (white)",
                          "Douglas Fir (Rocky Mt) of the coast", "   ", ""),
}


def typed_for(box):
    odds = chance.random()
    if odds < 0.08:
        return None
    if odds < 0.13:
        return chance.choice(WRONG)
    if odds < 0.2 and box != "txtSpecificEnergy":
        return chance.choice(NUMBERS)
    if odds < 0.3 and box == "txtSpecificEnergy":
        return chance.choice(power.WOODS)[0]
    return chance.choice(TYPED[box])


def random_saw():
    saw = blank() | power.random_saw()
    saw |= {"MachineInfo.CenterToCenter": power.measure(5, 20), "DesignInfo.SawVelocity": power.velocity(),
            "GulletInfo.Capacity": power.measure(0.1, 3), "DesignInfo.MaxFeedRate": power.measure(50, 500)}
    for field in chance.sample(FIELDS, chance.choice((0, 0, 1, 2, 5))):  # not all designs are complete
        saw[field] = blank()[field]
    for field, value in saw.items():
        if not isinstance(value, str) and abs(value) > 1e6:
            saw[field] = blank()[field]
    return saw


def world():
    return World(chance.choice((0, 0, 1)), chance.choice((2, 3, 3, 4, 5)), chance.choice((4, 5, 5, 6)),
                 chance.choice((0.7, 0.7, 0.72, 0.1, 1.0, 0.55)))


def filled(named):
    """Without what is empty or 0."""
    return {name: value for name, value in named.items() if value}


def row(op, place, saw, **rest):
    given = {"op": op, "metric": place.metric, "display": place.display, "places": place.places,
             "index": place.index, "saw": filled(saw)}
    return {**given, **rest}


def changed(before, after):
    return {box: after[box] for box in after if after[box] != before[box]}


def show(line):
    print(json.dumps(line, separators=(",", ":"), ensure_ascii=False))


def play(window, do):
    before = dict(window.texts)
    outcome = do()
    return outcome, changed(before, window.texts)


def editor_step(window):
    if chance.random() < 0.15:
        entry = chance.randrange(19)
        _, texts = play(window, lambda: window.choose(entry))
        return ["index", entry, texts]
    box = chance.choice(sorted(Editor.THEN))
    typed = typed_for(box)
    accepted, texts = play(window, lambda: window.click(box, typed))
    return ["click", 0, box, typed, accepted, texts]


def calculator_step(window):
    odds, side = chance.random(), chance.randrange(2)
    if odds < 0.08:
        entry = chance.randrange(19)
        return ["index", entry, play(window, lambda: window.choose(entry))[1]]
    if odds < 0.12:
        return ["clear", side, play(window, lambda: window.clear(side))[1]]
    if odds < 0.18:
        return ["copy", play(window, window.copy)[1]]
    if odds < 0.2:
        return ["new", play(window, window.new)[1]]
    box = chance.choice([box for box, (_, _, rule) in CALCULATOR.items() if rule])
    typed = typed_for(box)
    accepted, texts = play(window, lambda: window.click(side, box, typed))
    return ["click", side, box, typed, accepted, texts]


def editors(count):
    for _ in range(count):
        place, saw = world(), random_saw()
        given = row("Editor", place, saw)
        window = Editor(place, saw)
        opened = filled(window.texts)
        steps = [editor_step(window) for _ in range(chance.randint(4, 12))]
        show(given | {"opened": opened, "steps": steps, "out": filled(window.saw)})


def calculators(count):
    for _ in range(count):
        place, saw = world(), chance.choice((random_saw, random_saw, blank))()
        given = row("Calculator", place, saw)
        window = Calculator(place, saw)
        opened = filled(window.texts)
        steps = [calculator_step(window) for _ in range(chance.randint(6, 16))]
        show(given | {"opened": opened, "steps": steps, "out": list(map(filled, window.saws))})


PERCENTS = ("5 Percent", "10 Percent", "50 Percent", "12.5", "7", " 15", "0.5", "0", "-5", "percent", "", "1e2", "-0.2")


def estimates(count):
    for _ in range(count):
        place, saw, typed = world(), random_saw(), chance.choice(PERCENTS)
        given = row("Estimates", place, saw, percent=typed)
        window = Editor(place, saw)
        percent = math.trunc(ReadNumber(typed))
        box = f"{percent} Percent" if typed else ""
        rows = power.estimates(window.saw, percent)
        heading = [f"Power estimates based on increasing feedrate by {percent} percent.",
                   f"Estimates for bandsaw based on increasing feedrate by {percent} percent"]
        show(given | {"box": box, "heading": heading if rows else None,
                      "lines": rows and [estimate_lines(place, rows, on_paper) for on_paper in (False, True)]})


def sheets(count):
    for _ in range(count):
        place, saw = world(), random_saw()
        show(row("Sheet", place, saw, lines=sheet_lines(place, [saw, blank()])))


if __name__ == "__main__":
    editors(260)
    calculators(220)
    estimates(60)
    sheets(40)
