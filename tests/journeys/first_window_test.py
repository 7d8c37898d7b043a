#!/usr/bin/env python3
"""The program on a screen: opened on a design, looked at, zoomed, closed. TARNWICK and TARNWICK_CLI name the programs."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

from screen import PATIENCE, Screen, until

PROGRAM = os.environ["TARNWICK"]
TOOL = os.environ["TARNWICK_CLI"]
SAMPLES = Path(__file__).resolve().parents[2] / "samples"

SAW, ZOOM, GROUND = (0, 255, 255), (0, 0, 255), (0, 0, 0)
CENTRE = (153, 153, 0)  # yellow, six tenths of the weight of a saw line
DRAWING = 832  # columns of the drawing beside its panel, on the screen of the journeys
SOFT = 100  # an antialiased line is seldom of its full colour


class Journey(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="tarnwick-journey-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def sample(self, name):
        """A sample as a band saw file in the journey's own folder."""
        design = self.folder / f"{name}.bsw"
        subprocess.run([TOOL, "bsw", "--calculate", SAMPLES / f"{name}.json", "-o", design], check=True)
        return design

    def screen(self, **options):
        screen = Screen(self.folder, **options)
        self.addCleanup(screen.close)
        return screen

    def close(self, screen, program):
        """Exit by the menu, as a user without a mouse does it."""
        screen.keys("alt+f", "x")
        self.assertEqual(program.wait(PATIENCE), 0)


class FirstWindow(Journey):
    def test_shows_a_design_and_lets_it_be_looked_at(self):
        design = self.sample("round-back")
        before = design.read_bytes()
        screen = self.screen()
        program = screen.start([PROGRAM, design])
        window = screen.window("round-back.bsw - Tarnwick")
        screen.mouse("windowactivate", "--sync", window)

        true_size = screen.settled()
        self.assertEqual(true_size.at(200, 300), GROUND)
        self.assertGreater(len(true_size.columns(SAW, SOFT)), 250)

        screen.keys("ctrl+a")
        until(lambda: screen.picture() != true_size, "the whole band")
        whole = screen.settled()
        columns = whole.columns(SAW)
        # Nineteen twentieths of the surface, in the middle of it.
        self.assertAlmostEqual(columns[-1] - columns[0], 0.95 * DRAWING, delta=8)
        self.assertAlmostEqual((columns[-1] + columns[0]) / 2, DRAWING / 2, delta=6)

        y = next(y for y in range(100, 700) if whole.at(420, y) != GROUND)
        screen.mouse("mousemove", 380, y - 30, "mousedown", 1, "mousemove", 420, y + 20, "mousemove", 460, y + 30)
        rectangle = until(lambda: (p := screen.picture()).columns(ZOOM) and p, "the zoom rectangle")
        blue = rectangle.columns(ZOOM)
        self.assertAlmostEqual(blue[0], 380, delta=2)
        self.assertAlmostEqual(blue[-1], 460, delta=2)
        screen.mouse("mouseup", 1)
        until(lambda: not (p := screen.picture()).columns(ZOOM) and p != whole, "the part in the rectangle")
        part = screen.settled()
        self.assertGreater(len(part.columns(SAW, SOFT)), 300)

        screen.keys("ctrl+l")
        until(lambda: screen.picture() != part, "the last view")
        self.assertEqual(screen.settled().columns(SAW), columns)

        self.close(screen, program)
        self.assertEqual(design.read_bytes(), before)

    def test_puts_what_it_does_not_open_into_the_trash(self):
        letter = self.folder / "letter.bsw"
        letter.write_text("Dear filer,")
        screen = self.screen()
        program = screen.start([PROGRAM, letter])
        screen.window("Tarnwick")
        screen.keys("Return")
        window = screen.window("untitled.bsw - Tarnwick")
        screen.mouse("windowactivate", "--sync", window)
        self.assertEqual(screen.settled().columns(SAW, SOFT), [])
        self.close(screen, program)
        self.assertFalse(letter.exists())
        trash = self.folder / ".local" / "share" / "Trash" / "files"
        self.assertEqual([path.read_text() for path in trash.iterdir()], ["Dear filer,"])

    def test_opens_the_design_without_a_window_manager(self):
        screen = self.screen(manager=False)
        screen.start([PROGRAM, self.sample("square-back")])
        screen.window("square-back.bsw - Tarnwick")
        self.assertGreater(len(screen.settled().columns(SAW, SOFT)), 300)

    def test_starts_blank_without_a_design(self):
        screen = self.screen()
        program = screen.start([PROGRAM])
        window = screen.window("untitled.bsw - Tarnwick")
        screen.mouse("windowactivate", "--sync", window)
        picture = screen.settled()
        self.assertEqual(picture.columns(SAW, SOFT), [])
        self.assertGreater(len(picture.columns(CENTRE, 10)), 500)
        self.close(screen, program)

    def test_keeps_the_weight_of_lines_on_a_fine_screen(self):
        screen = self.screen(width=900, height=640, scale=2)
        screen.start([PROGRAM, self.sample("square-back")])
        screen.window("square-back.bsw - Tarnwick")
        picture = screen.settled()
        # The upright end of the band, at the left of all that is drawn, is two of the screen's pixels wide.
        left = picture.columns(SAW)[0]
        end = picture.height * 3 // 4
        self.assertEqual([picture.at(x, end) for x in range(left - 1, left + 3)], [GROUND, SAW, SAW, GROUND])


if __name__ == "__main__":
    unittest.main()
