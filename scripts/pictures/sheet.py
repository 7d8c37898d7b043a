"""The sheet that a parameter picture is drawn on: 320 x 240, its own light paper, a handful of pens.

Only plain paths, lines, circles and texts come out, so that the toolkit's own small SVG reader shows them as they are meant.
Points are those of the sheet: x to the right, y down.
"""

WIDTH, HEIGHT = 320, 240
INK, BODY, ACCENT, TINT, WOOD, CUT_WOOD = "#1f2933", "#eef2f6", "#c2410c", "#f9d9c6", "#f3e6d0", "#faf3e6"
FONT = "DejaVu Sans, Arial, sans-serif"
LETTER = 17

OUTLINE = {"stroke": INK, "stroke-width": "1.5"}
BREAK = {"stroke": INK, "stroke-width": "0.75"}
CENTRE = {"stroke": INK, "stroke-width": "0.75", "stroke-dasharray": "12 3 2 3"}
MEASURE = {"stroke": ACCENT, "stroke-width": "1"}
REACH = {"stroke": ACCENT, "stroke-width": "1", "stroke-dasharray": "3 2"}  # an edge continued to where it is measured
STRONG = {"stroke": ACCENT, "stroke-width": "2.5"}


def number(value):
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def pair(p):
    return f"{number(p[0])} {number(p[1])}"


def path(pieces, place=lambda p: p, closed=False):
    """Path data of a chain of lines and arcs; place takes a point of the chain to the sheet."""
    words, last = [], None
    for piece in pieces:
        if last is None or abs(piece.start[0] - last[0]) + abs(piece.start[1] - last[1]) > 1e-2:
            words.append("M" + pair(place(piece.start)))
        for curve in piece.curves():
            words.append(("L" if len(curve) == 1 else "C") + " ".join(pair(place(p)) for p in curve))
        last = piece.end
    return "".join(words) + ("Z" if closed else "")


class Sheet:
    def __init__(self):
        self.marks = []

    def put(self, element, **attributes):
        text = "".join(f' {name.replace("_", "-")}="{value}"' for name, value in attributes.items())
        self.marks.append(f"<{element}{text}/>")

    def stroke(self, data, pen):
        self.put("path", d=data, fill="none", stroke_linecap="round", stroke_linejoin="round", **pen)

    def fill(self, data, colour):
        self.put("path", d=data, fill=colour)

    def line(self, p, q, pen):
        self.put("line", x1=number(p[0]), y1=number(p[1]), x2=number(q[0]), y2=number(q[1]), stroke_linecap="butt", **pen)

    def circle(self, centre, radius, pen, fill="none"):
        self.put("circle", cx=number(centre[0]), cy=number(centre[1]), r=number(radius), fill=fill, **pen)

    def polygon(self, points, colour):
        self.fill("M" + "L".join(pair(p) for p in points) + "Z", colour)

    def shape(self, points, pen, fill=None):
        if fill:
            self.polygon(points, fill)
        self.stroke("M" + "L".join(pair(p) for p in points) + "Z", pen)

    def polyline(self, points, pen):
        self.stroke("M" + "L".join(pair(p) for p in points), pen)

    def letter(self, at, text, colour=ACCENT):
        """A letter whose middle lies at the given point."""
        self.marks.append(
            f'<text x="{number(at[0])}" y="{number(at[1] + LETTER * 0.36)}" text-anchor="middle" '
            f'font-family="{FONT}" font-size="{LETTER}" fill="{colour}">{text}</text>')

    def text(self):
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
                f'viewBox="0 0 {WIDTH} {HEIGHT}">')
        paper = f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#ffffff"/>'
        return "\n".join(['<?xml version="1.0" encoding="UTF-8"?>', head, paper, *self.marks, "</svg>"]) + "\n"
