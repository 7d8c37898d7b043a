"""The band as a picture of its own: steel on a dark ground, as the shell's windows show it."""

import math

from plane import Arc

GROUND, BACK, EDGE, SHINE = "#1f2933", "#8d9aa8", "#f5f7fa", "#dde3e9"
FINE = 15  # degrees of an arc that a straight line may stand for at these sizes


def points(pieces, step=FINE):
    """A chain as corners, close enough for a small picture."""
    found = [pieces[0].start]
    for piece in pieces:
        count = max(2, math.ceil(abs(piece.sweep) / step)) if isinstance(piece, Arc) else 1
        found += [piece.at(index / count) for index in range(1, count + 1)]
    return found


def svg(width, height, marks, defs=""):
    head = ('<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
            f'width="{width}" height="{height}" viewBox="0 0 {width} {height}">')
    return "\n".join(['<?xml version="1.0" encoding="UTF-8"?>', head, f"<defs>{defs}</defs>", *marks, "</svg>"]) + "\n"
