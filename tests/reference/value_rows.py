"""What the table of typed and shown text asks.  The questions are always the same: the dice have a fixed seed."""

import math
import random

from value_reference import (DECIMALS, EQUATIONS, FRACTIONS, LISTS, REFUSED, SHOWN, STORE_RULES, UNIT_WORDS,
                             EvaluateEquation, PlainText, PresetList)

SEED = 4711

# --- equations ------------------------------------------------------------------------------------------------

TYPED = """
1|5.|.5|.|..|+|-|*|/|()|(|)|((1))|(1))((2)|(1))(2|2+)(3|1)+(2|)1+(2|2(|-(1+2)|-(-(-1))|2+(3|(2)(3)|2.(3)|1..2|1./.5
1+|1-|1*|1/|*1|/1|+1|--1|++1|1--1|1+-+1|2**3|2//3|4/0*0|-1/0|1/0-1/0|(1/0)-(1/0)|0/0+5|0*(0-1)|1/(0*(0-1))|(0-1)/0
1/(1/0)|5/(2-2)|0/5|1-1|.1+.2|.1*3|1/3|1/3*3|2/3/4|2-3-4|2-3*4-5|1e3|1E3|1 e 3|$5|5%|5'|5"|5 in.|5 in,|#|1;2|1:2|a|_
3 1/2|3  1/2|3 1 /2|3 1/ 2|3 1 / 2 |3 1/2  |3 1/2/2|3 1/2+1|3+1 1/2|3 1/2 1|3 1|3 1 2|3 /2|3/ 2| 3/2| /2| /|  /  |1 /
 3 1/2|  1/2|-3 1/2|3.5 1/2|3 1.5/2|3 1/2.5|3 (1/2)|(3 1/2)|3 -1/2|1 1/0|0 0/0|3 /|3 1/|3  /  2|12 3/4 4|1 2/3 in|1 2/3in
3 1/2 in|3in 1/2|3 in 1/2|3 1/2in²|3 1 in /2|3 1/in 2| 1/2 in|in 1/2|in|ft|m|mm|deg|ft in|in ft|inft|ftin|12in|12 IN|12 iN
7 in²|7 IN²|7in²|7 cm²|7 CM²|7 mm²|7 ²|7 m²|7 ft²|²in|in²cm²|in² in|7 In² + 1 cM²|7 in2|5 min|5 minm|5 mmpm|5 cmm|5 mcm
5 rpm|5 rpms|5 RPMS|5 Rpms|5rpmss|5 fpm|5 Fpm|5 FPM|5fpmpm|5 mpm|5 MPM|5 mpmm|5 mp m|5 DEG|5 Deg|5 degs|5 degree|5 d|5 meter
5 metre|5 feet|5 inch|5 inches|5 cm 5 mm|5 m 3 cm|5 mm*2|2 in*3 in|2 in + 3 in|(2 in + 3)/5 in|1/2 in + 1/4 in|5i n|5 i in n
5 ft 6 in|5ft 6in|5ft6in|5ft10in|5 ft6 in|5ft  6 in|5 FT 6 IN|5 Ft 6 iN|5 ft 6 in²|5 ft 6,5 in|5,5 ft 6 in|5.5 ft 6.25 in
 5 ft 6 in |5 ft 6 in + 1|5 ft - 6 in|5 ft -6 in|5 ft +6 in|-5 ft 6 in|- 5 ft 6 in|+5 ft 6 in|-5 ft -6 in|0 ft 6 in|ft 6 in
 ft  6 in|5 ft in|5 ft 0 in|5 ft 12 in|5 ft 13 in|5 ft 6 1/2 in|5 1/2 ft 6 in|1/2 ft 3 in|(5 ft) 6 in|(5 ft 6 in)|5*2 ft 6 in
6 in 5 ft|6in5ft|6 in 5 ft 3|6 in ft|in 5 ft 3|5 in ft 3|5 ft 6 in 7 ft 8 in|5 ft 6 ft 7 in|5 ft x6 in|x5 ft 6 in|5x ft 6 in
5 ft abc in|abc ft def in|1 0 ft 1 1 in|1e1 ft 6 in|1e1 ft 1e1 in|5 ft 1 in|5 ft 2 in|5 ft 5 in|5 ft 7 in|5 ft 11 in|5 ft .1 in
5 ft.6 in|5ft.6in|5ft..6in|5 ft 6in mm|5 ft 6 in deg|ftinin|inft5|5 fin ft|5 left 6 in|5 lift in 6|100000 ft 1 in|.5 ft .5 in
.00001 ft 0 in|.000012345 ft 0 in|-.00001 ft 0 in|1e-7 ft 0 in|0 ft 0.0002 in|1e15 ft 6 in|1e20 ft 0 in|1e90 ft 0 in|1e999 ft 6 in|6 ft 1e999 in
123456789 ft 1 in|1234567890123 ft 1 in|.33333 ft 1 in|.123456789 ft 1 in|-.5 ft 3 in|-1 ft 12 in|-.25 ft 3 in|0 ft -3 in
12,5|1,234.5|1.234,5|,5|5,|,|,,|1,2+3,4|(1,5)*2|1,1/2|1 1/2,5|0,1 in|1.5,5 ft 6 in|1'000|1 000|1 000,5|1 2 3 4
1234567890|0000012|00.500|12345678901234567890|.000000000000000000001|0.1234567890123456789|9007199254740993|4503599627370497.5
""".strip("\n")


def unit_words():
    words = ("deg", "in²", "cm²", "in", "ft", "mm", "cm", "rpms", "Fpm", "mpm", "m")
    for word in words:
        for cased in {word, word.lower(), word.upper(), word.capitalize(), word[:-1] + word[-1].upper()}:
            yield from (f"12.5 {cased}", f"7{cased}", f" 1 1/2 {cased}", cased)
        yield from (f"3 {word}{other}" for other in words)
        yield from (f"4 {word} {other} 2" for other in words)


def long_ones():
    for length in (78, 79, 80, 81, 82, 83, 100, 161):
        yield "1+" * (length // 2) + "1" * (length % 2)
        yield "9" * (length - 2) + "*2"
        yield " " * (length - 1) + "7"
        yield "7" + " " * (length - 2) + "8"
        yield "3" + " " * (length - 4) + "1/2"
        yield " " * (length - 3) + "1/2"
        yield "1 1/2" + " " * (length - 6) + "x"
        yield "1" * (length - 1) + "é"
        yield "1" * (length - 1) + "²"
        yield "1+2" + " " * (length - 6) + "in²"
        yield "(1+2" + " " * (length - 5) + ")"
        yield "1." + "0" * (length - 4) + "25"
        yield "5 ft" + " " * (length - 8) + "6 in"
        yield "1 mm" + " in²" * ((length - 4) // 4) + "+1"
    yield from (" " * n + "12" for n in (0, 77, 78, 79, 80))
    yield from ("1/3+" * n + "1" for n in (18, 19, 20, 21))
    yield from (" 1 / 3 + " * n + "1" for n in (7, 8, 9))
    yield "é" * 81
    yield "1" + "é" * 80


def deep_ones():
    for depth in (1, 2, 5, 19, 20, 38, 39, 40, 41):
        yield "(" * depth + ")" * depth
        yield "(" * depth + "2" + ")" * depth
        yield "2*(" * depth + "1" + ")" * depth
        yield "(1+" * depth + "1" + ")" * depth
        yield "(" * depth + "1" + ")" * (depth - 1)
        yield ")" * depth + "(" * depth
        yield "()" * depth


def many_ones():
    for count in (1, 2, 20, 21, 22, 23, 30):
        yield from ("," * count, "1" + "," * count, "1," * count, "," * (count - 1) + "x")
        yield from ("in " * count + "4", "4" + " in" * count, "4 " + "m" * count, "4" + " cm in" * (count // 2))
        yield from ("4 ft" * count, "1" + "+1in" * count, "1,5 in+" * count + "1")
    yield "5,5 ft 6,5 in" + "," * 19
    yield "5,5 ft 6 in" + " ft" * 22
    yield "," * 21 + "5 ft 6,5 in"


def typed_number(dice):
    shape = dice.randrange(7)
    if shape == 0:
        return str(dice.randrange(10))
    if shape == 1:
        return str(dice.randrange(10 ** dice.randrange(1, 8)))
    if shape == 2:
        return f"{dice.random() * 10 ** dice.randrange(-3, 4):.{dice.randrange(1, 9)}f}"
    if shape == 3:
        return f"{dice.randrange(200)},{dice.randrange(1000)}"
    if shape == 4:
        return f".{dice.randrange(100000)}"
    if shape == 5:
        return f"{dice.randrange(100)}."
    return f"{dice.randrange(1, 10)}{dice.choice(('', '0', '00'))}"


def equation(dice, depth=0):
    terms = []
    for _ in range(dice.randrange(1, 4)):
        factors = [f"({equation(dice, depth + 1)})" if depth < 4 and dice.random() < 0.2 else typed_number(dice)
                   for _ in range(dice.choice((1, 1, 2, 3)))]
        terms.append("".join(f + dice.choice("*/") for f in factors)[:-1])
    return ("-" if dice.random() < 0.1 else "") + "".join(t + dice.choice("+-") for t in terms)[:-1]


def well_formed(dice):
    """Mostly short enough to be read to the end."""
    text = equation(dice)
    while len(text) > 70 and dice.random() < 0.95:
        text = equation(dice)
    return text if dice.random() < 0.7 else spaced(dice, text)


def spaced(dice, text):
    return "".join(c + " " * dice.choice((0, 0, 0, 1, 2)) for c in text)


def with_unit(dice, text):
    word = dice.choice((" in", " ft", " mm", " cm", " m", " deg", " rpms", " Fpm", " mpm", " in²", " cm²", "in", "MM"))
    return text + word if dice.random() < 0.8 else word + " " + text


def mixed_number(dice):
    blanks = lambda: " " * dice.choice((0, 0, 1, 1, 2, 3))
    number = lambda: str(dice.randrange(100)) if dice.random() < 0.85 else ""
    text = number() + blanks() + number() + blanks() + "/" + blanks() + number() + blanks()
    return text + dice.choice(("", "", "", " in", "in²", "/2", "+1", " 1"))


def feet_and_inches(dice):
    blanks = lambda: " " * dice.choice((0, 1, 1, 2))
    number = lambda: dice.choice((typed_number(dice), str(dice.randrange(100)), "", "-3", "1/2"))
    feet, inches = dice.choice(("ft", "ft", "FT", "Ft")), dice.choice(("in", "in", "IN", "in²", "In"))
    return blanks() + number() + blanks() + feet + blanks() + number() + blanks() + inches


def too_many_words(dice):
    """More unit words than are taken out: which ones stay shows the order in which they are looked for."""
    first = dice.randrange(len(UNIT_WORDS) - 1)
    words = UNIT_WORDS[first:first + dice.randrange(2, 4)]
    if "ft" in words:
        words = [word for word in words if "in" not in word]
    return " ".join(dice.choice(words) for _ in range(dice.randrange(22, 40)))


PIECES = list("0123456789") * 2 + list("..,+-*/()()    ") + ["in", "ft", "mm", "cm", "m", "deg", "rpms", "Fpm", "mpm", "in²",
                                                         "cm²", "²", "e", "E", "x", "\t", "é", "'", "1/2", " 1", "FT"]
ARITHMETIC = list("0123456789") + list("..,+-*/()()  ")


def garbage(dice, pieces, longest):
    return "".join(dice.choice(pieces) for _ in range(dice.randrange(longest)))


def balanced_garbage(dice):
    """Any order of signs, brackets and points that the check lets through."""
    pieces = list("0123456789" "123456789" "..+-*/+-*/()") + [" "]
    text = [dice.choice(pieces) for _ in range(dice.randrange(1, 25))]
    surplus = text.count("(") - text.count(")")
    for _ in range(abs(surplus)):
        text.insert(dice.randrange(len(text) + 1), ")" if surplus > 0 else "(")
    return "".join(text)


def equations(dice):
    yield from EQUATIONS
    yield from REFUSED
    yield from (text for line in TYPED.split("\n") for text in line.split("|"))
    yield from sorted(unit_words())
    for listed in (long_ones, deep_ones, many_ones):
        yield from listed()
    for number in LISTS:
        for system in (0, 1):
            for places in (3, 5) if number in (7, 8, 14) else (3,):
                yield from PresetList(number, system, places)
    yield from ("%d.%d ft %d in" % (n, n, n) for n in range(12))
    for _ in range(500):
        yield well_formed(dice)
    for _ in range(150):
        yield with_unit(dice, well_formed(dice))
    for _ in range(250):
        yield mixed_number(dice)
    for _ in range(250):
        yield feet_and_inches(dice)
    for _ in range(300):
        yield garbage(dice, PIECES, 16)
    for _ in range(100):
        yield garbage(dice, ARITHMETIC, 12)
    for _ in range(400):
        yield balanced_garbage(dice)
    for _ in range(40):
        yield garbage(dice, PIECES, 160)
    for _ in range(60):
        yield too_many_words(dice)


# --- numbers as text ------------------------------------------------------------------------------------------

ODD_NUMBERS = ["", " ", "0", "-0", " 0", "5", "-5", "+5", " - 5", "1 2 3", ".5", "-.5", "5.", ".", "-", "abc", "5abc", "1,5",
               "1,234.5", "1.2.3", "--5", "1e3", "1E-3", "1e", "1e+", "e5", "1 e 2", ".e5", "12 in", " .125", "-.125",
               "999.9995", "9999.95", "999999.5", "1000", "-1000", "1234567.891", "-1234567.891", "0.0005", "-0.0005",
               "-0.0004", "2.675", "1.005", "1.0049999999999999", "0.04999999999999999", "0.4999999999999999", "8.5",
               "0.12345678905", "123456789012345.678", "12345678901234567890", "1e20", "-1e20", "1E15", "1E-5", "1e-10",
               "5e-11", "4.9e-11", "1e22", "1e70", "1e100", "1e300", "1.5e308", "1e306", "1e999", "-1e999", "99999.99999",
               "0.99999999995", "  7  ", "1\t2", "2147483647", "2147483648", "-2147483648", "-2147483649", "2147483647.5",
               "32767", "32768", "-32768", "-32769", "40000.3", "0.5", "1.5", "2.5", "3.5", "-0.5", "-1.5", "-2.5"]


def decimal_of(dice):
    """A number as a record may hold it: its plain text."""
    shape = dice.randrange(6)
    if shape == 0:
        value = dice.randrange(20000)
    elif shape == 1:
        value = round(dice.random() * 10 ** dice.randrange(-3, 6), dice.randrange(0, 8))
    elif shape == 2:
        value = dice.uniform(-50, 50)
    elif shape == 3:
        value = dice.randrange(3200) / 64
    elif shape == 4:
        value = 10 ** dice.uniform(-8, 14)
    else:
        value = dice.randrange(1, 4000) / 2
    return PlainText(float(value) if dice.random() < 0.9 else -float(value))


def tie(dice, places):
    """A number that ends in a five just behind the last place shown."""
    digits = str(dice.randrange(10 ** dice.randrange(1, 4)))
    return f"{dice.choice(('', '', '-'))}{digits}.{dice.randrange(10 ** places):0{places}d}5"


# --- the other kinds of rows ----------------------------------------------------------------------------------

def format_row(text, unit, metric, shown, cut):
    return {"kind": "format", "text": text, "unit": unit, "ImpMetric": metric, "DisplayPlaces": shown, "DecimalPlaces": cut}


def formats(dice):
    for text, unit, metric, shown, cut, _ in SHOWN:
        yield format_row(text, unit, metric, shown, cut)
    for text in ODD_NUMBERS:
        for unit in (0, 1, 6, 7):
            yield format_row(text, unit, dice.choice((0, 1)), dice.choice((3, 3, 1, 0, 10)), 5)
    for unit in range(9):
        for metric in (0, 1):
            for shown in range(12):
                yield format_row(decimal_of(dice), unit, metric, shown, dice.randrange(4, 11))
    for metric in (0, 1, 2, -1):
        for unit in (-1, 0, 1, 5, 7, 8, 100, 32767, -32768):
            yield format_row(decimal_of(dice), unit, metric, dice.choice((-1, 2, 3, 4, 12)), 5)
    for _ in range(300):
        places = dice.randrange(1, 10)
        yield format_row(tie(dice, places), dice.choice((0, 3, 1)), 0, places, 5)
    for _ in range(80):
        yield format_row(f"{dice.randrange(-3000, 9000)}.5", 7, 0, 3, 5)
    for _ in range(600):
        yield format_row(decimal_of(dice), dice.randrange(8), dice.choice((0, 1, 1)), dice.randrange(0, 12),
                         dice.randrange(4, 11))


def fractions(dice):
    texts = list(FRACTIONS) + ODD_NUMBERS
    texts += [PlainText(n / 64) for n in range(-10, 140)]
    texts += [PlainText(n / 128) for n in range(1, 40, 2)]
    texts += ["1.50", "1.500 ", " 1.5 in", "5E-1", "-.25000000000000000", "-1.2500000000000000000", "-.250", "-1.0", "-3",
              "0.015625", "0.0156250", "0.01562", "1.0156", "7.99999", "7.999999999", "2.000001", "100.9375", "12 3/4"]
    texts += [f"{dice.randrange(40)}.{dice.randrange(10 ** dice.randrange(1, 8))}" for _ in range(150)]
    texts += [decimal_of(dice) for _ in range(150)]
    yield from ({"kind": "fraction", "text": text} for text in texts)


def lists(_):
    for number in range(-1, 30):
        for metric in (0, 1):
            stepped = PresetList(number, metric, 2) != PresetList(number, metric, 5)
            for places in (2, 3, 4, 5) if stepped else (3,):
                yield {"kind": "list", "number": number, "ImpMetric": metric, "DisplayPlaces": places}


def stores(dice):
    def row(rule, text, metric, cut):
        return {"kind": "store", "rule": rule, "text": text, "ImpMetric": metric, "DecimalPlaces": cut}

    for rule in STORE_RULES:
        for text in (" 2.54", " 25.4", " .3048", " 1", " .125", "-2.54", "-1", " 10", "-.0001", *ODD_NUMBERS):
            yield row(rule, text, dice.choice((0, 1, 1, 1, 2)), 5)
        for _ in range(120):
            yield row(rule, decimal_of(dice), dice.choice((0, 1, 1, 1)), dice.randrange(4, 11))
    for number, rule in ((1, "MetresToFeet"), (11, "CentimetresToInches"), (17, "MillimetresToInches"), (5, "AsTyped")):
        for metric in (0, 1):
            for entry in PresetList(number, metric, 3):
                yield row(rule, PlainText(EvaluateEquation(entry)[0]), metric, 5)


def decimals(dice):
    values = [*DECIMALS, math.inf, -math.inf, math.nan, 1e300, -1e300, 1.7976931348623157e308, 2.5e-300, 2.0 ** 52 + 0.5,
              0.1, 0.1 + 0.2, 1 / 7, 1e14, 999999999999999.0, 9999999999999994.0, 1e-4, 9.99999999999999e-5,
              123456789.123456789, 1e22, 1e23, 5e-5, 1.25, 100.0, 1e2, 120000.0, -100.0, 0.30000000000000004]
    values += [math.ldexp(dice.choice((-1, 1)) * dice.random(), dice.randrange(-200, 200)) for _ in range(150)]
    values += [dice.uniform(-1000, 1000) for _ in range(100)]
    values += [round(dice.uniform(-1000, 1000), dice.randrange(7)) for _ in range(100)]
    values += [10.0 ** n for n in range(-12, 24)]
    values += [dice.choice((1.0, -1.5, 9.999, 3.0)) * 10.0 ** -dice.randrange(1, 16) for _ in range(40)]
    yield from ({"kind": "decimal", "value": value.hex()} for value in values)


def commas(dice):
    texts = ["", ",", "1,5", "1.5", "1,2,3", "é,²", "," * 20, "," * 21, "," * 22, "," * 40, "1," * 25, " , ,"]
    texts += [garbage(dice, list("12,,,. "), 40) for _ in range(30)]
    yield from ({"kind": "comma", "text": text} for text in texts)


def all_rows():
    dice = random.Random(SEED)
    for text in dict.fromkeys(equations(dice)):
        # the places count for the inches within feet and inches alone
        places = dice.randrange(4, 11) if "ft" in text.lower() and dice.random() < 0.3 else 5
        yield {"kind": "eval", "text": text, "DecimalPlaces": places}
    for part in (commas, formats, fractions, lists, stores, decimals):
        yield from part(dice)
