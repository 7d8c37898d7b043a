"""The whole calculation: from a record to its teeth and their drawing list.

Second computation of the band, written apart from the program, slow and plain, so that the two can be held
against each other.
"""

from entities import BuildBandEntities, BuildSegmentEntities, EntityList
from failing import RoundTo, ZERO, rules, skip, whole_i16
from record import Line, Point, Teeth
from styles import PitchFromLength, PlaceGulletArcs, PlaceNarrow, PlaceOBottom
from tooth import (ApplyDepth, BackAngleLimit, FitBackRadius, MinimumDepth, PlaceFace, PlaceTopLine, back_of_style)
from transforms import (AddOtherEdge, FindJoinElement, MirrorBandX, RoundTooth, TranslateTooth, TrimToothEnd,
                        TrimToothStart)
from trig import Direction, Distance
from variable import LayOutVariableBand, LayOutVariableSegment

MOST_ROUNDS = 1001


def ResetVariablePitch(saw):
    general = saw.GeneralInfo
    general.VariablePitch = general.VariableDepth = general.NumVariables = 0
    saw.DesignInfo.SegmentLength = ZERO
    saw.DesignInfo.VarPattern = 0
    general.VarPitch = [ZERO] * 7 + general.VarPitch[7:]
    general.VarDepth = [ZERO] * 7 + general.VarDepth[7:]


def is_complete(saw, style_9_by_first_radius):
    """Whether the style's radii are there.  Styles 7 and 8 lose their variable pitch here."""
    gullet, style = saw.GulletInfo, saw.ToothStyle
    if style in (7, 8) and saw.GeneralInfo.VariablePitch:
        ResetVariablePitch(saw)
    if style in (4, 6):
        return gullet.Radius1 > 0 and gullet.Radius2 > 0
    if style == 5:
        return gullet.Radius1 > 0 and gullet.Radius2 > 0 and gullet.Radius3 > 0
    if style == 8 or (style == 9 and style_9_by_first_radius):
        return gullet.Radius1 > 0
    return gullet.Radius > 0


def derive_pitch(saw):
    """The band's length always wins over the pitch."""
    if not saw.Pitch <= 0:
        with skip: saw.NumTeeth = whole_i16(saw.Length * 12 / saw.Pitch + 0.5)
    saw.Pitch = PitchFromLength(saw.Length, saw.NumTeeth)


def derive_width(saw):
    gullet = saw.GulletInfo
    if saw.Width <= 0:
        if gullet.Depth > 0:
            with skip: saw.Width = gullet.Depth * 3
        elif gullet.Radius > 0:
            with skip: saw.Width = gullet.Radius * 6
        elif gullet.Radius2 > 0:
            with skip: saw.Width = gullet.Radius2 * 6
        else:
            saw.Width = ZERO + 2
    else:
        with skip:
            if gullet.Depth * 1.1 > saw.Width:
                saw.Width = gullet.Depth * 1.1


def first_tooth(saw, messages, style_9_by_first_radius):
    """The finished base tooth as teeth[0], or None where there is nothing to lay out."""
    teeth = Teeth()
    if saw.NumTeeth < 0:
        return None
    teeth.resize(saw.NumTeeth)
    saw.GulletInfo.FaceLength = ZERO
    complete = is_complete(saw, style_9_by_first_radius)
    derive_pitch(saw)
    if not complete:
        return None
    derive_width(saw)
    CalculateTooth(saw, teeth[0], messages)
    return teeth


def CalculateSaw(saw, messages):
    entities = EntityList()
    teeth = first_tooth(saw, messages, style_9_by_first_radius=True)
    if teeth:
        if saw.GeneralInfo.VariablePitch:
            LayOutVariableBand(saw, teeth, rules, messages)
        else:
            LayOutBand(saw, teeth)
        RoundTooth(teeth[0])
        BuildBandEntities(teeth, entities, saw)
    return entities


def CalculateSegment(saw, messages):
    entities = EntityList()
    teeth = first_tooth(saw, messages, style_9_by_first_radius=False)
    if teeth:
        LayOutVariableSegment(saw, teeth, rules, messages)
        RoundTooth(teeth[0])
        BuildSegmentEntities(teeth, entities, saw.GeneralInfo.NumVariables + 2)
    return entities


def ClampRadii(saw):
    gullet = saw.GulletInfo
    with skip:
        if saw.Pitch * 0.5 < gullet.Radius:
            gullet.Radius = RoundTo(saw.Pitch * 0.5)
    with skip:
        if saw.Pitch * 0.75 < gullet.Radius2:
            gullet.Radius2 = RoundTo(saw.Pitch * 0.75)
    with skip:
        if saw.Pitch * 0.9 < gullet.Width:
            gullet.Width = saw.Pitch * 0.9


def CalculateTooth(saw, tooth, messages):
    gullet = saw.GulletInfo
    ClampRadii(saw)
    tooth.BothEdges = saw.BothEdges
    for _ in range(MOST_ROUNDS):
        PlaceFace(saw, tooth)
        PlaceGulletArcs(saw, tooth, messages)
        if saw.ToothStyle not in (1, 2, 4, 5, 6, 7, 8, 9):
            break
        if shape_round(saw, tooth):
            with skip: gullet.FaceLength = RoundTo(Distance(tooth.FaceLine.Start, tooth.FaceLine.End)
                                                   + Distance(tooth.DropLine.Start, tooth.DropLine.End))
            saw.ContainsInfo.Teeth = -1
            break
    with skip: gullet.Sharpangle = RoundTo(90 - saw.ClearAngle - saw.HookAngle)
    RoundTooth(tooth)


def shape_round(saw, tooth):
    """Depth, back and top of one round; true when nothing asks for another."""
    gullet, style = saw.GulletInfo, saw.ToothStyle
    tooth.Style = style
    if MinimumDepth(saw, tooth) > gullet.Depth:
        gullet.Depth = MinimumDepth(saw, tooth)
    ApplyDepth(saw, tooth)
    if style in (7, 8):
        (PlaceNarrow if style == 7 else PlaceOBottom)(saw, tooth)
        saw.ClearAngle = RoundTo(Direction(tooth.TopLine.Start, tooth.TopLine.End))
        return True
    corrected = BackAngleLimit(saw, tooth) < gullet.BackAngle
    if corrected:
        gullet.BackAngle = BackAngleLimit(saw, tooth)
    back_of_style(saw, tooth)
    PlaceTopLine(saw, tooth)
    if corrected:
        return False
    return style == 1 or round_corner(saw, tooth)


def round_corner(saw, tooth):
    """The user's back radius; a negative one becomes 0 and asks for another round."""
    gullet = saw.GulletInfo
    if gullet.BackRadius < 0:
        gullet.BackRadius = ZERO
        return False
    if gullet.BackRadius > 0:
        tooth.BackArc.Radius = gullet.BackRadius
        FitBackRadius(tooth)
        gullet.BackRadius = tooth.BackArc.Radius
    return True


def HalfPitchOf(tooth):
    half = ZERO
    with skip: half = (tooth.TopLine.End.X - tooth.FaceLine.Start.X) / 2
    return half


def JoinAllowance(saw):
    allow = ZERO
    if saw.DesignInfo.JoinStyle == 1:
        with skip: allow = RoundTo((saw.GeneralInfo.PlateThick * 10 + 0.125) / 2)
    return allow


def LayOutBand(saw, teeth):
    n = saw.NumTeeth
    with skip: teeth.resize((n + 1) * 2)
    both = teeth[0].BothEdges
    TranslateTooth(teeth[0], teeth[0], JoinAllowance(saw) - HalfPitchOf(teeth[0]), ZERO)
    for i in range(n + 1):  # the first one in place, and the others from what it then is
        with skip: TranslateTooth(teeth[0], teeth[i], saw.Pitch * i, ZERO)
    JoinBand(saw, teeth, n)
    if rules.TeethDirection == 2:
        MirrorBandX(teeth, n)
    if both:
        AddOtherEdge(teeth, n)


def cut_at(teeth, i, half, shift):
    """The line square to the band through the middle of a tooth, from the tip's height down to Y = 0."""
    cut = Line()
    with skip: cut.Start.X = half + teeth[i].FaceLine.Start.X + shift
    with skip: cut.Start.Y = teeth[i].FaceLine.Start.Y
    cut.End = Point(cut.Start.X, ZERO)
    return cut


def JoinBand(saw, teeth, n):
    half, allow = HalfPitchOf(teeth[0]), JoinAllowance(saw)
    left, right = cut_at(teeth, 0, half, -allow), cut_at(teeth, n, half, allow)
    left_code = right_code = 0
    with skip: left_code = FindJoinElement(left, teeth[0])
    with skip: right_code = FindJoinElement(right, teeth[n])
    for i, cut in ((0, left), (n, right)):
        with skip: teeth[i].JoinPoint = Point(RoundTo(cut.Start.X), RoundTo(cut.Start.Y))
    TrimToothStart(teeth[0], left.Start, left_code)
    with skip: TrimToothEnd(teeth[n], right.Start, right_code)
