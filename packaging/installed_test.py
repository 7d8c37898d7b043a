#!/usr/bin/env python3
"""The package, unpacked: what the desktop makes of it, and what its programs do from where they lie then.

    packaging/installed_test.py ROOT      a folder that takes the place of /, its databases of types and programs made
"""

import gzip
import json
import os
import re
import struct
import subprocess
import sys
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

ROOT = Path(sys.argv.pop(1)).resolve()
BIN, SHARE = ROOT / "usr" / "bin", ROOT / "usr" / "share"
DOCUMENTATION = SHARE / "doc" / "tarnwick"

os.environ["TARNWICK"], os.environ["TARNWICK_CLI"] = str(BIN / "tarnwick"), str(BIN / "tarnwick-cli")
sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tests" / "journeys"))
from desk import Desk, tool  # noqa: E402
from screen import until  # noqa: E402

ID = "org.tarnwick.tarnwick"
DESIGN_TYPE, POWER_TYPE = "application/x-tarnwick-bandsaw", "application/x-tarnwick-power"
SIZES = (16, 22, 24, 32, 48, 64, 128, 256)
HEADER = 50  # bytes of a band saw file ahead of the record


class Installed(Desk):
    def setUp(self):
        super().setUp()
        # After ours the system's own, as on a machine where all is in one place.
        self.screen.environment.update({"XDG_DATA_DIRS": f"{SHARE}:/usr/share", "PATH": f"{BIN}:{os.environ['PATH']}"})

    def power_file(self):
        record = self.design("one.bsw").read_bytes()[HEADER:]
        path = self.home / "two.bsp"
        path.write_bytes(b"Bandsaw Power File   Version: " + b"1.01".ljust(25) + 2 * record)
        return path

    def type_of(self, path):
        told = self.screen.output("gio", "info", "-a", "standard::content-type", path).decode()
        return re.search(r"standard::content-type: (\S+)", told)[1]

    def test_a_double_click_opens_a_design(self):
        design = self.design("head 1.bsw")
        self.reads(design, lambda: self.screen.start(["gio", "open", design], stdout=subprocess.DEVNULL))
        caption = f"{design.name} - Tarnwick"
        window = self.screen.window(caption)
        self.file(caption, "x")
        until(lambda: not self.screen.title(window), "the window closed")

    def test_the_path_of_a_design_opens_it(self):
        program = self.open(self.design("head.bsw"))
        self.file("head.bsw - Tarnwick", "x")
        self.left(program)

    def test_files_are_known_by_their_first_bytes_and_by_their_name(self):
        for path, expected in ((self.design("one.bsw"), DESIGN_TYPE), (self.power_file(), POWER_TYPE)):
            spoilt = path.with_name("spoilt" + path.suffix)
            spoilt.write_bytes(b"?")
            self.assertEqual(self.type_of(spoilt), expected)
            for name in (path.name, "without an ending", "another.ending"):
                self.assertEqual(self.type_of(path.rename(path.with_name(name))), expected)
                path = path.with_name(name)

    def test_only_designs_are_opened_by_a_double_click(self):
        # The program would throw a power file away that it is started with.
        self.assertIn(f"{ID}.desktop", self.screen.output("gio", "mime", DESIGN_TYPE).decode())
        self.assertNotIn(ID, self.screen.output("gio", "mime", POWER_TYPE).decode())

    def test_print_outs_are_made_by_the_program_beside_the_tool(self):
        sheets = self.home / "sheets.pdf"
        tool("pdf", self.design("head.bsw"), "-o", sheets)
        self.assertTrue(sheets.read_bytes().startswith(b"%PDF-"))

    def test_samples_come_as_band_saw_files_too(self):
        texts = sorted((DOCUMENTATION / "samples").glob("*.json"))
        files = sorted((DOCUMENTATION / "samples").glob("*.bsw"))
        self.assertEqual([text.stem for text in texts], [file.stem for file in files])
        self.assertGreaterEqual(len(files), 12)
        for line, again in zip(tool("json", *texts).splitlines(), tool("json", *files).splitlines(), strict=True):
            self.assertEqual(json.loads(line)["saw"]["NumTeeth"], json.loads(again)["saw"]["NumTeeth"])

    def test_the_manual_is_whole(self):
        manual = DOCUMENTATION / "manual"
        pages = sorted(manual.glob("*.html"))
        self.assertGreater(len(pages), 40)
        for page in pages:
            for link in re.findall(r'(?:href|src)="([^"#:]+)', page.read_text("utf-8")):
                self.assertTrue((manual / link).is_file(), f"{page.name}: {link}")

    def test_the_manual_page_tells_all_commands_and_options(self):
        page = gzip.open(SHARE / "man" / "man1" / "tarnwick-cli.1.gz", "rt").read().replace("\\-", "-")
        top = tool("--help").decode()
        commands = re.findall(r"^  (\w+) ", top[top.index("Subcommands:"):], re.MULTILINE)
        self.assertIn("dxf", commands)
        helps = [top, *(tool(command, "--help").decode() for command in commands)]
        options = {option for text in helps for option in re.findall(r"^  .*?(--[a-z-]+)", text, re.MULTILINE)}
        self.assertLessEqual({"--out-dir", "--version"}, options)
        self.assertEqual(set(re.findall(r"^\.B (\w+)$", page, re.MULTILINE)) - {"0", "1", "2"} - set(commands), set())
        for command in commands:
            self.assertIn(f".TP\n.B {command}\n", page)
        self.assertEqual(set(re.findall(r"--[a-z-]+", page)), options)

    def test_every_place_tells_the_same_version(self):
        version = tool("--version").decode().split()[1]
        changes = gzip.open(DOCUMENTATION / "changelog.Debian.gz", "rt").readline()
        self.assertTrue(changes.startswith(f"tarnwick ({version}-"), changes)
        self.assertEqual(xml.parse(SHARE / "metainfo" / f"{ID}.metainfo.xml").find("releases/release").get("version"),
                         version)
        for page in (SHARE / "man" / "man1").iterdir():
            self.assertIn(f'"Tarnwick {version}"', gzip.open(page, "rt").readline())

    def test_icons_are_of_the_size_of_their_folder(self):
        icons = SHARE / "icons" / "hicolor"
        names = [f"apps/{ID}", *(f"mimetypes/{kind.replace('/', '-')}" for kind in (DESIGN_TYPE, POWER_TYPE))]
        for name in names:
            self.assertEqual(xml.parse(icons / "scalable" / f"{name}.svg").getroot().get("viewBox"), "0 0 128 128")
            for size in SIZES:
                head = (icons / f"{size}x{size}" / f"{name}.png").read_bytes()[:24]
                self.assertEqual(struct.unpack(">8s8xII", head), (b"\x89PNG\r\n\x1a\n", size, size))


if __name__ == "__main__":
    unittest.main()
