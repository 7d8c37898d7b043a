#!/usr/bin/env python3
"""Designs on paper: every command that prints, on printers of the journey's own, and the sheets measured.

TARNWICK and TARNWICK_CLI name the programs.
"""

import unittest
from datetime import date

from desk import SAMPLES, tool
from paper import INCH, LETTER, Paper, PrintDesk
from screen import until

HEAD = "head.bsw - Tarnwick"
PAGES, PRINTER, SETUP, PROPERTIES = "Choose Printer and Pages", "Choose Printer", "Print Setup", "Printer Properties"
SEGMENT, CANCELED = "Print Segment", "Printing Canceled"
POWER, ESTIMATES, CALCULATOR = "Power Requirements", "Power Estimates", "Power Calculator"

ROW, FIRST_ROW = 265, 2400  # of the information sheet
COLUMN = 1100  # its first
BLANK = 57  # ahead of a value
AHEAD = 1400  # of the date stands the number of a sheet of a segment
LEFT, RIGHT = INCH // 2, 15 * INCH // 2  # of the frame of a drawing on paper that stands upright
BAND = LEFT + INCH // 4  # where the band begins
MIDDLE = 10160  # of the gullets
DEPTH = 3 * INCH // 4  # of those of the sample
SEAM = INCH  # it ends that far from the foot
NEAR, LINE = 15, 20

TEETH = (("Band Saw Teeth:", ""), ("Tooth Style:", "Round Back"), ("Length:", "40.000 ft"),
         ("Band Saw Width:", "10.000 in"), ("Number Of Teeth:", "240"), ("Tooth Spacing:", "2.000 in (Average)"),
         ("Hook Angle:", "28.000 deg"), ("Clearance Angle:", "12.000 deg"), ("Sharpness Angle:", "50.000 deg"),
         ("Gullet Radius:", "0.375 in"), ("Gullet Back Angle:", "14.000 deg"), ("Gullet Depth:", "0.750 in"),
         ("Gullet Back Radius:", "0.200 in"), ("Gullet Area:", "0.473 in²"), ("Face Length:", "0.225 in (Average)"))


class Printing(PrintDesk):
    def setUp(self):
        super().setUp()
        self.today = date.today()

    def design(self, sample="variable-pitch"):
        path = self.home / "head.bsw"
        tool("bsw", "--calculate", SAMPLES / f"{sample}.json", "-o", path)
        return path

    # ---- jobs

    def job(self, printer, pages, copies=1):
        """The sheets of the only job since the last one."""
        path = self.next_job()
        self.assertEqual(path.stem.rsplit("-", 1)[0], printer)
        self.assertIn(f"copies={copies}\n", path.with_suffix(".txt").read_text())
        paper = Paper(path)
        self.assertEqual(paper.pages, pages)
        return paper

    # ---- what one does

    def prints(self, key):
        """Picks one of the print outs."""
        self.file(HEAD, "r", key)

    def accept(self, title, printer=None):
        if printer:
            self.pick(title, "Alpha", printer)
        self.press(title, "OK")

    def leave(self, program):
        self.file(HEAD, "x")
        self.left(program)

    # ---- what is on the sheets

    def expect_at(self, paper, text, x, y, page=1):
        places = paper.places(text, page)
        near = [place for place in places if abs(place[0] - x) < NEAR and abs(place[1] - y) < NEAR]
        self.assertEqual(len(near), 1, f"{text!r} at {places}, not at {x, y}, in {paper.text(page)!r}")

    def expect_heading(self, paper, label, page=1, title="head.bsw", date_at=10100):
        """The title, the date and the number of the sheet."""
        [(left, top, right)] = paper.places(title, page)
        self.assertAlmostEqual((left + right) / 2, 5700, delta=NEAR)
        self.assertAlmostEqual(top, ROW, delta=NEAR)
        days = {self.today, date.today()}  # it may have become midnight
        found = [day for day in days if f"{day:%b}, {day.day}/{day:%y}" in paper.text(page)]
        self.assertTrue(found, paper.text(page))
        self.expect_at(paper, f"{found[0]:%b}, {found[0].day}/{found[0]:%y}", date_at, 2.5 * ROW, page)
        self.expect_at(paper, label, date_at - AHEAD if label.startswith("Pg") else COLUMN, 2.5 * ROW, page)

    def expect_rows(self, paper, rows, top=FIRST_ROW, labels=COLUMN, values=COLUMN + 4000):
        """A heading and the rows below it, each in its place on the first page."""
        for number, (label, value) in enumerate(rows):
            self.expect_at(paper, label, labels, top + number * ROW)
            if value:
                self.expect_at(paper, value, values + BLANK, top + number * ROW)

    def expect_power(self, paper, rows):
        """The figures of a cut below their heading; what they are of stands above."""
        [(_, top, _)] = [place for place in paper.places(rows[0][0]) if abs(place[0] - 1200) < NEAR]
        self.expect_rows(paper, rows, top, 1200, 3950)

    def expect_drawn(self, paper, page, left, right):
        """The teeth of the sample from left to right: their tips and the floors of their gullets, in true size."""
        drawn = paper.drawn(0, FIRST_ROW, paper.size[0], paper.size[1] - SEAM, page)
        for found, wanted in zip(drawn, (left, MIDDLE - DEPTH // 2, right, MIDDLE + DEPTH // 2)):
            self.assertAlmostEqual(found, wanted, delta=LINE)

    # ---- the journeys

    def test_a_band_comes_on_two_sheets(self):
        program = self.open(self.design())
        self.file(HEAD, "p")
        self.tick(PAGES, "Save as default printer")
        self.accept(PAGES, "Beta")
        paper = self.job("Beta", 2)
        self.assertEqual(paper.size, LETTER)  # whatever lies in the printer
        self.expect_heading(paper, "Page 1 of 2")
        self.expect_rows(paper, TEETH)
        self.assertIn("Machine Information:", paper.text())
        self.assertNotIn("Power Requirements:", paper.text())  # not unless one wants them
        self.expect_heading(paper, "Page 2 of 2", 2)
        self.expect_drawn(paper, 2, BAND, RIGHT)

        # By the tool bar, and on the same printer.
        self.press(HEAD, "Print")
        self.tick(PAGES, "Saw Drawing", "radio button")
        self.accept(PAGES)
        paper = self.job("Beta", 1)
        self.expect_heading(paper, "Page 1 of 1")
        self.expect_drawn(paper, 1, BAND, RIGHT)
        self.leave(program)
        self.assertEqual(self.settings()["DefaultPrinter"].strip(), "1")
        self.assertEqual(self.settings()["DefaultPrinterName"].strip(), "Beta")

    def test_a_sheet_is_turned_by_the_setup(self):
        program = self.open(self.design())
        self.prints("i")
        self.press(PRINTER, "Setup...")
        self.press(SETUP, "Properties")
        self.tick(PROPERTIES, "Landscape", "radio button")
        self.press(PROPERTIES, "OK")
        self.click(SETUP, "Options >>")
        copies = self.reader.wait_for("spin button", "Copies:", self.window(SETUP))
        copies.queryValue().currentValue = 3
        self.press(SETUP, "OK")
        self.accept(PRINTER)
        paper = self.job("Alpha", 1, copies=3)
        self.assertEqual(paper.size, LETTER[::-1])
        self.expect_heading(paper, "Page 1 of 1", date_at=9900)
        self.expect_rows(paper, TEETH)

        # The next one stands upright again, and comes once.
        self.prints("t")
        self.accept(PRINTER, "Beta")
        paper = self.job("Beta", 1)
        self.assertEqual(paper.size, LETTER)
        self.assertNotIn("Band Saw Teeth:", paper.text())
        self.expect_drawn(paper, 1, BAND, RIGHT)
        self.leave(program)

    def test_a_segment_comes_on_sheets_that_are_laid_together(self):
        program = self.open(self.design())
        self.prints("v")
        self.accept(PRINTER)
        self.assertIn("To print out one complete segment of\nvariable pitch teeth requires 2 pages.\n\n"
                      "Do you wish to continue?", self.words_of(SEGMENT))
        self.press(SEGMENT, "No")
        self.front(HEAD)

        # From the panel, which stays.
        self.click_until(HEAD, "Variable Pitch", lambda: self.reader.showing("push button", "Print the segment"))
        self.press(HEAD, "Print the segment")
        self.accept(PRINTER)
        self.press(SEGMENT, "Yes")
        paper = self.job("Alpha", 2)
        self.assertTrue(self.reader.showing("push button", "Print the segment"))
        self.expect_heading(paper, "Pg 1 of 2")
        self.expect_heading(paper, "Pg 2 of 2", 2)
        # Ten inches and a tooth more: to the border of the first sheet, and from the seam at that of the second.
        self.expect_drawn(paper, 1, BAND, RIGHT)
        end = LEFT + BAND + round((10 + 1.7) * INCH) - RIGHT
        teeth = paper.drawn(LEFT + LINE, FIRST_ROW, *LETTER, 2)
        self.assertAlmostEqual(teeth[2], end, delta=LINE)
        seam = paper.drawn(0, FIRST_ROW, LEFT + LINE, LETTER[1], 2)
        self.assertAlmostEqual(seam[0], LEFT, delta=LINE)
        self.assertAlmostEqual(seam[3], LETTER[1] - SEAM, delta=5 * LINE)  # it ends in a dot or between two
        self.leave(program)

    def test_power_is_printed(self):
        program = self.open(self.design())
        self.press(HEAD, "Power Requirements")
        self.press(POWER, "Print Results")
        self.press("Select Percent", "OK")
        self.fill(POWER, "Percent to increase the feed rate by", "10")
        self.press(POWER, "Print Results")
        self.accept(PRINTER)
        by_ten = "Estimates for bandsaw based on increasing feedrate by 10 percent"
        sheet = self.job("Alpha", 1)
        self.expect_heading(sheet, "Page 1 of 1")
        self.assertEqual([round(left) for left, _, _ in sheet.places(by_ten)], [1200])
        self.expect_power(sheet, (("Current Estimate", ""), ("Wheel Diameter:", "6.000 ft"),
                                  ("Wheel RPM's:", "530 rpms"), ("Tooth Speed:", "9990 fpm"),
                                  ("Tooth Pitch:", "2.000 in"),
                                  ("Plate Thickness:", "0.065 in"), ("Tip Kerf:", "0.135 in"),
                                  ("Side Clearance:", "0.035 in"), ("Depth of Cut:", "18.000 in"),
                                  ("Feed Rate:", "85 fpm")))
        self.press(POWER, "View Results")
        self.press(ESTIMATES, "Print")
        self.accept(PRINTER)
        self.assertEqual(self.job("Alpha", 1).text(), sheet.text())
        self.press(ESTIMATES, "OK")
        self.press(POWER, "Cancel")

        self.front(HEAD)
        self.screen.keys("alt+t", "Down", "Return")
        self.press(CALCULATOR, "Print")
        self.accept(PRINTER)
        sheet = self.job("Alpha", 1)
        self.expect_heading(sheet, "Page 1 of 1", title="Power Calculations")
        self.expect_power(sheet, (("Power Calculation # 1", ""), ("Wheel Diameter:", "6.000 ft"),
                                  ("Center to Center:", "10.575 ft"), ("Bandsaw Length:", "40.000 ft"),
                                  ("Tooth Pitch:", "2.000 in"), ("Number of Teeth:", "240")))
        self.press(CALCULATOR, "Exit")
        self.leave(program)

    def test_all_sheets_go_to_a_file(self):
        program = self.open(self.design())
        self.file(HEAD, *["Down"] * 5, "Right", "Down", "Down", "Return")
        self.choose("Save As", "sheets")
        path = self.home / "sheets.pdf"
        until(path.exists, "the file")
        self.front(HEAD)
        paper = Paper(path)
        self.assertEqual((paper.pages, paper.size), (4, LETTER))
        for page, label in enumerate(("Page 1 of 2", "Page 2 of 2", "Pg 1 of 2", "Pg 2 of 2"), 1):
            self.expect_heading(paper, label, page)
        self.expect_rows(paper, TEETH)
        self.expect_drawn(paper, 3, BAND, RIGHT)
        self.assertEqual(self.new_jobs(), [])
        self.leave(program)

    def test_nothing_is_printed_after_a_thought_more(self):
        program = self.open(self.design("round-back"))
        for keys, title in (("p", PAGES), ("ri", PRINTER), ("rt", PRINTER), ("rv", PRINTER)):
            self.file(HEAD, *keys)
            self.answer(title, "Escape")
            self.file(HEAD, *keys)
            self.press(title, "Cancel")
        self.prints("v")
        self.press(PRINTER, "Setup...")
        self.press(SETUP, "Cancel")
        self.accept(PRINTER)
        self.assertIn("This is not a variable pitch bandsaw.\nThis print job has been canceled.",
                      self.words_of(CANCELED))
        self.answer(CANCELED, "Return")
        self.leave(program)
        self.assertEqual(self.new_jobs(), [])

    def test_there_is_no_printer(self):
        self.screen.environment["CUPS_SERVER"] = str(self.home / "nowhere.sock")
        program = self.open(self.design())
        for keys in ("p", "ri", "rt", "rv"):
            self.file(HEAD, *keys)
            self.assertIn("No windows printers available!", self.words_of("No Printers!"))
            self.answer("No Printers!", "Return")
        self.leave(program)
        self.assertEqual(self.new_jobs(), [])


if __name__ == "__main__":
    unittest.main(warnings="ignore")  # the bindings of the bus use what is old to them
