"""A virtual screen of its own for one journey, with a window manager, and hands and eyes on it."""

import os
import re
import subprocess
import time

PATIENCE = 30  # seconds that a machine under load may take for anything


def until(condition, what, meanwhile=None):
    """Waits for `condition()` to be true, and returns what it gave. `meanwhile` is done once a second."""
    start = time.monotonic()
    done = 0
    while (waited := time.monotonic() - start) < PATIENCE:
        found = condition()
        if found:
            return found
        if meanwhile and waited > done + 1:
            done = waited
            meanwhile()
        time.sleep(0.05)
    raise AssertionError(f"waited in vain: {what}")


def as_ordinary_user(command):
    """The command with the permissions of files in force: they mean nothing to root, unless it lays its powers down."""
    powers = "-dac_override,-dac_read_search"
    return ["setpriv", f"--bounding-set={powers}", f"--inh-caps={powers}", *command] if os.geteuid() == 0 else command


class Picture:
    """The pixels of a screenshot."""

    def __init__(self, ppm):
        kind, size, depth, self.bytes = ppm.split(b"\n", 3)
        assert kind == b"P6" and depth == b"255", ppm[:20]
        self.width, self.height = map(int, size.split())

    def at(self, x, y):
        start = 3 * (y * self.width + x)
        return tuple(self.bytes[start:start + 3])

    def columns(self, colour, tolerance=0):
        """The columns in which a pixel has this colour, or one that no channel of differs by more."""
        channels = (f"[\\x{max(0, c - tolerance):02x}-\\x{min(255, c + tolerance):02x}]" for c in colour)
        pattern = re.compile(f"(?={''.join(channels)})".encode(), re.DOTALL)
        places = (match.start() for match in pattern.finditer(self.bytes))
        return sorted({place // 3 % self.width for place in places if place % 3 == 0})

    def dark(self):
        """The box of all that is darker than grey: its columns and rows, the last ones not in it; None without any."""
        row = 3 * self.width
        rows = [self.bytes[start:start + row:3] for start in range(0, row * self.height, row)]
        reach = [[match.start() for match in re.finditer(rb"[\x00-\x7f]", found, re.DOTALL)] for found in rows]
        marked = [y for y, columns in enumerate(reach) if columns]
        if not marked:
            return None
        return (min(columns[0] for columns in reach if columns), marked[0],
                max(columns[-1] for columns in reach if columns) + 1, marked[-1] + 1)

    def __eq__(self, other):
        return self.bytes == other.bytes


class Screen:
    def __init__(self, folder, width=1280, height=800, scale=1, manager=True):
        self.processes = []
        self.environment = {**os.environ, "XDG_RUNTIME_DIR": str(folder), "QT_SCALE_FACTOR": str(scale),
                            "QT_QPA_PLATFORM": "xcb", "HOME": str(folder), "LC_ALL": "C.UTF-8",
                            "XDG_STATE_HOME": f"{folder}/.local/state", "XDG_DATA_HOME": f"{folder}/.local/share"}
        try:
            self.environment["DISPLAY"] = self.start_display(f"{width * scale}x{height * scale}x24")
            if manager:
                ready = folder / "manager-is-there"
                self.start(["openbox", "--startup", f"touch '{ready}'"], stdout=subprocess.DEVNULL)
                until(ready.exists, "the window manager")
        except BaseException:
            self.close()
            raise

    def start_display(self, size):
        """Starts the display under a free number; its name. Without -noreset it would start anew, and lose a program
        that is just coming, whenever its last guest leaves."""
        readable, writable = os.pipe()
        self.start(["Xvfb", "-displayfd", str(writable), "-screen", "0", size, "-nolisten", "tcp", "-noreset"],
                   pass_fds=[writable])
        os.close(writable)
        with os.fdopen(readable) as answer:
            return ":" + answer.readline().strip()

    def start(self, command, **more):
        # What these programs say of themselves is of no interest, unless it is ours.
        process = subprocess.Popen(command, env=self.environment, stderr=subprocess.DEVNULL, **more)
        self.processes.append(process)
        return process

    def close(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait(PATIENCE)

    def output(self, *command, check=True):
        done = subprocess.run(command, env=self.environment, check=check, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL)
        return done.stdout

    def window(self, title):
        """The window of exactly this title, once it shows."""
        pattern = "^" + "".join("\\" + c if c in ".*[]()+?" else c for c in title) + "$"

        def search():
            return self.output("xdotool", "search", "--onlyvisible", "--name", pattern, check=False).split()

        return until(search, f"window {title!r}")[0].decode()

    def active(self):
        """The window that has the keys; nothing while there is none."""
        return self.output("xdotool", "getactivewindow", check=False).decode().strip()

    def title(self, window):
        return self.output("xdotool", "getwindowname", window, check=False).decode().strip()

    def keys(self, *names):
        self.output("xdotool", "key", *names)

    def type(self, text):
        self.output("xdotool", "type", "--delay", "5", text)

    def mouse(self, *commands):
        self.output("xdotool", *map(str, commands))

    def picture(self):
        return Picture(self.output("import", "-window", "root", "-depth", "8", "ppm:-"))

    def settled(self):
        """A picture that does not change any more; the clock may tick."""
        before = self.picture()

        def still():
            nonlocal before
            time.sleep(0.15)
            now = self.picture()
            same, before = now == before, now
            return same

        until(still, "a picture at rest")
        return before
