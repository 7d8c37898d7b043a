"""Somebody at work with designs: a home of his own on a screen, and what he does there by mouse and keys.

TARNWICK and TARNWICK_CLI name the programs.
"""

import itertools
import json
import os
import struct
import subprocess
import tempfile
import unittest
from pathlib import Path

from screen import PATIENCE, Screen, until

PROGRAM = os.environ["TARNWICK"]
TOOL = os.environ["TARNWICK_CLI"]
SAMPLES = Path(__file__).resolve().parents[2] / "samples"

HOOK_ROW = 6  # of a round back, counted from the heading "Band Saw Teeth:"
ROW_HEIGHT = 250 / 15
PANEL = 950  # a column of the panel beside the drawing
WHITE = (255, 255, 255)

FILE_SIZE = 3375
HOOK_AT = 192  # in a band saw file


def content_of(path):
    """The bytes of a file; none when there is no such file, or not any more."""
    try:
        return path.read_bytes()
    except FileNotFoundError:
        return b""


def hook(path):
    """The hook angle in a whole band saw file, read by its place; None when there is no such file, or not all of it."""
    content = content_of(path)
    whole = len(content) == FILE_SIZE and content.startswith(b"Band Saw File: Version = 1.01 ")
    return struct.unpack_from("<d", content, HOOK_AT)[0] if whole else None


def tool(*arguments, **more):
    """The command line tool, as it is without anybody's settings; what it prints."""
    return subprocess.run([TOOL, "--defaults", *map(str, arguments)], check=True, stdout=subprocess.PIPE, **more).stdout


def read(path):
    """The design in a file, as the tool reads it."""
    return json.loads(tool("json", path))["saw"]


class Desk(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="tarnwick-journey-")
        cls.addClassCleanup(folder.cleanup)
        cls.screen = Screen(Path(folder.name))
        cls.addClassCleanup(cls.screen.close)

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="tarnwick-home-")
        self.addCleanup(folder.cleanup)
        self.home = Path(folder.name)
        self.store = self.home / ".config" / "Tarnwick" / "Settings"
        self.trash = self.home / ".local" / "share" / "Trash"
        self.copies = self.home / ".local" / "state" / "Tarnwick"
        self.screen.environment.update({
            "HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / ".config"),
            "XDG_STATE_HOME": str(self.home / ".local" / "state"), "XDG_DATA_HOME": str(self.home / ".local" / "share"),
            "XDG_CACHE_HOME": str(self.home / ".cache")})

    # ---- files

    def design(self, name, angle=10):
        """A band of this hook angle in a file of that name."""
        saw = json.loads((SAMPLES / "round-back.json").read_text())
        saw["HookAngle"] = angle
        path = self.home / name
        path.parent.mkdir(parents=True, exist_ok=True)
        tool("bsw", "-", "--calculate", "-o", path, input=json.dumps(saw).encode())
        self.assertEqual(hook(path), angle)
        return path

    def settings(self):
        return dict(line.split("=", 1) for line in self.store.read_text("utf-8").splitlines() if "=" in line)

    def recent(self):
        """The files on the list as it is kept."""
        kept = self.settings()
        count = int(kept["RecentNumFiles"])
        return [Path(kept[f"RecentDriveDir{i}"] + kept[f"RecentFile{i}"]) for i in range(1, count + 1)]

    def mark(self):
        """Spoils a setting that the program always sets right: what it keeps from now on shows."""
        if self.store.exists():
            self.store.write_text(self.store.read_text("utf-8").replace("Loops=True", "Loops=False"), "utf-8")

    def written(self):
        """Whether the settings have been kept since the mark."""
        return self.store.exists() and self.settings()["Loops"] == "True"

    def thrown_away(self):
        files = self.trash / "files"
        return {path.name: path.read_bytes() for path in files.iterdir()} if files.exists() else {}

    def kept(self):
        """The hook angles of the designs that are kept for the day after a crash."""
        return sorted(struct.unpack_from("<d", content, content.index(b"Band Saw File:") + HOOK_AT)[0]
                      for content in map(content_of, self.copies.glob("*.copy")) if content)

    # ---- the program

    def start(self, *arguments, command=(PROGRAM,), **more):
        program = self.screen.start([*command, *map(str, arguments)], **more)
        self.addCleanup(self.end, program)
        return program

    def end(self, program):
        if program.poll() is None:
            program.kill()
            program.wait(PATIENCE)

    def open(self, design, **more):
        """Starts the program on a design."""
        return self.reads(design, lambda: self.start(design, **more))

    def reads(self, design, act):
        """Does what opens this file, and waits until it is there."""
        self.mark()
        result = act()
        self.hurry(self.written, f"{design.name} opened")
        self.front(f"{design.name} - Tarnwick")
        self.assertEqual(self.recent()[0], design)
        return result

    def kill(self, program):
        """As a power cut does it."""
        program.kill()
        program.wait(PATIENCE)

    def left(self, program):
        self.assertEqual(program.wait(PATIENCE), 0)

    # ---- windows

    def front(self, title):
        """The window in front, once it is the one of this title."""
        def found():
            number = self.screen.active()
            return number if number and self.screen.title(number) == title else None

        return until(found, f"{title!r} in front")

    def hurry(self, condition, what):
        """Waits; a key that means nothing ends the animation meanwhile."""
        def pressed():
            self.screen.keys("shift")
            return condition()

        return condition() or until(pressed, what)

    def told(self, title):
        """Presses the button of a message, which comes at the end of an animation."""
        self.hurry(lambda: self.screen.title(self.screen.active()) == title, f"the message {title!r}")
        self.answer(title, "Return")

    def answer(self, title, *keys):
        """Presses keys in a box or dialog, which they close; again when a busy desktop has lost them."""
        window = self.front(title)
        self.screen.keys(*keys)
        until(lambda: self.screen.active() != window, f"{title!r} answered", lambda: self.screen.keys(*keys))

    def choose(self, title, path):
        """Types a path in a file dialog and accepts it."""
        window = self.front(title)
        tries = itertools.count(1)

        def enter_again():
            # The list of names that fit, which comes up late on a busy desktop, takes an Enter for itself, or puts
            # another name for the one typed.
            if next(tries) % 5 == 0:
                self.screen.keys("alt+n", "ctrl+a")
                self.screen.type(str(path))
            self.screen.keys("Return")

        self.screen.type(str(path))
        self.screen.keys("Return")
        until(lambda: self.screen.active() != window, f"{title!r} left", enter_again)

    # ---- what one does

    def file(self, caption, *keys):
        """Picks from the File menu."""
        self.front(caption)
        self.screen.keys("alt+f", *keys)

    def steps(self, answers):
        """The questions of a design that is made step by step, each with what is typed; None declines one."""
        for title, answer in answers:
            with self.subTest(title):
                self.front(title)
                if answer:
                    self.screen.type(answer)
                self.answer(title, "Return" if answer else "Escape")

    def type_hook(self, caption, angle):
        """A click on the row of the hook angle, and what is typed in its dialog."""
        self.front(caption)
        picture = self.screen.picture()
        top = next(y for y in range(60, picture.height) if picture.at(PANEL, y) == WHITE)
        self.screen.mouse("mousemove", PANEL, round(top + ROW_HEIGHT * (HOOK_ROW + 0.5)), "click", 1)
        self.front("Hook Angle")
        self.screen.type(str(angle))

    def change(self, caption, angle):
        """Gives the band another hook angle."""
        self.type_hook(caption, angle)
        self.answer("Hook Angle", "Return")
        self.front(caption)
        until(lambda: angle in self.kept(), "the change kept for the day after a crash")
