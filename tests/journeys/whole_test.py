#!/usr/bin/env python3
"""A day of a filer: a saw from nothing to the files and the paper that leave the desk, and everything found again.

TARNWICK and TARNWICK_CLI name the programs.
"""

import unittest

from desk import hook, read, tool
from paper import Paper, PrintDesk
from screen import until

UNTITLED, DAY = "untitled.bsw - Tarnwick", "day.bsw - Tarnwick"
WHEELS, POWER, OPTIONS, PAGES = ("Band Length Calculator", "Power Requirements", "Options", "Choose Printer and Pages")
COLOUR, SELECT = "Saw Outline Color in View Windows", "Select Color"
ORANGE = (255, 136, 0)
SOFT = 40  # a line is antialiased
KEPT = {"MainImpMetric": "1", "DisplayPlaces": "2", "SawLineColor": str(0x0088FF), "PrintPowerReq": "True",
        "Phone": "555 0123"}


class Day(PrintDesk):
    def expect_rows(self, **wanted):
        """Rows of the window, by their captions with a line for a blank."""
        rows = {caption.replace("_", " "): f" {value}" for caption, value in wanted.items()}
        until(lambda: rows.items() <= self.reader.rows().items(), f"{rows} among {self.reader.rows()}")

    def expect_saved(self, design, wanted):
        """What was typed is in the file."""
        saw = read(design)
        for path, value in wanted.items():
            found = saw
            for name in path.split("."):
                found = found[name]
            self.assertEqual(found, value, path)
        return saw

    # ---- the acts

    def design_a_saw(self):
        self.press(UNTITLED, "New Step by Step")
        self.steps((("BandSaw Tooth Style", "Round Back"), ("Wheel Diameter", "6"), ("Band Saw Length", "40"),
                    ("Band Saw Width", "10"), ("Tooth Pitch", "2"), ("Hook Angle", "28"), ("Clearance Angle", "12"),
                    ("Tip Clearance", None), ("BandSaw Tip Type", "Swagged"), ("Plate Thickness", "0.065"),
                    ("Tip Kerf", "0.135"), ("Gullet Radius", "3/8"), ("Gullet Depth", "0.75"),
                    ("Gullet Back Angle", "14"), ("Gullet Back Radius", "0.2")))
        self.front(UNTITLED)
        self.expect_rows(Tooth_Style="Round Back", Number_Of_Teeth="240", Hook_Angle="28.000 deg")

    def correct_the_hook(self):
        self.asked(UNTITLED, "Hook Angle: 28.000 deg", "Hook Angle", "25 + 5", "list item")
        self.expect_rows(Hook_Angle="30.000 deg", Sharpness_Angle="48.000 deg")

    def take_the_length_from_the_wheels(self):
        self.press(UNTITLED, WHEELS)
        self.asked(WHEELS, "Center to Center", "Center to Center", "12.9731")
        self.tick(WHEELS, "Take Inside Length")
        self.press(WHEELS, "OK")
        self.expect_rows(Length="45.000 ft", Number_Of_Teeth="270")

    def vary_the_pitch(self):
        self.press(UNTITLED, "Variable Pitch")
        self.answer("Changed", "alt+y")
        self.front(UNTITLED)
        until(lambda: self.reader.showing("push button", "Print the segment"), "the panel of variable pitch")
        self.pick(UNTITLED, "3 Teeth", "5 Teeth")
        self.tick(UNTITLED, "Pattern Left to Right", "radio button")
        self.asked(UNTITLED, "1st Tooth Pitch", "Tooth Space", "2.4")
        self.click_until(UNTITLED, "OK", self.reader.rows)
        self.expect_rows(Tooth_Spacing="2.000 in (Average)", Teeth_in_Segment="5", Length_of_Segment="10.000 in")

    def work_out_power(self):
        self.press(UNTITLED, POWER)
        for box, question, answer in (("Shaft Speed (RPM's)", "Wheel RPMs", "530"),
                                      ("Depth of Cut (MAX)", "Maximum Depth of Cut", "18"),
                                      ("Feed Rate (FPM)", "Feed Rate", "85"),
                                      ("Type of Wood", "Type of Wood", "Fir (White)")):
            self.asked(POWER, box, question, answer)
        shown = self.reader.wait_for("text", "Horse Power", self.window(POWER))
        power = until(lambda: self.reader.text(shown).strip(), "the power")
        self.press(POWER, "OK")
        self.expect_rows(Horsepower=power)

    def save(self):
        day = self.home / "day.bsw"
        self.file(UNTITLED, "a")  # Save alone would not put it on the list of recent files
        self.choose("Save As", self.home / "day")
        self.hurry(lambda: hook(day) == 30, "the design saved")
        self.front(DAY)
        saw = self.expect_saved(day, {
            "ToothStyle": 2, "Width": 10, "NumTeeth": 270, "HookAngle": 30, "ClearAngle": 12,
            "GulletInfo.Radius": 0.375, "GulletInfo.Depth": 0.75, "GulletInfo.BackAngle": 14,
            "GulletInfo.BackRadius": 0.2, "GeneralInfo.TipType": 2, "GeneralInfo.PlateThick": 0.065,
            "GeneralInfo.Kerf": 0.135, "GeneralInfo.SideClear": 0.035, "GeneralInfo.ShaftSpeed": 530,
            "GeneralInfo.DepthOfCut": 18, "GeneralInfo.FeedRate": 85, "GeneralInfo.WoodType": "Fir (White)",
            "GeneralInfo.VariablePitch": -1, "GeneralInfo.NumVariables": 5, "MachineInfo.WheelDia": 6,
            "MachineInfo.InCenterOut": 1, "ContainsInfo.Teeth": -1,
            "ContainsInfo.Power": -1, "ContainsInfo.Machine": -1,
            "Length": 45, "MachineInfo.CenterToCenter": 12.9731})
        pitches = saw["GeneralInfo"]["VarPitch"][:5]
        self.assertEqual(pitches[0], 2.4)
        self.assertAlmostEqual(sum(pitches), saw["DesignInfo"]["SegmentLength"])
        self.assertGreater(saw["GeneralInfo"]["HorsePower"], 0)
        return day

    def find_it_again(self, day):
        """By the list of recent files, and as the desktop opens a file after a double click."""
        rows = self.reader.rows()
        self.file(DAY, "x")
        self.left(self.program)
        self.assertEqual(self.recent(), [day])
        self.program = self.start()
        self.reads(day, lambda: self.file(UNTITLED, "Up", "Up", "Return"))
        until(lambda: self.reader.rows() == rows, "all rows again")
        self.file(DAY, "x")  # without a question
        self.left(self.program)
        self.program = self.open(day)
        until(lambda: self.reader.rows() == rows, "all rows again")

    def export(self, day):
        self.file(DAY, *["Down"] * 5, "Right", "Return")
        self.answer("Save As", "Return")
        drawing, again = self.home / "day.dxf", self.home / "again.dxf"
        until(drawing.exists, "the drawing")
        tool("dxf", day, "-o", again)
        self.front(DAY)
        self.assertEqual(drawing.read_bytes(), again.read_bytes())

        self.file(DAY, *["Down"] * 5, "Right", "Down", "Return")
        self.answer("Save As", "Return")
        listing = self.home / "day.txt"
        until(lambda: listing.exists() and listing.read_text().endswith(",\n"), "the figures")
        lines = listing.read_text().split("\n")
        self.assertEqual(lines[:2], ["day.bsw,", ""])
        for line in ("Tooth Spacing:,      2.000 in  (Average),", "Hook Angle:,         30.000 deg,",
                     "General Information:", "Type of Wood:,       Fir (White),"):
            self.assertIn(line, lines)
        # All that the window shows, and nothing else; what is heard there has single blanks.
        listed = {line[:20].strip(" ,:"): " ".join(line[20:].strip(" ,").split()) for line in lines[2:] if line.strip()}
        shown = {caption: value.strip() for caption, value in self.reader.rows().items()}
        self.assertEqual(listed, shown)

    def change_the_options(self):
        self.front(DAY)
        self.screen.keys("alt+t", "o")
        self.tick(OPTIONS, "Metric", "radio button")
        self.fill(OPTIONS, "Number of Decimal Places Used For Displaying Values", "2")
        self.click(OPTIONS, "Colors", "page tab")
        self.press(OPTIONS, COLOUR)
        self.fill(SELECT, "HTML:", "#ff8800")
        self.press(SELECT, "OK")
        self.click(OPTIONS, "Printer and Dxf", "page tab")
        self.tick(OPTIONS, "Include Power Requirements on Printout")
        self.click(OPTIONS, "User Information", "page tab")
        self.fill(OPTIONS, "Name", "Two Rivers Mill")
        self.fill(OPTIONS, "Phone", "555 0123")
        self.press(OPTIONS, "OK")
        self.expect_rows(Length="45.00 ft", Hook_Angle="30.00 deg")  # the units are those of the next new design
        self.assertTrue(self.screen.settled().columns(ORANGE, SOFT))

    def print_it_in_metric(self):
        self.tick(DAY, "Metric", "radio button")
        self.expect_rows(Length="13.72 m")
        self.press(DAY, "Print")
        self.press(PAGES, "OK")
        paper = Paper(self.next_job())
        self.assertEqual(paper.pages, 2)
        self.assertEqual([round(top) for _, top, _ in paper.places("Two Rivers Mill")], [530])
        for words in ("Phone: 555 0123", "Power Requirements:", "30.00 deg", "13.72 m", "Fir (White)", "Page 1 of 2"):
            self.assertEqual(len(paper.places(words)), 1, words)
        self.tick(DAY, "Imperial", "radio button")
        self.expect_rows(Length="45.00 ft")


    def test_from_nothing_to_paper(self):
        self.program = self.start()
        self.design_a_saw()
        self.correct_the_hook()
        self.take_the_length_from_the_wheels()
        self.vary_the_pitch()
        self.work_out_power()
        day = self.save()
        before = day.read_bytes()
        self.find_it_again(day)
        self.export(day)
        self.change_the_options()
        self.print_it_in_metric()
        self.file(DAY, "x")
        self.left(self.program)
        kept = {key: value.strip() for key, value in self.settings().items()}
        self.assertEqual({key: kept[key] for key in KEPT}, KEPT)
        self.assertEqual((self.store.parent / "Customer").read_text("utf-8").strip(), "Name=Two Rivers Mill")
        self.assertEqual(self.recent(), [day])
        self.assertEqual(day.read_bytes(), before)
        self.assertEqual({path.name for path in self.home.iterdir() if path.is_file()},
                         {"day.bsw", "day.dxf", "day.txt", "again.dxf"})


if __name__ == "__main__":
    unittest.main(warnings="ignore")  # the bindings of the bus use what is old to them
