#!/usr/bin/env python3
"""Draws what plays while a file is read or written, src/shell/drawings/Animation.svg, by the program itself.

    scripts/make_animation.py build/release/src/tarnwick-cli [FOLDER]

The two wheels of a mill are seen from above, and the band runs over them: there its teeth show their outline, and where it
goes down around a wheel they are seen from ever more aside. The outline is the program's own. One sheet holds all frames,
six to a row; the band goes on by whole teeth from the first to the last, so that the next round would begin where this ends.
"""

import math
import pathlib
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent
FOLDER = TOP / "src" / "shell" / "drawings"

sys.dont_write_bytecode = True
sys.path.insert(0, str(TOP / "scripts" / "pictures"))

from band import Band  # noqa: E402
from scenes import ROUND, design  # noqa: E402
from sheet import number, pair  # noqa: E402
from steel import BACK, EDGE, GROUND, SHINE, points, svg  # noqa: E402

FRAMES, PER_ROW, WIDTH, HEIGHT = 30, 6, 127, 69

WHEELS, REACH = (31, 96), 25          # their axes, and half of what is seen of each
RIM, SHAFT = (29, 55), (9, 62)        # from the side of the teeth to the other
TIPS, SCALE = 14, 11                  # of the band: its highest line, and pixels to the inch
TEETH_RUN = 5                         # from the first frame to the last: slow enough to be seen running forward
RIM_METAL, MARK = "#7b8794", "#f9703e"
MARKS = 12                            # around the rim, by which the wheels are seen to turn

LIMB = REACH * math.pi / 2            # of the band, from an axis to where it is out of sight


def seen(run):
    """How far to the right the place lies that is that far along the band from the left axis."""
    left, right = WHEELS
    if run < 0:
        return left + REACH * math.sin(max(run / REACH, -math.pi / 2))
    if run > right - left:
        return right + REACH * math.sin(min((run - right + left) / REACH, math.pi / 2))
    return left + run


def outline(tooth, pitch, moved):
    """The toothed edge from limb to limb, as corners of the frame."""
    low, high = -LIMB, WHEELS[1] - WHEELS[0] + LIMB
    first = math.floor((low - moved) / pitch) - 1
    count = math.ceil((high - low) / pitch) + 3
    chain = [(x + moved + pitch * (first + index), y) for index in range(count) for x, y in tooth]
    kept = [p for p in chain if low <= p[0] <= high]
    return [(seen(low), kept[0][1]), *((seen(x), y) for x, y in kept), (seen(high), kept[-1][1])]


def rim_marks(moved):
    """Short lines below the band, on the half of each rim that is above."""
    data = ""
    for axis in WHEELS:
        for index in range(MARKS):
            turn = (2 * math.pi * index / MARKS + moved / REACH) % (2 * math.pi) - math.pi
            if abs(turn) < math.pi / 2:
                x = axis + REACH * math.sin(turn)
                data += f"M{pair((x, RIM[1] - 4))}L{pair((x, RIM[1] - 1))}"
    return f'<path d="{data}" fill="none" stroke="{MARK}" stroke-width="1.2"/>'


def rectangle(left, top, right, bottom, more):
    return f'<rect x="{left}" y="{top}" width="{right - left}" height="{bottom - top}" {more}/>'


def gradients():
    """Round things darken toward where they turn away. Each of these fills a shape that ends where its wheels do."""
    def gradient(name, colour, ends):
        shares = ((0, 0.2), (0.08, 0.55), (0.22, 1), (0.78, 1), (0.92, 0.55), (1, 0.2))
        steps = [(at, share) for at, share in shares if ends[0] <= at <= ends[1]]
        marks = "".join(f'<stop offset="{number((at - ends[0]) / (ends[1] - ends[0]))}" stop-color="{dimmed(colour, share)}"/>'
                        for at, share in steps)
        return f'<linearGradient id="{name}" x1="0" y1="0" x2="1" y2="0">{marks}</linearGradient>'
    return (gradient("band", SHINE, (0, 1)) + gradient("edge", EDGE, (0, 1))
            + gradient("left", RIM_METAL, (0, 0.5)) + gradient("right", RIM_METAL, (0.5, 1)))


def dimmed(colour, share):
    """A share of a colour, the rest being the ground."""
    def parts(text):
        return [int(text[at:at + 2], 16) for at in (1, 3, 5)]
    return "#" + "".join(f"{round(g + (c - g) * share):02x}" for c, g in zip(parts(colour), parts(GROUND)))


def mill():
    marks = [rectangle(0, 0, WIDTH, HEIGHT, f'fill="{GROUND}"'),
             rectangle(0.5, 0.5, WIDTH - 0.5, HEIGHT - 0.5, 'fill="none" stroke="#616e7c" stroke-width="1"')]
    for axis, side in zip(WHEELS, ("left", "right")):
        marks += [rectangle(axis - 4, SHAFT[0], axis + 4, SHAFT[1], 'fill="#52606d"'),
                  rectangle(axis - REACH, RIM[0], axis + REACH, RIM[1], f'fill="url(#{side})"')]
    return f'<g id="mill">{"".join(marks)}</g>'


def frame(tooth, pitch, foot, index):
    moved = TEETH_RUN * pitch * index / FRAMES
    edge = outline(tooth, pitch, moved)
    left, right = pair((edge[0][0], foot)), pair((edge[-1][0], foot))
    top = "M" + "L".join(pair(p) for p in edge)
    body = f'{top}L{right}L{left}Z'
    return "".join(['<use xlink:href="#mill"/>', rim_marks(moved), f'<path d="{body}" fill="url(#band)"/>',
                    f'<path d="{top}" fill="none" stroke="url(#edge)" stroke-width="0.8" stroke-linejoin="round"/>',
                    f'<path d="M{left}L{right}" stroke="{dimmed(BACK, 0.6)}" stroke-width="1"/>'])


def sheet(cli):
    band = Band(cli, design(2, ROUND, Width=3.1))
    pieces = list(band.tooth(3, "face gullet back round top").values())
    start = pieces[0].start[0]
    tooth = [((x - start) * SCALE, TIPS + (band.height - y) * SCALE) for x, y in points(pieces)]
    pitch = tooth[-1][0]
    foot = TIPS + band.height * SCALE
    marks = []
    for index in range(FRAMES):
        corner = (index % PER_ROW * WIDTH, index // PER_ROW * HEIGHT)
        marks.append(f'<g transform="translate({corner[0]} {corner[1]})">{frame(tooth[:-1], pitch, foot, index)}</g>')
    return svg(PER_ROW * WIDTH, FRAMES // PER_ROW * HEIGHT, marks, gradients() + mill())


def main():
    folder = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else FOLDER
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "Animation.svg").write_text(sheet(sys.argv[1]), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
