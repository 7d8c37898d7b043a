#!/usr/bin/env python3
"""The machine of a design on a screen: a length taken from its wheels, its drawing exported, the table of plate gauges.

TARNWICK and TARNWICK_CLI name the programs.
"""

import unittest
from collections import Counter

from desk import WHITE, Desk, content_of, hook, read, tool
from screen import until

HEAD = "head.bsw - Tarnwick"
CALCULATOR = "Band Length Calculator"
LEAST = 8  # rows of a check box that are white


def entities(drawing):
    """The kinds of what a drawing file holds, counted, and its texts."""
    lines = drawing.read_bytes().decode("ascii").split("\r\n")[:-1]
    pairs = list(zip(map(int, lines[::2]), lines[1::2]))
    pairs = pairs[pairs.index((2, "ENTITIES")) + 1:pairs.index((0, "EOF")) - 1]
    return Counter(value for code, value in pairs if code == 0), [value for code, value in pairs if code == 1]


class Machine(Desk):
    def fields(self, count):
        """The white fields of the calculator, from above: in the first column from the left where so many of them stand
        one below the other. Three are the rows that are not ticked, five the boxes that are pressed."""
        place = dict(line.split("=") for line in self.screen.output(
            "xdotool", "getwindowgeometry", "--shell", self.front(CALCULATOR)).decode().split())
        left, top, width, height = (int(place[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))
        picture = self.screen.settled()
        for x in range(left, left + width):
            found, begin = [], None
            for y in range(top, top + height + 1):
                is_white = picture.at(x, y) == WHITE
                if is_white and begin is None:
                    begin = y
                if not is_white and begin is not None:
                    if y - begin >= LEAST:
                        found.append((x + 4, (begin + y) // 2))
                    begin = None
            if len(found) == count:
                return found
        return []

    def click(self, place):
        self.screen.mouse("mousemove", *place, "click", 1)

    def type_in(self, title, text):
        """Answers a question of the calculator."""
        self.front(title)
        self.screen.type(text)
        self.answer(title, "Return")
        self.front(CALCULATOR)

    def test_a_length_is_taken_from_the_wheels(self):
        design = self.design("head.bsw")
        before = design.read_bytes()
        program = self.open(design)

        # The wheels by the keys, their centres by the mouse.
        self.front(HEAD)
        self.screen.keys("alt+t", "Return")
        self.front(CALCULATOR)
        self.screen.keys("Return")
        self.type_in("Wheel Diameter", "4 ft 6 in")
        self.click(self.fields(5)[2])
        self.type_in("Center to Center", "9")

        inside = self.fields(3)[0]
        self.click(inside)
        until(lambda: inside not in self.fields(3), "the inside ticked")
        self.screen.keys("alt+e")
        self.choose("Save As", self.home / "mill")
        drawing = self.home / "mill.dxf"
        until(drawing.exists, "the drawing")
        self.answer(CALCULATOR, "alt+o")

        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.hurry(lambda: content_of(design) != before and hook(design) == 10, "the change saved")
        saw = read(design)
        machine = saw["MachineInfo"]
        self.assertEqual((machine["WheelDia"], machine["CenterToCenter"], machine["InCenterOut"]), (4.5, 9, 1))
        self.assertEqual(saw["Length"], 32.291)  # 18 + 4.549 * pi, as it was shown
        self.assertEqual(saw["NumTeeth"], 258)

        kinds, texts = entities(drawing)
        self.assertEqual(kinds, {"CIRCLE": 8, "LINE": 2 * 2 * 12 + 8, "ARC": 2 * 2 * 12 + 2, "TEXT": 1, "SOLID": 2})
        self.assertEqual(texts, [" 9.000 ft           "])
        again = self.home / "again.dxf"
        tool("machine", design, "-o", again)
        self.assertEqual(again.read_bytes(), drawing.read_bytes())

        self.file(HEAD, "x")
        self.left(program)

    def test_the_gauges_are_looked_up(self):
        program = self.open(self.design("head.bsw"))
        self.front(HEAD)
        without = self.screen.settled()
        for key in ("Escape", "Return"):
            self.screen.keys("alt+b", "Return")
            self.front("Plate Gauge")
            until(lambda: self.screen.picture() != without, "the table")
            self.answer("Plate Gauge", key)
            self.front(HEAD)
        self.file(HEAD, "x")  # there is nothing to save
        self.left(program)


if __name__ == "__main__":
    unittest.main()
