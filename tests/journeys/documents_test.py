#!/usr/bin/env python3
"""Designs at work on a screen: opened, changed, saved, left, exported, and what becomes of their files.

TARNWICK and TARNWICK_CLI name the programs.
"""

import resource
import unittest

from desk import PROGRAM, Desk, hook, read, tool
from screen import as_ordinary_user, until

UNTITLED = "untitled.bsw - Tarnwick"
HEAD = "head.bsw - Tarnwick"


class Documents(Desk):
    def test_a_change_is_saved_under_a_new_name(self):
        name = "Säge & Söhne [*].bsw"
        design, second = self.design(name), self.home / f"2. {name}"
        before = design.read_bytes()
        program = self.open(design)
        self.change(f"{name} - Tarnwick", 12)

        self.file(f"{name} - Tarnwick", "a")
        self.front("Save As")
        self.screen.keys("Home")  # behind it stands the name as it is
        self.choose("Save As", "2. ")
        self.hurry(lambda: hook(second) == 12, "the second design saved")
        self.front(f"2. {name} - Tarnwick")
        self.assertEqual(design.read_bytes(), before)
        until(lambda: self.recent() == [second, design], "both among the recent files")
        until(lambda: self.kept() == [], "nothing to be kept any more")

        # The older of the two, from the end of the menu: Exit, then the list from its end.
        self.reads(design, lambda: self.screen.keys("alt+f", "Up", "Up", "Return"))
        self.assertEqual(self.recent(), [design, second])
        self.file(f"{name} - Tarnwick", "x")
        self.left(program)
        self.assertEqual(design.read_bytes(), before)
        self.assertEqual(read(second)["HookAngle"], 12)
        self.assertEqual({path.suffix for path in self.home.iterdir() if path.is_file()}, {".bsw"})

    def test_a_new_design_begins_after_a_question(self):
        design = self.design("head.bsw")
        before = design.read_bytes()
        program = self.open(design)
        self.change(HEAD, 11)
        self.file(HEAD, "n")
        self.answer("Save File.", "Escape")
        self.front(HEAD)
        self.assertEqual(self.kept(), [11])

        self.file(HEAD, "n")
        self.answer("Save File.", "alt+n")
        self.front(UNTITLED)
        until(lambda: self.kept() == [], "the change given up")
        self.assertEqual(design.read_bytes(), before)

        self.reads(design, lambda: self.screen.keys("alt+f", "Up", "Up", "Return"))
        self.change(HEAD, 12)
        self.file(HEAD, "n")
        self.answer("Save File.", "Return")
        self.answer("Save As", "Return")  # over itself, and without another word
        self.hurry(lambda: hook(design) == 12, "the change saved")
        self.front(UNTITLED)
        self.file(UNTITLED, "x")
        self.left(program)
        self.assertEqual(read(design)["HookAngle"], 12)

    def test_a_window_closes_after_a_question(self):
        design = self.design("head.bsw")
        before = design.read_bytes()
        program = self.open(design)
        self.change(HEAD, 11)
        self.file(HEAD, "x")
        self.answer("Save File.", "Escape")
        self.front(HEAD)
        self.screen.keys("alt+F4")  # the desktop's own way
        self.answer("Save File.", "alt+y")
        self.answer("Save As", "Escape")
        self.front(HEAD)
        self.assertIsNone(program.poll())
        self.mark()
        self.screen.keys("alt+F4")
        self.answer("Save File.", "alt+n")
        self.left(program)
        self.assertEqual(design.read_bytes(), before)
        self.assertTrue(self.written())

        program = self.open(design)
        self.change(HEAD, 12)
        self.file(HEAD, "x")
        self.answer("Save File.", "Return")
        self.choose("Save As", "neck")
        self.left(program)
        self.assertEqual(design.read_bytes(), before)
        self.assertEqual(read(self.home / "neck.bsw")["HookAngle"], 12)
        self.assertEqual([path.name for path in self.recent()], ["neck.bsw", "head.bsw"])
        self.assertEqual(list(self.copies.iterdir()), [])

    def test_a_window_that_saves_closes_when_it_is_done(self):
        design = self.design("head.bsw")
        program = self.open(design)
        self.change(HEAD, 11)
        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.screen.keys("alt+F4")
        self.left(program)
        self.assertEqual(read(design)["HookAngle"], 11)
        self.assertEqual(list(self.copies.iterdir()), [])

    def test_a_file_is_replaced_only_after_a_question(self):
        design, other = self.design("head.bsw"), self.design("neck.bsw", 20)
        before = design.read_bytes()
        program = self.open(design)
        self.change(HEAD, 11)
        self.file(HEAD, "s")
        self.answer("Save", "Return")  # No
        self.assertEqual(design.read_bytes(), before)
        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.hurry(lambda: hook(design) == 11, "the change saved")

        self.file(HEAD, "a")
        window = self.front("Save As")
        self.screen.type("neck.bsw")
        self.screen.keys("Return")
        until(lambda: self.screen.active() not in ("", window), "the desktop's own question")
        self.screen.keys("alt+n")
        until(lambda: self.screen.active() == window, "the dialog again")
        self.screen.keys("Escape")
        self.front(HEAD)
        self.assertEqual(hook(other), 20)

        # With the ending it is another file than the one that the dialog knew.
        self.file(HEAD, "a")
        self.choose("Save As", "neck")
        self.answer("Save", "alt+n")
        self.front(HEAD)
        self.assertEqual(hook(other), 20)
        self.file(HEAD, "x")
        self.left(program)

    def test_what_is_no_design_goes_into_the_trash(self):
        design = self.design("head.bsw")
        letter = self.home / "letter.bsw"
        letter.write_text("Dear filer,")
        program = self.open(design)
        self.file(HEAD, "o")
        self.choose("Open", letter)
        self.told("Tarnwick")
        self.front(UNTITLED)
        self.assertFalse(letter.exists())
        self.assertEqual(self.thrown_away(), {"letter.bsw": b"Dear filer,"})
        origin = (self.trash / "info" / "letter.bsw.trashinfo").read_text()
        self.assertIn(f"Path={letter}\n", origin)  # so that the desktop can bring it back
        self.assertEqual(self.recent(), [design])
        self.file(UNTITLED, "x")
        self.left(program)

    def test_files_change_behind_the_back_of_the_program(self):
        design, other = self.design("head.bsw"), self.design("neck.bsw", 20)
        program = self.open(other)
        self.file("neck.bsw - Tarnwick", "o")
        self.reads(design, lambda: self.choose("Open", design))

        # One of the recent files is something else now: it stays.
        other.write_text("Dear filer,")
        self.file(HEAD, "Up", "Up", "Return")
        self.told("Tarnwick")
        self.front(UNTITLED)
        self.assertEqual(other.read_text(), "Dear filer,")
        # Or gone.
        other.unlink()
        self.file(UNTITLED, "Up", "Up", "Return")
        self.hurry(lambda: self.screen.title(self.screen.active()) == UNTITLED, "a blank design")
        self.assertEqual([path.name for path in self.recent()], ["head.bsw", "neck.bsw"])

        # The design that is open is gone: it is written anew.
        self.reads(design, lambda: self.file(UNTITLED, "Up", "Up", "Up", "Return"))
        design.unlink()
        self.change(HEAD, 11)
        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.hurry(lambda: hook(design) == 11, "the design written anew")
        # Or half of it: what is left is shown.
        half = design.read_bytes()[:700]
        design.write_bytes(half)
        self.file(HEAD, "o")
        self.answer("Open", "Return")
        self.answer("File open!", "alt+n")
        self.told("Tarnwick")
        self.front(HEAD)
        self.file(HEAD, "x")
        self.left(program)
        self.assertEqual(design.read_bytes(), half)
        self.assertEqual(self.thrown_away(), {})

    def test_a_design_is_made_step_by_step(self):
        program = self.start()
        self.file(UNTITLED, "w")
        self.steps((("BandSaw Tooth Style", "Round Back"), ("Wheel Diameter", None), ("Band Saw Length", "30"),
                    ("Band Saw Width", "7"), ("Tooth Pitch", "1 1/2"), ("Hook Angle", "5 * 5"),
                    ("Clearance Angle", None), ("Tip Clearance", None), ("BandSaw Tip Type", None),
                    ("Plate Thickness", "0.049"), ("Gullet Radius", "5/16"), ("Gullet Depth", "0.6"),
                    ("Gullet Back Angle", "20"), ("Gullet Back Radius", "1/4")))
        self.front(UNTITLED)
        until(lambda: self.kept() == [25], "the new design kept for the day after a crash")
        # One thought more, and it is gone.
        self.file(UNTITLED, "w")
        self.answer("Save File.", "Return")
        self.choose("Save As", self.home / "made")
        made = self.home / "made.bsw"
        self.hurry(lambda: hook(made) == 25, "the design saved")
        self.answer("BandSaw Tooth Style", "Escape")
        self.file(UNTITLED, "x")
        self.left(program)
        saw = read(made)
        self.assertEqual([saw[name] for name in ("ToothStyle", "Length", "Width", "HookAngle", "ClearAngle")],
                         [2, 30, 7, 25, 8])
        self.assertEqual([saw["GulletInfo"][name] for name in ("Radius", "Depth", "BackAngle", "BackRadius")],
                         [0.3125, 0.6, 20, 0.25])
        self.assertEqual((saw["NumTeeth"], saw["Pitch"]), (240, 1.5))
        self.assertEqual((saw["ContainsInfo"]["Teeth"], saw["ContainsInfo"]["General"]), (-1, -1))

    def test_the_teeth_are_turned_for_every_design(self):
        program = self.open(self.design("head.bsw"))
        self.front(HEAD)
        self.screen.keys("alt+v", "Up", "Right", "Down", "Return")
        self.file(HEAD, *["Down"] * 5, "Right", "Return")
        self.answer("Save As", "Return")
        self.front(HEAD)
        drawing = self.home / "head.dxf"
        until(drawing.exists, "the drawing")
        self.file(HEAD, "x")  # no change of the design
        self.left(program)
        self.assertEqual(self.settings()["TeethDirection"].strip(), "2")
        again = self.home / "again.dxf"
        tool("--teeth-direction", 2, "dxf", self.home / "head.bsw", "-o", again)
        self.assertEqual(again.read_bytes(), drawing.read_bytes())

    def test_the_drawing_and_the_figures_are_exported(self):
        program = self.open(self.design("head.rig.bsw"))
        caption = "head.rig.bsw - Tarnwick"
        self.change(caption, 11)
        self.file(caption, *["Down"] * 5, "Right", "Return")
        self.answer("Save As", "Return")
        self.front(caption)
        drawing = self.home / "head.dxf"
        until(drawing.exists, "the drawing")
        self.file(caption, *["Down"] * 5, "Right", "Down", "Return")
        self.choose("Save As", "figures")
        self.front(caption)
        listing = self.home / "figures.txt"
        until(lambda: listing.exists() and "Horsepower" in listing.read_text(), "the figures")
        rows = listing.read_text().split("\n")
        self.assertEqual(rows[:2], ["head.rig.bsw,", ""])
        self.assertIn("Hook Angle:,         11.000 deg,", rows)
        self.assertIn("Number Of Teeth:,    240,", rows)
        # Neither is a save.
        self.file(caption, "x")
        self.answer("Save File.", "alt+y")
        self.answer("Save As", "Return")
        self.left(program)
        again = self.home / "again.dxf"
        tool("dxf", self.home / "head.rig.bsw", "-o", again)
        self.assertEqual(again.read_bytes(), drawing.read_bytes())

    def test_a_folder_that_is_read_only_takes_no_design(self):
        design = self.design("shelf/head.bsw")
        before = design.read_bytes()
        design.parent.chmod(0o555)
        self.addCleanup(design.parent.chmod, 0o755)
        program = self.open(design, command=as_ordinary_user([PROGRAM]))
        self.change(HEAD, 11)
        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.told("Saving")
        self.front(HEAD)
        self.assertEqual(design.read_bytes(), before)
        self.assertEqual(self.kept(), [11])
        self.file(HEAD, "a")
        self.choose("Save As", self.home / "head.bsw")
        self.hurry(lambda: hook(self.home / "head.bsw") == 11, "the design saved elsewhere")
        until(lambda: self.kept() == [], "nothing to be kept any more")
        self.file(HEAD, "x")
        self.left(program)
        self.assertEqual(design.read_bytes(), before)

    def test_a_disk_that_is_full_loses_no_work(self):
        design = self.design("head.bsw")
        program = self.open(design, restore_signals=False)  # a write that goes too far fails, and kills nobody
        self.change(HEAD, 11)
        most = resource.prlimit(program.pid, resource.RLIMIT_FSIZE)
        resource.prlimit(program.pid, resource.RLIMIT_FSIZE, (1000, most[1]))
        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.told("Saving")
        self.front(HEAD)
        self.assertIsNone(hook(design))
        self.assertFalse(design.exists())  # no half of it
        self.assertEqual(self.kept(), [11])
        self.file(HEAD, "x")
        self.answer("Save File.", "Escape")
        resource.prlimit(program.pid, resource.RLIMIT_FSIZE, most)
        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.hurry(lambda: hook(design) == 11, "the change saved")
        self.file(HEAD, "x")
        self.left(program)


if __name__ == "__main__":
    unittest.main()
