#!/usr/bin/env python3
"""Takes the pictures of the window in docs/pictures/: the program itself, on a screen of its own.

    scripts/make_window_pictures.py build/release/src

The folder is the one that holds tarnwick and tarnwick-cli. Wants what the journeys of tests/ want.
"""

import pathlib
import subprocess
import sys
import tempfile

TOP = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(TOP / "tests" / "journeys"))
sys.dont_write_bytecode = True
from screen import PATIENCE, Screen  # noqa: E402

WIDTH, HEIGHT = 1200, 720

MAIN_SCREEN = ["ctrl+s"]  # a segment fills the drawing
TOOTH_SHAPE = ["alt+d", "Down", "Down", "Return"]  # the third of the menu


def take(programs, sample, scale, keys, picture):
    """The window on one sample, after some keys."""
    with tempfile.TemporaryDirectory(prefix="tarnwick-picture-") as home:
        home = pathlib.Path(home)
        design = home / f"{sample}.bsw"
        given = TOP / "samples" / f"{sample}.json"
        subprocess.run([programs / "tarnwick-cli", "bsw", "--defaults", "--calculate", given, "-o", design], check=True)
        screen = Screen(home, WIDTH, HEIGHT, scale)
        try:
            for folder in ("config", "cache"):
                screen.environment[f"XDG_{folder.upper()}_HOME"] = str(home / f".{folder}")
            program = screen.start([programs / "tarnwick", design])
            window = screen.window(f"{sample}.bsw - Tarnwick")
            screen.mouse("windowactivate", "--sync", window)
            screen.mouse("mousemove", WIDTH * scale // 3, HEIGHT * scale - 1)  # off the rows
            screen.settled()
            screen.keys(*keys)
            screen.settled()
            screen.output("import", "-window", window, "-strip", "-define", "png:compression-level=9", picture)
            screen.keys("alt+f", "x")
            program.wait(PATIENCE)
        finally:
            screen.close()
    print(picture.relative_to(TOP))


def main():
    programs = pathlib.Path(sys.argv[1]).resolve()
    pictures = TOP / "docs" / "pictures"
    take(programs, "variable-depth", 1, MAIN_SCREEN, pictures / "window.png")
    take(programs, "triple-radius", 2, TOOTH_SHAPE, pictures / "window-2x.png")


if __name__ == "__main__":
    main()
