#!/usr/bin/env python3
"""The PDF command of the tool from outside, and its files as other programs read them. TARNWICK_CLI names the tool."""

import json
import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

TOOL = os.environ["TARNWICK_CLI"]
SAMPLES = Path(__file__).resolve().parents[2] / "samples"
TWIPS = 20  # to the point


def output(*command):
    return subprocess.run(list(map(str, command)), check=True, stdout=subprocess.PIPE).stdout


class Pdf:
    """A file as poppler's tools read it."""

    def __init__(self, path):
        self.path = path
        info = output("pdfinfo", path).decode()
        self.pages = int(re.search(r"Pages: +(\d+)", info)[1])
        self.size = re.search(r"Page size: +(\S+ x \S+)", info)[1]
        self.title = re.search(r"Title: +(.*)", info)[1]

    def text(self, page):
        return output("pdftotext", "-layout", "-f", page, "-l", page, self.path, "-").decode()

    def places(self, page):
        """Every word with its left end, in twips."""
        words = output("pdftotext", "-bbox", "-f", page, "-l", page, self.path, "-").decode()
        return [(word, TWIPS * float(left)) for left, word in re.findall(r'<word xMin="(.+?)" .*?>(.*?)</word>', words)]

    def black(self, page, left, top, width, height):
        """Columns and rows with something black in a part of the sheet, in twips: a dot each."""
        bitmap = output("pdftoppm", "-r", 1440, "-gray", "-f", page, "-l", page, "-x", left, "-y", top, "-W", width,
                        "-H", height, self.path)
        head, pixels = bitmap[:bitmap.index(b"255\n")], bitmap[bitmap.index(b"255\n") + 4:]
        assert head.startswith(b"P5"), head
        width, height = map(int, head.split()[1:3])
        return ([left + x for x in range(width) if min(pixels[x::width]) < 128],
                [top + y for y in range(height) if min(pixels[y * width:(y + 1) * width]) < 128])


def runs(numbers):
    """Neighbours taken together: the first and the last of each run."""
    found = []
    for number in numbers:
        if found and number == found[-1][1] + 1:
            found[-1][1] = number
        else:
            found.append([number, number])
    return found


class PdfTool(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="tarnwick-pdf-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        # No screen, and settings of its own.
        self.environment = {name: value for name, value in os.environ.items()
                            if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        self.environment["XDG_CONFIG_HOME"] = str(self.folder / "config")

    def run_tool(self, *arguments, tool=TOOL, **more):
        done = subprocess.run([str(tool), "pdf", *map(str, arguments)], cwd=self.folder, env=self.environment,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, **more)
        return done.returncode, done.stdout, done.stderr.decode()

    def pdf(self, *arguments, **more):
        """What comes of a design when all goes well, and nobody is told anything."""
        path = self.folder / "sheets.pdf"
        self.assertEqual(self.run_tool(*arguments, "-o", path, **more), (0, b"", ""))
        return Pdf(path)


class Sheets(PdfTool):
    def test_are_information_and_drawing_on_letter_paper(self):
        pdf = self.pdf(SAMPLES / "round-back.json")
        self.assertEqual((pdf.pages, pdf.size, pdf.title), (2, "612 x 792", "round-back.json"))
        for page in 1, 2:
            self.assertIn("round-back.json", pdf.text(page))
            self.assertIn(f"Page {page} of 2", pdf.text(page))
        self.assertRegex(pdf.text(1), r"Tooth Spacing: +1\.500 in\n")
        self.assertNotIn("Tooth Spacing", pdf.text(2))

    def test_have_their_columns_where_they_belong(self):
        places = self.pdf(SAMPLES / "round-back.json").places(1)
        for label in "Tooth", "Hook", "Wheel":
            self.assertIn((label, 1100), [(word, round(left)) for word, left in places])

    def test_are_those_asked_for(self):
        for pages, shown in ("info", "Tooth Style:"), ("drawing", ""):
            pdf = self.pdf(SAMPLES / "variable-pitch.json", "--pages", pages)
            self.assertEqual(pdf.pages, 1)
            self.assertIn("Page 1 of 1", pdf.text(1))
            self.assertEqual("Tooth Style:" in pdf.text(1), bool(shown))
        self.assertEqual(self.pdf(SAMPLES / "variable-pitch.json", "--pages", "both").pages, 2)

    def test_show_a_segment_over_as_many_as_it_takes(self):
        pdf = self.pdf(SAMPLES / "variable-pitch.json")
        self.assertGreater(pdf.pages, 3)
        count = pdf.pages - 2
        for number in range(1, count + 1):
            self.assertIn(f"Pg {number} of {count}", pdf.text(2 + number))
        seam_at = 720  # the left border of the frame
        self.assertEqual(pdf.black(3, seam_at - 50, 3000, 100, 4000), ([], []))
        columns, rows = pdf.black(4, seam_at - 50, 3000, 100, 4000)
        self.assertAlmostEqual(sum(columns) / len(columns), seam_at, delta=2)
        self.assertGreater(len(runs(rows)), 30)  # dots

    def test_tell_of_the_design_whatever_becomes_of_its_segment(self):
        frost = json.loads((SAMPLES / "frost.json").read_text())
        frost["GulletInfo"]["Radius"] = 0  # with which a segment has no teeth, nor a face
        frost["GeneralInfo"].update(VariablePitch=-1, NumVariables=3, VarPitch=[1.9, 2, 2.1, 0, 0, 0, 0, 0, 0, 0])
        for design in json.dumps(frost).encode(), (SAMPLES / "variable-depth.json").read_bytes():
            alone, among_all = (self.pdf("-", *pages, input=design).text(1)
                                for pages in (("--pages", "both"), ()))
            self.assertIn("Face Length:", alone)
            self.assertEqual(alone, among_all)

    def test_show_the_teeth_in_true_size(self):
        pdf = self.pdf(SAMPLES / "round-back.json", "--pages", "drawing")
        _, rows = pdf.black(1, 720, 9000, 4000, 2600)
        tips, _ = pdf.black(1, 720, rows[0] - 1, 10100, 8)
        centres = [(first + last) / 2 for first, last in runs(tips)]
        distances = [right - left for left, right in zip(centres, centres[1:])]
        self.assertGreater(len(distances), 3)
        for distance in distances:
            self.assertAlmostEqual(distance, 1.5 * 1440, delta=3)
        self.assertAlmostEqual(rows[-1] - rows[0], 0.6 * 1440, delta=5)  # the gullet's depth

    def test_take_designs_from_standard_input_and_go_to_standard_output(self):
        design = (SAMPLES / "frost.json").read_bytes()
        code, out, err = self.run_tool("-", "-o", "-", input=design)
        self.assertEqual((code, err), (0, ""))
        (self.folder / "out.pdf").write_bytes(out)
        self.assertEqual(Pdf(self.folder / "out.pdf").title, "untitled.bsw")

    def test_go_by_the_users_settings(self):
        store = self.folder / "config" / "Tarnwick" / "Settings"
        store.parent.mkdir(parents=True)
        store.write_text("PrintLineThick= 20\nPrintPowerReq=True\nDisplayPlaces= 2\nDecimalPlaces= 5\nName=Saw & Sons\n")
        heights = []
        for arguments, spacing in ((), "1.75"), (("--defaults",), "1.748"):
            pdf = self.pdf(*arguments, SAMPLES / "square-back.json")
            self.assertRegex(pdf.text(1), rf"Tooth Spacing: +{spacing} in\n")
            self.assertEqual("Power Requirements:" in pdf.text(1), not arguments)
            _, rows = pdf.black(2, 720, 9000, 4000, 2600)
            heights.append(rows[-1] - rows[0])
        self.assertAlmostEqual(heights[0] - heights[1], 19 * 1440 / 600, delta=3)

    def test_go_by_what_the_command_line_says(self):
        self.assertRegex(self.pdf("--display-places", "2", SAMPLES / "round-back.json").text(1),
                         r"Tooth Spacing: +1\.50 in\n")


class Outcome(PdfTool):
    def test_is_a_file_for_each_design_in_a_folder(self):
        code, _, err = self.run_tool(SAMPLES / "round-back.json", SAMPLES / "frost.json", "--out-dir", ".")
        self.assertEqual((code, err), (0, ""))
        self.assertEqual({path.name for path in self.folder.glob("*.pdf")}, {"round-back.pdf", "frost.pdf"})

    def test_is_a_failure_of_the_design_that_fails_alone(self):
        (self.folder / "broken.bsw").write_text("no saw")
        code, _, err = self.run_tool("broken.bsw", SAMPLES / "frost.json", "missing.json", "--out-dir", ".")
        self.assertEqual(code, 1)
        self.assertIn("tarnwick-cli: broken.bsw: not a valid band saw file\n", err)
        self.assertIn("tarnwick-cli: missing.json: ", err)
        self.assertEqual([path.name for path in self.folder.glob("*.pdf")], ["frost.pdf"])

    def test_is_a_failure_of_the_second_of_one_name(self):
        (self.folder / "frost.json").write_bytes((SAMPLES / "frost.json").read_bytes())
        code, _, err = self.run_tool(SAMPLES / "frost.json", "frost.json", "--out-dir", ".")
        self.assertEqual(code, 1)
        self.assertIn("belongs to an earlier design", err)

    def test_is_told_when_the_file_cannot_be_written(self):
        code, _, err = self.run_tool(SAMPLES / "frost.json", "-o", "no/sheets.pdf")
        self.assertEqual(code, 1)
        self.assertIn("no/sheets.pdf cannot be written: No such file or directory\n", err)

    def test_spares_the_designs(self):
        design = self.folder / "frost.json"
        design.write_bytes((SAMPLES / "frost.json").read_bytes())
        code, _, err = self.run_tool("frost.json", "-o", "frost.json")
        self.assertEqual(code, 1)
        self.assertIn("is not overwritten", err)
        self.assertEqual(json.loads(design.read_text())["ToothStyle"], 9)

    def test_is_wrong_usage_for_what_means_nothing(self):
        sample = SAMPLES / "frost.json"
        for arguments in ((sample,), ("-o", "a.pdf"), (sample, "-o", "a.pdf", "--pages", "all"), (sample, sample, "-o", "a"),
                          (sample, "-o", "a.pdf", "--decimal-places", "99"), (sample, "-o", "a.pdf", "--paper", "A4"),
                          (sample, "-o", "a.pdf", "--out-dir", ".")):
            code, out, err = self.run_tool(*arguments)
            self.assertEqual((code, out), (2, b""), arguments)
            self.assertTrue(err.startswith("tarnwick-cli: "), err)
        self.assertEqual(list(self.folder.iterdir()), [])

    def test_is_help_that_names_the_pages(self):
        code, out, err = self.run_tool("--help")
        self.assertEqual((code, err), (0, ""))
        self.assertIn(b"--pages both|drawing|info", out)

    def test_is_told_when_the_other_program_is_not_there(self):
        alone = self.folder / "tarnwick-cli"
        shutil.copy(TOOL, alone)
        code, _, err = self.run_tool(SAMPLES / "frost.json", "-o", "a.pdf", tool=alone)
        self.assertEqual(code, 1)
        self.assertEqual(err, f"tarnwick-cli: tarnwick-pdf: {self.folder.resolve()}/tarnwick-pdf cannot be run: "
                              "No such file or directory. It comes with the window program.\n")


if __name__ == "__main__":
    unittest.main()
