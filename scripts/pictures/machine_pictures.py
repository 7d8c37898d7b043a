"""Pictures of the mill: its wheels with the band around them, and the log in front of it."""

from band import ripple
from dimension import HEAD, cross, head, linear
from keys import picture
from plane import Arc, Line, add, cut, heading
from sheet import BODY, CENTRE, CUT_WOOD, INK, MEASURE, OUTLINE, STRONG, WOOD, BREAK, Sheet, pair, path

TOP, BOTTOM, WHEEL = (160, 84), (160, 178), 42
SPOKES = 6
THIN = {"stroke": INK, "stroke-width": "0.75"}


def loop(offset):
    """Around both wheels at a distance from them, from the middle of the right side and back to it."""
    reach = WHEEL + offset
    right, left, middle = TOP[0] + reach, TOP[0] - reach, (TOP[1] + BOTTOM[1]) / 2
    return [Line((right, middle), (right, TOP[1])), Arc(TOP, reach, 0, -180), Line((left, TOP[1]), (left, BOTTOM[1])),
            Arc(BOTTOM, reach, 180, -180), Line((right, BOTTOM[1]), (right, middle))]


def wheel(sheet, centre, reach):
    inner, hub = reach * 0.88, reach * 0.2
    sheet.circle(centre, reach, OUTLINE, BODY)
    sheet.circle(centre, inner, THIN, "#ffffff")
    for index in range(SPOKES):
        along, side = heading(60 * index + 30), heading(60 * index + 120)
        for half in (-reach * 0.05, reach * 0.05):
            sheet.line(add(add(centre, along, hub * 0.95), side, half), add(add(centre, along, inner), side, half), THIN)
    sheet.circle(centre, hub, OUTLINE, BODY)
    sheet.circle(centre, hub * 0.45, THIN, "#ffffff")


def mill(band_pen):
    sheet = Sheet()
    wheel(sheet, TOP, WHEEL)
    wheel(sheet, BOTTOM, WHEEL)
    sheet.stroke(path(loop(2.5)), band_pen)
    return sheet


@picture("Length")
def length(_):
    sheet = mill(STRONG)
    middle = (TOP[1] + BOTTOM[1]) / 2
    around = loop(14)
    start = around[0].start
    sheet.line((TOP[0] + WHEEL - 3, middle), add(start, (5, 0)), MEASURE)
    inner = [Line(add(start, (0, -HEAD / 2)), around[0].end), *around[1:4], Line(around[4].start, add(start, (0, HEAD / 2)))]
    sheet.stroke(path(inner), MEASURE)
    head(sheet, start, (0, 1))
    head(sheet, start, (0, -1))
    sheet.letter(add(start, (20, 0)), "L")
    return sheet


@picture("WheelDia")
def wheel_diameter(_):
    sheet = mill(OUTLINE)
    linear(sheet, add(TOP, (-WHEEL, 0)), add(TOP, (WHEEL, 0)), 90, WHEEL + 14, "D")
    return sheet


@picture("CenToCen")
def centre_to_centre(_):
    sheet = mill(OUTLINE)
    for centre in (TOP, BOTTOM):
        cross(sheet, centre, 5)
    linear(sheet, add(TOP, (5, 0)), add(BOTTOM, (5, 0)), 0, WHEEL + 30, "C", shift=15)
    return sheet


@picture("RimWidth")
def rim_width(_):
    """The wheel from the front, and beside it from its edge."""
    sheet, front, edge, reach, half = Sheet(), (104, 132), (250, 132), 76, 14
    wheel(sheet, front, reach)
    box(sheet, add(edge, (-38, -7)), add(edge, (38, 7)))
    box(sheet, add(edge, (-24, -15)), add(edge, (24, 15)))
    box(sheet, add(edge, (-half, -reach)), add(edge, (half, reach)))
    sheet.line((14, 132), (306, 132), CENTRE)
    linear(sheet, add(edge, (-half, -reach)), add(edge, (half, -reach)), 90, 24, "W")
    return sheet


def box(sheet, p, q, fill=BODY, pen=OUTLINE):
    sheet.shape([p, (q[0], p[1]), q, (p[0], q[1])], pen, fill)


@picture("CutDepth")
def depth_of_cut(scenes):
    """The band runs down through the log, its teeth toward the side that is still whole."""
    band, scale, top, bottom, back = scenes.band("cut"), 18, 50, 200, 72
    sheet = Sheet()
    line = back + band.height * scale

    def place(p):
        """A quarter turn: along the band is down the sheet."""
        return (back + p[1] * scale, (p[0] - band.tips()[1][0]) * scale)

    log(sheet, line, top, bottom)
    high, low = band.tips()[1][0] + 10 / scale, band.tips()[1][0] + 230 / scale
    pieces = cut(band.pieces, high, low)
    start, end = place(pieces[0].start), place(pieces[-1].end)
    data = path(pieces, place)
    foot, crown = ripple(end, (back, end[1])), ripple((back, start[1]), start)
    sheet.fill(data + foot + "L" + pair((back, start[1])) + crown + "Z", BODY)
    sheet.stroke("M" + pair(end) + foot + "M" + pair((back, start[1])) + crown, BREAK)
    sheet.stroke(data, OUTLINE)
    sheet.line((back, start[1]), (back, end[1]), OUTLINE)
    linear(sheet, (264, top), (264, bottom), 0, 24, "D", shift=14)
    return sheet


def log(sheet, line, top, bottom):
    """Its sawn face to the left of the line of the teeth, its bark to the right."""
    left, right = 14, 264
    sheet.shape([(left, top), (line, top), (line, bottom), (left, bottom)], THIN, CUT_WOOD)
    sheet.shape([(line, top), (right, top), (right, bottom), (line, bottom)], THIN, WOOD)
    for y in (0.18, 0.39, 0.61, 0.82):
        grain = top + (bottom - top) * y
        sheet.line((line + 14, grain), (right - 10, grain), {**THIN, "stroke": "#b08d57"})
    sheet.shape([(left, top), (right, top), (right, bottom), (left, bottom)], OUTLINE)
