#!/usr/bin/env python3
"""The tables of docs/file-formats.md against files as the program writes them. TARNWICK_CLI names the tool."""

import json
import os
import re
import struct
import subprocess
import unittest
from pathlib import Path

TOP = Path(__file__).resolve().parents[2]
TOOL = os.environ["TARNWICK_CLI"]
PAGE = (TOP / "docs" / "file-formats.md").read_text(encoding="utf-8")

NUMBERS = {"u8": "<B", "i16": "<h", "flag": "<h", "i32": "<i", "f64": "<d", "f64 x 10": "<10d"}


def run(*arguments, text=None):
    return subprocess.run([TOOL, "--defaults", *map(str, arguments)], input=text, check=True, stdout=subprocess.PIPE).stdout


def section(heading):
    return re.search(rf"^## {re.escape(heading)}.*?(?=^## |\Z)", PAGE, re.MULTILINE | re.DOTALL).group()


def rows(text, pattern):
    return re.findall(rf"^\| {pattern} \|", text, re.MULTILINE)


def width(kind):
    return int(kind[5:-1]) if kind.startswith("text") else struct.calcsize(NUMBERS[kind])


def value(kind, number):
    """A value that no other field has, as JSON, and its bytes."""
    if kind.startswith("text"):
        given = f"field {number}"
        return given, given.encode().ljust(width(kind))
    given = [number + k / 16 for k in range(10)] if kind == "f64 x 10" else number + 0.5 if kind == "f64" else number
    return given, struct.pack(NUMBERS[kind], *(given if isinstance(given, list) else [given]))


class BandSawFile(unittest.TestCase):
    fields = [(int(offset), kind, name) for offset, kind, name in
              rows(section("Band saw file"), r"(\d+) \| ([\w\[\]]+(?: x 10)?) \| `([\w.]+)` \| [^|]+")]

    def test_has_the_fields_of_the_table_and_no_others(self):
        self.assertEqual(self.fields[0][0], 50)
        for (offset, kind, name), after in zip(self.fields, [*self.fields[1:], (3375, "", "")]):
            self.assertEqual(offset + width(kind), after[0], name)
        printed = json.loads(run("json", "--no-calculation", "-", text=b"{}"))["saw"]
        names = [f"{group}.{name}" for group, inner in printed.items() if isinstance(inner, dict) for name in inner]
        names += [name for name, inner in printed.items() if not isinstance(inner, dict)]
        self.assertEqual(sorted(names), sorted(name for _, _, name in self.fields))

    def test_holds_each_field_where_the_table_has_it(self):
        design = {}
        for number, (_, kind, name) in enumerate(self.fields, 1):
            *group, member = name.split(".")
            (design.setdefault(group[0], {}) if group else design)[member] = value(kind, number)[0]
        content = run("bsw", "-", "-o", "-", text=json.dumps(design).encode())
        self.assertEqual(len(content), 3375)
        self.assertEqual(content[:50], b"Band Saw File: Version = 1.01".ljust(50))
        for number, (offset, kind, name) in enumerate(self.fields, 1):
            with self.subTest(field=name):
                self.assertEqual(content[offset:offset + width(kind)], value(kind, number)[1])

    def test_begins_as_the_example_shows(self):
        content = run("bsw", "--calculate", TOP / "samples" / "square-back.json", "-o", "-")
        lines = re.findall(r"^    ([0-9a-f]{8}): ((?:[0-9a-f]{4} ?)+)", section("Band saw file"), re.MULTILINE)
        self.assertGreater(len(lines), 5)
        for offset, digits in lines:
            start = int(offset, 16)
            self.assertEqual(content[start:start + 16], bytes.fromhex(digits), offset)


class Json(unittest.TestCase):
    def test_example_is_a_design(self):
        example = re.search(r"^    (\{\"ToothStyle.*\n.*\})$", section("JSON"), re.MULTILINE).group(1)
        self.assertEqual(json.loads(run("json", "-", text=example.encode()))["saw"]["GeneralInfo"]["WoodType"],
                         "Pine (Ponderosa)")

    def test_line_has_the_members_of_the_table(self):
        told = rows(section("JSON"), r"`(\w+)` \| [^|]+")
        line = json.loads(run("json", "--entities", TOP / "samples" / "frost.json"))
        self.assertEqual(set(told), {*line, "calculation"})

    def test_line_that_was_printed_is_a_design(self):
        line = run("json", "--entities", TOP / "samples" / "frost.json")
        self.assertEqual(json.loads(run("json", "-", text=line))["saw"], json.loads(line)["saw"])


class Settings(unittest.TestCase):
    def test_has_every_key_in_its_order(self):
        told = [key for keys in rows(section("Settings"), r"(`[^|]+) \| [^|]* \| [^|]+")
                for key in re.findall(r"`(\w+)`", keys) if not re.search(r"\d$", key)]
        told.remove("RecentNumFiles")  # the recent files are read apart
        table = (TOP / "src" / "store" / "modCfgTable.h").read_text(encoding="utf-8")
        self.assertEqual(told, re.findall(r'visit\("(\w+)"', table))


class Drawing(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.order = {}
        for kind, pairs in rows(section("DXF drawing"), r"`([A-Z]+)` \| ([^|]+)"):
            cls.order[kind] = re.sub(r"10, 20 to 13, 23", "10, 20, 11, 21, 12, 22, 13, 23", pairs)

    def pairs(self, *arguments):
        lines = run(*arguments, "-o", "-").decode().split("\r\n")
        self.assertEqual(lines.pop(), "")
        return [(int(code), text) for code, text in zip(lines[::2], lines[1::2])]

    def check(self, pairs):
        """Every entity has the codes of the table, in its order; the kinds that came."""
        kinds, entities = set(), []
        for code, text in pairs[65:-2]:
            if code == 0:
                entities.append((text, []))
            entities[-1][1].append(code)
        for kind, codes in entities:
            told = [int(n) for n in re.findall(r"\b\d+\b", self.order[kind].replace("20 characters", ""))]
            if kind == "LINE" and 6 not in codes:
                told.remove(6)
            self.assertEqual(codes, told, kind)
            kinds.add(kind)
        return kinds

    def test_of_a_band_is_made_as_told(self):
        pairs = self.pairs("dxf", TOP / "samples" / "overlap-join.json")
        self.assertEqual(pairs[64], (2, "ENTITIES"))
        self.assertIn((6, "DOT"), pairs[65:])
        self.assertEqual(pairs[-2:], [(0, "ENDSEC"), (0, "EOF")])
        self.assertLessEqual({"LINE", "ARC"}, self.check(pairs))
        self.assertEqual([text for code, text in pairs[:31] if code == 9],
                         re.findall(r"`(\$\w+)`", section("DXF drawing").split("There is no")[0]))

    def test_of_a_machine_is_made_as_told(self):
        self.assertLessEqual({"CIRCLE", "SOLID", "TEXT"}, self.check(self.pairs("machine", TOP / "samples" / "frost.json")))


if __name__ == "__main__":
    unittest.main()
