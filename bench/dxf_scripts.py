#!/usr/bin/env python3
"""How long a script takes to write a drawing: by hand, and with a library for drawings.

    dxf_scripts.py DRAWING.dxf...

Prints for each drawing a line of JSON: its pieces, the bytes of each file, the seconds of every round. The pieces are
read before the clock starts, and so are the libraries.
"""

import json
import sys
import tempfile
import time
from pathlib import Path

import ezdxf

ROUNDS = 5
CODES = {"LINE": ("10", "20", "11", "21"), "ARC": ("10", "20", "40", "50", "51"), "CIRCLE": ("10", "20", "40")}


def pieces_of(path):
    """The lines, arcs and circles of a drawing, as (kind, numbers)."""
    lines = [line.strip() for line in Path(path).read_text(encoding="ascii").splitlines()]
    pieces, kind, values = [], None, {}
    for code, value in zip(lines[::2], lines[1::2]):
        if code == "0":
            if kind in CODES:
                pieces.append((kind, tuple(float(values[each]) for each in CODES[kind])))
            kind, values = value, {}
        else:
            values[code] = value
    return pieces


def by_hand(pieces, path):
    with open(path, "w", encoding="ascii", newline="\r\n") as out:
        out.write("0\nSECTION\n2\nENTITIES\n")
        for kind, numbers in pieces:
            out.write(f"0\n{kind}\n8\nDefault\n62\n5\n")
            for code, number in zip(CODES[kind], numbers):
                out.write(f"{code}\n{number:.5f}\n")
        out.write("0\nENDSEC\n0\nEOF\n")


def by_library(pieces, path):
    drawing = ezdxf.new("R12")
    model, look = drawing.modelspace(), {"layer": "Default", "color": 5}
    for kind, n in pieces:
        if kind == "LINE":
            model.add_line(n[:2], n[2:], dxfattribs=look)
        elif kind == "ARC":
            model.add_arc(n[:2], n[2], n[3], n[4], dxfattribs=look)
        else:
            model.add_circle(n[:2], n[2], dxfattribs=look)
    drawing.saveas(path)


def main():
    for drawing in sys.argv[1:]:
        pieces, result = pieces_of(drawing), {}
        with tempfile.TemporaryDirectory() as folder:
            for name, write in (("by hand", by_hand), ("ezdxf", by_library)):
                path, taken = Path(folder) / "band.dxf", []
                for _ in range(ROUNDS):
                    begun = time.perf_counter()
                    write(pieces, path)
                    taken.append(time.perf_counter() - begun)
                result[name] = {"seconds": taken, "bytes": path.stat().st_size}
        print(json.dumps({"drawing": drawing, "pieces": len(pieces), **result}), flush=True)


if __name__ == "__main__":
    main()
