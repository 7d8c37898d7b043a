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

from screen import PATIENCE, Screen, until

PROGRAM = os.environ["TARNWICK"]
TOOL = os.environ["TARNWICK_CLI"]
SAMPLES = Path(__file__).resolve().parents[2] / "samples"

# What a hand or a key can work with, by the bus's names of roles.
CONTROLS = {"check box", "combo box", "list", "list item", "menu item", "page tab", "push button", "radio button",
            "scroll bar", "slider", "spin button", "text", "toggle button"}
ROW_THAT_SETS_APART = ("list item", "")
ANSWER = 700  # ms; an action that opens a question is answered when that closes, which is too late


class Reader:
    """The accessibility bus of a screen."""

    def __init__(self, screen, name):
        readable, writable = os.pipe()
        screen.start(["dbus-daemon", "--session", "--nofork", f"--print-address={writable}"], pass_fds=[writable],
                     stdout=subprocess.DEVNULL)
        os.close(writable)
        with os.fdopen(readable) as answer:
            screen.environment["DBUS_SESSION_BUS_ADDRESS"] = answer.readline().strip()
        screen.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        os.environ.update(screen.environment)
        import pyatspi  # it looks for the bus at once
        from gi.repository import Atspi, GLib
        self.bus, self.failed, self.name = pyatspi, GLib.GError, name
        Atspi.set_timeout(ANSWER, ANSWER)

    def program(self):
        """The program, with nothing remembered of it."""
        for found in self.bus.Registry.getDesktop(0):
            if found is not None and found.name == self.name:
                found.clearCache()
                return found
        return None

    def walk(self, node):
        """A node and all below it, each with its role and name. What goes meanwhile is passed over."""
        try:
            yield node, node.getRoleName(), node.name
            below = [node.getChildAtIndex(i) for i in range(node.childCount)]
        except self.failed:
            return
        for child in below:
            if child is not None:
                yield from self.walk(child)

    def shows(self, node):
        try:
            return node.getState().contains(self.bus.STATE_SHOWING)
        except self.failed:
            return False

    def find(self, role, name, within=None):
        """The only node of this role and name that shows, or the only one at all; None before it is there."""
        top = within or self.program()
        found = [n for n, *what in self.walk(top) if what == [role, name]] if top else []
        for some in ([n for n in found if self.shows(n)], found):
            assert len(some) < 2, f"{len(some)} times {role} {name!r}"
            if some:
                return some[0]
        return None

    def showing(self, role, name):
        found = self.find(role, name)
        return found if found and self.shows(found) else None

    def wait_for(self, role, name, within=None):
        return until(lambda: self.find(role, name, within), f"{role} {name!r}")

    def press(self, node):
        try:
            node.queryAction().doAction(0)
        except self.failed:
            pass  # it has opened a question

    def rows(self):
        """The values of the band saw by their captions."""
        shown = self.find("list", "Values of the band saw")
        rows = [name for _, role, name in self.walk(shown) if role == "list item"] if shown else []
        return dict(row.split(":", 1) for row in rows if ":" in row)


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
