#!/usr/bin/env python3
"""Draws the band that the program shows of itself, src/shell/drawings/Band.svg, by the program itself.

    scripts/make_band_picture.py build/release/src/tarnwick-cli [FOLDER]
"""

import pathlib
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent
FOLDER = TOP / "src" / "shell" / "drawings"

sys.dont_write_bytecode = True
sys.path.insert(0, str(TOP / "scripts" / "pictures"))

from band import Band, Frame  # noqa: E402
from plane import cut  # noqa: E402
from scenes import ROUND, design  # noqa: E402
from sheet import pair, path  # noqa: E402
from steel import BACK, EDGE, GROUND, SHINE, svg  # noqa: E402

WIDTH, HEIGHT, TIPS, SCALE = 480, 144, 14, 60


def drawing(cli):
    band = Band(cli, design(2, ROUND, Width=2.0))
    frame = Frame(SCALE, (96 - SCALE * band.tips()[2][0], TIPS + SCALE * band.height))
    pieces = cut(band.pieces, *((x - frame.origin[0]) / SCALE for x in (0, WIDTH)))
    data, back = path(pieces, frame), frame((0, 0))[1]
    steel = (f'<linearGradient id="steel" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="{EDGE}"/>'
             f'<stop offset="0.5" stop-color="{SHINE}"/><stop offset="1" stop-color="{BACK}"/></linearGradient>')
    body = f"{data}L{pair((WIDTH, back))}L{pair((0, back))}Z"
    marks = [f'<rect width="{WIDTH}" height="{HEIGHT}" fill="{GROUND}"/>', f'<path d="{body}" fill="url(#steel)"/>',
             f'<path d="{data}" fill="none" stroke="#ffffff" stroke-width="1.5" stroke-linejoin="round"/>']
    return svg(WIDTH, HEIGHT, marks, steel)


def main():
    folder = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else FOLDER
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "Band.svg").write_text(drawing(sys.argv[1]), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
