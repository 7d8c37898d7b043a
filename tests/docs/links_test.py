#!/usr/bin/env python3
"""What the pages for developers and newcomers lead to is there: links, pictures, headings, folders, files, tools."""

import re
import unittest
from pathlib import Path

TOP = Path(__file__).resolve().parents[2]
PAGES = sorted([*TOP.glob("*.md"), *TOP.glob("docs/**/*.md")])

LINK = re.compile(r"\[[^\]]*\]\(([^)\s]+)\)")
FENCE = re.compile(r"^ {4}.*$", re.MULTILINE)
HEADING = re.compile(r"^#+ +(.*)$", re.MULTILINE)
CODE = re.compile(r"`([^`\n]+)`")
STANDS_FOR = re.compile(r"[A-Z]{4,}")  # capitals in a path: any name there may be


def text_of(page):
    """The page without its examples."""
    return FENCE.sub("", page.read_text(encoding="utf-8"))


def anchors(page):
    """The names by which its headings are reached: small letters, hyphens for blanks, no other signs."""
    kept = (re.sub(r"[^\w\- ]", "", heading.lower()) for heading in HEADING.findall(text_of(page)))
    return {name.strip().replace(" ", "-") for name in kept}


class Pages(unittest.TestCase):
    def test_are_there(self):
        names = {page.relative_to(TOP).as_posix() for page in PAGES}
        self.assertLessEqual({"README.md", "ARCHITECTURE.md", "CHANGELOG.md", "CONTRIBUTING.md", "docs/file-formats.md"},
                             names)

    def test_lead_somewhere(self):
        for page in PAGES:
            for target in LINK.findall(text_of(page)):
                if target.startswith(("http:", "https:", "mailto:")):
                    continue
                path, _, anchor = target.partition("#")
                with self.subTest(page=page.name, target=target):
                    there = page.parent / path if path else page
                    self.assertTrue(there.exists())
                    if anchor:
                        self.assertIn(anchor, anchors(there))

    def test_show_every_picture(self):
        shown = {(page.parent / target).resolve() for page in PAGES for target in LINK.findall(text_of(page))}
        for picture in (TOP / "docs" / "pictures").iterdir():
            with self.subTest(picture=picture.name):
                self.assertIn(picture, shown)


class Names(unittest.TestCase):
    """What stands in code marks and begins with a folder of ours is there."""

    def expect(self, page):
        roots = [TOP, TOP / "src", TOP / "tests", TOP / "scripts", TOP / "packaging"]
        folders = {path.name for root in roots for path in root.iterdir() if path.is_dir()} - {"build", "out"}
        for name in CODE.findall(text_of(TOP / page)):
            if "/" not in name or " " in name or name.split("/")[0] not in folders:
                continue
            if STANDS_FOR.search(name):
                continue
            with self.subTest(page=page, name=name):
                ends = ("", ".h", ".cpp")
                self.assertTrue(any(list(root.glob(name.rstrip("/") + end)) for root in roots for end in ends))

    def test_of_paths_are_in_the_tree(self):
        for page in ("README.md", "ARCHITECTURE.md", "CONTRIBUTING.md"):
            self.expect(page)

    def test_of_modules_are_in_the_tree(self):
        modules = {path.stem for path in (TOP / "src").rglob("*.*")}
        for page in ("ARCHITECTURE.md", "CONTRIBUTING.md"):
            for name in re.findall(r"`(?:\w+/)*((?:mod|frm|fra)[A-Z]\w+)(?:\.h|\.cpp)?`", text_of(TOP / page)):
                with self.subTest(page=page, module=name):
                    self.assertTrue(name in modules)

    def test_every_room_has_its_line(self):
        table = text_of(TOP / "ARCHITECTURE.md")
        for folder in (TOP / "src").iterdir():
            if folder.is_dir():
                with self.subTest(folder=folder.name):
                    self.assertIn(f"| `src/{folder.name}/` |", table)


if __name__ == "__main__":
    unittest.main()
