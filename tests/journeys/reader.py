"""The program on the accessibility bus of its screen, where everything has a role and a name."""

import os
import subprocess

from desk import Desk
from screen import until

ANSWER = 700  # ms; an action that opens a question is answered when that closes, which is too late


class Reader:
    """The accessibility bus of a screen."""

    def __init__(self, screen, name):
        self.screen = screen
        readable, writable = os.pipe()
        screen.start(["dbus-daemon", "--session", "--nofork", f"--print-address={writable}"], pass_fds=[writable],
                     stdout=subprocess.DEVNULL)
        os.close(writable)
        with os.fdopen(readable) as answer:
            screen.environment["DBUS_SESSION_BUS_ADDRESS"] = answer.readline().strip()
        screen.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        os.environ.update(screen.environment)
        import pyatspi  # it looks for the bus at once
        from gi.repository import Atspi, GLib
        self.bus, self.failed, self.name = pyatspi, GLib.GError, name
        Atspi.set_timeout(ANSWER, ANSWER)

    def program(self):
        """The program, with nothing remembered of it."""
        for found in self.bus.Registry.getDesktop(0):
            if found is not None and found.name == self.name:
                found.clearCache()
                return found
        return None

    def walk(self, node):
        """A node and all below it, each with its role and name. What goes meanwhile is passed over."""
        try:
            yield node, node.getRoleName(), node.name
            below = [node.getChildAtIndex(i) for i in range(node.childCount)]
        except self.failed:
            return
        for child in below:
            if child is not None:
                yield from self.walk(child)

    def shows(self, node):
        try:
            return node.getState().contains(self.bus.STATE_SHOWING)
        except self.failed:
            return False

    def is_checked(self, node):
        node.clearCache()
        return node.getState().contains(self.bus.STATE_CHECKED)

    def name_of(self, node):
        node.clearCache()
        return node.name

    def text(self, node):
        """What stands in a box to type in."""
        return node.queryText().getText(0, -1)

    def find(self, role, name, within=None):
        """The only node of this role and name that shows, or the only one at all; None before it is there."""
        top = within or self.program()
        found = [n for n, *what in self.walk(top) if what == [role, name]] if top else []
        for some in ([n for n in found if self.shows(n)], found):
            assert len(some) < 2, f"{len(some)} times {role} {name!r}"
            if some:
                return some[0]
        return None

    def showing(self, role, name):
        found = self.find(role, name)
        return found if found and self.shows(found) else None

    def wait_for(self, role, name, within=None):
        return until(lambda: self.find(role, name, within), f"{role} {name!r}")

    def press(self, node):
        try:
            node.queryAction().doAction(0)
        except self.failed:
            pass  # it has opened a question

    def click(self, node):
        """A click of the mouse in the middle of what is seen of it."""
        left, top, width, height = node.queryComponent().getExtents(self.bus.DESKTOP_COORDS)
        self.screen.mouse("mousemove", left + width // 2, top + height // 2, "click", 1)

    def rows(self):
        """The values of the band saw by their captions."""
        shown = self.find("list", "Values of the band saw")
        rows = [name for _, role, name in self.walk(shown) if role == "list item"] if shown else []
        return dict(row.split(":", 1) for row in rows if ":" in row)


class ReadDesk(Desk):
    """A desk where things are found by role and name, and clicked where they are seen."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.reader = Reader(cls.screen, "tarnwick")

    def window(self, title):
        """The window of this title, which is in front."""
        self.front(title)
        return until(lambda: next((w for w in self.reader.program() or [] if w and w.name == title), None),
                     f"{title!r} on the bus")

    def click(self, title, name, role="push button"):
        """A click on the thing of this name in a window; the thing."""
        found = self.reader.wait_for(role, name, self.window(title))
        self.reader.click(found)
        return found

    def click_until(self, title, name, condition, role="push button"):
        """The same, and again when it has come in a pause, in which clicks are dropped."""
        node = self.click(title, name, role)
        until(condition, f"what {name!r} does", lambda: self.reader.shows(node) and self.reader.click(node))

    def press(self, title, name, role="push button"):
        """Clicks on what opens or closes a window."""
        before = self.front(title)
        self.click_until(title, name, lambda: self.screen.active() not in ("", before), role)

    def words_of(self, title):
        """What a box says."""
        return [name for _, role, name in self.reader.walk(self.window(title)) if role == "label"]

    def tick(self, title, name, role="check box"):
        """Sets a check box or an option button."""
        node = self.reader.wait_for(role, name, self.window(title))
        self.click_until(title, name, lambda: self.reader.is_checked(node), role)

    def asked(self, title, name, question, text, role="text"):
        """Clicks on what asks a question, and answers that."""
        self.press(title, name, role)
        self.front(question)
        self.screen.type(text)
        self.answer(question, "Return")
        self.front(title)

    def fill(self, title, name, text):
        """Types over what stands in a box."""
        node = self.click(title, name, "text")
        self.screen.keys("ctrl+a")
        self.screen.type(text)
        until(lambda: self.reader.text(node) == text, f"{text!r} in {name!r}")

    def pick(self, title, shown, item):
        """Picks from the list of a combo box, which has what it shows for a name."""
        box = self.click(title, shown, "combo box")
        self.screen.settled()
        self.screen.type(item)
        self.screen.keys("Return")
        until(lambda: self.reader.name_of(box) == item, f"{item!r} picked")
