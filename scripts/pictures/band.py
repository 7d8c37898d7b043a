"""A piece of a band as the program itself works it out, and its place on the sheet."""

import dataclasses
import json
import math
import subprocess

import sheet as pens
from plane import Arc, Line, add, cut

TEETH = 12
CLOSE = 1e-3   # inch; the ends of two pieces that meet differ by rounding only


def chain(pieces):
    """Puts pieces end to end from left to right, turning those that run backward."""
    rest = list(pieces)
    found = [rest.pop(0)]
    while rest:
        def fits(end):
            return [p for p in rest if math.dist(p.start, end) < CLOSE or math.dist(p.end, end) < CLOSE]
        after = fits(found[-1].end)
        before = [] if after else fits(found[0].start)
        assert after or before, "the outline has a gap"
        piece = (after or before)[0]
        rest.remove(piece)
        if after:
            found.append(piece if math.dist(piece.start, found[-1].end) < CLOSE else piece.turned())
        else:
            found.insert(0, piece if math.dist(piece.end, found[0].start) < CLOSE else piece.turned())
    if found[0].start[0] > found[-1].end[0]:
        found = [piece.turned() for piece in reversed(found)]
    return found


def piece_of(entity):
    if entity["Kind"] == "LINE":
        return Line((entity["Corner1X"], entity["Corner1Y"]), (entity["Corner4X"], entity["Corner4Y"]))
    sweep = (entity["EndAngle"] - entity["StartAngle"]) % 360
    return Arc((entity["CenterX"], entity["CenterY"]), entity["Radius"], entity["StartAngle"], sweep)


class Band:
    """The band of a design: its record after the calculation, its outline from join to join, its tips."""

    def __init__(self, cli, design):
        saw = {**design, "NumTeeth": TEETH, "Length": design["Pitch"] * TEETH / 12, "Pitch": 0}
        done = subprocess.run([cli, "json", "--defaults", "--entities", "-"], check=True, capture_output=True,
                              input=json.dumps({"saw": saw}).encode())
        answer = json.loads(done.stdout)
        assert not answer["messages"], answer["messages"]
        self.saw = answer["saw"]
        self.gullet = self.saw["GulletInfo"]
        self.hook = self.saw["HookAngle"]
        self.refuse_corrections(design)
        entities = answer["entities"]
        self.dotted = [piece_of(e) for e in entities if e.get("IsDotted")]
        drawn = [piece_of(e) for e in entities if not e.get("IsOutline")]
        self.pieces = chain(dict.fromkeys(drawn))  # some arcs stand twice in a drawing
        self.height = self.saw["Width"] - self.saw["TipClear"]
        self.width = self.saw["Width"]

    def refuse_corrections(self, design):
        """A picture is drawn from the measures asked for, or its design is a bad example."""
        for group in ("SeatInfo", "GulletInfo"):
            for name, asked in design.get(group, {}).items():
                assert abs(self.saw[group][name] - asked) < CLOSE, f"{group}.{name}: {asked} became {self.saw[group][name]}"

    def tips(self):
        starts = (p.start for p in self.pieces)
        return [p for p in starts if abs(p[1] - self.height) < CLOSE]

    def tooth(self, index, names):
        """The pieces from a tip to the next, by the names given for them in their order."""
        tips = self.tips()
        wanted, nxt = tips[index], tips[index + 1]
        inner = [i for i, p in enumerate(self.pieces) if p.start in (wanted, nxt)]
        pieces = self.pieces[inner[0]:inner[1]]
        assert len(pieces) == len(names.split()), f"{len(pieces)} pieces for {names}"
        return dict(zip(names.split(), pieces))


@dataclasses.dataclass(frozen=True)
class Frame:
    """Takes points of the band (inch, y up) to the sheet."""

    scale: float
    origin: tuple   # where the band's own origin comes to lie

    def __call__(self, p):
        return (self.origin[0] + self.scale * p[0], self.origin[1] - self.scale * p[1])


def ripple(p, q, swing=5):
    """From p to q as a line along which a drawing is broken off: one long wave."""
    along = add(q, p, -1)
    length = math.hypot(*along)
    side = (-along[1] / length * swing, along[0] / length * swing)
    bends = [add(add(p, along, t), side, s) for t, s in ((0.25, 1.4), (0.4, 0.6), (0.6, -0.6), (0.75, -1.4))]
    bends.insert(2, add(p, along, 0.5))
    points = [pens.pair(point) for point in (*bends, q)]
    return f"C{' '.join(points[:3])}C{' '.join(points[3:])}"


def band_on(sheet, band, frame, left, right, *, broken=(True, True), floor=None):
    """The band between two upright lines of the sheet: body, outline, back edge and the lines where it is broken off.

    With a floor, the sheet's height at which it is broken off before its back edge.
    """
    low, high = ((x - frame.origin[0]) / frame.scale for x in (left, right))
    pieces = cut(band.pieces, low, high)
    back = floor or frame((0, 0))[1]
    corners = [frame(pieces[-1].end), (right, back), (left, back), frame(pieces[0].start)]
    data = pens.path(pieces, frame)
    body, waves = data, ""
    for p, q, is_broken in zip(corners, corners[1:], (broken[1], floor is not None, broken[0])):
        edge = ripple(p, q) if is_broken else "L" + pens.pair(q)
        body += edge
        waves += "M" + pens.pair(p) + edge if is_broken else ""
    sheet.fill(body + "Z", pens.BODY)
    if waves:
        sheet.stroke(waves, pens.BREAK)
    sheet.stroke(data, pens.OUTLINE)
    if floor is None:
        sheet.line((left, back), (right, back), pens.OUTLINE)
