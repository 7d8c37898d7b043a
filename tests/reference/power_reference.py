#!/usr/bin/env python3
"""A second computation of the power figures, written apart from the program, slow and plain.

    power_reference.py > ../data/power.jsonl

Writes what comes of some thousand inputs, a JSON object a line:

    {"op": name of the figure, "places": decimals, "in": [...], "out": number}
    {"op": "Chain" or "Estimates", "places": decimals, "index": feed index, "percent": of the estimates alone,
     "saw": {dotted field names; what is missing is zero}, "out": {...} or four rows of members in order or null}

The same inputs come each time: the random ones grow from one seed.
"""

import functools
import json
import random

from failing import Failure, Number, RoundTo, finite, quotient
from measures import ReadNumber, decimal_text

PI = Number(3.14159265358979)

SOFTWOODS = """Softwoods: 0|Cedar (Eastern Red) 0.44|Cedar (Northern White) 0.29|Cedar (Soutern Red) 0.42
Cedar (Western Red) 0.31|Cypress 0.42|Douglas Fir (Coast) 0.45|Douglas Fir (Rocky Mt) 0.4|Fir (Alpine) 0.31
Fir (California Red) 0.37|Fir (Silver) 0.35|Fir (White) 0.35|Hemlock (Eastern) 0.38|Hemlock (Mountain) 0.43
Hemlock (Western) 0.38|Larch 0.51|Pine (Eastern White) 0.34|Pine (Jack) 0.4|Pine (Lodgepole) 0.38
Pine (Northern White) 0.34|Pine (Ponderosa) 0.38|Pine (Western White) 0.36|Redwood 0.38
Spruce (Engelmann) 0.32|Spruce (Red) 0.38|Spruce (White) 0.37|Tamarack 0.49"""
HARDWOODS = """Hardwoods: 0|Alder 0.37|Ash (White) 0.55|Aspen 0.35|Beech 0.56|Birch (Yellow) 0.55
Cherry (Black) 0.47|Chestnut 0.4|Cottonwood (Eastern) 0.37|Elm (American White) 0.46|Hickory 0.62
Maple (Black) 0.52|Maple (Red) 0.49|Maple (Silver) 0.44|Oak (Black) 0.56|Oak (Northern Red) 0.56
Oak (Southern Red) 0.52|Oak (White) 0.6|Popular 0.4|Walnut 0.51|Willow (Black) 0.34"""
WOODS = [(row.rpartition(" ")[0], float(row.rpartition(" ")[2]))
         for column in (SOFTWOODS, HARDWOODS) for row in column.replace("\n", "|").split("|")]


def whole(value, bits):
    """To the nearest whole number, ties to the even one; a failure outside the type's range."""
    nearest = round(float(value))
    if not -(2 ** (bits - 1)) <= nearest < 2 ** (bits - 1):
        raise Failure(6)
    return nearest


def figure(function):
    """A figure that fails is 0."""
    @functools.wraps(function)
    def guarded(*arguments):
        try:
            return function(*arguments)
        except Failure:
            return 0
    return guarded


def cut(value):
    return RoundTo(finite(value), places)


places = 5
index = Number(0.7)


def SpecificEnergy(name):
    for known, energy in WOODS:
        if known == name.strip(" "):
            return energy
    return 0


@figure
def CalcSawVelocity(wheel_dia, shaft_speed):
    if wheel_dia == 0 or shaft_speed == 0:
        return 0
    return whole(Number(wheel_dia) * PI * Number(shaft_speed), 32)


@figure
def CalcHorsePower(wood, kerf, feed, depth):
    energy = Number(SpecificEnergy(wood))
    if energy == 0 or kerf == 0 or feed == 0 or depth == 0:
        return 0
    return cut(Number(depth) * kerf * feed * (energy * 100) / 144)


@figure
def CalcBite(feed, pitch, velocity):
    if feed == 0 or pitch == 0 or velocity == 0:
        return 0
    return cut(Number(feed) * pitch / velocity)


@figure
def CalcCapacityChecked(bite, depth):
    if bite == 0 or depth == 0:
        return 0
    return cut(Number(bite) * depth)


@figure
def CalcCapacity(bite, depth):
    return cut(Number(depth) * bite)


@figure
def CalcMaxFeedRate(depth, area, pitch, velocity):
    if depth <= 0 or area <= 0 or pitch <= 0 or velocity <= 0:
        return 0
    return cut(Number(velocity) * area * index / (Number(depth) * pitch))


@figure
def CalcPitch(length, teeth):
    if length == 0 or teeth == 0:
        return 0
    return cut(Number(length) / teeth)


@figure
def CalcSideClear(plate, kerf):
    if plate == 0 or kerf == 0 or kerf <= plate:
        return 0
    return cut((Number(kerf) - plate) / 2)


@figure
def CalcPitchForBite(feed, velocity, bite):
    if feed == 0 or velocity == 0 or bite == 0:
        return 0
    return cut(Number(velocity) * bite / feed)


@figure
def CalcShaftSpeedForBite(feed, pitch, wheel_dia, bite):
    if feed == 0 or bite == 0 or pitch == 0 or wheel_dia == 0:
        return 0
    velocity = whole(Number(feed) * pitch / bite, 32)
    speed = whole(quotient(velocity, Number(wheel_dia) * PI), 32)
    return whole(speed, 16)


def chain(saw):
    """The six figures, one after the other."""
    velocity = CalcSawVelocity(ReadNumber(decimal_text(saw["MachineInfo.WheelDia"])), saw["GeneralInfo.ShaftSpeed"])
    clear = CalcSideClear(saw["GeneralInfo.PlateThick"], saw["GeneralInfo.Kerf"])
    bite = CalcBite(saw["GeneralInfo.FeedRate"], saw["Pitch"], velocity)
    depth = saw["GeneralInfo.DepthOfCut"]
    return {
        "DesignInfo.SawVelocity": velocity,
        "GeneralInfo.SideClear": clear,
        "GulletInfo.Bite": bite,
        "GulletInfo.Capacity": CalcCapacity(bite, depth),
        "GeneralInfo.HorsePower": CalcHorsePower(saw["GeneralInfo.WoodType"], saw["GeneralInfo.Kerf"],
                                                 saw["GeneralInfo.FeedRate"], depth),
        "DesignInfo.MaxFeedRate": CalcMaxFeedRate(depth, saw["GulletInfo.Area"], saw["Pitch"], velocity),
    }


def estimates(saw, percent):
    """Four rows: as it is, then by pitch, by wheel speed and by bite, for a feed that grows from row to row."""
    if not percent > 0:
        return None
    current = {
        "Marker": 4.0, "WheelDia": saw["MachineInfo.WheelDia"], "CenterToCenter": 0.0, "Width": saw["Width"],
        "Length": saw["Length"], "Pitch": saw["Pitch"], "NumTeeth": saw["NumTeeth"],
        "PlateThick": saw["GeneralInfo.PlateThick"], "Kerf": saw["GeneralInfo.Kerf"],
        "SideClear": saw["GeneralInfo.SideClear"], "ShaftSpeed": saw["GeneralInfo.ShaftSpeed"],
        "SawVelocity": CalcSawVelocity(saw["MachineInfo.WheelDia"], saw["GeneralInfo.ShaftSpeed"]),
        "DepthOfCut": saw["GeneralInfo.DepthOfCut"], "FeedRate": saw["GeneralInfo.FeedRate"],
        "WoodType": saw["GeneralInfo.WoodType"], "HorsePower": saw["GeneralInfo.HorsePower"],
        "Bite": saw["GulletInfo.Bite"], "GulletArea": saw["GulletInfo.Area"],
        "AreaBelowTip": index * saw["GulletInfo.Area"],
        "Capacity": CalcCapacityChecked(saw["GulletInfo.Bite"], saw["GeneralInfo.DepthOfCut"]), "FeedIndex": 0.0,
    }
    rows = [current]
    for _ in range(3):
        row = dict(rows[-1])
        row["FeedRate"] = row["FeedRate"] * (percent / 100 + 1)
        rows.append(row)
    one, two, three = rows[1:]
    one["Pitch"] = CalcPitchForBite(one["FeedRate"], one["SawVelocity"], one["Bite"])
    two["ShaftSpeed"] = CalcShaftSpeedForBite(two["FeedRate"], two["Pitch"], two["WheelDia"], two["Bite"])
    two["SawVelocity"] = CalcSawVelocity(two["WheelDia"], two["ShaftSpeed"])
    three["Bite"] = CalcBite(three["FeedRate"], three["Pitch"], three["SawVelocity"])
    three["Capacity"] = CalcCapacity(three["Bite"], three["DepthOfCut"])
    for row in rows[1:]:
        row["HorsePower"] = CalcHorsePower(row["WoodType"], row["Kerf"], row["FeedRate"], row["DepthOfCut"])
    return rows


# ---- inputs

chance = random.Random(71)

WIDE = (0.0, -0.0, 1.0, -1.0, 0.1, -0.3, 1e-7, 5e-324, 1e150, -1e150, 1e300, 1.7e308)
SPEEDS = (0, 1, -1, 600, -600, 32767, 32768, 2147483647, -2147483648)
COUNTS = (0, 1, -1, 600, 32767, -32768)


def measure(least, most):
    """Now with few digits, as people type; now with all; now and then something odd."""
    kind = chance.random()
    if kind < 0.06:
        return chance.choice(WIDE)
    value = chance.uniform(least, most)
    return round(value, chance.randint(0, 4)) if kind < 0.6 else value


def feed(): return measure(5, 400)
def pitch(): return measure(0.5, 4)
def depth(): return measure(1, 40)
def kerf(): return measure(0.05, 0.3)
def area(): return measure(0.1, 2)
def dia(): return measure(1, 10)
def bite(): return measure(0.005, 0.2)
def length(): return measure(10, 80)
def rpm(): return chance.choice(SPEEDS) if chance.random() < 0.06 else chance.randint(100, 1200)
def velocity(): return chance.choice(SPEEDS) if chance.random() < 0.06 else chance.randint(1000, 15000)
def teeth(): return chance.choice(COUNTS) if chance.random() < 0.06 else chance.randint(30, 900)
def wood(): return chance.choice(WOODS)[0]


FIGURES = (
    (CalcSawVelocity, (dia, rpm)),
    (CalcHorsePower, (wood, kerf, feed, depth)),
    (CalcBite, (feed, pitch, velocity)),
    (CalcCapacityChecked, (bite, depth)),
    (CalcCapacity, (bite, depth)),
    (CalcMaxFeedRate, (depth, area, pitch, velocity)),
    (CalcPitch, (length, teeth)),
    (CalcSideClear, (kerf, kerf)),
    (CalcPitchForBite, (feed, velocity, bite)),
    (CalcShaftSpeedForBite, (feed, pitch, dia, bite)),
)


def random_saw():
    saw = {
        "Width": measure(3, 16), "Length": length(), "Pitch": pitch(), "NumTeeth": teeth(),
        "MachineInfo.WheelDia": dia(), "GulletInfo.Area": area(), "GulletInfo.Bite": bite(),
        "GeneralInfo.PlateThick": kerf(), "GeneralInfo.Kerf": kerf(), "GeneralInfo.SideClear": kerf(),
        "GeneralInfo.ShaftSpeed": rpm(), "GeneralInfo.DepthOfCut": depth(), "GeneralInfo.FeedRate": feed(),
        "GeneralInfo.WoodType": wood(), "GeneralInfo.HorsePower": measure(1, 300),
    }
    for name, value in saw.items():  # a design in which nothing overflows beyond its own figure
        if not isinstance(value, str) and abs(value) > 1e6 and name not in ("GeneralInfo.ShaftSpeed",):
            saw[name] = 0.0
    return saw


def halfway(least, most):
    """Wheel diameters whose circumference lies halfway between two whole numbers, and that number."""
    for units in range(least, most):
        found = (units + 0.5) / float(PI)
        if found * float(PI) == units + 0.5:
            yield found


def show(**row):
    print(json.dumps(row, separators=(",", ":")))


def figures():
    global places, index
    for diameter in list(halfway(0, 40))[:24]:
        show(op="CalcSawVelocity", places=5, **{"in": [diameter, 1], "out": CalcSawVelocity(diameter, 1)})
        show(op="CalcSawVelocity", places=5, **{"in": [diameter, -1], "out": CalcSawVelocity(diameter, -1)})
    for units in range(12):  # 2 / PI feet around by half a foot a tooth
        ties = [units + 0.5, 1.0, 2 / float(PI), 1.0]
        show(op="CalcShaftSpeedForBite", places=5, **{"in": ties, "out": CalcShaftSpeedForBite(*ties)})
    for name, _ in WOODS:
        for spelt in (name, f"  {name} ", name.upper(), name[:-1]):
            given = [spelt, 0.15, 100.0, 10.0]
            show(op="CalcHorsePower", places=5, **{"in": given, "out": CalcHorsePower(*given)})
    for function, inputs in FIGURES:
        for _ in range(200):
            places, index = chance.choice((4, 5, 5, 5, 6, 10)), Number(chance.choice((0.7, 0.7, 0.1, 1.0, 0.72, 0.35)))
            given = [make() for make in inputs]
            row = {"op": function.__name__, "places": places, "in": given, "out": function(*given)}
            show(**(row | {"index": index} if function is CalcMaxFeedRate else row))


def whole_designs():
    global places, index
    for number in range(400):
        places, index = chance.choice((4, 5, 5, 5, 6)), Number(chance.choice((0.7, 0.7, 0.25, 1.0)))
        saw = random_saw()
        show(op="Chain", places=places, index=index, saw=saw, out=chain(saw))
        if number % 2:
            percent = chance.choice((5, 10, 10, 25, 50, 12, 7.5, 0, -5, 0.001))
            rows = estimates(saw, percent)
            show(op="Estimates", places=places, index=index, percent=percent, saw=saw,
                 out=rows and [list(row.values()) for row in rows])


if __name__ == "__main__":
    figures()
    whole_designs()
