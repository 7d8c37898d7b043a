#!/usr/bin/env python3
"""Holds the second computation of the band against worked bands and reports every difference.

    compare_worked.py FILE      a JSON object a line: name, op, settings, saw, expect

The exit code is 0 when all agree to the last digit, 1 otherwise.
"""

import json
import sys

from tarnwick_reference import computed


def differences(want, got, where=""):
    if isinstance(want, dict) and isinstance(got, dict):
        for key in list(want) + [key for key in got if key not in want]:
            yield from differences(want.get(key, "missing"), got.get(key, "missing"), f"{where}.{key}".lstrip("."))
    elif isinstance(want, list) and isinstance(got, list):
        if len(want) != len(got):
            yield f"{where}: {len(want)} items wanted, {len(got)} computed"
        for i, (one, other) in enumerate(zip(want, got)):
            yield from differences(one, other, f"{where}[{i}]")
    elif want != got:
        yield f"{where}: {want!r} wanted, {got!r} computed"


def main():
    bad = total = 0
    with open(sys.argv[1], encoding="utf-8") as bands:
        for line in bands:
            if not line.strip():
                continue
            design = json.loads(line)
            total += 1
            found = list(differences(design["expect"], computed(design)))
            bad += bool(found)
            if found:
                print(f"{design.get('name', total)}: {len(found)} differences")
                print("".join(f"    {text}\n" for text in found[:12]), end="")
    print(f"{total} bands, {total - bad} agree, {bad} differ")
    return 1 if bad or not total else 0


if __name__ == "__main__":
    sys.exit(main())
