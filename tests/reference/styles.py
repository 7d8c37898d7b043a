"""The gullets of the eight tooth styles, for the second computation of the band.

Four of the placements stop at their first failure and say so in a message; the others skip and go on.
"""

from failing import DESCRIPTIONS, Failure, Number, RoundTo, ZERO, skip
from record import Line, Point
from tooth import PlaceSingleArc, reduce_angles, reduced
from transforms import GulletArea
from trig import (Adjacent, AngleFromLegs, AngleFromSides, Direction, DirectionFromCenter, Distance, Leg,
                  LineMeetsArc, MeetLines, Opposite, PolarPoint, polar)


def PitchFromLength(length, teeth):
    try:
        return RoundTo(length * 12 / teeth)
    except Failure:
        return ZERO


def speaking(placement):
    """A placement that stops at its first failure, with a message."""

    def guarded(saw, tooth, messages):
        try:
            placement(saw, tooth)
        except Failure as failure:
            messages.append(f"{DESCRIPTIONS[failure.number]}\nError Number = {failure.number}")

    return guarded


def PlaceGulletArcs(saw, tooth, messages):
    style, gullet = saw.ToothStyle, saw.GulletInfo
    if style == 4:
        PlaceDoubleRadius(saw, tooth, messages)
    elif style == 5:
        PlaceTripleRadius(saw, tooth, messages)
    elif style == 6:
        PlaceFlatBottom(saw, tooth, messages)
    elif style == 8:
        PlaceOShape(saw, tooth)
    elif style == 9:
        PlaceFrostNotch(saw, tooth, messages)
        if gullet.Radius3 > 0:
            PlaceTripleRadius(saw, tooth, messages)
        elif gullet.Radius2 > 0:
            PlaceDoubleRadius(saw, tooth, messages)
        else:
            PlaceSingleArc(saw, tooth)
    else:
        PlaceSingleArc(saw, tooth)
        with skip: tooth.ArcDepth = saw.Width - saw.TipClear - tooth.GulletArc.CenterY + gullet.Radius


def place_first_arc(saw, tooth):
    """Tangent to the face at the end of the drop line."""
    arc, h = tooth.FirstArc, saw.HookAngle
    arc.CenterX = tooth.DropLine.End.X + Adjacent(arc.Radius, h)
    arc.CenterY = tooth.DropLine.End.Y - Opposite(arc.Radius, h)
    arc.StartAngle = 180 - h


@speaking
def PlaceDoubleRadius(saw, tooth):
    h, gullet, first, second = saw.HookAngle, saw.GulletInfo, tooth.FirstArc, tooth.SecondArc
    r2 = gullet.Radius2
    if r2 * 0.5 < gullet.Radius1:
        gullet.Radius1 = r2 * 0.5
    elif gullet.Radius1 < 0.03:
        gullet.Radius1 = Number(0.03)
    r1 = gullet.Radius1
    first.Radius = r1
    second.Radius = r2
    place_first_arc(saw, tooth)
    first.EndAngle = 270 - h
    c = r2 - r1
    second.CenterX = first.CenterX + Adjacent(c, 90 - h)
    second.CenterY = first.CenterY + Opposite(c, 90 - h)
    second.StartAngle = 270 - h
    second.EndAngle = 360 - h - gullet.BackAngle
    y = r1 * r1 / r2 + r2
    if gullet.Width > r2 * 2 * 0.9 or gullet.Width < y:
        gullet.Width = y
    if gullet.Width == 0:
        gullet.Width = r1 + r2
    turn_second_arc(first, second, gullet.Width - r2 - r1, c, h)
    reduce_angles(first, second)


def turn_second_arc(first, second, q, c, h):
    """Turns the second arc about the first, to the wanted width."""
    if q == 0:
        return
    e = abs(q)
    length = Leg(c, e)
    b = AngleFromLegs(length, e)
    g = 90 - b
    k = h - g if q < 0 else g + h
    second.CenterX = first.CenterX + Opposite(c, k)
    second.CenterY = first.CenterY + Adjacent(c, k)
    second.StartAngle = second.StartAngle + g if q < 0 else second.StartAngle - g
    first.EndAngle = second.StartAngle


@speaking
def PlaceTripleRadius(saw, tooth):
    h, gullet = saw.HookAngle, saw.GulletInfo
    first, second, third = tooth.FirstArc, tooth.SecondArc, tooth.ThirdArc
    bound_triple_radii(gullet, tooth)
    r1, r2, r3 = first.Radius, second.Radius, third.Radius
    place_first_arc(saw, tooth)
    first.EndAngle = 270 - h
    low = r1 + r3 + r2 * 0.25
    high = (r2 + r2) * 0.625
    if gullet.Width < low:
        gullet.Width = low
    elif gullet.Width > high:
        gullet.Width = high
    s = gullet.Width - r1 - r3
    a = Opposite(s, 90 - h)
    b = Adjacent(s, 90 - h)
    t = r3 - r1
    third.CenterX = first.CenterX + Adjacent(t, 90 - h) + a
    third.CenterY = first.CenterY + Opposite(t, 90 - h) - b
    third.StartAngle = 270 - h
    third.EndAngle = 360 - h - gullet.BackAngle
    bridge_by_second(first, second, third, h)
    reduce_angles(first, second, third)


def bound_triple_radii(gullet, tooth):
    if gullet.Radius2 < 0.375:
        gullet.Radius2 = Number(0.375)
    r2 = gullet.Radius2
    if r2 * 0.25 < gullet.Radius1:
        gullet.Radius1 = r2 * 0.25
    elif gullet.Radius1 < 0.03:
        gullet.Radius1 = Number(0.03)
    tooth.FirstArc.Radius = gullet.Radius1
    tooth.SecondArc.Radius = r2
    if r2 * 0.75 < gullet.Radius3:
        gullet.Radius3 = r2 * 0.75
    elif r2 * 0.25 > gullet.Radius3:
        gullet.Radius3 = r2 * 0.25
    tooth.ThirdArc.Radius = gullet.Radius3


def bridge_by_second(first, second, third, h):
    """The second arc by the triangle of the three centres."""
    p = second.Radius - third.Radius
    u = second.Radius - first.Radius
    v = Distance(first.Center, third.Center)
    a1 = AngleFromSides(p, v, u)
    a2 = AngleFromSides(v, p, u)
    if first.CenterY < third.CenterY:
        z = third.CenterY - first.CenterY
        d = AngleFromLegs(z, Leg(v, z)) + a1
    elif first.CenterY > third.CenterY:
        z = first.CenterY - third.CenterY
        d = a1 - AngleFromLegs(z, Leg(v, z))
    else:
        d = a1
    second.CenterX = first.CenterX + Adjacent(u, d)
    second.CenterY = first.CenterY + Opposite(u, d)
    second.StartAngle = first.EndAngle - abs((90 - h) - d)
    second.EndAngle = a2 + second.StartAngle
    first.EndAngle = second.StartAngle
    third.StartAngle = second.EndAngle


@speaking
def PlaceFlatBottom(saw, tooth):
    h, gullet = saw.HookAngle, saw.GulletInfo
    first, second, bottom = tooth.FirstArc, tooth.SecondArc, tooth.BottomLine
    if gullet.Radius2 < 0.125:
        gullet.Radius2 = Number(0.125)
    if gullet.Radius1 > gullet.Radius2:
        gullet.Radius1 = gullet.Radius2
    elif gullet.Radius1 < 0.03:
        gullet.Radius1 = Number(0.03)
    r1, r2 = gullet.Radius1, gullet.Radius2
    first.Radius, second.Radius = r1, r2
    gullet.BottomAngle = min(max(gullet.BottomAngle, ZERO), Number(45))
    slope = gullet.BottomAngle
    low = r2 + r1 + 0.0625
    high = PitchFromLength(saw.Length, saw.NumTeeth) / 2
    if high < low:
        high = low
    if gullet.Width < low:
        gullet.Width = low
    elif gullet.Width > high:
        gullet.Width = high
    f = gullet.Width - r1 - r2
    place_first_arc(saw, tooth)
    first.EndAngle = 270 - slope
    foot = bottom.Start.copy()
    PolarPoint(first.Center, foot, r1, first.EndAngle)
    bottom.Start = Point(RoundTo(foot.X), RoundTo(foot.Y))
    bottom.End.X = RoundTo(bottom.Start.X + Adjacent(f, slope))
    bottom.End.Y = RoundTo(bottom.Start.Y - Opposite(f, slope))
    second.CenterX = RoundTo(Opposite(r2, slope) + bottom.End.X)
    second.CenterY = RoundTo(Adjacent(r2, slope) + bottom.End.Y)
    second.StartAngle = first.EndAngle
    second.EndAngle = 360 - h - gullet.BackAngle
    reduce_angles(first, second)


def PlaceNarrow(saw, tooth):
    tip, arc, top = tooth.FaceLine.Start, tooth.GulletArc, tooth.TopLine
    tooth.BackLine = Line()
    with skip: top.End.X = tip.X + saw.Pitch
    top.End.Y = tip.Y
    a = RoundTo(Direction(top.End, arc.Center))
    length = RoundTo(Distance(arc.Center, top.End))
    t = RoundTo(Leg(length, arc.Radius))
    b = RoundTo(AngleFromLegs(arc.Radius, t))
    with skip: arc.EndAngle = reduced(a + b + 90)
    touch = top.Start.copy()
    PolarPoint(arc.Center, touch, arc.Radius, arc.EndAngle)
    top.Start = Point(RoundTo(touch.X), RoundTo(touch.Y))
    GulletArea(tooth, saw)


def PlaceOShape(saw, tooth):
    h, gullet, arc = saw.HookAngle, saw.GulletInfo, tooth.FirstArc
    if saw.Pitch * 0.5 < gullet.Radius1:
        gullet.Radius1 = saw.Pitch * 0.5
    r1 = gullet.Radius1
    arc.Radius = r1
    with skip: arc.CenterX = tooth.DropLine.End.X + Adjacent(r1, h)
    with skip: arc.CenterY = tooth.DropLine.End.Y - Opposite(r1, h)
    with skip: arc.StartAngle = 180 - h
    arc.EndAngle = Number(270)
    reduce_angles(arc)


def PlaceOBottom(saw, tooth):
    tip, arc, top, bottom = tooth.FaceLine.Start, tooth.FirstArc, tooth.TopLine, tooth.BottomLine
    gullet, r1 = saw.GulletInfo, tooth.FirstArc.Radius
    with skip:
        if r1 * 1.1 >= gullet.Width:
            gullet.Width = r1 * 1.1
        elif saw.Pitch * 0.8 < gullet.Width:
            gullet.Width = saw.Pitch * 0.8
    tooth.BackLine = Line()
    with skip: top.End.X = tip.X + saw.Pitch
    top.End.Y = tip.Y
    bottom.Start.X = arc.CenterX
    with skip: bottom.Start.Y = arc.CenterY - r1
    with skip: bottom.End.X = arc.CenterX - r1 + gullet.Width
    bottom.End.Y = bottom.Start.Y
    top.Start = bottom.End.copy()
    GulletArea(tooth, saw)


@speaking
def PlaceFrostNotch(saw, tooth):
    """A small arc and a short floor in the face; the face then goes on from where they end."""
    h, gullet, r = saw.HookAngle, saw.GulletInfo, saw.GulletInfo.FrostRadius
    arc, face = tooth.FrostArc, tooth.FrostFaceLine
    if gullet.FrostHeight == 0:
        gullet.FrostHeight = gullet.Radius + gullet.Radius + saw.SeatInfo.Height
    if gullet.Width > 0 and gullet.FrostWidth > gullet.Width:
        gullet.FrostWidth = gullet.Width
    elif r + 0.01 > gullet.FrostWidth:
        gullet.FrostWidth = r + 0.01
    arc.Radius = r
    face.Start = tooth.DropLine.Start.copy()
    length = gullet.FrostHeight - saw.SeatInfo.Height - r
    face.End.X = face.Start.X - Opposite(length, h)
    face.End.Y = face.Start.Y - Adjacent(length, h)
    if face.End.Y > face.Start.Y:
        gullet.FrostHeight = gullet.FrostHeight + Distance(face.Start, face.End)
        face.End = face.Start.copy()
    arc.CenterX = face.End.X + Adjacent(r, h)
    arc.CenterY = face.End.Y - Opposite(r, h)
    arc.StartAngle = 180 - h
    arc.EndAngle = gullet.FrostAngle + 270
    place_floor(saw, tooth)
    if tooth.FrostBottomLine.End.X < tooth.FrostBottomLine.Start.X:
        redo_without_floor(saw, tooth)
    arc.StartAngle = reduced(arc.StartAngle)
    arc.EndAngle = reduced(arc.EndAngle)


def place_floor(saw, tooth):
    h, gullet, r = saw.HookAngle, saw.GulletInfo, saw.GulletInfo.FrostRadius
    arc, floor, drop = tooth.FrostArc, tooth.FrostBottomLine, tooth.DropLine
    PolarPoint(arc.Center, floor.Start, r, gullet.FrostAngle + 270)
    m = r + r + gullet.FrostWidth
    floor.End.X = floor.Start.X + Adjacent(m, gullet.FrostAngle)
    floor.End.Y = floor.Start.Y + Opposite(m, gullet.FrostAngle)
    b = polar(arc.Center, r, 270 - h)
    q = Point()
    q.X = b.X + Adjacent(gullet.FrostWidth - r, h)
    q.Y = b.Y - Opposite(gullet.FrostWidth - r, h)
    drop.End = q.copy()
    drop.Start.X = q.X + Opposite(gullet.FrostHeight, h)
    drop.Start.Y = q.Y + Adjacent(gullet.FrostHeight, h)
    face_copy = drop.copy()
    MeetLines(floor.copy(), gullet.FrostAngle, face_copy, 270 - h)
    floor.End = face_copy.End.copy()
    drop.Start = face_copy.End.copy()
    drop.End = face_copy.End.copy()


def redo_without_floor(saw, tooth):
    h, gullet, r = saw.HookAngle, saw.GulletInfo, saw.GulletInfo.FrostRadius
    arc = tooth.FrostArc
    line = Line()
    line.Start.X = RoundTo(arc.CenterX + Adjacent(gullet.FrostWidth - r, h))
    line.Start.Y = RoundTo(arc.CenterY - Opposite(gullet.FrostWidth - r, h))
    line.End.X = RoundTo(line.Start.X - Opposite(r, h))
    line.End.Y = RoundTo(line.Start.Y - Adjacent(r, h))
    _, crossing = LineMeetsArc(line, arc)
    e = crossing or Point()
    e = Point(RoundTo(e.X), RoundTo(e.Y))
    tooth.DropLine.Start = e
    arc.EndAngle = RoundTo(DirectionFromCenter(arc.Center, r, e))
    tooth.FrostBottomLine.End = tooth.FrostBottomLine.Start.copy()
    gullet.FrostAngle = RoundTo(arc.EndAngle - 270)
