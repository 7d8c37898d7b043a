"""Points, lines and arcs of an outline, and how they turn into curves that every SVG reader knows.

A point is a pair. An arc keeps its sense in its sweep: positive runs counter-clockwise.
"""

import dataclasses
import math


def add(p, q, times=1.0):
    return (p[0] + q[0] * times, p[1] + q[1] * times)


def between(p, q, t):
    return (p[0] + (q[0] - p[0]) * t, p[1] + (q[1] - p[1]) * t)


def dot(p, q):
    return p[0] * q[0] + p[1] * q[1]


def heading(degrees):
    return (math.cos(math.radians(degrees)), math.sin(math.radians(degrees)))


def polar(p, radius, degrees):
    return add(p, heading(degrees), radius)


def direction(p, q):
    return math.degrees(math.atan2(q[1] - p[1], q[0] - p[0]))


@dataclasses.dataclass(frozen=True)
class Line:
    start: tuple
    end: tuple

    def turned(self):
        return Line(self.end, self.start)

    def at(self, t):
        return between(self.start, self.end, t)

    def part(self, t0, t1):
        return Line(self.at(t0), self.at(t1))

    def crossings(self, x):
        """Where along the line, 0 to 1, it passes the given x."""
        run = self.end[0] - self.start[0]
        return [(x - self.start[0]) / run] if run else []

    def curves(self):
        return [(self.end,)]


@dataclasses.dataclass(frozen=True)
class Arc:
    centre: tuple
    radius: float
    first: float
    sweep: float

    @property
    def start(self):
        return self.at(0)

    @property
    def end(self):
        return self.at(1)

    def turned(self):
        return Arc(self.centre, self.radius, self.first + self.sweep, -self.sweep)

    def at(self, t):
        return polar(self.centre, self.radius, self.first + self.sweep * t)

    def part(self, t0, t1):
        return Arc(self.centre, self.radius, self.first + self.sweep * t0, self.sweep * (t1 - t0))

    def crossings(self, x):
        ratio = (x - self.centre[0]) / self.radius
        if abs(ratio) > 1:
            return []
        half = math.degrees(math.acos(ratio))
        turns = (((angle - self.first) * math.copysign(1, self.sweep)) % 360 for angle in (half, -half))
        return [turn / abs(self.sweep) for turn in turns]

    def curves(self):
        """Cubic curves of at most 45 degrees each: closer to the circle than any screen can show."""
        count = max(1, math.ceil(abs(self.sweep) / 45))
        step = self.sweep / count
        reach = self.radius * 4 / 3 * math.tan(math.radians(step) / 4)
        found = []
        for index in range(count):
            a, b = self.first + step * index, self.first + step * (index + 1)
            p, q = polar(self.centre, self.radius, a), polar(self.centre, self.radius, b)
            found.append((add(p, heading(a + 90), reach), add(q, heading(b + 90), -reach), q))
        return found


def circle(centre, radius):
    return Arc(centre, radius, 0, 360)


def cut(pieces, left, right):
    """What of a chain lies between two upright lines, each of which it must pass exactly once."""
    kept = []
    for piece in pieces:
        inner = (t for x in (left, right) for t in piece.crossings(x) if 1e-9 < t < 1 - 1e-9)
        marks = [0, *sorted(inner), 1]
        parts = [piece.part(a, b) for a, b in zip(marks, marks[1:])]
        kept += [part for part in parts if left < part.at(0.5)[0] < right]
    for one, two in zip(kept, kept[1:]):
        assert math.dist(one.end, two.start) < 1e-3, "the sheet's edge passes the outline more than once"
    return kept
