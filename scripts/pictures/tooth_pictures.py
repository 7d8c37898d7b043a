"""Pictures with the program's own tooth outline. Each takes the scenes and answers with its sheet."""

from dimension import angle, extension, head, linear, radius, seen, span
from keys import picture
from plane import Arc, add, direction
from sheet import CENTRE, MEASURE, REACH, STRONG, path


# Styles: what sets the style apart stands out.

@picture("SqrBack", "square", ("back", "top"))
@picture("RndBack", "round", ("round",))
@picture("GuDouble", "double", ("first", "second"))
@picture("GuTriple", "triple", ("first", "second", "third"))
@picture("GuFlatBo", "flat", ("first", "bottom", "second"))
@picture("GuNarrow", "narrow", ("top",))
@picture("GuOShape", "oshape", ("first", "bottom"))
def style(scenes, name, parts):
    scene = scenes.gullet(name, (80, 52))
    scene.stress(*parts)
    for one, two in zip(parts, parts[1:]):
        mark_joint(scene, scene.pieces[one], scene.pieces[two])
    return scene.sheet


def mark_joint(scene, one, two):
    """A short stroke across the outline where one piece runs smoothly into the next; a corner shows by itself."""
    into, out = direction(one.at(0.999), one.end), direction(two.start, two.at(0.001))
    if abs((into - out + 180) % 360 - 180) < 1:
        side = seen(into + 90)
        end = scene.frame(one.end)
        scene.sheet.line(add(end, side, 6), add(end, side, -6), {**STRONG, "stroke-width": "1.5"})


# The band as a whole.

@picture("Pitch")
def pitch(scenes):
    scene = scenes.whole("band")
    linear(scene.sheet, scene.tip, scene.next_tip, 90, 28, "P")
    return scene.sheet


@picture("Width")
def width(scenes):
    scene = scenes.whole("band", right=268)
    tip = scene.frame(scene.band.tips()[5])
    linear(scene.sheet, tip, (268, scene.level(0)), 0, 292 - tip[0], "W", shift=14)
    return scene.sheet


@picture("NumTeeth")
def number_of_teeth(scenes):
    scene = scenes.whole("band", (50, 80))
    tips = [scene.frame(tip) for tip in scene.band.tips()[3:6]]
    for tip, text in zip(tips, ("1", "2", "3")):
        above = add(tip, (0, -26))
        scene.sheet.line(add(above, (0, 2)), add(tip, (0, -8)), MEASURE)
        head(scene.sheet, add(tip, (0, -3)), (0, 1))
        scene.sheet.letter(add(above, (0, -10)), text)
    scene.sheet.letter((tips[-1][0] + 26, tips[-1][1] - 36), "\u2026")
    scene.sheet.letter((tips[-1][0] + 50, tips[-1][1] - 36), "n")
    return scene.sheet


@picture("TipClear")
def tip_clearance(scenes):
    scene = scenes.gullet("clear", (80, 66))
    top = scene.level(scene.band.width)
    scene.sheet.line((8, top), (312, top), CENTRE)
    where = scene.tip[0] + 28
    extension(scene.sheet, scene.tip, (where, scene.tip[1]))
    span(scene.sheet, (where, top), (where, scene.tip[1]), outside=True)
    scene.sheet.letter((where + 14, scene.tip[1] + 16), "C")
    return scene.sheet


# Angles.

@picture("Hook")
def hook(scenes):
    scene = scenes.gullet("round")
    angle(scene.sheet, scene.tip, 270 - scene.band.hook, 270, 78, "\u03b3", (100, 100))
    return scene.sheet


@picture("ClrAngle")
def clearance(scenes):
    scene = scenes.gullet("square", (80, 62))
    clear = scene.band.saw["ClearAngle"]
    angle(scene.sheet, scene.next_tip, 180, 180 + clear, 105, "\u03b1", (140, 125), outside=True, off=16)
    return scene.sheet


@picture("GuBkAngl")
def back_angle(scenes):
    scene = scenes.gullet("square", (80, 76))
    hook_angle, back = scene.band.hook, scene.band.gullet["BackAngle"]
    apex = scene.start("back")
    angle(scene.sheet, apex, 90 - hook_angle - back, 90 - hook_angle, 92, "\u03b4", (108, 116))
    face = add(scene.tip, seen(270 - hook_angle), -22)
    scene.sheet.line(face, scene.end("face"), MEASURE)
    return scene.sheet


@picture("GuBotAng")
def bottom_angle(scenes):
    scene = scenes.gullet("sloping")
    slope = scene.band.gullet["BottomAngle"]
    scene.stress("bottom")
    angle(scene.sheet, scene.start("bottom"), -slope, 0, 82, "\u03b5", (100, 100), outside=True, off=16)
    return scene.sheet


# Gullets.

@picture("GuDepth")
def depth(scenes):
    scene = scenes.gullet("round")
    centre, reach = scene.centre("gullet"), scene.reach("gullet")
    foot = add(centre, (0, reach))
    extension(scene.sheet, scene.tip, (foot[0], scene.tip[1]))
    linear(scene.sheet, (foot[0], scene.tip[1]), foot, 0, 0, "D")
    return scene.sheet


@picture("GuRadius", "round", "gullet", 232, "R", {"tail": 28})
@picture("Gu1stRd", "triple", "first", 225, "R1", {"tail": 26})
@picture("GuDRad2", "double", "second", 290, "R2", {"shift": 17})
@picture("Gu2ndRd", "triple", "second", 250, "R2", {"shift": -17})
@picture("Gu3rdRd", "triple", "third", 312, "R3", {"tail": 26})
@picture("GuF1stRd", "flat", "first", 225, "R1", {"tail": 26})
@picture("GuFRad2", "flat", "second", 298, "R2", {"tail": 26})
@picture("GuO1stRd", "oshape", "first", 225, "R1", {"tail": 26})
@picture("GuBkRad", "round", "round", 110, "R", {})
def gullet_radius(scenes, name, part, degrees, letter, more):
    scene = scenes.gullet(name)
    scene.stress(part)
    radius(scene.sheet, scene.centre(part), scene.reach(part), degrees, letter, **more)
    return scene.sheet


@picture("GuWidth", "double", "second")
def arc_width(scenes, name, last):
    """Square to the face: from the face's own line to the far side of the last arc's circle."""
    scene = scenes.gullet(name, (80, 64))
    across = -scene.band.hook
    centre, reach = scene.centre(last), scene.reach(last)
    far = add(centre, seen(across), reach)
    arc = scene.pieces[last]
    onward = Arc(arc.centre, arc.radius, arc.first + arc.sweep, (across - arc.first - arc.sweep) % 360)
    scene.sheet.stroke(path([onward], scene.frame), REACH)
    linear(scene.sheet, scene.tip, far, 90 + across, 26, "W")
    return scene.sheet


@picture("GuFWidth", "flat")
def flat_width(scenes, name):
    """Along the floor: from the near side of the first circle to the far side of the second."""
    scene = scenes.gullet(name)
    near = add(scene.centre("first"), (-scene.reach("first"), 0))
    far = add(scene.centre("second"), (scene.reach("second"), 0))
    arc = scene.pieces["second"]
    onward = Arc(arc.centre, arc.radius, arc.first + arc.sweep, -(arc.first + arc.sweep) % 360)
    scene.sheet.stroke(path([onward], scene.frame), REACH)
    foot = scene.start("bottom")[1]
    linear(scene.sheet, near, far, -90, foot - near[1] + 26, "W")
    return scene.sheet


@picture("GuOWidth", "oshape")
def o_width(scenes, name):
    """From the near side of the circle to the end of the floor."""
    scene = scenes.gullet(name)
    near = add(scene.centre("first"), (-scene.reach("first"), 0))
    far = scene.end("bottom")
    linear(scene.sheet, near, far, -90, far[1] - near[1] + 26, "W")
    return scene.sheet


# Seat and notch.

@picture("Seat")
def seat(scenes):
    scene = scenes.gullet("seat")
    scene.stress("face", "seat")
    return scene.sheet


@picture("SeatWide")
def seat_width(scenes):
    scene = scenes.gullet("seat")
    scene.stress("seat")
    linear(scene.sheet, scene.tip, scene.end("seat"), 90 - scene.band.hook, 30, "W", outside=True)
    return scene.sheet


@picture("SeatHigh")
def seat_height(scenes):
    scene = scenes.gullet("seat")
    scene.stress("face")
    linear(scene.sheet, scene.start("face"), scene.end("face"), -scene.band.hook, 44, "H", slide=0.4, shift=14)
    return scene.sheet


@picture("FrostWidth")
def notch_width(scenes):
    scene = scenes.gullet("frost")
    linear(scene.sheet, scene.start("notchface"), scene.start("drop"), 90 - scene.band.hook, 58, "W")
    return scene.sheet


@picture("FrostHeight")
def notch_height(scenes):
    scene = scenes.gullet("frost")
    foot = add(scene.centre("notch"), seen(270 - scene.band.hook), scene.reach("notch"))
    linear(scene.sheet, scene.tip, foot, -scene.band.hook, 60, "H")
    return scene.sheet


@picture("FrostRadius")
def notch_radius(scenes):
    scene = scenes.gullet("frost")
    scene.stress("notch")
    radius(scene.sheet, scene.centre("notch"), scene.reach("notch"), 200, "R", tail=40)
    return scene.sheet


@picture("FrostAngle")
def notch_angle(scenes):
    scene = scenes.gullet("frost")
    scene.stress("floor")
    slope = scene.band.gullet["FrostAngle"]
    angle(scene.sheet, scene.start("floor"), 0, slope, 70, "\u03c6", (88, 88))
    return scene.sheet
