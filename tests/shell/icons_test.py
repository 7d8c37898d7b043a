#!/usr/bin/env python3
"""Looks through the line drawings of the commands: one family, plain enough for the toolkit's small SVG reader."""

import pathlib
import re
import unittest
import xml.etree.ElementTree as ElementTree

TOP = pathlib.Path(__file__).resolve().parents[2]
ICONS = sorted((TOP / "src" / "shell" / "icons").iterdir())
TABLE = TOP / "src" / "shell" / "modToolCommands.h"

NAMESPACE = "{http://www.w3.org/2000/svg}"
MARKER = "#000000"  # the program puts the desktop's text colour in its place
SHEET = {
    "width": "24", "height": "24", "viewBox": "0 0 24 24", "fill": "none", "stroke": MARKER,
    "stroke-width": "1.5", "stroke-linecap": "round", "stroke-linejoin": "round",
}
HALF_PEN = 0.75
SHAPES = {"path": {"d"}, "circle": {"cx", "cy", "r", "fill", "stroke"}}
OPERANDS = {"M": 2, "L": 2, "H": 1, "V": 1, "C": 6, "A": 7, "Z": 0}


def ends(path):
    """Where the pieces of a path of absolute commands end."""
    x = y = 0.0
    for letter, text in re.findall(r"([A-Z])([^A-Z]*)", path):
        numbers = [float(number) for number in re.findall(r"-?[0-9.]+", text)]
        count = OPERANDS[letter]
        for first in range(0, len(numbers), count or 1):
            piece = numbers[first:first + count]
            if len(piece) != count:
                raise ValueError(f"{letter}{text}")
            x = x if letter == "V" else piece[-1 if letter == "H" else -2]
            y = y if letter == "H" else piece[-1]
            yield x, y


class Icons(unittest.TestCase):
    def look_at_each(self, look):
        self.assertTrue(ICONS)
        for path in ICONS:
            with self.subTest(path.stem):
                look(ElementTree.parse(path).getroot())

    def test_each_button_of_the_tool_bar_has_its_own(self):
        buttons = re.findall(r'"tlb(\w+)"', TABLE.read_text(encoding="utf-8"))
        self.assertEqual(len(set(buttons)), 16)
        self.assertLessEqual(set(buttons), {path.stem for path in ICONS})

    def test_all_are_drawn_with_the_same_pen_on_the_same_sheet(self):
        def look(svg):
            self.assertEqual(svg.tag, NAMESPACE + "svg")
            self.assertEqual(svg.attrib, SHEET)
        self.look_at_each(look)

    def test_only_plain_shapes_are_used(self):
        def look(svg):
            self.assertGreater(len(svg), 0)
            for shape in svg:
                name = shape.tag.removeprefix(NAMESPACE)
                self.assertLessEqual(set(shape.attrib), SHAPES[name])
                self.assertEqual(len(shape), 0)
        self.look_at_each(look)

    def test_only_dots_are_filled(self):
        def look(svg):
            for circle in svg.iter(NAMESPACE + "circle"):
                if "fill" in circle.attrib:
                    self.assertEqual((circle.get("fill"), circle.get("stroke")), (MARKER, "none"))
                    self.assertLess(float(circle.get("r")), 1.5)
                else:
                    self.assertNotIn("stroke", circle.attrib)
        self.look_at_each(look)

    def test_the_pen_stays_on_the_sheet(self):
        def inside(*places):
            for place in places:
                self.assertTrue(HALF_PEN <= place <= 24 - HALF_PEN, place)

        def look(svg):
            for path in svg.iter(NAMESPACE + "path"):
                self.assertRegex(path.get("d"), r"^M[-0-9. MLHVCAZ]+$")
                for x, y in ends(path.get("d")):
                    inside(x, y)
            for circle in svg.iter(NAMESPACE + "circle"):
                x, y, r = (float(circle.get(name)) for name in ("cx", "cy", "r"))
                inside(x - r, x + r, y - r, y + r)
        self.look_at_each(look)

    def test_no_two_are_the_same(self):
        self.assertEqual(len({path.read_bytes() for path in ICONS}), len(ICONS))


if __name__ == "__main__":
    unittest.main()
