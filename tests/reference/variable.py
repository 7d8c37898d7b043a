"""Bands that repeat a segment of teeth of different pitch and depth, for the second computation of the band.

The two layouts stop at their first failure and say so; reshaping a single tooth skips and goes on.
"""

from failing import Failure, RoundTo, ZERO, root, skip
from record import ARCS, LINES
from tooth import FitBackRadius, collapse, move, move_center
from transforms import AddOtherEdge, MirrorBandX, RoundTooth, TranslateTooth, area_of, shift_arc, shift_line
from trig import AngleFromLegs, DirectionFromCenter, PolarPoint, TanSide


class TenValues:
    """Ten working values, 0 to 9; any other index fails."""

    def __init__(self, values):
        self.values = list(values)

    def check(self, k):
        if not 0 <= k <= 9:
            raise Failure(9)

    def __getitem__(self, k):
        self.check(k)
        return self.values[k]

    def __setitem__(self, k, value):
        self.check(k)
        self.values[k] = value


def speaking(layout):
    def guarded(saw, teeth, rules, messages):
        try:
            layout(saw, teeth, rules)
        except Failure as failure:
            messages.append(f"Error in function CalculateVariableSaw  Error Number{failure.number}")

    return guarded


@speaking
def LayOutVariableBand(saw, teeth, rules):
    from band import JoinBand  # band.py leans on this file too

    base, n, segment_length = place_segment(saw, teeth)
    segments = round((0.0 + saw.NumTeeth) / n)
    offset = ZERO
    for s in range(1, segments):
        offset = offset + segment_length
        for k in range(1, n + 1):
            TranslateTooth(teeth[k], teeth[s * n + k], offset, ZERO)
    JoinBand(saw, teeth, saw.NumTeeth)
    if rules.TeethDirection == 2:
        MirrorBandX(teeth, saw.NumTeeth)
    if base.BothEdges:
        teeth[0].BothEdges = -1
        AddOtherEdge(teeth, saw.NumTeeth)


@speaking
def LayOutVariableSegment(saw, teeth, rules):
    from band import JoinBand

    _, n, segment_length = place_segment(saw, teeth)
    TranslateTooth(teeth[1], teeth[n + 1], segment_length, ZERO)
    JoinBand(saw, teeth, n + 1)
    if rules.TeethDirection == 2:
        MirrorBandX(teeth, n + 1)


def place_segment(saw, teeth):
    """The first tooth and one whole segment after it; writes depths and areas back: (base, n, segment length)."""
    from band import JoinAllowance

    teeth.resize((saw.NumTeeth + 1) * 2)
    average = saw.Length * 12 / saw.NumTeeth
    n = saw.GeneralInfo.NumVariables
    p = TenValues(saw.GeneralInfo.VarPitch)
    d = TenValues(saw.GeneralInfo.VarDepth)
    a = TenValues(saw.DesignInfo.VarArea)
    allow = JoinAllowance(saw)
    TranslateTooth(teeth[0], teeth[0], -(p[n - 1] * 0.5 - allow), ZERO)
    segment_length = RoundTo(n * average)
    back = p[n - 1] - average
    body = ZERO
    base = teeth[0].copy()
    for index in range(n + 1):
        k = n - 1 if index == 0 else index - 1
        place_one(saw, base, teeth[index], k, d, a, back, body)
        body = average + back
        back = back + (p[0] if index == 0 else p[k + 1])
    saw.GeneralInfo.VarDepth = d.values
    saw.DesignInfo.VarArea = a.values
    return base, n, segment_length


def place_one(saw, base, target, k, d, a, back, body):
    work = base.copy()
    if saw.GeneralInfo.VariableDepth:
        depth = d[k]
        if depth < saw.GulletInfo.MinDepth:
            depth = saw.GulletInfo.MinDepth
        SetToothDepth(saw, work, depth)
        d[k] = depth
        a[k] = area_alone(work, saw)
    else:
        a[k] = base.Area
    TranslateToothParts(work, target, back, body)
    FitBackRadius(target)
    RoundTooth(target)


def area_alone(tooth, saw):
    """The gullet area of one tooth, on a copy; the record is not touched."""
    fitted = tooth.copy()
    FitBackRadius(fitted)
    area = ZERO
    with skip: area = area_of(fitted, saw)
    return area


def TranslateToothParts(source, target, back_dx, body_dx):
    """All pieces along X by `body_dx`, the top line by `back_dx`; every coordinate is cut."""
    target.Style, target.BothEdges = source.Style, source.BothEdges
    for name in LINES:
        dx = back_dx if name == "TopLine" else body_dx
        shift_line(getattr(source, name), getattr(target, name), dx, ZERO)
    for name in ARCS:
        shift_arc(getattr(source, name), getattr(target, name), body_dx, ZERO)


def deciding_arc(saw, tooth):
    style = saw.ToothStyle
    if style in (4, 6):
        return tooth.SecondArc, tooth.SecondArc.Radius
    if style == 5:
        return tooth.ThirdArc, tooth.ThirdArc.Radius
    if style == 9:
        for arc in (tooth.ThirdArc, tooth.SecondArc):
            if arc.Radius > 0:
                return arc, arc.Radius
        return tooth.GulletArc, saw.GulletInfo.Radius
    return tooth.GulletArc, tooth.GulletArc.Radius


def SetToothDepth(saw, tooth, depth):
    arc, r = deciding_arc(saw, tooth)
    wanted = saw.GulletInfo.Depth if saw.ToothStyle == 9 else depth  # style 9 heeds its own depth alone
    current = delta = ZERO
    with skip: current = (saw.Width - saw.TipClear - arc.CenterY) + r
    with skip: delta = wanted - current
    if saw.ToothStyle == 9:
        set_frost_depth(saw, tooth, delta)
    elif saw.ToothStyle in (4, 5, 6):
        if delta != 0:
            move_chain(saw, tooth, -TanSide(delta, saw.HookAngle), -delta)
    elif delta > 0:
        move_single(saw, tooth, -TanSide(delta, saw.HookAngle), -delta)
    elif delta < 0:
        raise_single(saw, tooth, depth, abs(delta))


def move_line(line, dx, dy):
    move(line.Start, dx, dy)
    move(line.End, dx, dy)


def move_tip_end(saw, tooth, dx, dy):
    if saw.SeatInfo.State:
        move(tooth.DropLine.End, dx, dy)
    else:
        move(tooth.FaceLine.End, dx, dy)
        collapse(tooth.SeatLine, tooth.FaceLine.End)
        collapse(tooth.DropLine, tooth.SeatLine.End)


def move_chain(saw, tooth, dx, dy):
    move_tip_end(saw, tooth, dx, dy)
    move_center(tooth.FirstArc, dx, dy)
    move_center(tooth.SecondArc, dx, dy)
    if saw.ToothStyle == 5:
        move_center(tooth.ThirdArc, dx, dy)
    if saw.ToothStyle == 6:
        move_line(tooth.BottomLine, dx, dy)
    move_line(tooth.BackLine, dx, dy)


def move_single(saw, tooth, dx, dy):
    move_tip_end(saw, tooth, dx, dy)
    move_center(tooth.GulletArc, dx, dy)
    move_line(tooth.BackLine, dx, dy)


def raise_single(saw, tooth, depth, delta):
    """The tooth gets shallower by delta."""
    run = TanSide(delta, saw.HookAngle)
    if not saw.SeatInfo.State:
        move_single(saw, tooth, run, delta)
        return
    arc, seat_end, drop = tooth.GulletArc, tooth.SeatLine.End, tooth.DropLine
    if depth < tooth.ArcDepth:
        _, _, run = slide(arc, seat_end, delta)
        move_center(arc, run, delta)
        collapse(drop, seat_end)
        arc.StartAngle = DirectionFromCenter(arc.Center, arc.Radius, seat_end)
    else:
        move_center(arc, run, delta)
        drop.Start = seat_end.copy()
        PolarPoint(arc.Center, drop.End, arc.Radius, arc.StartAngle)
    move_line(tooth.BackLine, run, delta)


def slide(arc, point, delta):
    h = w = run = ZERO
    with skip: h = (point.Y - arc.CenterY) - delta
    with skip: w = root(arc.Radius * arc.Radius - h * h)
    with skip: run = w - (arc.CenterX - point.X)
    return h, w, run


def set_frost_depth(saw, tooth, delta):
    drop = tooth.DropLine
    if delta > 0:
        run = TanSide(delta, saw.HookAngle)
        move(drop.End, -run, -delta)
        for arc in (tooth.FirstArc, tooth.SecondArc, tooth.ThirdArc):
            move_center(arc, -run, -delta)
        if not saw.SeatInfo.State:
            collapse(tooth.SeatLine, tooth.FaceLine.End)
    elif delta < 0 and tooth.SecondArc.Radius == 0:
        delta = abs(delta)
        tooth.GulletArc = tooth.FirstArc.copy()
        arc = tooth.GulletArc
        h, w, run = slide(arc, drop.Start, delta)
        before = after = ZERO
        with skip: before = AngleFromLegs(drop.End.Y - arc.CenterY, arc.CenterX - drop.End.X)
        with skip: after = AngleFromLegs(h, w)
        drop.End = drop.Start.copy()
        move_center(arc, run, delta)
        with skip: arc.StartAngle = arc.StartAngle + (before - after)
        tooth.FirstArc = arc.copy()


def CanUseVariablePitch(style, num_teeth):
    """1 allowed, 2 not with this style, 3 not with this number of teeth."""
    if style in (0, 7, 8):
        return 2
    return 1 if any(num_teeth % n == 0 for n in (3, 4, 5, 6, 7)) else 3
