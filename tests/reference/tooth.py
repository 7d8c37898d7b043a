"""The steps that every tooth shares: face, single arc, depth, back, top, and the corner between back and top.

Second computation of the band.  T is the tip, h the hook angle, all coordinates inches in the band's plane.
"""

from failing import Number, RoundTo, ZERO, root, skip
from transforms import GulletArea
from trig import (Adjacent, AngleFromLegs, Direction, DirectionFromCenter, Distance, Leg, MeetLines, OffsetLine,
                  Opposite, PolarPoint, TanSide)

ONE_ARC = (1, 2, 7)


def reduced(angle):
    """Once round at most; the outlines know no other reduction."""
    if angle > 360:
        angle = angle - 360
    if angle < 0:
        angle = angle + 360
    return angle


def reduce_angles(*arcs):
    for arc in arcs:
        with skip: arc.StartAngle = reduced(arc.StartAngle)
        with skip: arc.EndAngle = reduced(arc.EndAngle)


def PlaceFace(saw, tooth):
    h, face, seat, drop = saw.HookAngle, tooth.FaceLine, tooth.SeatLine, tooth.DropLine
    face.Start.X = ZERO
    with skip: face.Start.Y = saw.Width - saw.TipClear
    if saw.SeatInfo.State:
        along, across = saw.SeatInfo.Height, saw.SeatInfo.Width
        with skip: face.End.X = face.Start.X - Opposite(along, h)
        with skip: face.End.Y = face.Start.Y - Adjacent(along, h)
        seat.Start = face.End.copy()
        with skip: seat.End.X = seat.Start.X + Adjacent(across, h)
        with skip: seat.End.Y = seat.Start.Y - Opposite(across, h)
    else:
        stub = Number(0.1)
        if saw.GulletInfo.Radius > 0:
            stub = saw.GulletInfo.Radius / 12
        with skip: face.End.X = face.Start.X - Opposite(stub, h)
        with skip: face.End.Y = face.Start.Y - Adjacent(stub, h)
        seat.Start = face.End.copy()
        seat.End = face.End.copy()
    drop.Start = seat.End.copy()
    drop.End = seat.End.copy()


def PlaceSingleArc(saw, tooth):
    h, gullet, arc = saw.HookAngle, saw.GulletInfo, tooth.GulletArc
    arc.Radius = gullet.Radius1 if saw.ToothStyle == 9 else gullet.Radius
    with skip: arc.CenterX = tooth.DropLine.End.X + Adjacent(arc.Radius, h)
    with skip: arc.CenterY = tooth.DropLine.End.Y - Opposite(arc.Radius, h)
    with skip: arc.StartAngle = 180 - h
    with skip: arc.EndAngle = 360 - h - gullet.BackAngle
    reduce_angles(arc)
    if saw.ToothStyle == 9:
        tooth.FirstArc = arc.copy()


def depth_arc(saw, tooth):
    """The arc whose centre tells how deep the gullet lies, and its radius."""
    style = saw.ToothStyle
    if style in ONE_ARC:
        return tooth.GulletArc, saw.GulletInfo.Radius
    if style in (4, 6):
        arc = tooth.SecondArc
    elif style == 5:
        arc = tooth.ThirdArc
    elif style == 9 and tooth.ThirdArc.Radius > 0:
        arc = tooth.ThirdArc
    elif style == 9 and tooth.SecondArc.Radius > 0:
        arc = tooth.SecondArc
    else:
        arc = tooth.FirstArc
    return arc, arc.Radius


def MinimumDepth(saw, tooth):
    arc, r = depth_arc(saw, tooth)
    depth = ZERO
    with skip: depth = saw.Width - saw.TipClear - arc.CenterY + r
    if saw.ToothStyle in ONE_ARC and saw.SeatInfo.State:
        if saw.HookAngle >= 0:
            with skip: depth = depth - arc.Radius * 0.95
        else:
            with skip: depth = depth - (arc.Radius * 0.95) / abs(saw.HookAngle / 5)
    saw.GulletInfo.MinDepth = depth
    return depth


def move(point, dx, dy):
    with skip: point.X = point.X + dx
    with skip: point.Y = point.Y + dy


def move_center(arc, dx, dy):
    with skip: arc.CenterX = arc.CenterX + dx
    with skip: arc.CenterY = arc.CenterY + dy


def collapse(line, point):
    line.Start = point.copy()
    line.End = point.copy()


def chain_of(style, tooth):
    if style in ONE_ARC:
        return [tooth.GulletArc]
    if style in (4, 6):
        return [tooth.FirstArc, tooth.SecondArc]
    if style == 8:
        return [tooth.FirstArc]
    return [tooth.FirstArc, tooth.SecondArc, tooth.ThirdArc]


def ApplyDepth(saw, tooth):
    style, h = saw.ToothStyle, saw.HookAngle
    arc, r = depth_arc(saw, tooth)
    if style == 9 and not tooth.ThirdArc.Radius > 0 and not tooth.SecondArc.Radius > 0:
        arc, r = tooth.GulletArc, saw.GulletInfo.Radius
    d = ZERO
    with skip: d = saw.GulletInfo.Depth - (saw.Width - saw.TipClear - arc.CenterY + r)
    s = TanSide(d, h)
    if style in ONE_ARC:
        s = RoundTo(s)
    if d > 0:
        lower(saw, tooth, s, d)
    elif d < 0 and style in ONE_ARC:
        raise_arc(tooth, abs(d))
    elif d < 0 and style == 9 and tooth.SecondArc.Radius == 0:
        raise_frost_arc(tooth, abs(d))


def lower(saw, tooth, s, d):
    """The whole chain goes down the face."""
    for arc in chain_of(saw.ToothStyle, tooth):
        move_center(arc, -s, -d)
    if saw.ToothStyle == 6:
        move(tooth.BottomLine.Start, -s, -d)
        move(tooth.BottomLine.End, -s, -d)
    if saw.SeatInfo.State or saw.ToothStyle == 9:
        move(tooth.DropLine.End, -s, -d)
        if not saw.SeatInfo.State:
            collapse(tooth.SeatLine, tooth.FaceLine.End)
    else:
        move(tooth.FaceLine.End, -s, -d)
        collapse(tooth.SeatLine, tooth.FaceLine.End)
        collapse(tooth.DropLine, tooth.FaceLine.End)


def slide_up(arc, point, e):
    """How far the circle slides along when it rises by e and still goes through the point: (k, w, m)."""
    k = w = m = ZERO
    with skip: k = point.Y - arc.CenterY - e
    with skip: w = root(arc.Radius * arc.Radius - k * k)
    with skip: m = w - (arc.CenterX - point.X)
    return k, w, m


def raise_arc(tooth, e):
    """The gullet is shallower than its radius asks."""
    arc, seat_end = tooth.GulletArc, tooth.SeatLine.End
    _, _, m = slide_up(arc, seat_end, e)
    move_center(arc, m, e)
    arc.StartAngle = DirectionFromCenter(arc.Center, arc.Radius, seat_end)


def raise_frost_arc(tooth, e):
    tooth.GulletArc = tooth.FirstArc.copy()
    arc, drop = tooth.GulletArc, tooth.DropLine
    k, w, m = slide_up(arc, drop.Start, e)
    a = b = ZERO
    with skip: a = AngleFromLegs(drop.End.Y - arc.CenterY, arc.CenterX - drop.End.X)
    with skip: b = AngleFromLegs(k, w)
    drop.End = drop.Start.copy()
    move_center(arc, m, e)
    with skip: arc.StartAngle = arc.StartAngle + (a - b)
    tooth.FirstArc = arc.copy()


def last_arc(saw, tooth):
    style = saw.ToothStyle
    if style in (4, 6):
        return tooth.SecondArc
    if style == 5:
        return tooth.ThirdArc
    if style == 9:
        for arc in (tooth.ThirdArc, tooth.SecondArc, tooth.FirstArc):
            if arc.Radius > 0:
                return arc
    return tooth.GulletArc


def BackAngleLimit(saw, tooth):
    """The largest back angle that clears the next tip, by one per cent of the tangent's angle."""
    arc = last_arc(saw, tooth)
    tip = tooth.FaceLine.Start.copy()
    with skip: tip.X = tip.X + saw.Pitch
    a = RoundTo(Direction(arc.Center, tip))
    if a > 180:
        a = a - 360
    length = RoundTo(Distance(arc.Center, tip))
    t = RoundTo(Leg(length, arc.Radius))
    b = RoundTo(AngleFromLegs(arc.Radius, t))
    limit = ZERO
    with skip: limit = RoundTo((90 - saw.HookAngle) - (b * 1.01 + a))
    return limit


def PlaceBackLine(saw, tooth, arc, radius_field):
    """Tangent to the end of the last arc, and drawn long; the top line cuts it."""
    back, gullet = tooth.BackLine, saw.GulletInfo
    a = length = ZERO
    with skip: a = saw.HookAngle + gullet.BackAngle
    with skip: back.Start.X = arc.CenterX + Adjacent(arc.Radius, a)
    with skip: back.Start.Y = arc.CenterY - Opposite(arc.Radius, a)
    with skip: length = radius_field + gullet.Depth + (gullet.BackAngle + saw.HookAngle) * 0.014
    with skip: back.End.X = back.Start.X + Opposite(length, a)
    with skip: back.End.Y = back.Start.Y + Adjacent(length, a)


def back_of_style(saw, tooth):
    gullet = saw.GulletInfo
    style = saw.ToothStyle
    third = style == 5 or (style == 9 and gullet.Radius3 > 0)
    second = style in (4, 6) or (style == 9 and gullet.Radius2 > 0)
    if third:
        PlaceBackLine(saw, tooth, tooth.ThirdArc, gullet.Radius3)
    elif second:
        PlaceBackLine(saw, tooth, tooth.SecondArc, gullet.Radius2)
    else:
        if style == 9:
            tooth.GulletArc = tooth.FirstArc.copy()
        PlaceBackLine(saw, tooth, tooth.GulletArc, gullet.Radius)


def PlaceTopLine(saw, tooth):
    if saw.NumTeeth <= 0:
        return
    tip, top = tooth.FaceLine.Start, tooth.TopLine
    with skip: top.End.X = tip.X + saw.Pitch
    top.End.Y = tip.Y
    with skip: PolarPoint(top.End, top.Start, saw.Pitch, 180 + saw.ClearAngle)
    FitBackRadius(tooth)
    GulletArea(tooth, saw)


def FitBackRadius(tooth):
    """Rounds the corner of back and top, with a radius that falls by 0.1 or 0.025 until it fits.

    At most 201 tries.  A try at radius 0 that fails is repeated by every later one, so the rest is left out.
    """
    for _ in range(201):
        r = tooth.BackArc.Radius
        trial = tooth.copy()
        met, fits = fit_once(trial, r)
        if fits:
            tooth.BackArc, tooth.BackLine, tooth.TopLine = trial.BackArc, trial.BackLine, trial.TopLine
            return
        tooth.BackArc.Radius = fallen(r, 0.025 if met else 0.1)
        if r == 0:
            return


def fallen(radius, step):
    radius = radius - step
    return ZERO if radius < 0 else radius


def fit_once(trial, r):
    """One try on a copy of the tooth: (the lines met, the arc fits)."""
    back, top, arc = trial.BackLine, trial.TopLine, trial.BackArc
    back_dir, top_dir = Direction(back.Start, back.End), Direction(top.Start, top.End)
    top_offset, back_offset = OffsetLine(top, r), OffsetLine(back, r)
    lengthen(top_offset.Start, top_offset.End, top_offset.Start, -1)
    lengthen(back_offset.Start, back_offset.End, back_offset.End, 1)
    if not MeetLines(top_offset, top_dir, back_offset, back_dir):
        return False, False
    arc.CenterX, arc.CenterY = top_offset.Start.X, top_offset.Start.Y
    arc.StartAngle = top_dir + 90
    arc.EndAngle = back_dir + 90
    if r != 0 and not arc.EndAngle < Direction(arc.Center, back.Start):
        return True, False
    PolarPoint(arc.Center, back.End, r, arc.EndAngle)
    PolarPoint(arc.Center, top.Start, r, arc.StartAngle)
    return True, True


def lengthen(start, end, moved, sense):
    """Moves one end of a line by twice its vector, back (-1) or forward (1)."""
    dx = dy = ZERO
    with skip: dx = end.X - start.X
    with skip: dy = end.Y - start.Y
    with skip: moved.X = moved.X + dx * 2 * sense
    with skip: moved.Y = moved.Y + dy * 2 * sense
