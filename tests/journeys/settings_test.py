#!/usr/bin/env python3
"""The settings of a user from one day to the next: files and folders, good and broken. TARNWICK names the program."""

import os
import re
import tempfile
import unittest
from pathlib import Path

from screen import PATIENCE, Screen, as_ordinary_user, until

PROGRAM = os.environ["TARNWICK"]
TITLE = "untitled.bsw - Tarnwick"
GROUND = (0, 0, 0)
SOMEWHERE = (200, 300)  # a place of the drawing where nothing is drawn


class Journey(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="tarnwick-journey-")
        self.addCleanup(folder.cleanup)
        self.home = Path(folder.name)
        self.store = self.home / ".config" / "Tarnwick" / "Settings"
        self.screen = Screen(self.home)
        self.addCleanup(self.screen.close)
        self.screen.environment["XDG_CONFIG_HOME"] = str(self.home / ".config")

    def start(self, command=(PROGRAM,)):
        program = self.screen.start(command)
        window = self.screen.window(TITLE)
        self.screen.mouse("windowactivate", "--sync", window)
        return program

    def exit(self, program):
        self.screen.keys("alt+f", "x")
        self.assertEqual(program.wait(PATIENCE), 0)

    def stored(self):
        return dict(line.split("=", 1) for line in self.store.read_text("utf-8", "replace").splitlines() if "=" in line)

    def keep(self, content):
        self.store.parent.mkdir(parents=True, exist_ok=True)
        self.store.write_bytes(content)

    def titles(self):
        """Of all windows that show."""
        found = self.screen.output("xdotool", "search", "--onlyvisible", "--name", ".", check=False).split()
        return {self.screen.title(window) for window in found}

    def middle(self, window):
        """Of a window with its frame."""
        inside = self.screen.output("xwininfo", "-id", window).decode()
        left, top, width, height = (int(re.search(f"{name}: +(-?[0-9]+)", inside)[1]) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        frame = self.screen.output("xprop", "-id", window, "_NET_FRAME_EXTENTS").decode()
        before, behind, above, below = map(int, re.findall("[0-9]+", frame))
        self.assertGreater(above, 0)  # a title bar
        return left + (width + behind - before) / 2, top + (height + below - above) / 2


class Settings(Journey):
    def test_are_made_by_the_first_start_and_edited_by_hand_for_the_second(self):
        program = self.start()
        designs = self.home / "Tarnwick"
        self.assertEqual({path.name for path in designs.iterdir() if path.is_dir()}, {"Bandsaws", "Dxfs"})
        self.assertEqual(self.screen.settled().at(*SOMEWHERE), GROUND)
        self.assertEqual([title for title in self.titles() if "Tarnwick" in title], [TITLE])  # no message
        self.assertFalse(self.store.exists())
        self.exit(program)
        stored = self.stored()
        self.assertEqual(stored["DecimalPlaces"].strip(), "5")
        self.assertEqual(stored["CurrentSawDir"], f"{designs}/Bandsaws/")

        edited = self.store.read_text("utf-8").replace("BackGroundColor= 0", "BackGroundColor=13166320")
        self.keep(f"# mine\n{edited}".encode())
        program = self.start()
        self.assertEqual(self.screen.settled().at(*SOMEWHERE), (240, 230, 200))
        self.exit(program)
        self.assertTrue(self.store.read_text("utf-8").startswith("# mine\n"))
        self.assertEqual(self.stored()["BackGroundColor"].strip(), "13166320")

    def test_have_their_folders_where_the_desktop_keeps_documents(self):
        documents = self.home / "Papiere"
        documents.mkdir()
        self.store.parent.parent.mkdir()
        (self.store.parent.parent / "user-dirs.dirs").write_text('XDG_DOCUMENTS_DIR="$HOME/Papiere"\n')
        self.exit(self.start())
        self.assertEqual({path.name for path in (documents / "Tarnwick").iterdir()}, {"Bandsaws", "Dxfs"})
        self.assertEqual(self.stored()["CurrentDxfDir"], f"{documents}/Tarnwick/Dxfs/")

    def test_are_changed_in_the_options_in_the_middle_of_the_screen(self):
        program = self.start()
        self.screen.keys("alt+t", "o")
        options = self.screen.window("Options")
        self.screen.settled()
        across, down = self.middle(options)
        self.assertAlmostEqual(across, 1280 / 2, delta=1)
        self.assertAlmostEqual(down, 800 / 2, delta=1)
        self.screen.keys("Escape")
        until(lambda: "Options" not in self.titles(), "the options gone")
        self.choose_metric()
        self.assertEqual(self.stored()["MainImpMetric"].strip(), "1")
        self.exit(program)

    def test_start_the_program_whatever_they_hold(self):
        kinds = {
            "empty": b"",
            "broken": b"DecimalPlaces=many\nDisplayScale=1e999\nBackGroundColor=-7\nRecentNumFiles=99\n===\n",
            "out of their types": b"DecimalPlaces=99999999\n",
            "truncated": b"SawLineColor= 16776960\nCenterLineColo",
            "binary": bytes(range(256)) * 64,
            "huge": b"Address=" + b"x" * (2 << 20),
        }
        for kind, content in kinds.items():
            with self.subTest(kind):
                self.keep(content)
                program = self.start()
                self.assertEqual(self.screen.settled().at(*SOMEWHERE), GROUND)
                if kind == "huge":
                    self.refuses_to_save(program)
                    self.assertEqual(self.store.read_bytes(), content)
                else:
                    self.exit(program)
                    self.assertEqual(self.stored()["DecimalPlaces"].strip(), "5")

    def test_start_the_program_where_nothing_can_be_written(self):
        self.keep(b"BackGroundColor= 13166320\n")
        self.store.parent.chmod(0o555)
        self.addCleanup(self.store.parent.chmod, 0o755)
        program = self.start(as_ordinary_user([PROGRAM]))
        self.assertEqual(self.screen.settled().at(*SOMEWHERE), (240, 230, 200))
        self.refuses_to_save(program)
        self.assertEqual(self.store.read_bytes(), b"BackGroundColor= 13166320\n")

    def test_outlive_a_store_that_vanishes(self):
        self.keep(b"PrintLineThick= 7\n")
        program = self.start()
        self.store.unlink()
        self.store.parent.rmdir()
        self.exit(program)
        self.assertEqual(self.stored()["PrintLineThick"].strip(), "7")

    def test_are_those_of_the_program_that_closes_last(self):
        programs = [self.screen.start([PROGRAM]) for _ in range(2)]
        windows = until(lambda: len(found := self.windows()) == 2 and found, "two programs side by side")
        self.screen.settled()
        self.screen.mouse("windowactivate", "--sync", windows[0])
        self.choose_metric()
        for window, units in zip(windows, "10"):
            self.screen.mouse("windowactivate", "--sync", window)
            self.screen.keys("alt+f", "x")
            until(lambda: window not in self.windows(), "the window closed")
            until(lambda: self.stored()["MainImpMetric"].strip() == units, "its settings")
        self.assertEqual([program.wait(PATIENCE) for program in programs], [0, 0])
        self.assertEqual([path.name for path in self.store.parent.glob("Settings*")], ["Settings"])

    def choose_metric(self):
        self.screen.keys("alt+t", "o")
        options = self.screen.window("Options")
        self.screen.mouse("windowactivate", "--sync", options)
        self.screen.keys("Tab", "Right", "alt+o")
        until(lambda: "Options" not in self.titles(), "the options gone")
        until(lambda: self.store.exists() and self.stored()["MainImpMetric"].strip() == "1", "the settings saved")

    def windows(self):
        found = self.screen.output("xdotool", "search", "--onlyvisible", "--name", f"^{TITLE}$", check=False).split()
        return [window.decode() for window in found]

    def refuses_to_save(self, program):
        """Closes the program, and the two boxes of settings that cannot be written."""
        self.screen.keys("alt+f", "x")
        self.screen.window("Tarnwick")
        self.screen.keys("Return")
        self.screen.window("Error")
        self.screen.keys("Return")
        self.assertEqual(program.wait(PATIENCE), 0)


if __name__ == "__main__":
    unittest.main()
