"""Sheets of paper as they come out of a printer or lie in a PDF file, measured in twips, 1440 to the inch."""

import re
import subprocess
import sys
from html import unescape
from pathlib import Path

from reader import ReadDesk
from screen import Picture, until

sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))
from private_printers import Printers  # noqa: E402

INCH = 1440
TWIPS = 20  # in a point
PIXEL = 10  # twips, of a sheet that is looked at
LETTER = (12240, 15840)


def output_of(*command):
    return subprocess.run(list(map(str, command)), check=True, stdout=subprocess.PIPE).stdout


class Paper:
    def __init__(self, path):
        self.path = path
        facts = output_of("pdfinfo", path).decode()
        self.pages = int(re.search("Pages: +([0-9]+)", facts)[1])
        size = re.search("Page size: +([0-9.]+) x ([0-9.]+)", facts)
        self.size = tuple(round(float(length) * TWIPS) for length in size.groups())

    def words(self, page=1):
        """Each word of a page with its left, top, right and bottom."""
        found = output_of("pdftotext", "-bbox", "-f", page, "-l", page, self.path, "-").decode()
        sides = "".join(f' {side}="(.+?)"' for side in ("xMin", "yMin", "xMax", "yMax"))
        return [(unescape(word), tuple(float(side) * TWIPS for side in box))
                for *box, word in re.findall(f"<word{sides}>(.*?)</word>", found)]

    def text(self, page=1):
        """The words of a page, a blank between two."""
        return " ".join(word for word, _ in self.words(page))

    def places(self, text, page=1):
        """The left top corners of what is written there in these words, and its right ends."""
        wanted, words = text.split(), self.words(page)
        runs = (words[i:i + len(wanted)] for i in range(len(words)))
        return [(run[0][1][0], run[0][1][1], run[-1][1][2]) for run in runs if [word for word, _ in run] == wanted]

    def drawn(self, left, top, right, bottom, page=1):
        """The left, top, right and bottom of all that is black in a part of a page."""
        window = ("-x", left // PIXEL, "-y", top // PIXEL, "-W", (right - left) // PIXEL, "-H", (bottom - top) // PIXEL)
        part = output_of("pdftoppm", "-aaVector", "no", "-r", INCH // PIXEL, "-f", page, "-l", page, *window, self.path)
        dark = Picture(part).dark()
        return dark and tuple(at + PIXEL * pixel for at, pixel in zip((left, top, left, top), dark))


class PrintDesk(ReadDesk):
    """A desk with the printers Alpha and Beta, which nobody else sees."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.printers = Printers()
        cls.addClassCleanup(cls.printers.close)

    def setUp(self):
        super().setUp()
        self.screen.environment["CUPS_SERVER"] = str(self.printers.address)
        self.printed = self.printers.printed()

    def new_jobs(self):
        return [path for path in self.printers.printed() if path not in self.printed]

    def next_job(self):
        """The file of the only job since the last one."""
        path = until(self.new_jobs, "something printed")[0]
        self.assertEqual(self.new_jobs(), [path])
        self.printed.append(path)
        return path
