#!/usr/bin/env python3
"""The variable pitch editor, worked out a second time and apart from the program: a form of controls whose events run
what is behind them, an option or a check box that is set by the form itself included.

    variable_editor.py --check FILE     plays every sequence of a table again
    variable_editor.py --write FILE     writes the table (../data/variable.jsonl), always the same one

A line of the table is a design and what somebody does to its panel, step by step, with every control and every
field of the record that differs after the step. Doubles stand there in C's hexadecimal form. A box is shown as its
text behind one mark: "+" a press asks for the value, "=" it is only read; a hidden one is "-".
"""

import functools
import json
import operator
import sys

from band import CalculateSaw
from failing import Failure, Number, RoundTo, quotient, rules, skip, use
from record import get, new_saw
from value_reference import DecimalText, EvaluateEquation, FormatValue, PlainText, ReadNumber, StoredNumber

ROWS = 7
CAPTIONS = ("None", "Left to Right:", "Right to Left", "Mixed")

# The thousandths of a segment that each tooth takes, for a preset and a count of teeth.
LEFT_TO_RIGHT = {
    3: (371, 332, 297),
    4: (295, 263, 236, 206),
    5: (245, 218, 197, 170, 170),
    6: (210, 191, 173, 156, 135, 135),
    7: (183, 175, 159, 143, 124, 108, 108),
}
MIXED = {
    3: (297, 371, 332),
    4: (206, 263, 295, 236),
    5: (170, 218, 245, 197, 170),
    6: (135, 173, 210, 156, 135, 191),
    7: (124, 159, 183, 143, 108, 175, 108),
}
PRESETS = (None, LEFT_TO_RIGHT, {n: shares[::-1] for n, shares in LEFT_TO_RIGHT.items()}, MIXED)
for table in PRESETS[1:]:
    assert all(sum(shares) == 1000 and len(shares) == n for n, shares in table.items())

RECORD = ("Pitch", "NumTeeth", "GulletInfo.Depth", "GulletInfo.MinDepth", "GeneralInfo.VariablePitch",
          "GeneralInfo.NumVariables", "GeneralInfo.VarPitch", "GeneralInfo.VariableDepth", "GeneralInfo.VarDepth",
          "DesignInfo.SegmentLength", "DesignInfo.VarPattern", "DesignInfo.VarArea")


def between(value, least, most):
    return least if value < least else most if value > most else value


def total(pitches):
    return functools.reduce(operator.add, pitches, Number(0.0))  # one after the other, as they stand


def balanced(pitches, length, least, most):
    """The pitches of a segment with the last one taking what is left, and the others what the last one cannot."""
    others = list(pitches[:-1])
    for _ in range(101):
        rest = Number(length) - total(others)
        if least <= rest <= most:
            return others + [rest]
        if rest < least:
            giver = others.index(max(others))
            lower = others[giver] - (least - rest)
            others[giver] = lower if lower > least else least
            held = least
        else:
            taker = others.index(min(others))
            higher = others[taker] + (rest - most)
            others[taker] = higher if higher < most else most
            held = most
    return others + [held]


class Form:
    """The panel and the record below it."""

    def __init__(self, saw, shown):
        self.saw, self.shown = saw, shown
        self.option = 0
        self.tick = False
        self.entries, self.entry = [], None
        self.pitch, self.depth = [Number(0.0)] * 8, [Number(0.0)] * 8
        self.average = self.least = self.most = Number(0.0)
        self.base = self.shallowest = self.deepest = Number(0.0)
        self.n = self.segments = 0
        self.size = Number(0.0)
        self.loading = False
        self.recalculations = 0

    # --- controls that the form sets: what is behind them runs when they change

    def set_option(self, index):
        if self.option != index:
            self.option = index
            self.option_clicked()

    def set_tick(self, ticked):
        if self.tick != ticked:
            self.tick = ticked
            self.tick_clicked()

    def set_entry(self, entry):
        if self.entry != entry:
            self.entry = entry
            self.entry_chosen()

    # --- what a user does

    def open(self):
        saw = self.saw
        general = saw.GeneralInfo
        self.average = saw.Pitch
        self.most, self.least = RoundTo(self.average * 1.3), RoundTo(self.average * 0.7)
        self.base, self.shallowest = saw.GulletInfo.Depth, saw.GulletInfo.MinDepth
        with skip: self.deepest = RoundTo(quotient(self.most, self.average) * saw.GulletInfo.Depth * 1.3)
        if general.VariablePitch:
            self.pitch[:ROWS] = general.VarPitch[:ROWS]
            self.depth[:ROWS] = [d if d > 0 else self.base for d in general.VarDepth[:ROWS]]
        else:
            self.pitch[:ROWS], self.depth[:ROWS] = [self.average] * ROWS, [self.base] * ROWS
        self.loading = True
        if 0 <= saw.DesignInfo.VarPattern < len(CAPTIONS):
            self.set_option(saw.DesignInfo.VarPattern)
        self.set_tick(general.VariableDepth != 0)
        self.entries = ["None"] + [f"{n} Teeth" for n in (3, 4, 5, 6, 7) if saw.NumTeeth and saw.NumTeeth % n == 0]
        wanted = f"{general.NumVariables} Teeth"
        if not general.VariablePitch:
            self.entry = min(1, len(self.entries) - 1)
        elif general.NumVariables == 0:
            self.entry = 0
        else:
            self.entry = self.entries.index(wanted) if wanted in self.entries else None
        self.n = self.teeth_chosen()
        self.count()
        self.loading = False

    def user_entry(self, entry):
        self.entry = entry
        self.entry_chosen()

    def user_pattern(self, index):
        self.option = index
        self.option_clicked()

    def user_tick(self, ticked):
        self.tick = ticked
        self.tick_clicked()

    def user_pitch(self, k, typed):
        if not k < self.n - 1:
            return
        value = self.asked(typed)
        if value is not None:
            self.pitch[k] = between(value, self.least, self.most)
            self.apply_pitch(k)
            self.recalculate()

    def user_gullet(self, k, typed):
        if not (k < self.n and self.tick):
            return
        value = self.asked(typed)
        if value is not None:
            self.depth[k] = between(value, self.shallowest, self.deepest)
            self.saw.GeneralInfo.VarDepth[k] = self.depth[k]
            self.store()
            self.recalculate()

    def user_reset(self):
        self.set_option(0)
        self.set_tick(False)
        self.set_entry(0)

    def user_units(self, system):
        self.shown["ImpMetric"] = system

    def asked(self, typed):
        """The number that the value dialog stores for a text; None where somebody cancels."""
        if typed is None:
            return None
        value = EvaluateEquation(typed, rules.DecimalPlaces)[0]
        return Number(StoredNumber("CentimetresToInches", PlainText(value), self.shown["ImpMetric"],
                                   rules.DecimalPlaces))

    # --- behind the controls

    def entry_chosen(self):
        if self.loading:
            return
        n = self.teeth_chosen()
        if n == 0:
            self.set_option(0)
            self.depth[:ROWS] = [self.base] * ROWS
            self.n = 0
            self.store()
        else:
            if n != self.n:
                self.depth[:ROWS] = [self.base] * ROWS
                self.n = n
                self.count()
                self.apply_pitch(0)
            if self.option == 0:
                self.set_option(1)
            else:
                self.apply_preset()
                self.apply_pitch(0)
        self.recalculate()

    def option_clicked(self):
        if self.loading:
            return
        self.saw.DesignInfo.VarPattern = self.option
        if self.option == 0:
            self.pitch[:ROWS] = [self.average] * ROWS
            self.apply_pitch(0)
        else:
            self.apply_preset()
        self.store()
        self.recalculate()

    def tick_clicked(self):
        if self.loading:
            return
        if self.teeth_chosen() == 0:
            self.tick = False
            return
        if self.tick:
            for k in range(self.n):
                self.refresh(k)
        else:
            self.depth[:ROWS] = [self.base] * ROWS
        self.store()
        self.recalculate()

    # --- what they share

    def teeth_chosen(self):
        return int(ReadNumber(self.entries[self.entry])) if self.entry is not None else 0

    def count(self):
        with skip: self.segments = round(quotient(self.saw.NumTeeth, self.n))
        self.size = Number(self.n * self.average)
        self.saw.DesignInfo.SegmentLength = self.size

    def balance(self):
        if self.n > 0:
            self.pitch[:self.n] = balanced(self.pitch[:self.n], self.size, self.least, self.most)

    def refresh(self, k):
        if k >= 0:
            self.depth[k] = self.depth_of(self.pitch[k]) if self.tick else self.base

    def depth_of(self, pitch):
        try:
            depth = RoundTo(quotient(pitch, self.average) * self.base)
        except Failure:
            depth = Number(0.0)
        return between(depth, self.shallowest, self.deepest)

    def apply_pitch(self, k):
        self.balance()
        self.refresh(k)
        self.refresh(self.n - 1)
        self.store()

    def apply_preset(self):
        for k, thousandths in enumerate(PRESETS[self.option].get(self.n, ())):
            self.pitch[k] = self.saw.DesignInfo.SegmentLength * (thousandths / 1000)
            self.refresh(k)

    def store(self):
        general = self.saw.GeneralInfo
        if self.n > 0:
            self.balance()
            general.VariablePitch, general.VariableDepth, general.NumVariables = -1, -int(self.tick), self.n
            general.VarPitch[:ROWS], general.VarDepth[:ROWS] = self.pitch[:ROWS], self.depth[:ROWS]
        else:
            general.VariablePitch = general.VariableDepth = general.NumVariables = 0
            general.VarPitch[:ROWS] = [self.average] * ROWS
            general.VarDepth[:ROWS - 1] = [self.base] * (ROWS - 1)

    def recalculate(self):
        self.recalculations += 1
        CalculateSaw(self.saw, [])
        if self.saw.GeneralInfo.VariablePitch:
            self.depth[:self.n] = self.saw.GeneralInfo.VarDepth[:self.n]  # as the calculation accepts them

    # --- what one sees

    def inches(self, value):
        return FormatValue(DecimalText(float(value)), 1, self.shown["ImpMetric"], self.shown["DisplayPlaces"],
                           rules.DecimalPlaces)[0]

    def controls(self):
        seen = {
            "cboPattern": self.entries[self.entry] if self.entry is not None else "",
            "entries": ", ".join(self.entries),
            "optPattern": self.option,
            "chkVarDepth": self.tick,
            "txtAverageSpace": self.inches(self.average),
            "txtAverageDepth": self.inches(self.base),
            "txtVariableNumTeeth": DecimalText(float(self.saw.NumTeeth)),
            "txtNumberOfSegments": DecimalText(float(self.segments)),
            "txtSegmentSize": self.inches(self.size),
        }
        for k in range(ROWS):
            shown = k < self.n
            seen[f"txtToothSpace({k})"] = ("+" if k < self.n - 1 else "=") + self.inches(self.pitch[k]) if shown else "-"
            seen[f"txtToothDepth({k})"] = ("+" if self.tick else "=") + self.inches(self.depth[k]) if shown else "-"
        return seen

    def record(self):
        return {name: portable(get(self.saw, name)) for name in RECORD}


def portable(value):
    if isinstance(value, list):
        return [portable(item) for item in value]
    return float(value).hex() if isinstance(value, float) else value


def nested(dotted):
    saw = {}
    for name, value in dotted.items():
        group, _, field = name.rpartition(".")
        (saw.setdefault(group, {}) if group else saw)[field] = value
    return saw


def changed(before, after):
    return {name: value for name, value in after.items() if before.get(name) != value}


def played(row):
    """The row with what comes of its steps, each as what differs from the step before."""
    use({"DecimalPlaces": row["DecimalPlaces"]})
    saw = new_saw(row["saw"])
    CalculateSaw(saw, [])
    form = Form(saw, {"ImpMetric": row["ImpMetric"], "DisplayPlaces": row["DisplayPlaces"]})
    seen, stored, steps = {}, {}, []
    for step in row["steps"]:
        what, *how = step["do"]
        form.recalculations = 0
        getattr(form, what if what == "open" else "user_" + what)(*how)
        now_seen, now_stored = form.controls(), form.record()
        steps.append({"do": step["do"], "recalculations": form.recalculations, "seen": changed(seen, now_seen),
                      "stored": changed(stored, now_stored)})
        seen, stored = now_seen, now_stored
    return {**row, "steps": steps}


def check(path):
    bad = total_rows = 0
    with open(path, encoding="utf-8") as table:
        for number, line in enumerate(table, 1):
            row = json.loads(line)
            total_rows += 1
            if played(row) != row:
                bad += 1
                print(f"row {number}, {row['name']}: its steps come out otherwise")
    print(f"{total_rows} rows, {bad} differ")
    return 1 if bad or not total_rows else 0


def write(path):
    from variable_rows import all_rows  # what somebody does; this file answers

    with open(path, "w", encoding="utf-8", newline="\n") as table:
        for row in all_rows():
            table.write(json.dumps(played(row), ensure_ascii=False, separators=(",", ":")) + "\n")
    return 0


def main(arguments):
    if len(arguments) == 2 and arguments[0] in ("--check", "--write"):
        return (check if arguments[0] == "--check" else write)(arguments[1])
    sys.exit(__doc__)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
