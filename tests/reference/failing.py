"""Numbers that fail the way the drawing expects, for the second computation of the band.

The second computation is written apart from the program, slow and plain, so that the two can be held against
each other.  Its one peculiar rule lives here: a statement that divides by zero, overflows, takes the root of a
negative number or reaches past an array's end is skipped.  Its target keeps what it held, a value that never got
one is 0, and the routine goes on.  In the code that reads

    with skip: line.End.X = tip.X - Opposite(stub, hook)

A routine that stops at its first failure and speaks about it simply has no such `with` inside.
"""

import math

DESCRIPTIONS = {
    5: "Invalid procedure call or argument",
    6: "Overflow",
    9: "Subscript out of range",
    11: "Division by zero",
}


class Failure(Exception):
    """One failing statement, with the number of its kind."""

    def __init__(self, number):
        super().__init__(DESCRIPTIONS[number])
        self.number = number


class Skip:
    """The statement in the `with` is skipped when it fails."""

    def __enter__(self):
        return self

    def __exit__(self, kind, failure, trace):
        return kind is Failure


skip = Skip()


class Number(float):
    """A double whose arithmetic raises a Failure instead of giving an infinity."""

    __slots__ = ()

    def __add__(self, other):
        return finite(float.__add__(self, other))

    __radd__ = __add__

    def __sub__(self, other):
        return finite(float.__sub__(self, other))

    def __rsub__(self, other):
        return finite(float.__rsub__(self, other))

    def __mul__(self, other):
        return finite(float.__mul__(self, other))

    __rmul__ = __mul__

    def __truediv__(self, other):
        return quotient(self, other)

    def __rtruediv__(self, other):
        return quotient(other, self)

    def __neg__(self):
        return Number(float.__neg__(self))

    def __abs__(self):
        return Number(float.__abs__(self))


def finite(value):
    if value - value != 0.0:
        raise Failure(6)
    return Number(value)


def quotient(above, below):
    if below == 0:
        raise Failure(11)
    return finite(float(above) / float(below))


def root(value):
    if value < 0:
        raise Failure(5)
    return Number(math.sqrt(value))


def whole_i16(value):
    """The whole part of a number, cut toward zero, as far as 16 bits hold it."""
    whole = math.trunc(value)
    if not -32768 <= whole <= 32767:
        raise Failure(6)
    return whole


ZERO = Number(0.0)


class Rules:
    """The settings that a calculation leans on.  One set is in force at a time, put there by `use`."""

    DecimalPlaces = 5
    TeethDirection = 1
    MemorySize = 128000
    DxfSaveColor = 5


rules = Rules()


def use(settings):
    for name in ("DecimalPlaces", "TeethDirection", "MemorySize", "DxfSaveColor"):
        setattr(rules, name, settings.get(name, getattr(Rules, name)))


def RoundTo(value, places=None):
    """Cut to so many places, after a lift of a twentieth of the last one.  Never -0; 0 where it overflows.

    An already cut negative number loses one more unit of the last place each time: that is meant, and it makes
    the number and order of the cuts part of every result.
    """
    scale = 10.0 ** (rules.DecimalPlaces if places is None else places)
    shifted = (0.05 / scale + float(value)) * scale
    if shifted - shifted != 0.0:
        return ZERO
    return Number(math.trunc(shifted) / scale)
