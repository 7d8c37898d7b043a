#!/usr/bin/env python3
"""A second computation of the printed sheets, written apart from the program, slow and plain.

    print_sheet.py > ../data/print.jsonl

A sheet a line, places in twips from the corner of the paper. Texts are measured with letters that are all 0.42 of
their size wide. "paper" is the kind of paper, "landscape" how it lies:

    {"op": "Information", "metric": 0 or 1, "display": shown decimals, "places": decimals, "power": the setting,
     "paper": .., "landscape": .., "saw": the record, nested, "rows": [[x of the label, top, x of the value, bottom,
     label, value, heading or not], ...], "points": size of their letters}
    {"op": "Drawing", "paper": .., "landscape": .., "kind": "band" or "segment", "settings": {..}, "saw": the design
     before its calculation, nested, "sheets": [[piece, ...], ...]}        a piece: ["LINE", x, y, x, y],
                                                     ["ARC", x, y, radius, start, end], ["SEAM", x, top, bottom]
    {"op": "Header", "customer": [the nine lines], "title": .., "date": .., "landscape": .., "texts": [[x, y, text,
     points, bold or not], ...], "end": where the header ends}

The same inputs come each time.
"""

import json
import math
import pathlib
import random

from record import FIELD_TABLE
from tarnwick_reference import computed
from value_reference import DecimalText, FormatValue

BANDS = pathlib.Path(__file__).resolve().parent.parent / "data" / "bands.jsonl"
LETTER = 0.42
POINTS = 9
HEIGHTS = {1: 11, 2: 11, 5: 14, 14: 13, 40: 12, 41: 13}


def text_width(text, points=POINTS):
    return len(text) * LETTER * points * 20


def page_size(paper, landscape):
    """Width and height as the eye holds the sheet: 8.5 inches count as 8."""
    size = 8 * 1440, HEIGHTS.get(paper, 11) * 1440
    return size[::-1] if landscape else size


# --- the rows of the information sheet ---------------------------------------------------------------------------

STYLES = {1: " Square Back", 2: " Round Back", 4: " Double Radius", 5: " Triple Radius", 6: " Flat Bottom",
          7: " Narrow Style", 8: " O Shape", 9: " Frost Tooth"}
R, R1, R2, R3 = (("Gullet Radius:", "Radius", 1), ("1st Gullet Radius:", "Radius1", 1),
                 ("2nd Gullet Radius:", "Radius2", 1), ("3rd Gullet Radius:", "Radius3", 1))
W, BACK = ("Gullet Width:", "Width", 1), ("Gullet Back Angle:", "BackAngle", 3)
FROST = [("Frost Notch Width:", "FrostWidth", 5), ("Frost Notch Height:", "FrostHeight", 5),
         ("Frost Notch Radius:", "FrostRadius", 5), ("Frost Notch Angle:", "FrostAngle", 3)]
STYLE_ROWS = {4: [R1, R2, W, BACK], 5: [R1, R2, R3, W, BACK],
              6: [R1, R2, ("Gullet Bottom Angle:", "BottomAngle", 3), W, BACK], 7: [R], 8: [R1, W],
              9: FROST + [R1, R2, R3, W]}
ORDINALS = ("1st", "2nd", "3rd", "4th", "5th", "6th", "7th")


def sections(saw, show, with_power):
    """Each section is a list of [label, value, heading or not]."""
    def value(field):
        return saw.get(field, 0)

    def shown(label, field, kind, condition=True, behind=""):
        return [[label, show(value(field), kind) + behind, False]] if condition else []

    def nonzero(label, field, kind, behind=""):
        return shown(label, field, kind, value(field) != 0, behind)

    def positive(label, field, kind):
        return shown(label, field, kind, value(field) > 0)

    def said(label, text, condition=True):
        return [[label, text, False]] if condition else []

    def head(text):
        return [[text, "", True]]

    variable = value("GeneralInfo.VariablePitch") != 0
    average = "  (Average)" if variable else ""
    style = value("ToothStyle")
    result = []

    if value("ContainsInfo.Teeth"):
        rows = head("Band Saw Teeth:")
        rows += said("Tooth Style:", STYLES.get(style, ""), style in STYLES)
        rows += nonzero("Length:", "Length", 2) + nonzero("Band Saw Width:", "Width", 1)
        rows += said("Number Of Teeth:", DecimalText(value("NumTeeth")))
        rows += nonzero("Tooth Spacing:", "Pitch", 1, average)
        rows += shown("Hook Angle:", "HookAngle", 3) + shown("Clearance Angle:", "ClearAngle", 3)
        rows += shown("Sharpness Angle:", "GulletInfo.Sharpangle", 3)
        for label, field, kind in STYLE_ROWS.get(style, [R, BACK]):
            rows += shown(label, "GulletInfo." + field, kind)
        rows += nonzero("Gullet Depth:", "GulletInfo.Depth", 1)
        rows += nonzero("Gullet Back Radius:", "GulletInfo.BackRadius", 1)
        is_round = any(value("GulletInfo." + name) > 0 for name in ("Radius", "Radius2", "Radius1"))
        rows += shown("Gullet Area:", "GulletInfo.Area", 4,
                      value("Length") >= 1 and value("NumTeeth") >= 8 and is_round,
                      "  (Average)" if value("GeneralInfo.VariableDepth") else "")
        if value("SeatInfo.State"):
            rows += said("Seat:", " Yes")
            rows += nonzero("Seat Width:", "SeatInfo.Width", 5) + nonzero("Seat Height:", "SeatInfo.Height", 5)
        else:
            rows += said("Seat:", " No", value("GeneralInfo.TipType") == 3)
        rows += nonzero("Tip Clearance:", "TipClear", 5)
        rows += nonzero("Face Length:", "GulletInfo.FaceLength", 1, average)
        result.append(rows)

    if variable:
        rows = head("Variable Pitch:")
        rows += said("Teeth in Segment:", DecimalText(value("GeneralInfo.NumVariables")))
        rows += shown("Length of Segment:", "DesignInfo.SegmentLength", 1)
        for k in range(min(7, max(0, value("GeneralInfo.NumVariables")))):
            pitch, depth = (show((saw.get("GeneralInfo." + name) or [0] * 10)[k], 1)
                            for name in ("VarPitch", "VarDepth"))
            both = "      Pitch: " + pitch + "    Depth: " + depth
            rows += said(ORDINALS[k] + " Tooth:",
                         both if value("GeneralInfo.VariableDepth") else "    Pitch:" + pitch)
        result.append(rows)

    if value("ContainsInfo.General"):
        rows = head("General Information:")
        rows += said("Number Of Saws:", DecimalText(value("GeneralInfo.Quantity")), value("GeneralInfo.Quantity") > 0)
        rows += said("Type of Tip:",
                     {1: " Stellite", 2: " Swagged", 3: " Carbide"}.get(value("GeneralInfo.TipType"), " None"))
        rows += nonzero("Plate Thickness:", "GeneralInfo.PlateThick", 5)
        rows += nonzero("Cut Width (Kerf):", "GeneralInfo.Kerf", 5)
        rows += nonzero("Side Clearance:", "GeneralInfo.SideClear", 5)
        rows += said("Join Bandsaw Ends:",
                     " Overlap Join" if value("DesignInfo.JoinStyle") == 1 else " Right Angle Join")
        rows += said("Teeth on Both Edges:", " Yes", value("BothEdges") != 0)
        comments = [saw.get(f"DesignInfo.Comment{n}", "").strip(" ") for n in (1, 2, 3)]
        comments = [text for text in comments if text]
        rows += head("Additional Information:") if comments else []
        for text in comments:
            rows += said(text, "")
        result.append(rows)

    if value("ContainsInfo.Machine"):
        result.append(head("Machine Information:") + shown("Wheel Diameter:", "MachineInfo.WheelDia", 2) +
                      shown("Center to Center:", "MachineInfo.CenterToCenter", 2) +
                      shown("Wheel Rim Width:", "MachineInfo.Width", 1))

    if with_power and value("ContainsInfo.Power"):
        wood = saw.get("GeneralInfo.WoodType", "").strip(" ")
        result.append(head("Power Requirements:") + positive("Wheel RPMs:", "GeneralInfo.ShaftSpeed", 6) +
                      positive("Tooth Speed:", "DesignInfo.SawVelocity", 7) +
                      positive("Depth of Cut (Max):", "GeneralInfo.DepthOfCut", 1) +
                      positive("Feed Rate:", "GeneralInfo.FeedRate", 7) +
                      shown("Bite:", "GulletInfo.Bite", 5) + shown("Horsepower:", "GeneralInfo.HorsePower", 0) +
                      said("Type of Wood:", " " + wood if wood else ""))
    return result


# --- where they stand --------------------------------------------------------------------------------------------

class Grid:
    """Cells of columns and rows. A section keeps an empty row around it, and its texts keep clear of those beside
    them: by 400 twips where that can be had, else by 150."""

    def __init__(self, paper, landscape, points):
        width, height = page_size(paper, landscape)
        second = (200 if landscape else 400) + 5700
        self.labels = {1: 1100, 2: second, 3: 10300}
        self.columns = [1, 2, 3] if landscape else [1, 2]
        self.count = int(((8.5 * 1440 if landscape else height) - 360 - 2400) // 265)
        self.right = (width if landscape else 8.5 * 1440) - 240
        self.points = points
        self.torn = self.full = False
        self.cells = {}
        self.order = []
        self.column = 1

    def reach(self, column, row):
        ends = [self.labels[column] + text_width(row[0], self.points)]
        if row[1]:
            ends.append(self.labels[column] + 4000 + text_width(row[1], self.points))
        return max(ends)

    def is_free(self, column, number, row, air):
        left, right = self.cells.get((column - 1, number)), (column + 1, number) in self.cells
        if (column, number) in self.cells:
            return False
        if left and self.reach(column - 1, left) + air > self.labels[column]:
            return False
        end = self.reach(column, row)
        return end + air <= self.labels[column + 1] if right else end <= self.right

    def starts(self, column):
        used = [number for c, number in self.cells if c == column]
        return range(max(used) + 2 if column == self.column and used else 0, self.count)

    def find(self, section):
        later = self.columns[self.column - 1:] + self.columns[:self.column - 1]
        for air in (400, 150):
            for column in later:
                for first in self.starts(column):
                    numbers = range(first, first + len(section))
                    if numbers.stop > self.count:
                        break
                    apart = all((column, n) not in self.cells for n in (first - 1, numbers.stop))
                    if apart and all(self.is_free(column, n, row, air) for n, row in zip(numbers, section)):
                        return column, first
        return None

    def put(self, place, section):
        column, first = place
        for number, row in enumerate(section, first):
            self.cells[column, number] = row
            self.order.append([self.labels[column], number * 265 + 2400, self.labels[column] + 4000,
                               (number + 1) * 265 + 2400, row[0], row[1], row[2]])
        self.column = max(self.column, column)

    def place(self, section):
        if not section:
            return
        found = self.find(section)
        if found:
            self.put(found, section)
            return
        inner = next((i for i, row in enumerate(section) if i and row[2]), None)
        if inner:
            self.place(section[:inner])
            self.place(section[inner:])
            return
        for end in range(len(section) - 1, 0, -1):
            found = self.find(section[:end])
            if found:
                self.torn = True
                self.put(found, section[:end])
                self.place(section[end:])
                return
        self.full = True
        last, number = self.columns[-1], 0  # the sheet is full: over the end of another text, or below all
        while (last, number) in self.cells:
            number += 1
        self.put((last, number), section[:1])
        self.place(section[1:])


def information(saw, metric, display, places, power, paper, landscape):
    def show(value, kind):
        return FormatValue(DecimalText(value), kind, metric, display, places)[0]

    grids = [Grid(paper, landscape, points) for points in (9, 8, 7)]  # smaller letters where the sheet is too full
    for grid in grids:
        for section in sections(saw, show, power):
            grid.place(section)
    grid = min(grids, key=lambda grid: (grid.full, not grid.full and grid.torn))
    grid = grids[-1] if grid.full else grid
    return {"op": "Information", "metric": metric, "display": display, "places": places, "power": power,
            "paper": paper, "landscape": landscape, "saw": nested(saw), "rows": grid.order,
            "points": grid.points}


# --- drawings ----------------------------------------------------------------------------------------------------

def frame_of(paper, landscape):
    width, height = page_size(paper, landscape)
    top = 2400 + (500 if landscape else 200)
    return 720, top, 720 + width - 1440, top + height - 720


def box_of(piece):
    if piece[0] == "LINE":
        _, x1, y1, x2, y2 = piece[:5]
        return min(x1, x2), min(y1, y2), max(x1, x2), max(y1, y2)
    _, x, y, radius, start, end = piece
    sweep = (end - start) % 360 or 360
    angles = [start, end] + [quarter for quarter in (0, 90, 180, 270) if (quarter - start) % 360 <= sweep]
    points = [(x + radius * math.cos(math.radians(a)), y + radius * math.sin(math.radians(a))) for a in angles]
    xs, ys = zip(*points)
    return min(xs), min(ys), max(xs), max(ys)


def drawing(design, paper, landscape):
    found = computed(design)
    saw = found["saw"]
    left, top, right, bottom = frame_of(paper, landscape)
    height = page_size(paper, landscape)[1]
    center = saw["Width"] - saw["GulletInfo.Depth"] / 2
    zero_y = top + (center + (bottom - top) / 1440 / 2) * 1440
    foot = min(bottom, (8.5 * 1440 if landscape else height) - 360)
    pieces = [piece for piece in found["entities"] if not (piece[0] == "LINE" and piece[5])]
    inches = (right - left) / 1440
    sheets = 1
    if design["op"] == "segment" and pieces:
        sheets = max(1, math.ceil((max(box_of(piece)[2] for piece in pieces) + 0.25) / inches - 1e-12))
    drawn = []
    for number in range(sheets):
        zero_x = left + 0.25 * 1440 - number * (right - left)
        sheet = [["SEAM", left, 1440, height - 1440]] if number else []
        for piece in pieces:
            x1, y1, x2, y2 = box_of(piece)
            if zero_x + x2 * 1440 < left or zero_x + x1 * 1440 > right:
                continue
            if zero_y - y1 * 1440 < top or zero_y - y2 * 1440 > foot:
                continue
            if piece[0] == "LINE":
                sheet.append(["LINE"] + [round(v, 3) for v in (zero_x + piece[1] * 1440, zero_y - piece[2] * 1440,
                                                               zero_x + piece[3] * 1440, zero_y - piece[4] * 1440)])
            else:
                sheet.append(["ARC"] + [round(v, 3) for v in (zero_x + piece[1] * 1440, zero_y - piece[2] * 1440,
                                                              piece[3] * 1440, piece[4], piece[5])])
        drawn.append(sheet)
    return {"op": "Drawing", "paper": paper, "landscape": landscape, "kind": design["op"],
            "settings": design["settings"], "saw": nested(design["saw"]), "sheets": drawn}


# --- headers -----------------------------------------------------------------------------------------------------

def header(customer, title, date, landscape):
    name, address, city, province, country, code, phone, fax, email = customer
    texts = [[max(240, 5700 - text_width(title, POINTS + 4) / 2), 265, title, POINTS + 4, True],
             [(200 if landscape else 400) + 9700, 265 * 2.5, date, POINTS, False]]
    y = 265 * 2.5
    if name:
        texts.append([1100, 265 * 2, name, POINTS + 2, False])
        place = city + ("," if city and province else "") + province
        place += (",  " if place and code else "") + code
        calls = "Phone: " + phone if phone else ""
        calls += ("    " if phone and fax else "") + ("Fax: " + fax if fax else "")
        y = 265 * 3.25
        for line in (address, place, country, calls, "E-mail: " + email if email else ""):
            if line:
                texts.append([1100, y, line, POINTS, False])
                y += 265
    texts.append([1100, y, "Page 1 of 2", POINTS, False])
    return {"op": "Header", "customer": customer, "title": title, "date": date, "landscape": landscape,
            "texts": texts, "end": y + 265}


# --- inputs ------------------------------------------------------------------------------------------------------

def nested(saw):
    result = {}
    for name, _ in FIELD_TABLE:
        value = saw.get(name, 0)
        if value in (0, "") or value == [0] * 10:
            continue
        *outer, last = name.split(".")
        holder = result
        for word in outer:
            holder = holder.setdefault(word, {})
        holder[last] = value
    return result


def dressed(saw, dice):
    """A calculated band with more or less of what an order says of it."""
    saw = {name: value for name, value in saw.items() if not name.startswith("ContainsInfo.")}

    def some(values, share=0.8):
        return dice.choice(values) if dice.random() < share else 0

    saw.update({
        "ContainsInfo.Teeth": some([-1], 0.9),
        "ContainsInfo.General": some([-1]), "ContainsInfo.Machine": some([-1, 1]), "ContainsInfo.Power": some([-1]),
        "GeneralInfo.Quantity": some([1, 12, -2, 1500]), "GeneralInfo.TipType": dice.randrange(5),
        "GeneralInfo.PlateThick": some([0.049, 0.0651]), "GeneralInfo.Kerf": some([0.11, 0.1495]),
        "GeneralInfo.SideClear": some([0.0305, -0.01]), "BothEdges": some([-1], 0.3),
        "DesignInfo.JoinStyle": dice.randrange(3), "MachineInfo.WheelDia": some([5, 6.25]),
        "MachineInfo.CenterToCenter": some([7.896, 10.5]), "MachineInfo.Width": some([6.25, 9]),
        "GeneralInfo.ShaftSpeed": some([640, 530, -1]), "DesignInfo.SawVelocity": some([10053, -7]),
        "GeneralInfo.DepthOfCut": some([12, 30.5, -1]), "GeneralInfo.FeedRate": some([110, 95.5]),
        "GulletInfo.Bite": some([0.01914]), "GeneralInfo.HorsePower": some([38.31666, 1234.5]),
        "GeneralInfo.WoodType": dice.choice(["", "Oak (White)", "Cedar (Northern White)"]),
        "DesignInfo.SegmentLength": some([5.25, 13.125])})
    for n in (1, 2, 3):
        saw[f"DesignInfo.Comment{n}"] = dice.choice(["", "Hammer lightly", "Sägewerk Nº 7", "x" * 40, "   "])
    return saw


def crowded(saw, dice):
    """A band with every row that there is, seven teeth in its segment."""
    saw = dressed(saw, dice)
    saw.update({"ContainsInfo." + name: -1 for name in ("Teeth", "General", "Machine", "Power")})
    saw.update({"GeneralInfo." + name: -1 for name in ("VariablePitch", "VariableDepth")})
    saw.update({"GeneralInfo.NumVariables": 7, "GeneralInfo.VarPitch": [1.75] * 7 + [0] * 3,
                "GeneralInfo.VarDepth": [0.75] * 7 + [0] * 3, "GeneralInfo.Quantity": 3,
                "GeneralInfo.PlateThick": 0.049, "GeneralInfo.Kerf": 0.1495, "GeneralInfo.SideClear": 0.05,
                "GeneralInfo.WoodType": "Cedar (Northern White)", "GeneralInfo.ShaftSpeed": 640,
                "GeneralInfo.DepthOfCut": 12, "GeneralInfo.FeedRate": 110, "DesignInfo.SawVelocity": 10053,
                "SeatInfo.State": -1, "SeatInfo.Width": 0.05, "SeatInfo.Height": 0.13, "TipClear": 0.02,
                "GulletInfo.BackRadius": 0.2, "BothEdges": -1})
    saw.update({f"DesignInfo.Comment{n}": "hammer lightly, twice a day, then rest" for n in (1, 2, 3)})
    return saw


def main():
    dice = random.Random(10)
    bands = [json.loads(line) for line in BANDS.read_text(encoding="utf-8").splitlines()]
    rows = [information({}, 0, 3, 5, True, 1, False)]
    for band in bands:
        for _ in range(3):
            saw = dressed(band["expect"]["saw"], dice)
            rows.append(information(saw, dice.randrange(2), dice.choice([2, 3, 3, 5]), dice.choice([4, 5, 8]),
                                    dice.random() < 0.7, dice.choice([1, 2, 5, 9, 14, 40, 41]),
                                    dice.random() < 0.4))
        design = {key: band[key] for key in ("op", "settings", "saw")}
        rows.append(drawing(design, dice.choice([1, 5, 9, 40]), dice.random() < 0.4))
        if band["saw"].get("GeneralInfo.VariablePitch"):
            rows.append(drawing({**design, "op": "segment"}, 1, False))
            rows.append(drawing({**design, "op": "segment"}, 14, True))
    for band in bands[::4]:
        saw = crowded(band["expect"]["saw"], dice)
        rows += [information(saw, 0, 3, 5, True, 1, landscape) for landscape in (False, True)]
    lines = ["North Creek Lumber", "12 Mill Road", "Vancouver", "BC", "Canada", "V5K 0A1", "604 555 0101",
             "604 555 0102", "saws@example.org"]
    rows += [header(lines, "oak.bsw", "Nov, 21/26", landscape) for landscape in (False, True)]
    rows.append(header(lines, "a very long name of a design " * 6, "Jan, 1/07", False))
    for _ in range(40):
        rows.append(header([line if dice.random() < 0.6 else "" for line in lines], "oak.bsw", "May, 9/00", False))
    for row in rows:
        print(json.dumps(row, separators=(",", ":"), ensure_ascii=False))


if __name__ == "__main__":
    main()
