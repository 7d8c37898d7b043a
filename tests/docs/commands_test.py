#!/usr/bin/env python3
"""Keys, menus and command lines as README.md and the manual tell them. TARNWICK_CLI names the tool."""

import os
import re
import subprocess
import unittest
from pathlib import Path

TOP = Path(__file__).resolve().parents[2]
TOOL = os.environ["TARNWICK_CLI"]
README = (TOP / "README.md").read_text(encoding="utf-8")
WINDOW = (TOP / "help" / "window.html").read_text(encoding="utf-8")
MENUS = (TOP / "src" / "window" / "frmMainMenu.cpp").read_text(encoding="utf-8")

TEXT = r'(?:tr\()?"([^"]*)"\)?'


def told(*arguments):
    return subprocess.run([TOOL, *arguments, "--help"], check=True, stdout=subprocess.PIPE, text=True).stdout


class Window(unittest.TestCase):
    # The caption of every command that has a key.
    keys = {key: caption for caption, key in re.findall(rf'"mnuItem\w+",\s*{TEXT},\s*"(Ctrl\+\w)"', MENUS)}
    captions = {text.replace("&", "") for text in re.findall(rf'"mnu\w+",\s*{TEXT}', MENUS)}

    def test_has_the_keys_that_the_pages_tell(self):
        self.assertEqual(len(self.keys), 6)
        for page, text in (("README.md", README), ("window.html", re.sub(r"<[^>]*>", " ", WINDOW))):
            self.assertLessEqual(set(self.keys), set(re.findall(r"Ctrl\+\w\b", text)), page)
            for key, caption in self.keys.items():
                with self.subTest(page=page, key=key):
                    line = next(line for line in text.splitlines() if key in line)
                    self.assertIn(caption, line)

    def test_has_the_menus_that_the_readme_tells(self):
        paths = re.findall(r"^\| [a-z].* \| ([A-Z]\w+, .*) \|$", README, re.MULTILINE)
        self.assertGreater(len(paths), 8)
        for path in paths:
            for caption in re.split(r"[,;] ", path):
                with self.subTest(path=path, caption=caption):
                    self.assertIn(caption, self.captions)


class Tool(unittest.TestCase):
    lines = re.findall(r"^    tarnwick-cli +([a-z]+) +([A-Z]+\.\.\..*)$", README, re.MULTILINE)

    def test_has_the_commands_of_the_readme_and_no_others(self):
        commands = re.findall(r"^  ([a-z]+) ", told().split("Subcommands:")[1], re.MULTILINE)
        self.assertEqual([command for command, _ in self.lines], commands)

    def test_has_the_options_that_the_readme_tells_and_no_others(self):
        common = {*re.findall(r"(?<!\S)(--?[a-z-]+)", told()), "-h"}
        for command, line in self.lines:
            with self.subTest(command=command):
                options = set(re.findall(r"^  (--?[a-z-]+)", told(command), re.MULTILINE)) - common
                self.assertEqual(set(re.findall(r"(?<=[\[(| ])--?[a-z-]+", line)), options)


if __name__ == "__main__":
    unittest.main()
