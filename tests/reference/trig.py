"""Plane geometry of the second computation of the band: triangles, directions, areas, and the crossing tests.

Angles are degrees, counter-clockwise from +X.  Every function deals with its own failures; none speaks of them.
The cuts of RoundTo stand where they stand because coordinates are compared for equality further on.
"""

import math

from failing import Failure, Number, RoundTo, ZERO, finite, root, skip
from record import Arc, Line, Point

PI = 3.14159265358979
ARC_FACTOR = 0.01745  # degrees to radians in the area of a segment only; not pi / 180, on purpose


def radians(angle):
    return finite(finite(float(angle) * PI) / 180)


def degrees(value):
    return finite(finite(float(value) * 180) / PI)


def Opposite(hyp, angle):
    try:
        return hyp * Number(math.sin(radians(angle)))
    except Failure:
        return ZERO


def Adjacent(hyp, angle):
    try:
        return hyp * Number(math.cos(radians(angle)))
    except Failure:
        return ZERO


def TanSide(adj, angle):
    try:
        return adj * Number(math.tan(radians(angle)))
    except Failure:
        return ZERO


def Hypotenuse(a, b):
    try:
        return root(a * a + b * b)
    except Failure:
        return ZERO


def Leg(hyp, a):
    try:
        return root(hyp * hyp - a * a)
    except Failure:
        return ZERO


def AngleFromLegs(opp, adj):
    try:
        return degrees(math.atan(opp / adj))
    except Failure:
        return ZERO


def AngleFromSides(a, b, c):
    """Law of cosines.  A zero side gives 90, sides that cannot close give 0."""
    k = ZERO
    with skip: k = (b * b + c * c - a * a) / (2 * b * c)
    try:
        return degrees(math.atan(-k / root(1 - k * k)) + 2 * math.atan(1.0))
    except Failure:
        return ZERO


def RadiusFromArea(area):
    try:
        return RoundTo(root(RoundTo(area / PI, 15)))
    except Failure:
        return ZERO


def Circumference(d):
    try:
        return RoundTo(d * PI)
    except Failure:
        return ZERO


def Distance(p, q):
    try:
        return RoundTo(Hypotenuse(abs(p.X - q.X), abs(p.Y - q.Y)))
    except Failure:
        return ZERO


def Direction(start, to):
    """The ray's angle.  A dx that is not 0 but is cut to 0 gives 360 or 180: a trap that is part of it."""
    dx = dy = ZERO
    with skip: dx = to.X - start.X
    with skip: dy = to.Y - start.Y
    if dx == 0 and dy > 0:
        return Number(90)
    if dx == 0 and dy < 0:
        return Number(270)
    if dy == 0 and dx > 0:
        return ZERO
    if dy == 0 and dx < 0:
        return Number(180)
    a = RoundTo(AngleFromLegs(RoundTo(abs(dy)), RoundTo(abs(dx))))
    if dx > 0 and dy > 0:
        return RoundTo(a)
    if dx > 0 and dy < 0:
        return RoundTo(360 - a)
    if dx < 0 and dy > 0:
        return RoundTo(180 - a)
    if dx < 0 and dy < 0:
        return RoundTo(180 + a)
    return ZERO


def DirectionFromCenter(center, radius, point):
    return Direction(center, point)


def PolarPoint(start, out, dist, angle):
    """Writes `out`; a negative angle leaves it as it was."""
    if angle == 360:
        with skip: out.X = start.X + dist
        out.Y = start.Y
    elif angle > 270:
        b = 360 - angle
        with skip: out.X = start.X + Adjacent(dist, b)
        with skip: out.Y = start.Y - Opposite(dist, b)
    elif angle == 270:
        out.X = start.X
        with skip: out.Y = start.Y - dist
    elif angle > 180:
        b = angle - 180
        with skip: out.X = start.X - Adjacent(dist, b)
        with skip: out.Y = start.Y - Opposite(dist, b)
    elif angle == 180:
        with skip: out.X = start.X - dist
        out.Y = start.Y
    elif angle > 90:
        b = 180 - angle
        with skip: out.X = start.X - Adjacent(dist, b)
        with skip: out.Y = start.Y + Opposite(dist, b)
    elif angle == 90:
        out.X = start.X
        with skip: out.Y = start.Y + dist
    elif angle > 0:
        with skip: out.X = start.X + Adjacent(dist, angle)
        with skip: out.Y = start.Y + Opposite(dist, angle)
    elif angle == 0:
        with skip: out.X = start.X + dist
        out.Y = start.Y


def polar(start, dist, angle):
    """A fresh point by PolarPoint, which is (0, 0) for a negative angle."""
    out = Point()
    PolarPoint(start, out, dist, angle)
    return out


def NormalizeAngle(a):
    """Into 0 to 360.  360 itself stays, 720 becomes 0."""
    if a > 360:
        a = RoundTo(a - 360 * Number(round((a - 180) / 360)))
        if a == 360:
            a = ZERO
    while a < 0:
        a = a + 360
    return a


def turned(point, angle):
    """The point turned about the origin (RotatePoint)."""
    origin = Point()
    out = point.copy()
    PolarPoint(origin, out, Distance(origin, point), NormalizeAngle(Direction(origin, point) + angle))
    return out


def turned_and_cut(point, angle):
    out = turned(point, angle)
    return Point(RoundTo(out.X), RoundTo(out.Y))


def RotateLine(line, angle):
    return Line(turned_and_cut(line.Start, angle), turned_and_cut(line.End, angle))


def RotateArc(arc, angle):
    out = Arc()
    center = turned_and_cut(arc.Center, angle)
    out.CenterX, out.CenterY, out.Radius = center.X, center.Y, arc.Radius
    out.StartAngle = NormalizeAngle(arc.StartAngle + angle)
    out.EndAngle = NormalizeAngle(arc.EndAngle + angle)
    return out


def OffsetLine(line, dist):
    """The parallel at `dist` to the line's right."""
    d = Direction(line.Start, line.End)
    out = RotateLine(line, 360 - d)
    with skip: out.Start.Y = out.Start.Y - dist
    with skip: out.End.Y = out.End.Y - dist
    return RotateLine(out, d)


def TriangleArea(a, b, c):
    """Height of b over the base a to c; the sign follows the side."""
    d = 360 - Direction(a, c)
    a, b, c = turned_and_cut(a, d), turned_and_cut(b, d), turned_and_cut(c, d)
    try:
        return RoundTo(((b.Y - c.Y) * (a.X - c.X)) / 2)
    except Failure:
        return ZERO


def QuadArea(a, b, c, d):
    try:
        return TriangleArea(a, b, c) + TriangleArea(a, c, d)
    except Failure:
        return ZERO


def SegmentArea(start, end, radius, sweep):
    """Between an arc and its chord.  A chord beyond the diameter leaves the whole radius as the rise."""
    r, sweep = RoundTo(radius), RoundTo(sweep)
    chord = Distance(end, start)
    arc = half = rise = ZERO
    with skip: arc = RoundTo(r * sweep * ARC_FACTOR)
    with skip: half = 0.5 * root(4 * r * r - chord * chord)
    with skip: rise = RoundTo(r - half)
    try:
        return RoundTo(((r * arc) - ((r - rise) * chord)) * 0.5)
    except Failure:
        return ZERO


def MeetLines(a, angle_a, b, angle_b):
    """Two lines whose ends have passed each other are made to meet, in a.Start and b.End."""
    s = u = v = ZERO
    with skip: s = (a.Start.Y - a.End.Y) / (a.End.X - a.Start.X)
    with skip: u = (b.End.Y - b.Start.Y) / (b.End.X - b.Start.X)
    with skip: v = (b.End.X - b.Start.X) / (b.End.Y - b.Start.Y)
    dy = dx = w = ZERO
    for _ in range(11):
        with skip: dy = b.End.Y - a.End.Y
        with skip: dx = a.End.X - b.End.X
        with skip: w = dy - dx * s
        if w <= 0 and dx <= 0:
            return False
        if w < 0:
            with skip: b.End.Y = b.End.Y + abs(w) * 1.01
            with skip: b.End.X = b.End.X + abs(w) * 1.01 * v
        elif dx < 0:
            with skip: b.End.X = b.End.X - abs(dx) * 1.01
            with skip: b.End.Y = b.End.Y - abs(dx) * 1.01 * u
        else:
            break
    if angle_a == 180:
        meet_level(a, b, angle_b)
    else:
        meet_by_sines(a, angle_a, angle_b, dy, dx)
    b.End = a.Start.copy()
    return True


def meet_level(a, b, angle_b):
    e = g = ZERO
    with skip: e = abs(angle_b - 270)
    with skip: g = TanSide(b.End.Y - a.End.Y, e) + abs(a.End.X - b.End.X)
    with skip: a.Start.X = a.End.X - g
    a.Start.Y = a.End.Y


def meet_by_sines(a, angle_a, angle_b, dy, dx):
    h = Hypotenuse(dy, dx)
    q = m = n = length = p = ZERO
    with skip: q = AngleFromLegs(dy, dx) - (180 - angle_a)
    with skip: m = abs(angle_b - angle_a)
    with skip: n = 180 - (q + m)
    with skip: length = h * Number(math.sin(radians(n))) / Number(math.sin(radians(m)))
    with skip: p = 180 - angle_a
    with skip: a.Start.X = a.End.X - Adjacent(length, p)
    with skip: a.Start.Y = a.End.Y + Opposite(length, p)


def cut_difference(p, q):
    """RoundTo of an absolute difference; 0 where it fails."""
    try:
        return RoundTo(abs(p - q))
    except Failure:
        return ZERO


def lean(start, to):
    """An angle measured from the vertical: 90 straight down, more toward +X."""
    angle = RoundTo(AngleFromLegs(cut_difference(to.X, start.X), cut_difference(to.Y, start.Y)))
    if to.X > start.X:
        return RoundTo(90 + angle)
    if to.X < start.X:
        return RoundTo(90 - angle)
    return Number(90)


def LineMeetsArc(line, arc):
    """(hit, crossing) of a line, taken from its start through its end and beyond, with an arc.

    A hit may come without a crossing: the caller's point is then left as it was.
    """
    r, center = arc.Radius, arc.Center
    line_angle = lean(line.Start, line.End)
    end = line.End.copy()
    if Distance(end, center) < r:
        push_out(end, r, line_angle)
    dist = Distance(end, center)
    spread = RoundTo(AngleFromLegs(r, Leg(dist, r)))
    center_angle = lean(center, end)
    if line_angle <= RoundTo(center_angle - spread) or line_angle >= RoundTo(center_angle + spread):
        return False, None
    gap = cut_difference(center_angle, line_angle)
    offset = RoundTo(Opposite(dist, gap))
    along = RoundTo(Adjacent(dist, gap))
    half = RoundTo(Leg(r, offset))
    tilt = RoundTo(AngleFromLegs(offset, half))
    far_length = ZERO
    with skip: far_length = along + half
    far = back_along(end, line_angle, far_length)
    near = back_along(end, line_angle, cut_difference(half, along))
    if center_angle > line_angle:
        angle_near, angle_far = RoundTo(line_angle - tilt), RoundTo(line_angle + 180 + tilt)
    elif center_angle < line_angle:
        angle_near, angle_far = RoundTo(line_angle + tilt), RoundTo(line_angle + 180 - tilt)
    else:
        angle_near, angle_far = line_angle, RoundTo(line_angle + 180)
        far = end.copy()
        with skip: far.Y = end.Y + RoundTo(far_length)
        near = end.copy()  # the line's own end, on purpose
    return chosen(arc, NormalizeAngle(angle_near), NormalizeAngle(angle_far), near, far)


def push_out(end, r, line_angle):
    """An end inside the circle goes down by the diameter."""
    e = cut_difference(line_angle, 90)
    if line_angle > 90:
        with skip: end.X = end.X + Opposite(2 * r, e)
        with skip: end.Y = end.Y - Adjacent(2 * r, e)
    elif line_angle < 90:
        with skip: end.X = end.X - Opposite(2 * r, e)
        with skip: end.Y = end.Y - Adjacent(2 * r, e)
    else:
        with skip: end.Y = end.Y - 2 * r


def back_along(end, line_angle, length):
    e = cut_difference(line_angle, 90)
    out = end.copy()
    if line_angle > 90:
        with skip: out.X = end.X - RoundTo(Opposite(length, e))
        with skip: out.Y = end.Y + RoundTo(Adjacent(length, e))
    elif line_angle < 90:
        with skip: out.X = end.X + RoundTo(Opposite(length, e))
        with skip: out.Y = end.Y + RoundTo(Adjacent(length, e))
    else:
        with skip: out.Y = end.Y + RoundTo(length)
    return out


def chosen(arc, angle_near, angle_far, near, far):
    s, e = arc.StartAngle, arc.EndAngle
    nothing = (False, None)
    if s > angle_far:
        if e < angle_near:
            return nothing
        if e > angle_far:
            return (True, near) if e < s else nothing
        return True, far
    if s < angle_near:
        if e < angle_near:
            return (True, near) if e < s else nothing
        return (True, near) if e > angle_far else (True, far)
    if e > angle_far or e < s:
        return True, near
    if e < angle_far:
        return nothing
    return True, None


def slope_of(segment):
    """The slope of a segment, 0 to 180."""
    start, end = segment.Start, segment.End
    a = RoundTo(AngleFromLegs(cut_difference(start.Y, end.Y), cut_difference(start.X, end.X)))
    if start.X == end.X:
        return Number(90)
    if start.Y == end.Y:
        return ZERO
    rising = (start.X > end.X) == (start.Y > end.Y)
    return a if rising else RoundTo(180 - a)


def LineMeetsSegment(line, segment):
    """(hit, crossing) of a line, looked at from its end, with a segment."""
    seg_angle = slope_of(segment)
    line_angle = lean(line.Start, line.End)
    end = line.End
    high, low = lean(segment.End, end), lean(segment.Start, end)
    dist_high = Distance(end, segment.End)
    if low > high:
        high, low = low, high
        dist_high = Distance(end, segment.Start)
    if line_angle >= high or line_angle <= low:
        return False, None
    n = RoundTo(high - line_angle)
    foot = RoundTo(Opposite(dist_high, n))
    along = RoundTo(Adjacent(dist_high, n))
    m = RoundTo(line_angle - seg_angle)
    if m > 90:
        with skip: along = RoundTo(along - TanSide(foot, RoundTo(m - 90)))
    elif m < 90:
        with skip: along = RoundTo(along + TanSide(foot, RoundTo(90 - m)))
    e = cut_difference(line_angle, 90)
    out = end.copy()
    if line_angle > 90:
        with skip: out.X = end.X - Opposite(along, e)
        with skip: out.Y = end.Y + Adjacent(along, e)
    elif line_angle < 90:
        with skip: out.X = end.X + Opposite(along, e)
        with skip: out.Y = end.Y + Adjacent(along, e)
    else:
        with skip: out.Y = end.Y + along
    return True, out
