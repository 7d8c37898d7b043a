#!/usr/bin/env python3
"""Draws the pictures of the value dialogs, src/entry/pictures/KEY.svg, by the program itself.

    scripts/make_dialog_pictures.py build/release/src/tarnwick-cli [FOLDER]

Every tooth is the program's own outline of a small design, true to scale, and its dimension is taken from the same answer.
The pictures are kept with the sources; draw them again when a design, a style of line or the geometry has changed.
"""

import pathlib
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent
FOLDER = TOP / "src" / "entry" / "pictures"

sys.dont_write_bytecode = True
sys.path.insert(0, str(TOP / "scripts" / "pictures"))

import machine_pictures  # noqa: E402, F401
import plate_pictures  # noqa: E402, F401
import scenes  # noqa: E402
import tip_pictures  # noqa: E402, F401
import tooth_pictures  # noqa: E402, F401
from keys import PICTURES  # noqa: E402


def main():
    found = scenes.Scenes(sys.argv[1])
    folder = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else FOLDER
    folder.mkdir(parents=True, exist_ok=True)
    for key, draw in sorted(PICTURES.items()):
        (folder / f"{key}.svg").write_text(draw(found).text(), encoding="utf-8", newline="\n")
    print(f"{len(PICTURES)} pictures in {folder}")


if __name__ == "__main__":
    main()
