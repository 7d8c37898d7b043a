#!/usr/bin/env python3
"""Typed and shown text, computed a second time and apart from the program: equations, masks, fractions, preset lists.

    value_reference.py --self-test      known answers, worked out by hand
    value_reference.py --check FILE     computes every row of a table again
    value_reference.py --write FILE     writes the table (../data/values.jsonl), always the same one

Doubles stand in the table in C's hexadecimal form, so that they can be compared bit for bit.
"""

import json
import math
import sys
from decimal import Context, Decimal, ROUND_HALF_UP

import measures
from failing import RoundTo
from measures import FACTORS, general_text

WIDE = Context(prec=700)  # as many digits as a double can ever have in front of and behind the point


def ReadNumber(text):
    return float(measures.ReadNumber(text))


def rounded(value, places):
    return float(RoundTo(value, places))


def no_minus_zero(value):
    return value if value != 0 else 0.0


# --- decimal text ---------------------------------------------------------------------------------------------

def with_sign_cell(text):
    """A blank where a minus could stand, and no zero ahead of the point."""
    sign, digits = ("-", text[1:]) if text.startswith("-") else (" ", text)
    return sign + (digits[1:] if digits.startswith("0.") else digits)


def DecimalText(value):
    return with_sign_cell(general_text(value))


def fifteen_digits(value):
    """The number as its fifteen significant decimal digits tell it."""
    return Decimal(format(no_minus_zero(value), ".14e"))


def PlainText(value):
    """Decimal text for a box: its reader knows no exponent, and nothing but a finite number."""
    if not math.isfinite(value):
        return " 0"
    text = format(fifteen_digits(value), "f")
    return with_sign_cell(text.rstrip("0").rstrip(".") if "." in text else text)


# --- equations ------------------------------------------------------------------------------------------------

BUFFER = 80  # characters an equation may have; what is longer is cut without a word
PASSES = 21  # of the comma and of the unit word scan

UNIT_WORDS = ("deg", "in²", "cm²", "in", "ft", "mm", "cm", "rpms", "fpm", "mpm", "m")


def CommaToPoint(text):
    return text.replace(",", ".", PASSES)


def lower(text):
    """Lower case of the letters of the unit words; every character stays one character."""
    return "".join(c.lower() if c.isascii() else c for c in text)


def FeetInchesToFeet(text, places):
    """One number of feet, or None when feet and inches are not both there."""
    if "ft" not in lower(text) or "in" not in lower(text):
        return None
    length, position = len(text), lower(text).index("ft") + 1
    # One character more than the word is passed over: a blank is expected there.
    count = max(0, length - position - 2)
    rest = text[length - count:]
    return PlainText(ReadNumber(text) + rounded(ReadNumber(rest) / 12, places))


def FindUnitWord(text):
    for word in UNIT_WORDS:
        position = lower(text).find(word)
        if position >= 0:
            return position, len(word)
    return None


def StripUnits(text, places):
    feet = FeetInchesToFeet(text, places)
    if feet is not None:
        return feet
    for _ in range(PASSES):
        found = FindUnitWord(text)
        if not found:
            break
        start, length = found
        text = text[:start] + " " * length + text[start + length:]
    return text


def skip(text, cursor, wanted):
    while cursor < len(text) and text[cursor] in wanted:
        cursor += 1
    return cursor


DIGITS, BLANK = "0123456789", " "


def at(text, cursor):
    return text[cursor] if cursor < len(text) else ""


def IsMixedNumber(text):
    cursor = skip(text, 0, DIGITS)
    if at(text, cursor) != BLANK:
        return False
    cursor = skip(text, cursor, BLANK)
    cursor = skip(text, cursor, DIGITS)
    cursor = skip(text, cursor, BLANK)
    if at(text, cursor) != "/":
        return False
    cursor = skip(text, cursor + 1, BLANK)
    cursor = skip(text, cursor, DIGITS)
    return skip(text, cursor, BLANK) == len(text)


def MixedToSum(text):
    cursor = skip(text, 0, DIGITS)
    return text[:cursor] + "+" + text[cursor + 1:] if at(text, cursor) == BLANK else text


def IsValidEquation(text):
    depth = 0
    for c in text:
        if not "(" <= c <= "9" or c == ",":
            return False
        depth += (c == "(") - (c == ")")
    return depth == 0


def quotient(above, below):
    """As the floating point unit divides: by zero too."""
    if below != 0:
        return above / below
    if above == 0 or math.isnan(above) or math.isnan(below):
        return math.nan
    return math.copysign(math.inf, above) * math.copysign(1.0, below)


def CopyBracket(text, cursor):
    """The inside of the bracket that opens at `cursor`, and the place behind it."""
    inside, depth, cursor = "", 0, cursor + 1
    while cursor < len(text):
        c = text[cursor]
        cursor += 1
        if c == ")" and depth == 0:
            break
        depth += (c == "(") - (c == ")")
        inside += c
    return inside, cursor


def ParseFactor(text, cursor):
    if at(text, cursor) == "(":
        inside, cursor = CopyBracket(text, cursor)
        return ParseSum(inside), cursor
    end = skip(text, cursor, DIGITS)
    if at(text, end) == ".":
        end = skip(text, end + 1, DIGITS)
    return ReadNumber(text[cursor:end]), end


def ParseTerm(text, cursor):
    value, cursor = ParseFactor(text, cursor)
    while at(text, cursor) in ("*", "/"):
        sign = text[cursor]
        factor, cursor = ParseFactor(text, cursor + 1)
        value = value * factor if sign == "*" else quotient(value, factor)
    return value, cursor


def ParseSum(text):
    value, cursor = ParseTerm(text, 0)
    while at(text, cursor) in ("+", "-"):
        sign = text[cursor]
        term, cursor = ParseTerm(text, cursor + 1)
        value = value + term if sign == "+" else value - term
    return value


def EvaluateEquation(text, places=5):
    """The value, None for a text that is refused; and the text as it is left behind."""
    text = StripUnits(CommaToPoint(text), places)
    equation = text[:BUFFER]
    if IsMixedNumber(equation):
        equation = MixedToSum(equation)
    equation = equation.replace(BLANK, "")
    return (ParseSum(equation) if IsValidEquation(equation) else None), text


# --- shown values ---------------------------------------------------------------------------------------------

# kind: word and, where metric has its own, the metric word with the factor to it
KINDS = {
    1: (" in", " cm", FACTORS["InToCm"]),
    2: (" ft", " m", FACTORS["FtToM"]),
    3: (" deg", " deg", None),
    4: (" in²", " cm²", FACTORS["In2ToCm2"]),
    5: (" in", " mm", FACTORS["InToMm"]),
    6: (" rpms", " rpms", None),
    7: (" fpm", " mpm", FACTORS["FtToM"]),
}


def converted(text, factor, places):
    """The text's number in another unit: cut to the places before anything is shown.  0 where it overflows."""
    value = ReadNumber(text) * factor
    return rounded(value, places) if math.isfinite(value) else 0.0


def masked(value, places):
    """At least one digit ahead of the point, thousands grouped, the last place rounded half away from zero."""
    cut = fifteen_digits(value).quantize(Decimal(1).scaleb(-places), rounding=ROUND_HALF_UP, context=WIDE)
    return format(abs(cut) if cut.is_zero() else cut, ",f")


def whole(value, bits):
    """To an integer, ties to even; 0 where it does not fit."""
    result, limit = round(value), 1 << (bits - 1)
    return result if -limit <= result < limit else 0


def FormatValue(text, kind, imp_metric, display_places, decimal_places):
    """The text shown, and the caller's text as it is left behind."""
    metric = imp_metric == 1
    imperial_word, metric_word, factor = KINDS.get(kind, ("", "", None))
    word = metric_word if metric else imperial_word
    if metric and factor is not None:
        text = DecimalText(converted(text, factor, decimal_places))
    if kind == 6:
        return " " + CommaToPoint(text.strip(BLANK)) + word, text
    if kind == 7:
        return f" {whole(ReadNumber(text), 32)}{word}", text
    shown = masked(ReadNumber(text), display_places) if 1 <= display_places <= 10 else text
    return " " + CommaToPoint(shown) + word, text


# --- fractions ------------------------------------------------------------------------------------------------

FINEST = 64


def PlacesOfText(text):
    return len(text) - (text.find(".") + 1)


def IsMultipleOf(value, divisor):
    parts = value / divisor
    return parts - math.trunc(parts) == 0


def ReduceFraction(numerator, denominator):
    for _ in range(101):
        if numerator % 2:
            break
        numerator, denominator = numerator // 2, denominator // 2
    return abs(numerator), denominator


def FractionText(fraction):
    if not IsMultipleOf(fraction, 1 / FINEST):
        return DecimalText(fraction)
    numerator, denominator = ReduceFraction(whole(fraction * FINEST, 16), FINEST)
    return f"  {numerator}/{denominator}" if numerator else ""


def DecimalToFraction(text):
    value = ReadNumber(text)
    inches = math.trunc(value)
    if not -32768 <= inches <= 32767:
        inches = 0  # too large for the cell it goes into, which stays as it was
    fraction = rounded(value - inches, PlacesOfText(text.strip(BLANK)))
    shown = FractionText(fraction)
    return f"{inches}{shown}" if inches else shown.strip(BLANK) or "0"


# --- preset lists ---------------------------------------------------------------------------------------------

STYLES = ["Square Back", "Round Back", "Double Radius", "Triple Radius", "Flat Bottom", "Narrow Style", "O Shape",
          "Frost Tooth"]
TIPS = ["None", "Stellite", "Swagged", "Carbide"]
JOINS = ["Right Angle Join", "Overlaped Join"]

# "Soutern" and "Popular" are the names that saved designs hold.
WOODS = """Softwoods:|Cedar (Eastern Red)|Cedar (Northern White)|Cedar (Soutern Red)|Cedar (Western Red)|Cypress|
Douglas Fir (Coast)|Douglas Fir (Rocky Mt)|Fir (Alpine)|Fir (California Red)|Fir (Silver)|Fir (White)|
Hemlock (Eastern)|Hemlock (Mountain)|Hemlock (Western)|Larch|Pine (Eastern White)|Pine (Jack)|Pine (Lodgepole)|
Pine (Northern White)|Pine (Ponderosa)|Pine (Western White)|Redwood|Spruce (Engelmann)|Spruce (Red)|
Spruce (White)|Tamarack||Hardwoods:|Alder|Ash (White)|Aspen|Beech|Birch (Yellow)|Cherry (Black)|Chestnut|
Cottonwood (Eastern)|Elm (American White)|Hickory|Maple (Black)|Maple (Red)|Maple (Silver)|Oak (Black)|
Oak (Northern Red)|Oak (White)|Popular|Walnut|Willow (Black)""".replace("\n", "").split("|")


def running(count, start, step, places):
    """The texts of a stepped list: each step adds to what the one before it showed, not to the exact sum."""
    text = DecimalText(start)
    for _ in range(count):
        text, _ = FormatValue(DecimalText(ReadNumber(text) + step), 0, 0, places, 5)
        yield text


def stepped(count, start, step, word):
    return lambda places: [text + word for text in running(count, start, step, places)]


def fractions(count, start, step, word):
    def entries(_):
        text = DecimalText(start)
        for _ in range(count):
            text = DecimalText(ReadNumber(text) + step)
            yield DecimalToFraction(text) + word

    return lambda places: list(entries(places))


def feet_and_inches(count, start, step):
    def entry(value):
        feet = math.trunc(value)
        inches = (value - feet) * 12
        return DecimalText(feet) + " ft" + (f" {DecimalText(inches)} in" if inches else "")

    return lambda places: [entry(ReadNumber(text)) for text in running(count, start, step, places)]


def numbers(first, last, word="", step=1):
    return lambda places: [DecimalText(n) + word for n in range(first, last + 1, step)]


def texts(entries):
    return lambda places: list(entries)


def both(entries):
    return entries, entries


# number: metric entries, imperial entries
LISTS = {
    1: (numbers(3, 15, " m"), numbers(10, 50, " ft")),
    2: both(numbers(48, 120)),
    3: (stepped(25, 0, 0.125, " mm"), stepped(25, 0, 0.005, " in")),
    4: (stepped(51, 4.0, 0.125, " mm"), stepped(51, 0.175, 0.005, " in")),
    5: both(numbers(0, 35, " deg")),
    7: (stepped(41, 0, 0.1, " cm"), fractions(32, 0, 0.03125, " in")),
    8: (stepped(41, 0.4, 0.1, " cm"), fractions(41, 0.21875, 0.03125, " in")),
    9: both(texts(STYLES)),
    10: (numbers(10, 50, " cm"), numbers(4, 20, " in")),
    11: (stepped(46, 0.5, 0.5, " cm"), stepped(46, 0.45, 0.05, " in")),
    12: both(numbers(0, 45, " deg")),
    14: (stepped(41, 0.15, 0.1, " cm"), fractions(30, 0.09375, 0.03125, " in")),
    15: (stepped(28, 0.2, 0.1, " m"), feet_and_inches(31, 0.75, 0.25)),
    16: (stepped(38, 0.2, 0.1, " m"), feet_and_inches(45, 0.75, 0.25)),
    17: (stepped(46, 0.75, 0.25, " mm"), stepped(46, 0.06, 0.005, " in")),
    18: both(texts(TIPS)),
    19: both(numbers(450, 2400, " rpms", 50)),
    20: both(numbers(100, 500, " Fpm", 25)),
    22: both(texts(WOODS)),
    23: both(texts(JOINS)),
    24: (stepped(31, 0, 0.25, " mm"), stepped(31, 0, 0.01, " in")),
}
LISTS.update({13: LISTS[3], 21: LISTS[10], 25: LISTS[24], 26: LISTS[24], 27: LISTS[5]})


def PresetList(number, imp_metric, display_places):
    if number not in LISTS:
        return []
    metric, imperial = LISTS[number]
    return (metric if imp_metric == 1 else imperial)(display_places)


# --- from the dialog into the record --------------------------------------------------------------------------

STORE_RULES = {
    "MetresToFeet": FACTORS["MToFt"],
    "CentimetresToInches": FACTORS["CmToIn"],
    "MillimetresToInches": FACTORS["MmToIn"],
    "AsTyped": None,
}


def StoredNumber(rule, text, imp_metric, decimal_places):
    factor = STORE_RULES[rule]
    if imp_metric == 1 and factor is not None:
        text = DecimalText(converted(text, factor, decimal_places))
    return ReadNumber(text)


# --- rows of the table ----------------------------------------------------------------------------------------

def hexadecimal(value):
    return None if value is None else float(value).hex()


def answered(row):
    """The row with its answers, from what it asks."""
    kind = row["kind"]
    if kind == "eval":
        value, rewritten = EvaluateEquation(row["text"], row["DecimalPlaces"])
        return {**row, "value": hexadecimal(value), "rewritten": rewritten}
    if kind == "comma":
        return {**row, "result": CommaToPoint(row["text"])}
    if kind == "format":
        shown, after = FormatValue(row["text"], row["unit"], row["ImpMetric"], row["DisplayPlaces"],
                                   row["DecimalPlaces"])
        return {**row, "shown": shown, "after": after}
    if kind == "fraction":
        return {**row, "shown": DecimalToFraction(row["text"])}
    if kind == "list":
        return {**row, "entries": PresetList(row["number"], row["ImpMetric"], row["DisplayPlaces"])}
    if kind == "store":
        value = StoredNumber(row["rule"], row["text"], row["ImpMetric"], row["DecimalPlaces"])
        return {**row, "value": hexadecimal(value)}
    if kind == "decimal":
        value = float.fromhex(row["value"])
        general = {"text": DecimalText(value)} if math.isfinite(value) else {}
        return {**row, **general, "plain": PlainText(value)}
    raise ValueError(f"no rows of kind {kind}")


def check(path):
    bad = total = 0
    with open(path, encoding="utf-8") as table:
        for number, line in enumerate(table, 1):
            row = json.loads(line)
            total += 1
            if answered(row) != row:
                bad += 1
                print(f"row {number}: {row} instead of {answered(row)}")
    print(f"{total} rows, {bad} differ")
    return 1 if bad or not total else 0


def write(path):
    from value_rows import all_rows  # the rows are fed with the answers of this file

    with open(path, "w", encoding="utf-8", newline="\n") as table:
        for row in all_rows():
            table.write(json.dumps(answered(row), ensure_ascii=False, separators=(",", ":")) + "\n")
    return 0


# --- known answers --------------------------------------------------------------------------------------------

EQUATIONS = {
    "12 3/4": 12.75, "1.5*2": 3, "(10+2)/4": 3, "12.5 in": 12.5, "5 ft 6 in": 5.5, "5ft 6in": 5.5, "5ft6in": 5,
    "5ft10in": 5, " 1 ft  3 in": 1.25, "1  1/16 in": 1.0625, "12,5": 12.5, "1,234.5": 1.234, "12.5 mm": 12.5,
    "12.5 MM": 12.5, "12.5 cm": 12.5, " 1200 rpms": 1200, " 350 fpm": 350, "14 deg": 14, "-5": -5, "2*-3": -3,
    "2(3)": 2, "1.2.3": 1.2, "(2)3": 2, "1+2*3": 7, "(1+2)*3": 9, "8/2/2": 2, "3 1/2": 3.5, "12 3/4 in": 12.75,
    " 1/2": 0.5, "1/2": 0.5, ")(": 0, "": 0, "   ": 0, "1/0": math.inf, "2/-3": math.inf, "1 .3 in": 1.3,
    "2 ft": 2, "(" * 40 + ")" * 40: 0, "7 in²": 7, "1 3/4/2": 13 / 4 / 2, " 12 3/4": 30.75, "5 ft 6 1/2 in": 10.08333,
    "9" * 80 + "é": float("9" * 80), " " * 80 + "5": 0, "in " * 21: 0, "," * 21: 0, "6 in 5 ft": 6,
}
REFUSED = ["abc", "2x", "meter", "(1+2", "1+2)", "²", "5 rpm", "1e5", "in " * 22, "," * 22, "1\t2"]

SHOWN = [  # text, kind, ImpMetric, DisplayPlaces, DecimalPlaces, shown
    (" 12", 1, 0, 3, 5, " 12.000 in"), (" 12", 1, 1, 3, 5, " 30.480 cm"), (" .05", 5, 0, 3, 5, " 0.050 in"),
    (" .05", 5, 1, 3, 4, " 1.270 mm"), (" 8000", 7, 1, 3, 5, " 2438 mpm"), (" 2.5", 7, 0, 3, 5, " 2 fpm"),
    (" 3.5", 7, 0, 3, 5, " 4 fpm"), (" 1200", 6, 0, 3, 5, " 1200 rpms"), (" 1200", 6, 1, 3, 5, " 1200 rpms"),
    (" .25", 0, 0, 2, 5, " 0.25"), (" .25", 0, 0, 0, 5, "  .25"), (" .25", 1, 0, 11, 5, "  .25 in"),
    (" 1234.5", 1, 0, 1, 5, " 1.234.5 in"), (" 1234.5", 0, 1, 3, 5, " 1.234.500"), ("", 4, 0, 2, 5, " 0.00 in²"),
    ("1.005", 0, 0, 2, 5, " 1.01"), ("-1.005", 0, 0, 2, 5, " -1.01"), ("-.0004", 3, 1, 3, 5, " 0.000 deg"),
    (" 1", 4, 1, 4, 5, " 6.4516 cm²"), ("1e20", 9, 0, 1, 5, " 100.000.000.000.000.000.000.0"),
]

FRACTIONS = {"1.1875": "1  3/16", "0.5": "1/2", "2": "2", "0": "0", "0.3": ".3", "1.3": "1 .3", "": "0",
             " .015625": "1/64", " 3.0078125": "3 .0078125", "-1.5": "-1-.4"}

DECIMALS = {0.125: (" .125", " .125"), 0.0: (" 0", " 0"), -0.0: (" 0", " 0"), -0.5: ("-.5", "-.5"), 12.0: (" 12", " 12"),
            1e-5: (" 1E-05", " .00001"), 1e15: (" 1E+15", " 1000000000000000"), 1 / 3: (" .333333333333333",) * 2,
            -1.5e-7: ("-1.5E-07", "-.00000015"), 1e16 / 3: (" 3.33333333333333E+15", " 3333333333333330")}


def self_test():
    for text, value in EQUATIONS.items():
        assert EvaluateEquation(text)[0] == value, (text, EvaluateEquation(text), value)
    for text in REFUSED:
        assert EvaluateEquation(text)[0] is None, (text, EvaluateEquation(text))
    assert math.isnan(EvaluateEquation("0/0")[0])
    assert EvaluateEquation("7,5 in²") == (7.5, "7.5    ")
    assert EvaluateEquation("5 FT 6 In") == (5.5, " 5.5")
    assert EvaluateEquation("1 ft 1 in", 8) == (1.08333333, " 1.08333333")
    for *asked, shown in SHOWN:
        assert FormatValue(*asked)[0] == shown, (asked, FormatValue(*asked), shown)
    assert FormatValue(" 12", 1, 1, 3, 5)[1] == " 30.48"
    for text, shown in FRACTIONS.items():
        assert DecimalToFraction(text) == shown, (text, DecimalToFraction(text), shown)
    for value, (general, plain) in DECIMALS.items():
        assert (DecimalText(value), PlainText(value)) == (general, plain), value
    assert PlainText(math.inf) == PlainText(math.nan) == " 0"

    assert PresetList(1, 0, 3)[0] == " 10 ft" and len(PresetList(1, 0, 3)) == 41 and PresetList(1, 1, 3)[-1] == " 15 m"
    assert PresetList(3, 1, 3)[:2] == [" 0.125 mm", " 0.250 mm"]
    assert PresetList(3, 0, 2)[:3] == [" 0.01 in", " 0.02 in", " 0.03 in"]
    assert PresetList(7, 0, 3)[0] == "1/32 in" and PresetList(7, 0, 3)[-1] == "1 in"
    assert PresetList(8, 0, 3)[0] == "1/4 in" and PresetList(8, 0, 3)[-1] == "1  1/2 in"
    assert PresetList(15, 0, 3)[:2] == [" 1 ft", " 1 ft  3 in"] and PresetList(16, 0, 3)[-1] == " 12 ft"
    assert len(PresetList(22, 0, 3)) == 27 + 1 + 20 and "Oak (Southern Red)" not in PresetList(22, 0, 3)
    assert PresetList(6, 0, 3) == PresetList(0, 1, 3) == PresetList(28, 0, 3) == []
    assert all(len(PresetList(number, system, 3)) <= 101 for number in range(30) for system in (0, 1))

    assert StoredNumber("CentimetresToInches", "2.54", 1, 5) == 1
    assert StoredNumber("MillimetresToInches", " .125", 1, 5) == 0.00492
    assert StoredNumber("MetresToFeet", " 2", 0, 5) == StoredNumber("AsTyped", " 2", 1, 5) == 2
    print("self-test passed")
    return 0


def main(arguments):
    if arguments == ["--self-test"]:
        return self_test()
    if len(arguments) == 2 and arguments[0] in ("--check", "--write"):
        return (check if arguments[0] == "--check" else write)(arguments[1])
    sys.exit(__doc__)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
