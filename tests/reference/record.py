"""The design record and the outline of one tooth, for the second computation of the band.

The field table is written out here a second time on purpose: it is held against the program's own.
"""

import struct
from types import SimpleNamespace

from failing import Failure, Number, ZERO

FIELDS = """
ContainsInfo.General i16, ContainsInfo.Teeth i16, ContainsInfo.Power i16, ContainsInfo.Machine i16,
ContainsInfo.Spare text98,
ToothStyle i16, Length f64, Width f64, Pitch f64, NumTeeth i16, TipClear f64, HookAngle f64, ClearAngle f64,
SeatInfo.State i16, SeatInfo.Width f64, SeatInfo.Height f64,
GulletInfo.Radius f64, GulletInfo.Depth f64, GulletInfo.MinDepth f64, GulletInfo.Area f64,
GulletInfo.BackAngle f64, GulletInfo.BackRadius f64, GulletInfo.Radius1 f64, GulletInfo.Radius2 f64,
GulletInfo.Radius3 f64, GulletInfo.Width f64, GulletInfo.Bite f64, GulletInfo.Capacity f64,
GulletInfo.AreaBelowTip f64, GulletInfo.BottomAngle f64, GulletInfo.Sharpangle f64, GulletInfo.SpareByte u8,
GulletInfo.FaceLength f64, GulletInfo.FrostWidth f64, GulletInfo.FrostHeight f64, GulletInfo.FrostRadius f64,
GulletInfo.FrostAngle f64, GulletInfo.Spare text212,
BothEdges i16,
GeneralInfo.TipSize f64, GeneralInfo.TipType i16, GeneralInfo.PlateThick f64, GeneralInfo.Kerf f64,
GeneralInfo.SideClear f64, GeneralInfo.TopBevel f64, GeneralInfo.Tension f64,
GeneralInfo.SpareText1 text15, GeneralInfo.SpareText2 text15, GeneralInfo.SpareText3 text25,
GeneralInfo.Quantity i32, GeneralInfo.ShaftSpeed i32, GeneralInfo.DepthOfCut f64, GeneralInfo.FeedRate f64,
GeneralInfo.WoodType text30, GeneralInfo.HorsePower f64, GeneralInfo.SavedAs i16,
GeneralInfo.VariablePitch i16, GeneralInfo.NumVariables i16, GeneralInfo.VarPitch f64x10,
GeneralInfo.VariableDepth i16, GeneralInfo.VarDepth f64x10,
DesignInfo.SegmentLength f64, DesignInfo.VarPattern i16, DesignInfo.VarArea f64x10,
DesignInfo.SawVelocity i32, DesignInfo.MaxFeedRate f64, DesignInfo.JoinStyle i16,
DesignInfo.Comment1 text40, DesignInfo.Comment2 text40, DesignInfo.Comment3 text40,
DesignInfo.SpareText4 text808, DesignInfo.SpareText5 text255,
MachineInfo.WheelDia f64, MachineInfo.Width f64, MachineInfo.CenterToCenter f64, MachineInfo.InCenterOut i16,
MachineInfo.Spare text512,
CustomerInfo.CustName text50, CustomerInfo.DesignBy text50, CustomerInfo.Spare text512,
ImpMetric i16
"""
FIELD_TABLE = [tuple(row.split()) for row in FIELDS.replace("\n", " ").split(",")]
IMAGE_SIZE = 3325
WHOLE = {"i16": "<h", "i32": "<i", "u8": "<B"}


def holder_of(saw, name):
    """The nested record that holds a dotted name, and the last word of that name."""
    *outer, last = name.split(".")
    for word in outer:
        if not hasattr(saw, word):
            setattr(saw, word, SimpleNamespace())
        saw = getattr(saw, word)
    return saw, last


def new_saw(given):
    """A record from dotted names; what is not given is zero.  A text may be given as a string or as bytes."""
    saw = SimpleNamespace()
    left = dict(given)
    for name, kind in FIELD_TABLE:
        holder, last = holder_of(saw, name)
        setattr(holder, last, stored(kind, left.pop(name, None)))
    if left:
        raise ValueError("no such field: " + ", ".join(left))
    return saw


def stored(kind, value):
    if kind == "f64":
        return Number(value or 0)
    if kind == "f64x10":
        return [Number(item) for item in (list(value or []) + [0] * 10)[:10]]
    if kind.startswith("text"):
        size = int(kind[4:])
        if not value:
            return bytes(size)
        raw = value if isinstance(value, bytes) else value.encode("cp1252", "replace")
        return raw[:size].ljust(size)
    return int(value or 0)


def get(saw, name):
    holder, last = holder_of(saw, name)
    return getattr(holder, last)


def numbers_of(saw):
    """Every field but the texts, under its dotted name, in order."""
    return {name: get(saw, name) for name, kind in FIELD_TABLE if not kind.startswith("text")}


def image(saw):
    """The packed record: little-endian, field after field, no gaps."""
    parts = []
    for name, kind in FIELD_TABLE:
        value = get(saw, name)
        if kind == "f64":
            parts.append(struct.pack("<d", value))
        elif kind == "f64x10":
            parts.append(struct.pack("<10d", *value))
        elif kind in WHOLE:
            parts.append(struct.pack(WHOLE[kind], value))
        else:
            parts.append(value)
    packed = b"".join(parts)
    assert len(packed) == IMAGE_SIZE
    return packed


def band_saw_file(saw):
    return b"Band Saw File: Version = " + b"1.01".ljust(25) + image(saw)


class Point:
    __slots__ = ("X", "Y")

    def __init__(self, x=ZERO, y=ZERO):
        self.X = x
        self.Y = y

    def copy(self):
        return Point(self.X, self.Y)


class Line:
    __slots__ = ("Start", "End")

    def __init__(self, start=None, end=None):
        self.Start = start or Point()
        self.End = end or Point()

    def copy(self):
        return Line(self.Start.copy(), self.End.copy())


class Arc:
    """Counter-clockwise from StartAngle to EndAngle.  (Its own end points are never filled by an outline.)"""

    __slots__ = ("CenterX", "CenterY", "Radius", "StartAngle", "EndAngle")

    def __init__(self):
        self.CenterX = self.CenterY = self.Radius = self.StartAngle = self.EndAngle = ZERO

    def copy(self):
        new = Arc()
        new.CenterX, new.CenterY, new.Radius = self.CenterX, self.CenterY, self.Radius
        new.StartAngle, new.EndAngle = self.StartAngle, self.EndAngle
        return new

    @property
    def Center(self):
        return Point(self.CenterX, self.CenterY)


FROST_LINES = ("FrostFaceLine", "FrostBottomLine")
PLAIN_LINES = ("FaceLine", "SeatLine", "DropLine", "BottomLine", "BackLine", "TopLine", "SpareLine")
PLAIN_ARCS = ("GulletArc", "FirstArc", "SecondArc", "ThirdArc", "BackArc", "SpareArc")
LINES = PLAIN_LINES + FROST_LINES
ARCS = PLAIN_ARCS + ("FrostArc",)


class Tooth:
    __slots__ = ("Style", "BothEdges", "ArcDepth", "Area", "JoinPoint") + LINES + ARCS

    def __init__(self):
        self.Style = self.BothEdges = 0
        self.ArcDepth = self.Area = ZERO
        self.JoinPoint = Point()
        for name in LINES:
            setattr(self, name, Line())
        for name in ARCS:
            setattr(self, name, Arc())

    def copy(self):
        new = Tooth.__new__(Tooth)
        new.Style, new.BothEdges, new.ArcDepth, new.Area = self.Style, self.BothEdges, self.ArcDepth, self.Area
        new.JoinPoint = self.JoinPoint.copy()
        for name in LINES + ARCS:
            setattr(new, name, getattr(self, name).copy())
        return new


class Teeth:
    """An array of teeth from 0 to an upper bound.  An index outside it fails, and so does a negative bound."""

    def __init__(self):
        self.items = []

    def resize(self, upper):
        if upper < 0:
            raise Failure(9)
        del self.items[upper + 1:]
        while len(self.items) <= upper:
            self.items.append(Tooth())

    def check(self, index):
        if not 0 <= index < len(self.items):
            raise Failure(9)

    def __getitem__(self, index):
        self.check(index)
        return self.items[index]

    def __setitem__(self, index, tooth):
        self.check(index)
        self.items[index] = tooth
