"""Typed numbers and the conversions between inch and metric figures, for the second computation of the band."""

import re

from failing import Failure, Number, RoundTo, ZERO, finite

FACTORS = {
    "InToCm": 2.54,
    "InToMm": 25.4,
    "FtToM": 0.3048,
    "In2ToCm2": 2.54 * 2.54,
    "CmToIn": 1.0 / 2.54,
    "MToFt": 1.0 / 0.3048,
    "MmToIn": 1.0 / 25.4,
}


def ReadNumber(text):
    """The number at the start of a text; blanks count nowhere, no number is 0."""
    found = re.match(r"[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?", text.replace(" ", ""), re.ASCII)
    if not found:
        return ZERO
    try:
        return finite(float(found.group(0)))
    except Failure:
        return ZERO


def general_text(value):
    """Up to 15 digits, an exponent below 0.0001 and from 1E+15, a zero before the point."""
    text = format(float(value), ".15G")
    return "0" if text == "-0" else text


def decimal_text(value):
    """The same without the zero before the point."""
    return re.sub(r"^(-?)0\.", r"\1.", general_text(value))


def convert(name, text):
    try:
        return decimal_text(RoundTo(ReadNumber(text) * Number(FACTORS[name])))
    except Failure:
        return "0"
