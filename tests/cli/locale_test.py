#!/usr/bin/env python3
"""What the tool writes is the same in every country: here in one with a decimal comma. TARNWICK_CLI names the tool."""

import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

TOOL = os.environ["TARNWICK_CLI"]
SAMPLES = sorted((Path(__file__).resolve().parents[2] / "samples").glob("*.json"))
ENDINGS = ["dxf", "svg", "bsw"] + (["pdf"] if (Path(TOOL).parent / "tarnwick-pdf").exists() else [])
TEXTS = ["1,5*2,25", "1.234,5", "12 3/4 in", "5 ft 6,5 in", "2,5E3", "1 1/2"]


def german(folder):
    """The environment of a German, whose locale need not be installed."""
    subprocess.run(["localedef", "-i", "de_DE", "-f", "UTF-8", Path(folder, "de_DE.UTF-8")], check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    return {"LC_ALL": "de_DE.UTF-8", "LANG": "de_DE.UTF-8", "LANGUAGE": "de", "LOCPATH": folder}


def without_time(data):
    """A print-out tells when it was made."""
    return re.sub(rb"D:\d{14}(Z|[-+]\d\d'\d\d')", b"", data)


class Locale(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.german = german(str(cls.folder))

    def run_in(self, country, *command):
        kept = {key: value for key, value in os.environ.items() if not key.startswith(("LC_", "LANG"))}
        return subprocess.run(list(map(str, command)), env={**kept, **country}, capture_output=True, check=False)

    def same(self, *arguments):
        plain = self.run_in({"LC_ALL": "C"}, TOOL, "--defaults", *arguments)
        there = self.run_in(self.german, TOOL, "--defaults", *arguments)
        self.assertEqual((there.returncode, there.stdout, there.stderr),
                         (plain.returncode, plain.stdout, plain.stderr), arguments)
        return plain

    def test_the_country_has_a_decimal_comma(self):
        self.assertEqual(self.run_in(self.german, "/usr/bin/printf", "%.1f", "0,5").stdout, b"0,5")

    def test_figures(self):
        for command in ["json", "power", "machine"]:
            with self.subTest(command):
                self.assertTrue(self.same(command, *SAMPLES).stdout)
        self.assertTrue(self.same("power", "--estimate", "12.5", SAMPLES[0]).stdout)

    def test_typed_texts(self):
        for text in TEXTS:
            with self.subTest(text):
                self.assertTrue(self.same("eval", text).stdout)

    def written(self, country, ending):
        folder = Path(tempfile.mkdtemp(dir=self.folder))
        run = self.run_in(country, TOOL, "--defaults", ending, "--out-dir", folder, *SAMPLES)
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        return {path.name: without_time(path.read_bytes()) for path in folder.iterdir()}

    def test_files(self):
        for ending in ENDINGS:
            with self.subTest(ending):
                for _ in range(3):  # a sheet shows the minute, which may just have gone by
                    plain, there = self.written({"LC_ALL": "C"}, ending), self.written(self.german, ending)
                    different = [name for name in plain if plain[name] != there.get(name)]
                    if not different:
                        break
                self.assertEqual(len(plain), len(SAMPLES))
                self.assertEqual(different, [])


if __name__ == "__main__":
    unittest.main()
