"""Pictures of the plate: how its ends are joined, and where a slot lies in it."""

from band import Frame, band_on, ripple
from dimension import extension, span
from keys import picture
from plane import Arc, Line
from sheet import BODY, BREAK, CENTRE, MEASURE, OUTLINE, STRONG, Sheet, pair, path

SCALE, JOINT = 52, 160
LEFT, RIGHT = 12, 310
HALF_PLATE = 7     # the edge view shows the plate thicker than it is, or nothing would be seen of the joint


def ends_on(scenes, name):
    """Both ends of the band as the program cuts them, laid together; answers with the sheet, the far edges and the heights."""
    sheet, band = Sheet(), scenes.band(name)
    length = band.saw["Length"] * 12
    start, end = band.pieces[0].start[0], band.pieces[-1].end[0] - length
    zero, level = JOINT - SCALE * (start + end) / 2, 26 + SCALE * band.height
    first, last = zero + SCALE * start, zero + SCALE * end
    band_on(sheet, band, Frame(SCALE, (zero, level)), first, RIGHT, broken=(False, True))
    band_on(sheet, band, Frame(SCALE, (zero - SCALE * length, level)), LEFT, last, broken=(True, False))
    tops = [level - SCALE * y for y in (band.pieces[0].start[1], band.pieces[-1].end[1])]
    return sheet, (first, last), tops, level


def edge_view(sheet, first, last):
    """The same ends seen on their edge, the left one above where they overlap."""
    middle = 200
    top, bottom = middle - HALF_PLATE, middle + HALF_PLATE
    for x in (LEFT, RIGHT):
        corners = [(x, top), (last, top), (first, bottom), (x, bottom)]
        sheet.fill("M" + "L".join(pair(p) for p in corners) + ripple((x, bottom), (x, top), 2) + "Z", BODY)
        sheet.stroke("M" + pair((x, bottom)) + ripple((x, bottom), (x, top), 2), BREAK)
    sheet.line((LEFT, top), (RIGHT, top), OUTLINE)
    sheet.line((LEFT, bottom), (RIGHT, bottom), OUTLINE)
    sheet.line((last, top), (first, bottom), STRONG)


@picture("RightAng")
def right_angle_join(scenes):
    sheet, (first, last), tops, level = ends_on(scenes, "butt")
    sheet.line((last, tops[1]), (last, level), STRONG)
    sheet.polyline([(last, level - 14), (last + 14, level - 14), (last + 14, level)], MEASURE)
    edge_view(sheet, first, last)
    return sheet


@picture("Overlap")
def overlap_join(scenes):
    sheet, (first, last), tops, level = ends_on(scenes, "lap")
    sheet.line((last, tops[1]), (last, level), STRONG)
    sheet.line((first, tops[0]), (first, level), {**STRONG, "stroke-dasharray": "6 4", "stroke-width": "1.5"})
    edge_view(sheet, first, last)
    return sheet


@picture("SlotCent", 125, ("a", "a"))
@picture("SlotNotC", 94, ("a", "b"))
def slot(_, y, letters):
    """A piece of plate with a slot; the two letters are the same when it lies in the middle."""
    sheet, left, right, top, bottom = Sheet(), 24, 296, 50, 200
    waves = ripple((right, top), (right, bottom)), ripple((left, bottom), (left, top))
    sheet.fill(f"M{pair((left, top))}L{pair((right, top))}{waves[0]}L{pair((left, bottom))}{waves[1]}Z", BODY)
    sheet.stroke("M" + pair((right, top)) + waves[0] + "M" + pair((left, bottom)) + waves[1], BREAK)
    for edge in (top, bottom):
        sheet.line((left, edge), (right, edge), OUTLINE)
    near, far, reach = 84, 176, 16
    ring = path([Line((near, y - reach), (far, y - reach)), Arc((far, y), reach, -90, 180),
                 Line((far, y + reach), (near, y + reach)), Arc((near, y), reach, 90, 180)], closed=True)
    sheet.fill(ring, "#ffffff")
    sheet.stroke(ring, STRONG)
    sheet.line((left - 12, (top + bottom) / 2), (right + 12, (top + bottom) / 2), CENTRE)
    extension(sheet, (far + reach, y), (238, y))
    for p, q, letter in ((top, y, letters[0]), (y, bottom, letters[1])):
        span(sheet, (238, p), (238, q))
        sheet.letter((254, (p + q) / 2), letter)
    return sheet
