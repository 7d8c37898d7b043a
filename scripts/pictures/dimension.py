"""Dimensions as a draughtsman sets them: extension lines, arrow heads and a letter, all in the one accent colour.

Points are those of the sheet. Angles here are the sheet's own too: degrees, counter-clockwise as seen, 0 to the right.
"""

import math

import sheet as pens
from plane import Arc, add, between, dot
from sheet import ACCENT, MEASURE

HEAD, HALF = 9, 2.8      # an arrow head's length and half its width
GAP, OVER = 2, 5         # an extension line starts off its point and ends past the dimension line
TAIL = 20                # what a dimension with its arrows outside shows beyond them


def seen(degrees):
    """The sheet's direction of an angle as it is seen, with y down."""
    return (math.cos(math.radians(degrees)), -math.sin(math.radians(degrees)))


def head(sheet, tip, along):
    """An arrow head at tip, pointing along."""
    size = math.hypot(*along)
    u = (along[0] / size, along[1] / size)
    side = (-u[1], u[0])
    base = add(tip, u, -HEAD)
    sheet.polygon([tip, add(base, side, HALF), add(base, side, -HALF)], ACCENT)


def extension(sheet, p, q):
    """From just off p to just past q."""
    length = math.dist(p, q)
    if length > GAP:
        sheet.line(between(p, q, GAP / length), between(p, q, 1 + OVER / length), MEASURE)


def span(sheet, p, q, outside=False):
    """The dimension line itself with its two heads."""
    size = math.dist(p, q)
    u = ((q[0] - p[0]) / size, (q[1] - p[1]) / size)
    if outside:
        sheet.line(add(p, u, -TAIL), add(p, u, -HEAD / 2), MEASURE)
        sheet.line(add(q, u, TAIL), add(q, u, HEAD / 2), MEASURE)
    else:
        sheet.line(add(p, u, HEAD / 2), add(q, u, -HEAD / 2), MEASURE)
    head(sheet, p, u if outside else (-u[0], -u[1]))
    head(sheet, q, (-u[0], -u[1]) if outside else u)


def linear(sheet, p, q, normal, distance, letter, *, outside=False, shift=13, slide=0.5):
    """Between p and q, measured square to normal (seen degrees), on a line at that distance from p.

    The letter stands off the line by shift, at slide of the way from p to q; with the arrows outside, behind q's.
    """
    n = seen(normal)
    near = add(p, n, distance)
    far = add(q, n, dot(n, add(near, q, -1)))
    extension(sheet, p, near)
    extension(sheet, q, far)
    span(sheet, near, far, outside)
    beyond = 1 + (TAIL + 13) / math.dist(near, far)
    sheet.letter(between(near, far, beyond) if outside else add(between(near, far, slide), n, shift), letter)


def radius(sheet, centre, reach, degrees, letter, *, tail=0, at=0.5, shift=12):
    """From the centre's cross to the arc. A tail runs on past the centre and carries the letter of a small arc."""
    u = seen(degrees)
    side = (-u[1], u[0])
    tip = add(centre, u, reach)
    sheet.line(add(centre, u, -tail), add(tip, u, -HEAD / 2), MEASURE)
    head(sheet, tip, u)
    cross(sheet, centre)
    sheet.letter(add(centre, u, -tail - 12) if tail else add(between(centre, tip, at), side, shift), letter)


def cross(sheet, at, size=4):
    sheet.line(add(at, (-size, 0)), add(at, (size, 0)), MEASURE)
    sheet.line(add(at, (0, -size)), add(at, (0, size)), MEASURE)


def angle(sheet, apex, first, second, reach, letter, legs, *, outside=False, off=14, slide=0.5):
    """Counter-clockwise as seen from first to second, at a reach from the apex, with both legs drawn to their lengths."""
    for degrees, leg in zip((first, second), legs):
        sheet.line(apex, add(apex, seen(degrees), leg), MEASURE)
    turn = math.degrees(HEAD / reach)
    sweep = second - first
    if outside:
        more = math.degrees(TAIL / reach)
        arcs = [(first - more, more - turn / 2), (second + turn / 2, more - turn / 2)]
        heads = [(first, 90 - turn / 2), (second, -90 + turn / 2)]
    else:
        arcs = [(first + turn / 2, sweep - turn)]
        heads = [(first, -90 + turn / 2), (second, 90 - turn / 2)]
    for start, size in arcs:
        # The sheet's y runs down, so the arc is turned over with it.
        sheet.stroke(pens.path([Arc(apex, reach, -start, -size)]), MEASURE)
    for at, facing in heads:
        head(sheet, add(apex, seen(at), reach), seen(at + facing))
    sheet.letter(add(apex, seen(first + sweep * slide), reach + off), letter)
