#!/usr/bin/env python3
"""The program as a screen reader meets it: everything by role and name, and a value changed by that alone.

TARNWICK and TARNWICK_CLI name the programs.
"""

import os
import subprocess
import tempfile
import unittest
from collections import Counter
from pathlib import Path

from reader import Reader
from screen import Screen, until

PROGRAM = os.environ["TARNWICK"]
TOOL = os.environ["TARNWICK_CLI"]
SAMPLES = Path(__file__).resolve().parents[2] / "samples"

# What a hand or a key can work with, by the bus's names of roles.
CONTROLS = {"check box", "combo box", "list", "list item", "menu item", "page tab", "push button", "radio button",
            "scroll bar", "slider", "spin button", "text", "toggle button"}
ROW_THAT_SETS_APART = ("list item", "")


class ScreenReader(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="tarnwick-journey-")
        cls.addClassCleanup(folder.cleanup)
        design = Path(folder.name) / "round-back.bsw"
        subprocess.run([TOOL, "bsw", "--calculate", SAMPLES / "round-back.json", "-o", design], check=True)
        screen = Screen(Path(folder.name))
        cls.addClassCleanup(screen.close)
        cls.reader = Reader(screen, "tarnwick")
        screen.start([PROGRAM, design])
        cls.window = cls.reader.wait_for("frame", "round-back.bsw - Tarnwick")
        until(cls.reader.rows, "the rows of the design")

    def expect_names(self, window, counts):
        """Each control that counts has a name, and no other of its kind in the window has the same."""
        counted = Counter((role, name) for node, role, name in self.reader.walk(window)
                          if role in CONTROLS and counts(node))
        del counted[ROW_THAT_SETS_APART]
        self.assertGreater(len(counted), 3)
        self.assertEqual([control for control in counted if not control[1].strip()], [], "without a name")
        self.assertEqual([control for control, times in counted.items() if times > 1], [], "more than once")

    def test_each_control_of_the_main_window_has_a_name_of_its_own(self):
        reader = self.reader
        self.assertTrue(reader.showing("canvas", "Drawing of the band"))
        for button, *first in (("Tooth Shape Editor", "text", "Tooth Style"),
                              ("General Information", "text", "Type of Tip"),
                              ("Variable Pitch", "text", "Segments on Band"),
                              ("Cancel", "list", "Values of the band saw")):
            with self.subTest(button=button):
                reader.press(reader.find("push button", button))
                until(lambda first=first: reader.showing(*first), f"what {button!r} opens")
                self.expect_names(self.window, reader.shows)

    def test_each_control_of_the_options_has_a_name_of_its_own(self):
        reader = self.reader
        reader.press(reader.find("menu item", "Options"))
        options = reader.wait_for("dialog", "Options")
        self.expect_names(options, lambda node: True)  # on its pages behind too
        reader.press(reader.find("push button", "Cancel", options))
        until(lambda: not reader.find("dialog", "Options"), "the end of the options")

    def test_rows_are_read_and_one_is_changed_by_its_question(self):
        reader = self.reader
        self.assertEqual(reader.rows()["Hook Angle"], " 25.000 deg")
        reader.press(reader.find("list item", "Hook Angle: 25.000 deg"))
        question = reader.wait_for("dialog", "Hook Angle")
        self.expect_names(question, lambda node: True)
        reader.find("text", "Value", question).queryEditableText().setTextContents("22 1/2")
        reader.press(reader.find("push button", "OK", question))
        until(lambda: reader.rows().get("Hook Angle") == " 22.500 deg", "the row with the new value")
        self.assertEqual(reader.rows()["Sharpness Angle"], " 53.500 deg")


if __name__ == "__main__":
    unittest.main(warnings="ignore")  # the bindings of the bus use what is old to them
