#!/usr/bin/env python3
"""Opens our drawings with readers that are not ours and compares what they see with our own entity list.

    validate_dxf.py --cli TARNWICK_CLI --reader DXFLIB_READER --out-dir DIR DESIGN...

Each design is written as DXF by the tool, its band and the machine that it runs on. Three readers must then
agree with the entities that the tool itself prints: ezdxf (audit without findings, every number alike), GDAL (number of features) and dxflib
(number of each kind). Exit code 1 when one does not.
"""

import argparse
import itertools
import json
import math
import re
import subprocess
import sys
from collections import Counter
from pathlib import Path

import ezdxf

KINDS = ("LINE", "ARC", "CIRCLE", "SOLID", "TEXT")


def output_of(*command):
    return subprocess.run([str(part) for part in command], check=True, capture_output=True, text=True).stdout


# What is drawn: the command that prints its entities, the one that writes it.
DRAWINGS = {"band": ("json", "dxf"), "machine": ("machine", "machine")}


def entities_of(cli, command, design):
    """What the tool itself says that it drew; the list's empty places are left out."""
    line = json.loads(output_of(cli, command, "--defaults", "--entities", design))
    return [entity for entity in line["entities"] if entity["Kind"].strip() in KINDS]


def numbers_of(entity):
    """The numbers of an entity of ours, in the order of `numbers_read`."""
    fields = {"LINE": "Corner1X Corner1Y Corner4X Corner4Y", "ARC": "CenterX CenterY Radius StartAngle EndAngle",
              "CIRCLE": "CenterX CenterY Radius", "TEXT": "Corner1X Corner1Y TextHeight",
              "SOLID": "Corner1X Corner1Y Corner2X Corner2Y Corner3X Corner3Y Corner4X Corner4Y"}
    return [entity[name] for name in fields[entity["Kind"].strip()].split()]


def numbers_read(entity):
    dxf = entity.dxf
    points = {"LINE": ["start", "end"], "ARC": ["center"], "CIRCLE": ["center"], "TEXT": ["insert"],
              "SOLID": ["vtx0", "vtx1", "vtx2", "vtx3"]}[entity.dxftype()]
    scalars = {"ARC": ["radius", "start_angle", "end_angle"], "CIRCLE": ["radius"], "TEXT": ["height"]}
    numbers = [value for name in points for value in (dxf.get(name).x, dxf.get(name).y)]
    return numbers + [dxf.get(name) for name in scalars.get(entity.dxftype(), [])]


def alike(ours, theirs):
    """A DXF number has 15 significant digits."""
    return all(math.isclose(a, b, rel_tol=1e-14, abs_tol=1e-300) for a, b in zip(ours, theirs, strict=True))


def check_with_ezdxf(drawing, entities):
    document = ezdxf.readfile(drawing)
    for finding in document.audit().errors + document.audit().fixes:
        yield f"ezdxf: audit: {finding.message}"
    read = list(document.modelspace())
    if [e.dxftype() for e in read] != [e["Kind"].strip() for e in entities]:
        yield f"ezdxf: {len(read)} entities read, {len(entities)} expected, or not in order"
        return
    for index, (ours, theirs) in enumerate(zip(entities, read)):
        if not alike(numbers_of(ours), numbers_read(theirs)):
            yield f"ezdxf: entity {index}: {numbers_read(theirs)}, expected {numbers_of(ours)}"


def check_with_gdal(drawing, entities):
    summary = output_of("ogrinfo", "-ro", "-so", "-al", drawing)
    count = re.search(r"^Feature Count: (\d+)$", summary, re.MULTILINE)
    if not count or int(count[1]) != len(entities):
        yield f"GDAL: {count[0] if count else 'no count'}, {len(entities)} expected"


def check_with_dxflib(reader, drawing, entities):
    counts = Counter(entity["Kind"].strip() for entity in entities)
    expected = " ".join(f"{kind}={counts[kind]}" for kind in KINDS)
    seen = output_of(reader, drawing).strip()
    if seen != f"{drawing} {expected}":
        yield f"dxflib: {seen}, expected {expected}"


def check(cli, reader, folder, design, what):
    """All that is wrong with one drawing of a design, and its number of entities."""
    printing, writing = DRAWINGS[what]
    entities = entities_of(cli, printing, design)
    drawing = folder / f"{design.stem}-{what}.dxf"
    output_of(cli, writing, "--defaults", design, "-o", drawing)
    wrong = [] if entities else ["nothing is drawn"]
    wrong += check_with_ezdxf(drawing, entities)
    wrong += check_with_gdal(drawing, entities)
    wrong += check_with_dxflib(reader, drawing, entities)
    return wrong, len(entities)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--cli", required=True)
    parser.add_argument("--reader", required=True)
    parser.add_argument("--out-dir", required=True, type=Path)
    parser.add_argument("designs", nargs="+", type=Path)
    options = parser.parse_args()

    failed = False
    for design, what in itertools.product(options.designs, DRAWINGS):
        try:
            wrong, count = check(options.cli, options.reader, options.out_dir, design, what)
        except subprocess.CalledProcessError as error:
            wrong, count = [f"{' '.join(error.cmd)}: {error.stderr.strip()}"], 0
        except (ezdxf.DXFError, OSError) as error:
            wrong, count = [f"ezdxf: {error}"], 0
        for finding in wrong[:10]:
            print(f"{design}: {what}: {finding}")
        if not wrong:
            print(f"{design}: {what}: {count} entities, read alike by ezdxf, GDAL and dxflib")
        failed |= bool(wrong)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
