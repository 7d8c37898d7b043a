#!/usr/bin/env python3
"""Draws the pictures of README.md: four teeth of each sample, by the program itself.

    scripts/make_pictures.py build/release/src/tarnwick-cli

A whole band is too long and thin for a page, so each sample is cut down to four teeth of its own pitch.
"""

import json
import pathlib
import subprocess
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent
PICTURES = TOP / "docs" / "pictures"
TEETH = 4
INCHES_PER_FOOT = 12


def four_teeth(cli, sample):
    line = subprocess.run([cli, "json", "--defaults", sample], check=True, capture_output=True).stdout
    saw = json.loads(line)["saw"]
    general = saw["GeneralInfo"]
    variable = general["NumVariables"] if general["VariablePitch"] else 0
    saw["NumTeeth"] = variable or TEETH
    saw["Length"] = saw["Pitch"] * saw["NumTeeth"] / INCHES_PER_FOOT
    saw["Pitch"] = 0
    saw["Width"] = min(saw["Width"], 3 * saw["GulletInfo"]["Depth"])
    return {"saw": saw}


def main():
    cli = sys.argv[1]
    PICTURES.mkdir(parents=True, exist_ok=True)
    for sample in sorted((TOP / "samples").glob("*.json")):
        picture = PICTURES / (sample.stem + ".svg")
        subprocess.run([cli, "svg", "--defaults", "-", "-o", picture], check=True,
                       input=json.dumps(four_teeth(cli, sample)).encode())
        print(picture.relative_to(TOP))


if __name__ == "__main__":
    main()
