"""Gullet area, and what is done to whole teeth: moved, mirrored, cut at the band's ends.

Second computation of the band.
"""

from failing import RoundTo, ZERO, skip
from record import ARCS, LINES, PLAIN_ARCS, PLAIN_LINES, Arc, Line, Point, Tooth
from trig import (Adjacent, Direction, Distance, LineMeetsArc, LineMeetsSegment, Opposite, QuadArea, SegmentArea,
                  TriangleArea, polar)


def Sweep(arc):
    sweep = ZERO
    if arc.EndAngle < arc.StartAngle:
        with skip: sweep = 360 - arc.StartAngle + arc.EndAngle
    else:
        with skip: sweep = arc.EndAngle - arc.StartAngle
    return sweep


def EndOf(arc):
    return polar(arc.Center, arc.Radius, arc.EndAngle)


def back_figure(tooth, style):
    line = tooth.TopLine if style in (7, 8) else tooth.BackLine
    return line.Start, line.End


def added_figures(tooth, style):
    """The figures between the gullet's floor and the quadrangle over it, in the order in which they are added."""
    d, back = tooth.DropLine.End, tooth.BackLine.Start
    first, second, third, gullet = tooth.FirstArc, tooth.SecondArc, tooth.ThirdArc, tooth.GulletArc
    s1 = SegmentArea(d, EndOf(first), first.Radius, Sweep(first))
    if style == 4:
        return [s1, SegmentArea(EndOf(first), back, second.Radius, Sweep(second)),
                TriangleArea(d, EndOf(first), back)]
    if style == 5:
        begin = polar(second.Center, second.Radius, second.StartAngle)
        return [s1, SegmentArea(EndOf(first), EndOf(second), second.Radius, Sweep(second)),
                SegmentArea(EndOf(second), back, third.Radius, Sweep(third)),
                QuadArea(d, begin, EndOf(second), back)]
    if style == 6:
        # the chord over the flat is longer than the arc's own; it is the one that counts
        return [s1, SegmentArea(EndOf(first), EndOf(second), second.Radius, Sweep(second)),
                QuadArea(d, tooth.BottomLine.Start, tooth.BottomLine.End, back)]
    if style == 7:
        return [SegmentArea(d, tooth.TopLine.Start, gullet.Radius, Sweep(gullet))]
    if style == 8:
        return [s1, TriangleArea(d, tooth.BottomLine.Start, tooth.TopLine.Start)]
    # style 9 too, whichever chain it has
    return [SegmentArea(d, back, gullet.Radius, Sweep(gullet))]


def area_of(tooth, saw):
    """The gullet's area by its figures.  A sum that overflows is the caller's failure."""
    style = saw.ToothStyle
    b1, b2 = back_figure(tooth, style)
    area = QuadArea(tooth.FaceLine.Start, tooth.DropLine.End, b1, b2)
    for figure in added_figures(tooth, style):
        area = area + figure
    return area


def corner_area(tooth, saw):
    if saw.SeatInfo.State:
        # the back's start, in the styles without a back too
        return TriangleArea(tooth.DropLine.Start, tooth.DropLine.End, tooth.BackLine.Start)
    face, h = tooth.FaceLine, saw.HookAngle
    half = Distance(face.Start, face.End) / 2
    middle = Point()
    with skip: middle.X = face.End.X + RoundTo(Opposite(half, h))
    with skip: middle.Y = face.End.Y + RoundTo(Adjacent(half, h))
    b1, _ = back_figure(tooth, saw.ToothStyle)
    return TriangleArea(middle, face.End, b1)


def GulletArea(tooth, saw):
    gullet = saw.GulletInfo
    b1, b2 = back_figure(tooth, saw.ToothStyle)
    upper = QuadArea(tooth.FaceLine.Start, tooth.SeatLine.End, b1, b2)
    corner = corner_area(tooth, saw)
    with skip: gullet.Area = area_of(tooth, saw)
    with skip: gullet.AreaBelowTip = RoundTo((gullet.Area - upper + corner) * 1.1)
    tooth.Area = gullet.Area
    with skip:
        if gullet.Area * 0.3 > gullet.AreaBelowTip:
            gullet.AreaBelowTip = gullet.Area * 0.3


def moved(value, by, held):
    """RoundTo(value + by), or what the target held."""
    with skip: return RoundTo(value + by)
    return held


def shift_line(source, target, dx, dy):
    for name in ("Start", "End"):
        p, q = getattr(source, name), getattr(target, name)
        q.X, q.Y = moved(p.X, dx, q.X), moved(p.Y, dy, q.Y)


def shift_arc(source, target, dx, dy):
    target.CenterX = moved(source.CenterX, dx, target.CenterX)
    target.CenterY = moved(source.CenterY, dy, target.CenterY)
    target.Radius = RoundTo(source.Radius)
    target.StartAngle = RoundTo(source.StartAngle)
    target.EndAngle = RoundTo(source.EndAngle)


def TranslateTooth(source, target, dx, dy):
    """Every piece and the join point; neither ArcDepth nor Area.  `target` may be `source`."""
    target.Style, target.BothEdges = source.Style, source.BothEdges
    for name in LINES:
        shift_line(getattr(source, name), getattr(target, name), dx, dy)
    for name in ARCS:
        shift_arc(getattr(source, name), getattr(target, name), dx, dy)
    p, q = source.JoinPoint, target.JoinPoint
    q.X, q.Y = moved(p.X, dx, q.X), moved(p.Y, dy, q.Y)


def RoundTooth(tooth):
    """Every plain piece; neither the frost pieces nor the join point."""
    for name in PLAIN_LINES:
        line = getattr(tooth, name)
        for p in (line.Start, line.End):
            p.X, p.Y = RoundTo(p.X), RoundTo(p.Y)
    for name in PLAIN_ARCS:
        arc = getattr(tooth, name)
        arc.CenterX, arc.CenterY, arc.Radius = RoundTo(arc.CenterX), RoundTo(arc.CenterY), RoundTo(arc.Radius)
        arc.StartAngle, arc.EndAngle = RoundTo(arc.StartAngle), RoundTo(arc.EndAngle)


def once_round(a):
    if a > 360:
        a = a - 360
    if a < 0:
        a = a + 360
    return a


def MirrorAngleX(a):
    a = once_round(a)
    if a > 270:
        a = once_round(270 - (a - 270))
    elif a < 270 and a != 90:
        a = once_round(270 + (270 - a))
    return RoundTo(a)


def MirrorAngleY(a):
    a = once_round(a)
    if a in (0, 180, 360):
        return RoundTo(a)
    if a > 180:
        return RoundTo(180 - (a - 180))
    return RoundTo(180 + (180 - a))


def mirrored(source, x_sense, y_sense, mirror_angle):
    """A fresh tooth, each coordinate times its sense and rounded.  The frost pieces stay behind, on purpose."""
    out = Tooth()
    out.Style, out.BothEdges = source.Style, source.BothEdges
    for name in PLAIN_LINES:
        line = getattr(source, name)
        ends = [Point(RoundTo(p.X * x_sense), RoundTo(p.Y * y_sense)) for p in (line.Start, line.End)]
        setattr(out, name, Line(*ends))
    for name in PLAIN_ARCS:
        old, new = getattr(source, name), getattr(out, name)
        new.CenterX, new.CenterY = RoundTo(old.CenterX * x_sense), RoundTo(old.CenterY * y_sense)
        new.Radius = old.Radius
        with skip: new.StartAngle = mirror_angle(old.EndAngle)
        with skip: new.EndAngle = mirror_angle(old.StartAngle)
    join = source.JoinPoint
    out.JoinPoint = Point(RoundTo(join.X * x_sense), RoundTo(join.Y * y_sense))
    return out


def MirrorToothX(source):
    return mirrored(source, -1, 1, MirrorAngleX)


def MirrorToothY(source):
    return mirrored(source, 1, -1, MirrorAngleY)


def MirrorBandX(teeth, n):
    """The teeth look the other way; the first becomes the last."""
    back = ZERO
    with skip: back = teeth[n].JoinPoint.X
    turned = {}
    for i in range(n + 1):
        with skip: turned[n - i] = MirrorToothX(teeth[i])
    for i, tooth in turned.items():
        TranslateTooth(tooth, tooth, back, ZERO)
        with skip: teeth[i] = tooth


def AddOtherEdge(teeth, n):
    """Every tooth once more, turned over in the strip between the tips and the back edge's line."""
    for i in range(n + 1):
        with skip:
            source = teeth[i]
            tip = source.FaceLine.Start.Y if source.FaceLine.Start.Y > 0 else source.TopLine.End.Y
            other = Tooth()
            TranslateTooth(source, other, ZERO, -tip)
            teeth[n + 1 + i] = MirrorToothY(other)


GULLET, FIRST, SECOND, THIRD, BACK_LINE, BACK_ARC, TOP, BOTTOM = 1, 2, 3, 4, 5, 6, 7, 9
ELEMENT = {GULLET: "GulletArc", FIRST: "FirstArc", SECOND: "SecondArc", THIRD: "ThirdArc", BACK_LINE: "BackLine",
           BACK_ARC: "BackArc", TOP: "TopLine", BOTTOM: "BottomLine"}
TRIED = {
    1: (GULLET, BACK_LINE, TOP),
    2: (GULLET, BACK_ARC, BACK_LINE, TOP),
    4: (SECOND, BACK_ARC, BACK_LINE, TOP),
    5: (SECOND, THIRD, BACK_ARC, BACK_LINE, TOP),
    6: (BOTTOM, SECOND, BACK_ARC, BACK_LINE, TOP),
    7: (GULLET, TOP),
    8: (FIRST, BOTTOM, TOP),
    9: (GULLET, THIRD, SECOND, FIRST, BACK_ARC, BACK_LINE, TOP),
}


def FindJoinElement(cut, tooth):
    """The code of the element that the cut meets, 0 for none; the cut then starts at the crossing."""
    for code in TRIED.get(tooth.Style, ()):
        element = getattr(tooth, ELEMENT[code])
        hit, crossing = LineMeetsArc(cut, element) if isinstance(element, Arc) else LineMeetsSegment(cut, element)
        if hit:
            if crossing is not None:
                cut.Start = crossing
            return code
    return 0


UP_TO_FACE = ("FaceLine", "SeatLine", "DropLine", "FrostArc", "FrostFaceLine", "FrostBottomLine")
GONE_AT_START = {
    GULLET: (),
    FIRST: (),
    SECOND: ("BottomLine", "FirstArc"),
    THIRD: ("FirstArc", "BottomLine", "SecondArc"),
    BACK_LINE: ("GulletArc", "FirstArc", "BottomLine", "SecondArc", "ThirdArc"),
    BACK_ARC: ("GulletArc", "FirstArc", "BottomLine", "SecondArc", "ThirdArc", "BackLine"),
    TOP: ("GulletArc", "FirstArc", "BottomLine", "SecondArc", "ThirdArc", "BackLine", "BackArc"),
    BOTTOM: ("FirstArc",),
}
GONE_AT_END = {
    GULLET: ("BackLine", "BackArc", "TopLine"),
    FIRST: ("BottomLine", "SecondArc", "ThirdArc", "BackLine", "BackArc", "TopLine"),
    SECOND: ("ThirdArc", "BackLine", "BackArc", "TopLine"),
    THIRD: ("BackLine", "BackArc", "TopLine"),
    BACK_LINE: ("BackArc", "TopLine"),
    BACK_ARC: ("TopLine",),
    TOP: (),
    BOTTOM: ("SecondArc", "ThirdArc", "BackLine", "BackArc", "TopLine"),
}


def clear(tooth, names):
    for name in names:
        setattr(tooth, name, Arc() if name.endswith("Arc") else Line())


def TrimToothStart(tooth, point, code):
    if code == 0:
        return
    clear(tooth, UP_TO_FACE + GONE_AT_START[code])
    element = getattr(tooth, ELEMENT[code])
    if isinstance(element, Line):
        element.Start = point.copy()
    elif code == BACK_ARC:  # the fillet runs from the top to the back
        element.EndAngle = Direction(element.Center, point)
    else:
        element.StartAngle = Direction(element.Center, point)


def TrimToothEnd(tooth, point, code):
    if code == 0:
        return
    clear(tooth, GONE_AT_END[code])
    element = getattr(tooth, ELEMENT[code])
    if code == BOTTOM:  # the first point, not the last: meant
        element.Start = point.copy()
    elif isinstance(element, Line):
        element.End = point.copy()
    elif code == BACK_ARC:
        element.StartAngle = Direction(element.Center, point)
    else:
        element.EndAngle = Direction(element.Center, point)
