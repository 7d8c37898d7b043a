#!/usr/bin/env python3
"""A second computation of the band, written apart from the program, slow and plain, so that the two can be held
against each other.

Reads designs from standard input, one JSON object a line:

    {"op": "band" or "segment", "settings": {...}, "saw": {dotted field names; what is missing is zero}}

and writes what comes of each, one line each: the record afterwards, the list's header, its extents, the messages,
the entities, and the SHA-256 of the drawing file's bytes (null where the file would be too large).  With `--files`
there are two keys more: the drawing file itself under "dxf", and the record's own file in hex under "bsw".  With
`--worked` each line is the design itself with what comes of it under "expect": a worked band.
"""

import hashlib
import json
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from band import CalculateSaw, CalculateSegment
from dxf import dxf_bytes
from entities import ComputeExtents
from failing import use
from record import band_saw_file, new_saw, numbers_of


def plain(value):
    """A number as JSON shows it: whole numbers without a point, no -0."""
    if isinstance(value, list):
        return [plain(item) for item in value]
    if isinstance(value, int):
        return value
    value = float(value)
    return int(value) if value == int(value) and abs(value) < 1e15 else value


def entity_row(entity):
    if entity.Kind == "LINE":
        return ["LINE"] + [plain(v) for v in (entity.Corner1X, entity.Corner1Y, entity.Corner4X, entity.Corner4Y,
                                              entity.IsOutline, entity.IsDotted)]
    return ["ARC"] + [plain(v) for v in (entity.CenterX, entity.CenterY, entity.Radius, entity.StartAngle,
                                         entity.EndAngle)]


def computed(design, files=False):
    use(design.get("settings", {}))
    saw = new_saw(design["saw"])
    messages = []
    entities = (CalculateSegment if design["op"] == "segment" else CalculateSaw)(saw, messages)
    extents, drawing = ComputeExtents(entities), dxf_bytes(entities)
    result = {
        "saw": {name: plain(value) for name, value in numbers_of(saw).items()},
        "header": {name: plain(getattr(entities, name))
                   for name in ("Count", "MaxX", "MaxY", "ViewCenterX", "ViewCenterY")},
        "extents": {name: plain(getattr(extents, name))
                    for name in ("MinY", "MinX", "MaxY", "MaxX", "CenterX", "CenterY")},
        "messages": messages,
        "entities": [entity_row(entity) for entity in entities.drawn() if entity.Kind],
        "dxf_sha256": hashlib.sha256(drawing).hexdigest() if drawing is not None else None,
    }
    if files:
        result["dxf"] = drawing.decode("ascii") if drawing is not None else None
        result["bsw"] = band_saw_file(saw).hex()
    return result


def main():
    files, worked = "--files" in sys.argv[1:], "--worked" in sys.argv[1:]
    for line in sys.stdin:
        if line.strip():
            design = json.loads(line)
            result = computed(design, files)
            if worked:
                result = {**design, "expect": result}
            print(json.dumps(result, separators=(",", ":")), flush=True)


if __name__ == "__main__":
    main()
