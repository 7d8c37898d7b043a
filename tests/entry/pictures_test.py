#!/usr/bin/env python3
"""Looks through the pictures of the value dialogs: each key has its own, plain enough for the toolkit's small SVG reader."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

TOP = pathlib.Path(__file__).resolve().parents[2]
PICTURES = TOP / "src" / "entry" / "pictures"
SCRIPT = TOP / "scripts" / "make_dialog_pictures.py"

KEYS = """
    SqrBack RndBack GuDouble GuTriple GuFlatBo GuNarrow GuOShape
    Length Pitch Width NumTeeth TipClear Seat SeatWide SeatHigh Hook ClrAngle
    GuRadius Gu1stRd GuF1stRd GuO1stRd GuDRad2 Gu2ndRd GuFRad2 Gu3rdRd
    GuBotAng GuWidth GuFWidth GuOWidth GuDepth GuBkAngl GuBkRad
    FrostWidth FrostHeight FrostRadius FrostAngle
    CutDepth TipKerf PlateThk TipNone TipStel TipSwag TipCarb
    RightAng Overlap WheelDia RimWidth CenToCen SlotCent SlotNotC
""".split()

NAMESPACE = "{http://www.w3.org/2000/svg}"
PEN = {"fill", "stroke", "stroke-width", "stroke-dasharray", "stroke-linecap", "stroke-linejoin"}
ALLOWED = {
    "svg": {"width", "height", "viewBox"},
    "rect": {"width", "height", "fill"},
    "path": {"d"} | PEN,
    "line": {"x1", "y1", "x2", "y2"} | PEN,
    "circle": {"cx", "cy", "r"} | PEN,
    "text": {"x", "y", "text-anchor", "font-family", "font-size", "fill"},
}
ACCENT = "#c2410c"


def root(key):
    return ElementTree.parse(PICTURES / f"{key}.svg").getroot()


def light(colour):
    parts = (int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5))
    red, green, blue = (c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4 for c in parts)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


class Pictures(unittest.TestCase):
    def look_at_each(self, look):
        for key in KEYS:
            with self.subTest(key):
                look(root(key))

    def test_every_key_has_its_file_and_no_file_is_without_a_key(self):
        self.assertEqual(sorted(path.name for path in PICTURES.iterdir()), sorted(f"{key}.svg" for key in KEYS))

    def test_all_have_the_same_sheet_with_its_own_paper(self):
        def look(svg):
            self.assertEqual(svg.tag, NAMESPACE + "svg")
            self.assertEqual(svg.get("viewBox"), "0 0 320 240")
            self.assertEqual(svg[0].attrib, {"width": "320", "height": "240", "fill": "#ffffff"})
        self.look_at_each(look)

    def test_only_plain_elements_and_attributes_are_used(self):
        def look(svg):
            for element in svg.iter():
                name = element.tag.removeprefix(NAMESPACE)
                self.assertIn(name, ALLOWED)
                self.assertLessEqual(set(element.attrib), ALLOWED[name], name)
        self.look_at_each(look)

    def test_paths_are_of_lines_and_cubic_curves(self):
        def look(svg):
            for path in svg.iter(NAMESPACE + "path"):
                self.assertRegex(path.get("d"), r"^M[-0-9. MLCZ]+$")
        self.look_at_each(look)

    def test_nothing_lies_outside_the_sheet(self):
        def look(svg):
            for path in svg.iter(NAMESPACE + "path"):
                numbers = [float(text) for text in re.findall(r"-?[0-9.]+", path.get("d"))]
                self.assertTrue(all(0 <= x <= 320 for x in numbers[::2]), path.get("d"))
                self.assertTrue(all(0 <= y <= 240 for y in numbers[1::2]), path.get("d"))
            for line in svg.iter(NAMESPACE + "line"):
                self.assertTrue(all(0 <= float(line.get(end)) <= 320 for end in ("x1", "x2")))
                self.assertTrue(all(0 <= float(line.get(end)) <= 240 for end in ("y1", "y2")))
        self.look_at_each(look)

    def test_what_is_asked_for_stands_out(self):
        def look(svg):
            colours = {element.get(name) for element in svg.iter() for name in ("stroke", "fill")}
            self.assertIn(ACCENT, colours)
        self.look_at_each(look)
        for paper in ("#ffffff", "#eef2f6"):
            self.assertGreaterEqual((light(paper) + 0.05) / (light(ACCENT) + 0.05), 4.5)

    def test_there_is_nothing_to_translate(self):
        def look(svg):
            for text in svg.iter(NAMESPACE + "text"):
                self.assertRegex(text.text, r"^([A-Zabn\u03b1-\u03c9\u2026]|R?[123])$")
        self.look_at_each(look)

    def test_they_show_the_teeth_that_the_program_makes(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, "-B", SCRIPT, os.environ["TARNWICK_CLI"], folder], check=True,
                           stdout=subprocess.DEVNULL)
            for key in KEYS:
                with self.subTest(key):
                    drawn = pathlib.Path(folder, f"{key}.svg").read_bytes()
                    self.assertEqual(drawn, (PICTURES / f"{key}.svg").read_bytes())

    def test_no_two_are_the_same(self):
        pictures = {(PICTURES / f"{key}.svg").read_bytes() for key in KEYS}
        self.assertEqual(len(pictures), len(KEYS))


if __name__ == "__main__":
    unittest.main()
