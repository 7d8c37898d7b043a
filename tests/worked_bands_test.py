#!/usr/bin/env python3
"""Holds the tool against the worked bands: record, drawing, extents, messages and the bytes of the drawing file.

    worked_bands_test.py [FILE]

data/bands.jsonl (or FILE) holds designs whose outcome was worked out apart from the program, a line each; data/dxf the whole
drawing file of some of them. Every number must agree to the last digit. More such lines come from reference/.
"""

import hashlib
import json
import os
import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
CLI = os.environ["TARNWICK_CLI"]

LINE_FIELDS = ("Corner1X", "Corner1Y", "Corner4X", "Corner4Y", "IsOutline", "IsDotted")
ARC_FIELDS = ("CenterX", "CenterY", "Radius", "StartAngle", "EndAngle")


def nested(dotted):
    saw = {}
    for name, value in dotted.items():
        group, _, field = name.rpartition(".")
        (saw.setdefault(group, {}) if group else saw)[field] = value
    return saw


def flat(saw):
    fields = {}
    for name, value in saw.items():
        if isinstance(value, dict):
            fields.update({f"{name}.{field}": inner for field, inner in value.items()})
        else:
            fields[name] = value
    return fields


def options(band):
    settings = band["settings"]
    found = ["--defaults", "--decimal-places", str(settings["DecimalPlaces"])]
    found += ["--teeth-direction", str(settings["TeethDirection"])]
    found += ["--memory-size", str(settings["MemorySize"]), "--dxf-color", str(settings["DxfSaveColor"])]
    return found + (["--segment"] if band["op"] == "segment" else [])


def run(command, band):
    done = subprocess.run([CLI, command, "-", *options(band), *(["--entities"] if command == "json" else ["-o", "-"])],
                          input=json.dumps(nested(band["saw"])).encode(), capture_output=True, check=False)
    return done.returncode, done.stdout


def entity_row(entity):
    fields = LINE_FIELDS if entity["Kind"] == "LINE" else ARC_FIELDS
    return [entity["Kind"], *(entity[field] for field in fields)]


def differences(band):
    expect = band["expect"]
    status, text = run("json", band)
    if status != 0:
        return [f"the tool ended with {status}"]
    got = json.loads(text)
    saw = flat(got["saw"])
    found = [f"{name}: {saw.get(name)} instead of {value}" for name, value in expect["saw"].items() if saw.get(name) != value]
    for part in ("header", "extents", "messages"):
        if got[part] != expect[part]:
            found.append(f"{part}: {got[part]} instead of {expect[part]}")
    rows = [entity_row(entity) for entity in got["entities"]]
    for index, (mine, theirs) in enumerate(zip(rows, expect["entities"])):
        if mine != theirs:
            found.append(f"entity {index}: {mine} instead of {theirs}")
    if len(rows) != len(expect["entities"]):
        found.append(f"{len(rows)} entities instead of {len(expect['entities'])}")

    status, drawing = run("dxf", band)
    if expect["dxf_sha256"] is None:
        return found + (["a drawing that should be too large"] if status != 1 or drawing else [])
    if status != 0 or hashlib.sha256(drawing).hexdigest() != expect["dxf_sha256"]:
        found.append("the drawing file has other bytes")
    whole = HERE / "data" / "dxf" / (band["name"] + ".dxf")
    if whole.exists() and whole.read_bytes() != drawing:
        found.append(f"the drawing file is not {whole.name}")
    return found


def main():
    worked = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else HERE / "data" / "bands.jsonl"
    bands = [json.loads(line) for line in worked.open(encoding="utf-8")]
    failed = 0
    for band in bands:
        found = differences(band)
        failed += bool(found)
        for line in found[:5]:
            print(f"{band['name']}: {line}", file=sys.stderr)
    print(f"{len(bands) - failed} passed, {failed} failed")
    return 1 if failed or not bands else 0


if __name__ == "__main__":
    sys.exit(main())
