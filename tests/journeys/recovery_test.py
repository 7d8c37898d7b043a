#!/usr/bin/env python3
"""The program dies in the midst of work, and what its user finds at the next start.

TARNWICK and TARNWICK_CLI name the programs.
"""

import resource
import signal
import unittest

from desk import Desk, hook, read
from screen import until

UNTITLED = "untitled.bsw - Tarnwick"
HEAD = "head.bsw - Tarnwick"


class Recovery(Desk):
    def test_a_design_outlives_the_program(self):
        design = self.design("head.bsw")
        before = design.read_bytes()
        program = self.open(design)
        self.change(HEAD, 11)
        self.type_hook(HEAD, 12)  # in the midst of the next change
        self.kill(program)
        self.assertEqual(design.read_bytes(), before)

        program = self.start()
        self.answer("Recovery", "alt+n")
        self.front(UNTITLED)
        self.assertEqual(self.kept(), [11])
        self.kill(program)

        program = self.start()
        self.answer("Recovery", "Return")
        self.front(HEAD)
        self.file(HEAD, "x")
        self.answer("Save File.", "Escape")  # it is a change of its file
        self.assertEqual(self.kept(), [11])
        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.hurry(lambda: hook(design) == 11, "the recovered design saved")
        until(lambda: self.kept() == [], "nothing to be kept any more")
        self.file(HEAD, "x")
        self.left(program)
        self.assertEqual(read(design)["HookAngle"], 11)

        self.start()
        self.front(UNTITLED)  # without a question
        self.assertEqual(self.kept(), [])

    def test_a_recovered_design_dies_again(self):
        design = self.design("head.bsw")
        program = self.open(design)
        self.change(HEAD, 11)
        self.kill(program)
        program = self.start()
        self.answer("Recovery", "Return")
        self.front(HEAD)
        self.kill(program)  # at once: it has been safe all the time
        program = self.start()
        self.answer("Recovery", "Return")
        self.change(HEAD, 12)
        self.kill(program)
        self.assertEqual(self.kept(), [12])

    def test_a_save_that_is_cut_short_leaves_a_whole_file(self):
        design = self.design("head.bsw")
        before = design.read_bytes()
        program = self.open(design)
        self.change(HEAD, 11)
        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.kill(program)
        self.assertEqual(design.read_bytes(), before)
        self.assertEqual(self.kept(), [11])
        program = self.start(design)
        self.answer("Recovery", "Return")
        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.hurry(lambda: hook(design) == 11, "the recovered design saved")
        self.file(HEAD, "x")
        self.left(program)

    def test_a_program_that_dies_as_it_writes_loses_no_work(self):
        design = self.design("head.bsw")
        program = self.open(design)
        self.change(HEAD, 11)
        resource.prlimit(program.pid, resource.RLIMIT_FSIZE, (1000, 1000))  # the system ends who goes beyond
        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.hurry(lambda: program.poll() is not None, "the end in the midst of the file")
        self.assertEqual(program.returncode, -signal.SIGXFSZ)
        self.assertIsNone(hook(design))
        program = self.start(design)
        self.answer("Recovery", "Return")
        self.file(HEAD, "s")
        self.answer("Save", "alt+y")
        self.hurry(lambda: hook(design) == 11, "the recovered design saved")
        self.file(HEAD, "x")
        self.left(program)
        self.assertEqual(read(design)["HookAngle"], 11)

    def test_a_declined_design_goes_with_the_next_save(self):
        design, other = self.design("head.bsw"), self.design("neck.bsw", 20)
        program = self.open(design)
        self.change(HEAD, 11)
        self.kill(program)
        program = self.start(other)
        self.reads(other, lambda: self.answer("Recovery", "alt+n"))
        self.assertEqual(self.kept(), [11])
        self.change("neck.bsw - Tarnwick", 21)
        self.assertEqual(self.kept(), [11, 21])
        self.file("neck.bsw - Tarnwick", "s")
        self.answer("Save", "alt+y")
        self.hurry(lambda: hook(other) == 21, "the other design saved")
        until(lambda: self.kept() == [], "nothing to be kept any more")
        self.file("neck.bsw - Tarnwick", "x")
        self.left(program)
        self.assertEqual(hook(design), 10)

    def test_a_design_at_work_is_not_offered_to_another_program(self):
        design, other = self.design("head.bsw"), self.design("neck.bsw", 20)
        first = self.open(design)
        self.change(HEAD, 11)
        second = self.open(other)  # without a question
        self.change("neck.bsw - Tarnwick", 21)
        self.assertEqual(self.kept(), [11, 21])
        self.file("neck.bsw - Tarnwick", "x")
        self.answer("Save File.", "alt+n")
        self.left(second)
        self.assertEqual(self.kept(), [11])
        self.file(HEAD, "x")
        self.answer("Save File.", "alt+n")
        self.left(first)
        self.assertEqual(list(self.copies.iterdir()), [])
        self.assertEqual([hook(design), hook(other)], [10, 20])


if __name__ == "__main__":
    unittest.main()
