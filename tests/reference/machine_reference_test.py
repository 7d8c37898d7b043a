#!/usr/bin/env python3
"""Holds the machine that the tool prints and draws against the second computation, and keeps that one's table.

Every length, circle and piece of band and dimension must agree to the last digit. How the spokes end is a matter
of taste: of them the number and the order count, and that they lie between hub and rim.

Needs TARNWICK_CLI, the tool.
"""

import json
import math
import os
import pathlib
import random
import subprocess
import sys
import tempfile

import machine_reference

HERE = pathlib.Path(__file__).resolve().parent
TABLE = HERE.parent / "data" / "machine.jsonl"
MILLS, BATCHES = 3000, 10
FIELDS = {"LINE": "Corner1X Corner1Y Corner4X Corner4Y", "ARC": "CenterX CenterY Radius StartAngle EndAngle",
          "CIRCLE": "CenterX CenterY Radius", "TEXT": "Corner1X Corner1Y TextHeight TextAngle",
          "SOLID": "Corner1X Corner1Y Corner2X Corner2Y Corner3X Corner3Y Corner4X Corner4Y"}


def numbers(entity):
    return [entity[name] for name in FIELDS[entity["Kind"]].split()]


def design(row):
    given = row["given"]
    return {"ImpMetric": row["metric"], "GeneralInfo": {"PlateThick": given["PlateThick"]},
            "MachineInfo": {"WheelDia": given["WheelDia"], "CenterToCenter": given["CenterToCenter"]}}


def check_spokes(pieces, row, top):
    """`pieces` of one wheel behind its circles."""
    kinds = [piece["Kind"] for piece in pieces]
    if kinds != ["LINE", "LINE", "ARC", "ARC"] * row["spokes"]:
        yield f"spokes: {kinds}"
        return
    (_, _), (_, rim), (_, hub), (_, _) = row["wheels"][:4]
    for piece in pieces:
        if piece["Kind"] == "LINE":
            ends = [(piece["Corner1X"], piece["Corner1Y"]), (piece["Corner4X"], piece["Corner4Y"])]
        else:
            ends = [(piece["CenterX"] + piece["Radius"] * math.cos(math.radians(angle)),
                     piece["CenterY"] + piece["Radius"] * math.sin(math.radians(angle)))
                    for angle in (piece["StartAngle"], piece["EndAngle"])]
        for x, y in ends:
            if not hub - 0.01 < math.hypot(x, y - top) < rim + 0.01:
                yield f"a spoke ends at {x}, {y - top}, hub {hub}, rim {rim}"


def check_drawing(entities, row):
    one = 4 + 4 * row["spokes"]
    if len(entities) != 2 * one + 6 + 7:
        yield f"{len(entities)} pieces"
        return
    for wheel, top in ((entities[:one], 0), (entities[one:2 * one], row["machine"][1] * 12)):
        yield from check_spokes(wheel[4:], row, top)
    rest = entities[2 * one:]
    seen = {"wheels": [numbers(e)[1:] for e in entities[:4] + entities[one:one + 4]],
            "band": [numbers(e) for e in rest[:6]], "dimension": [numbers(e) for e in rest[6:]]}
    for name, got in seen.items():
        if got != row[name]:
            yield f"{name}: {got}, expected {row[name]}"
    kinds = [e["Kind"] for e in rest]
    if kinds != ["LINE"] * 4 + ["ARC"] * 2 + ["LINE"] * 4 + ["TEXT"] + ["SOLID"] * 2:
        yield f"kinds: {kinds}"
    elif rest[10]["Text"] != row["text"]:
        yield f"text: {rest[10]['Text']!r}, expected {row['text']!r}"
    if any(e["IsDotted"] or e["IsOutline"] for e in entities if e["Kind"] == "LINE"):
        yield "a line is dotted, or an outline"


def check(line, row):
    """All that is wrong with what the tool printed of a mill."""
    machine = [line["machine"]["WheelDia"], line["machine"]["CenterToCenter"]]
    if machine != row["machine"]:
        yield f"machine: {machine}, expected {row['machine']}"
    if list(line["lengths"].values()) != (row["lengths"] or []):
        yield f"lengths: {line['lengths']}, expected {row['lengths']}"
    if list(line["lengths"]) != ["Inside", "Middle", "Outside"][:len(line["lengths"])]:
        yield f"lengths: {list(line['lengths'])}"
    if row["lengths"]:
        yield from check_drawing(line["entities"], row)
    elif line["entities"] or not line["messages"]:
        yield "a mill that is none is drawn, or nothing is said of it"


def run_batch(tool, folder, seed):
    dice = random.Random(seed)
    places, shown = dice.choice((4, 5, 5, 6, 8, 10)), dice.choice((2, 3, 4, 5))
    rows = [machine_reference.mill(given, places, shown, dice.choice((0, 1)))
            for given in machine_reference.random_mills(seed, MILLS // BATCHES)]
    names = []
    for index, row in enumerate(rows):
        name = folder / f"{seed}-{index}.json"
        name.write_text(json.dumps(design(row)), encoding="utf-8")
        names.append(str(name))
    printed = subprocess.run([tool, "machine", "--defaults", "--entities", "--decimal-places", str(places),
                              "--display-places", str(shown), *names], check=True, capture_output=True).stdout
    lines = [json.loads(line) for line in printed.splitlines()]
    wrong = [] if len(lines) == len(rows) else [f"{len(lines)} lines for {len(rows)} mills"]
    for line, row in zip(lines, rows):
        wrong += [f"{row['given']} at {places} places: {finding}" for finding in check(line, row)]
    return len(lines), wrong


def table_is_kept():
    script = HERE / "machine_reference.py"
    written = subprocess.run([sys.executable, "-B", script], check=True, capture_output=True).stdout
    kept = TABLE.read_bytes()
    print(f"{TABLE.name}: {len(kept.splitlines())} rows")
    if kept and written == kept:
        return True
    print(f"{TABLE.name} is not what {script.name} writes")
    return False


def main():
    tool = os.environ["TARNWICK_CLI"]
    count, wrong = 0, []
    with tempfile.TemporaryDirectory() as folder:
        for batch in range(BATCHES):
            done, findings = run_batch(tool, pathlib.Path(folder), 600 + batch)
            count += done
            wrong += findings
    for finding in wrong[:20]:
        print(finding)
    print(f"{count} mills, {len(wrong)} faults")
    return 0 if table_is_kept() and not wrong and count == MILLS else 1


if __name__ == "__main__":
    sys.exit(main())
