"""The drawing list of a band or a segment, and its bounding box, for the second computation of the band."""

import math

from failing import Failure, Number, RoundTo, ZERO, skip
from trig import Distance

PI = 3.14159265358979


class Entity:
    __slots__ = ("Kind", "Corner1X", "Corner1Y", "Corner4X", "Corner4Y", "CenterX", "CenterY", "Radius",
                 "StartAngle", "EndAngle", "IsOutline", "IsDotted")

    def __init__(self):
        self.Kind = ""
        self.Corner1X = self.Corner1Y = self.Corner4X = self.Corner4Y = ZERO
        self.CenterX = self.CenterY = self.Radius = self.StartAngle = self.EndAngle = ZERO
        self.IsOutline = self.IsDotted = 0


class EntityList:
    """Elements 0 to an upper bound.  What the first element holds as the list's header stands here by itself."""

    def __init__(self):
        self.items = [Entity(), Entity()]
        self.Count = 0
        self.MaxX = self.MaxY = self.ViewCenterX = self.ViewCenterY = ZERO

    def resize(self, upper):
        if upper < 0:
            raise Failure(9)
        del self.items[upper + 1:]
        while len(self.items) <= upper:
            self.items.append(Entity())

    def __getitem__(self, index):
        if not 0 <= index < len(self.items):
            raise Failure(9)
        return self.items[index]

    def drawn(self):
        """What a walker meets: elements 0 to Count."""
        return self.items[:self.Count + 1]


class Builder:
    """Fills a list through a running index.  An element past the array's end is lost, the index goes on."""

    def __init__(self, entities):
        self.entities = entities
        self.index = 0

    def line(self, line):
        if Distance(line.Start, line.End) > 0:
            with skip: self.put_line(self.entities[self.index], line)
            self.index += 1

    def put_line(self, entity, line):
        entity.Kind = "LINE"
        entity.Corner1X, entity.Corner1Y = line.Start.X, line.Start.Y
        entity.Corner4X, entity.Corner4Y = line.End.X, line.End.Y

    def arc(self, arc):
        if arc.Radius > 0:
            with skip: self.put_arc(self.entities[self.index], arc)
            self.index += 1

    def put_arc(self, entity, arc):
        entity.Kind = "ARC"
        entity.CenterX, entity.CenterY, entity.Radius = arc.CenterX, arc.CenterY, arc.Radius
        entity.StartAngle, entity.EndAngle = arc.StartAngle, arc.EndAngle

    def outline(self, x1, y1, x4, y4, dotted=False):
        """One line of the band's outline; the coordinates come as functions, each a statement that may fail."""
        entity = Entity()
        with skip: entity = self.entities[self.index]
        entity.Kind = "LINE"
        with skip: entity.Corner1X = x1()
        with skip: entity.Corner1Y = y1()
        with skip: entity.Corner4X = x4()
        with skip: entity.Corner4Y = y4()
        entity.IsOutline = -1
        entity.IsDotted = -1 if dotted else 0
        self.index += 1

    def pieces(self, tooth, names):
        for name in names:
            piece = getattr(tooth, name)
            if name.endswith("Arc"):
                self.arc(piece)
            else:
                self.line(piece)

    def finish(self):
        self.entities.Count = self.index
        with skip: self.entities.resize(self.index)


# second and third arc stand twice in a band, one on top of the other
BAND_ORDER = ("FaceLine", "SeatLine", "DropLine", "FrostFaceLine", "FrostArc", "FrostBottomLine", "FirstArc",
              "SecondArc", "ThirdArc", "BottomLine", "SecondArc", "ThirdArc", "GulletArc", "BackLine", "BackArc",
              "TopLine")
SEGMENT_ORDER = ("FaceLine", "SeatLine", "DropLine", "FirstArc", "BottomLine", "SecondArc", "ThirdArc", "GulletArc",
                 "BackLine", "BackArc", "TopLine")


def BuildBandEntities(teeth, entities, saw):
    n = saw.NumTeeth
    both = bool(teeth[0].BothEdges)
    count = (n + 1) * 2 if both else n + 1
    last = count - 1
    with skip: entities.resize(count * 16 + 2)
    builder = Builder(entities)
    for i in range(count):
        with skip: builder.pieces(teeth[i], BAND_ORDER)
    if both:
        outline_of_two(builder, teeth, n, last, saw)
    else:
        outline_of_one(builder, teeth, last, saw)
    with skip: entities.MaxY = RoundTo(saw.Width)
    with skip: entities.MaxX = RoundTo(teeth[last].JoinPoint.X)
    with skip: entities.ViewCenterX = RoundTo(entities.MaxX / 2)
    with skip: entities.ViewCenterY = RoundTo(entities.MaxY / 2)
    builder.finish()


def zero():
    return ZERO


def join_x(teeth, i, plus=lambda: ZERO):
    return lambda: teeth[i].JoinPoint.X + plus()


def join_y(teeth, i):
    return lambda: teeth[i].JoinPoint.Y


def outline_of_two(builder, teeth, n, last, saw):
    def length():
        return saw.Length * 12

    def less():
        return -(saw.Length * 12)

    def across(i, k, plus=zero, dotted=False):
        builder.outline(join_x(teeth, i, plus), join_y(teeth, i), join_x(teeth, k, plus), join_y(teeth, k), dotted)

    across(0, n + 1)
    across(n, last)
    if saw.DesignInfo.JoinStyle == 1:
        across(0, n + 1, length, True)
        across(n, last, less, True)


def outline_of_one(builder, teeth, last, saw):
    def down(i, plus=zero, dotted=False):
        builder.outline(join_x(teeth, i, plus), join_y(teeth, i), join_x(teeth, i, plus), zero, dotted)

    down(0)
    down(last)
    builder.outline(zero, zero, join_x(teeth, last), zero)
    if saw.DesignInfo.JoinStyle == 1:
        down(0, lambda: saw.Length * 12, True)
        down(last, lambda: -(saw.Length * 12), True)


def BuildSegmentEntities(teeth, entities, tooth_count):
    with skip: entities.resize(tooth_count * 12 + 2)
    builder = Builder(entities)
    for i in range(tooth_count):
        with skip: builder.pieces(teeth[i], SEGMENT_ORDER)
    builder.finish()


def Polar(r, a):
    """Both components of a radius by quadrants.  The gaps between whole quadrants give 0, on purpose."""
    def cos(angle):
        return Number(math.cos(angle * PI / 180))

    def sin(angle):
        return Number(math.sin(angle * PI / 180))

    if a in (0, 360):
        return r, ZERO
    if a == 90:
        return ZERO, r
    if a == 180:
        return -r, ZERO
    if a == 270:
        return ZERO, -r
    if 1 <= a <= 89:
        return r * cos(a), r * sin(a)
    if 91 <= a <= 179:
        return -r * cos(abs(a - 180)), r * sin(abs(a - 180))
    if 181 <= a <= 269:
        return -r * cos(a - 180), -r * sin(a - 180)
    if 271 <= a <= 359:
        return r * cos(abs(a - 360)), -r * sin(abs(a - 360))
    return ZERO, ZERO


class Extents:
    def __init__(self):
        self.MinY, self.MinX, self.MaxY, self.MaxX = Number(-1.0), ZERO, Number(1.0), ZERO
        self.CenterX = self.CenterY = ZERO

    def add_line(self, entity):
        for x in (entity.Corner1X, entity.Corner4X):
            if x < self.MinX:
                self.MinX = x
            elif x > self.MaxX:
                self.MaxX = x
        for y in (entity.Corner1Y, entity.Corner4Y):
            if y < self.MinY:
                self.MinY = y
            elif y > self.MaxY:
                self.MaxY = y

    def add_arc(self, e):
        ends = (e.StartAngle, e.EndAngle)
        if crosses(e, 0):
            with skip: self.MaxX = max(self.MaxX, e.CenterX + e.Radius)
        else:
            for angle in ends:
                with skip: self.MaxX = max(self.MaxX, e.CenterX + Polar(e.Radius, angle)[0])
        if crosses(e, 180):
            with skip: self.MinX = min(self.MinX, e.CenterX - e.Radius)
        else:
            for angle in ends:
                with skip: self.MinX = min(self.MinX, e.CenterX + Polar(e.Radius, angle)[0])
        if crosses(e, 90):
            with skip: self.MinY = min(self.MinY, e.CenterY - e.Radius)
        else:
            for angle in ends:
                with skip: self.MinY = min(self.MinY, e.CenterY + Polar(e.Radius, angle)[1])
        if crosses(e, 270):
            with skip:
                if e.CenterY - e.Radius > self.MaxY:  # minus here, plus below: meant
                    self.MaxY = e.CenterY + e.Radius
        else:
            for angle in ends:
                with skip: self.MaxY = max(self.MaxY, e.CenterY + Polar(e.Radius, angle)[1])

    def finish(self):
        for name in ("MinY", "MinX", "MaxY", "MaxX"):
            setattr(self, name, RoundTo(getattr(self, name), 6))
        with skip: self.CenterX = RoundTo((self.MinX + self.MaxX) * 0.5, 6)
        with skip: self.CenterY = RoundTo((self.MinY + self.MaxY) * 0.5, 6)


def crosses(entity, shift):
    """Whether the arc runs over the extreme point that the shift turns to 0 degrees."""
    s = e = ZERO
    with skip: s = less_one_round(entity.StartAngle + shift)
    with skip: e = less_one_round(entity.EndAngle + shift)
    return s > e


def less_one_round(angle):
    return angle - 360 if angle >= 360 else angle


def ComputeExtents(entities):
    extents = Extents()
    for entity in entities.drawn():
        if entity.Kind == "LINE":
            extents.add_line(entity)
        elif entity.Kind == "ARC":
            extents.add_arc(entity)
    extents.finish()
    return extents
