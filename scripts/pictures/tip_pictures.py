"""Pictures of the tooth tip: its kinds, the kerf it cuts and the plate it stands on.

The front view looks along the band at the tooth coming; the side view is the program's own outline at the same heights.
The plate is drawn thicker than it is, or its tips would look alike.
"""

import math

from band import Frame, band_on, ripple
from dimension import linear
from keys import picture
from plane import Line, add, between
from scenes import DESIGNS
from sheet import BODY, BREAK, OUTLINE, STRONG, TINT, WOOD, Sheet, pair, path

PLATE, KERF = 21, 38      # half widths of the front view
TOP, FLOOR = 52, 222
SCALE = 170


class Curve:
    """One cubic curve in a chain."""

    def __init__(self, start, *rest):
        self.start, self.rest, self.end = start, rest, rest[-1]

    def curves(self):
        return [self.rest]


def mirrored(pieces, middle):
    def over(p):
        return (2 * middle - p[0], p[1])
    found = []
    for piece in reversed(pieces):
        points = [over(piece.start)] + [over(p) for p in piece.curves()[0]]
        found.append(Curve(*reversed(points)) if len(points) == 4 else Line(points[1], points[0]))
    return found


def front(sheet, middle, flank):
    """The tooth from the front: a flank from the tip's corner down its left side, and its like on the right."""
    foot = (middle - PLATE, FLOOR)
    left = [*flank, Line(flank[-1].end, foot)] if flank else [Line((middle - PLATE, TOP), foot)]
    right = mirrored(left, middle)
    wave = ripple(foot, (middle + PLATE, FLOOR), 3)
    top = Line(right[-1].end, left[0].start)
    outline = path([*right, top, *left])
    sheet.fill(outline + wave + "Z", BODY)
    sheet.stroke("M" + pair(foot) + wave, BREAK)
    sheet.stroke(outline, OUTLINE)
    return [*right[-len(flank):], top, *left[:len(flank)]] if flank else [top]


def swaged(middle):
    """The plate itself, pressed wide: it flares without a joint."""
    corner = (middle - KERF, TOP)
    neck = (middle - PLATE, TOP + 96)
    return [Line(corner, (middle - KERF + 2, TOP + 16)),
            Curve((middle - KERF + 2, TOP + 16), (middle - KERF + 6, TOP + 48), (middle - PLATE, TOP + 62), neck)]


class Side:
    """The tooth from the side, and what belongs to its tip: the tip itself, and points on its face and its top."""

    def __init__(self, sheet, scenes, name, tip_at=TOP):
        band = scenes.band(name)
        self.tooth = band.tooth(3, DESIGNS[name][1])
        self.tip = self.tooth["face"].start
        self.frame = Frame(SCALE, (262 - SCALE * self.tip[0], tip_at + SCALE * self.tip[1]))
        self.below = toward(self.tip, self.tooth["face"].end, 0.36)
        self.behind = toward(self.tip, band.tooth(2, DESIGNS[name][1])["top"].start, 0.3)
        band_on(sheet, band, self.frame, 146, 312, floor=FLOOR)


def toward(p, q, length):
    """At a length from p toward q."""
    return between(p, q, length / math.dist(p, q))


@picture("TipNone")
def no_tip(scenes):
    """The plate goes up to the edge as it is."""
    sheet = Sheet()
    front(sheet, 78, [])
    top, foot = TOP, TOP + 60
    sheet.polyline([(78 - PLATE, foot), (78 - PLATE, top), (78 + PLATE, top), (78 + PLATE, foot)], STRONG)
    plain_side(sheet, scenes)
    return sheet


def plain_side(sheet, scenes):
    view = Side(sheet, scenes, "square")
    sheet.polyline([view.frame(p) for p in (view.behind, view.tip, view.below)], STRONG)


@picture("TipSwag")
def swaged_tip(scenes):
    sheet = Sheet()
    flare = front(sheet, 78, swaged(78))
    sheet.stroke(path(flare), STRONG)
    plain_side(sheet, scenes)
    return sheet


@picture("TipStel")
def stellite_tip(scenes):
    """A drop of hard alloy, melted on and ground to shape: the joint is round."""
    sheet, middle = Sheet(), 78
    foot, shoulder = (middle - PLATE, TOP + 72), (middle - PLATE - 9, TOP + 44)
    flank = [Line((middle - KERF, TOP), shoulder), Curve(shoulder, add(shoulder, (2, 12)), add(foot, (0, -12)), foot)]
    drop = front(sheet, middle, flank)
    tint(sheet, [*drop, Curve(foot, add(foot, (0, -44)), add(foot, (2 * PLATE, -44)), add(foot, (2 * PLATE, 0)))])
    view = Side(sheet, scenes, "square")
    depth = add(add(view.below, view.behind), view.tip, -2)
    inner = add(view.tip, depth, 0.72)
    joint = Curve(view.below, between(view.below, inner, 0.7), between(view.behind, inner, 0.7), view.behind)
    tint(sheet, [Line(view.behind, view.tip), Line(view.tip, view.below), joint], view.frame)
    return sheet


@picture("TipCarb")
def carbide_tip(scenes):
    """A ground block, brazed into the seat: the joint is straight, and the top goes on over it to its edge."""
    sheet, middle = Sheet(), 78
    band = scenes.band("insert")
    tooth, top = band.tooth(3, DESIGNS["insert"][1]), band.tooth(2, DESIGNS["insert"][1])["top"]
    seat, tip = tooth["seat"], tooth["face"].start
    edge = meet(top.start, tip, seat.end, add(seat.end, add(tip, seat.start, -1)))
    view = Side(sheet, scenes, "insert", TOP + SCALE * (edge[1] - tip[1]))
    tint(sheet, [Line(tip, edge), Line(edge, seat.end), Line(seat.end, seat.start), Line(seat.start, tip)], view.frame)
    foot = view.frame(seat.end)[1]
    corner = (middle - KERF + 6, foot)
    block = front(sheet, middle, [Line((middle - KERF, TOP), corner), Line(corner, (middle - PLATE, foot))])
    tint(sheet, [*block, Line((middle - PLATE, foot), (middle + PLATE, foot))])
    return sheet


def meet(p, q, a, b):
    """Where the line through p and q meets the line through a and b."""
    u, v, w = add(q, p, -1), add(b, a, -1), add(a, p, -1)
    t = (w[0] * v[1] - w[1] * v[0]) / (u[0] * v[1] - u[1] * v[0])
    return add(p, u, t)


def tint(sheet, pieces, place=lambda p: p):
    sheet.fill(path(pieces, place, closed=True), TINT)
    sheet.stroke(path(pieces, place, closed=True), {**STRONG, "stroke-width": "2"})


@picture("TipKerf")
def tip_kerf(_):
    """The way that the tip cuts for the plate."""
    sheet, middle = Sheet(), 160
    wood(sheet, middle)
    front(sheet, middle, swaged(middle))
    linear(sheet, (middle - KERF, TOP), (middle + KERF, TOP), 90, 26, "K")
    return sheet


def wood(sheet, middle):
    """What the tooth stands in: whole above its edge, and to both sides of the way it has cut."""
    left, right, top, foot = 56, 264, TOP - 12, 160
    slot = [(middle + KERF, foot), (middle + KERF, TOP), (middle - KERF, TOP), (middle - KERF, foot)]
    around = [slot[3], (left, foot), (left, top), (right, top), (right, foot), slot[0]]
    edge = "M" + pair(around[0]) + "".join(ripple(p, q, 2.5) for p, q in zip(around, around[1:]))
    sheet.fill(edge + "".join("L" + pair(p) for p in slot[1:]) + "Z", WOOD)
    sheet.stroke(edge, BREAK)
    sheet.polyline(slot, OUTLINE)


@picture("PlateThk")
def plate_thickness(_):
    sheet, middle = Sheet(), 160
    front(sheet, middle, swaged(middle))
    linear(sheet, (middle - PLATE, 190), (middle + PLATE, 190), 90, 0, "T", outside=True)
    return sheet
