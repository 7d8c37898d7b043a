"""The designs that the tooth pictures show, and where they stand on the sheet.

All are small bands with bold measures, so that a fillet or a seat is large enough to point at. The gullet scenes show the
gullet between two tips at 100 to the inch, the band scenes three tips and the whole width at 52.
"""

import dataclasses
import functools

from band import Band, Frame, band_on
from sheet import STRONG, Sheet, path

LEFT, RIGHT = 8, 312

COMMON = {"Pitch": 1.9, "Width": 1.5, "HookAngle": 25, "ClearAngle": 14}


def design(style, gullet, **more):
    return {**COMMON, "ToothStyle": style, "GulletInfo": gullet, **more}


ROUND = {"Radius": 0.34, "Depth": 0.76, "BackAngle": 18, "BackRadius": 0.4}
SEAT = {"State": -1, "Width": 0.16, "Height": 0.3}

DESIGNS = {
    "square": (design(1, {"Radius": 0.34, "Depth": 0.76, "BackAngle": 18}), "face gullet back top"),
    "round": (design(2, ROUND), "face gullet back round top"),
    "double": (design(4, {"Radius1": 0.22, "Radius2": 0.52, "Width": 0.84, "Depth": 0.8, "BackAngle": 20}),
               "face first second back top"),
    "triple": (design(5, {"Radius1": 0.2, "Radius2": 0.84, "Radius3": 0.4, "Width": 1.0, "Depth": 0.8, "BackAngle": 12}),
               "face first second third back top"),
    "flat": (design(6, {"Radius1": 0.2, "Radius2": 0.32, "Width": 0.92, "Depth": 0.72, "BackAngle": 14}),
             "face first bottom second back top"),
    "sloping": (design(6, {"Radius1": 0.16, "Radius2": 0.26, "Width": 0.92, "Depth": 0.76, "BackAngle": 12, "BottomAngle": 16}),
                "face first bottom second back top"),
    "narrow": (design(7, {"Radius": 0.34, "Depth": 0.76}), "face gullet top"),
    "oshape": (design(8, {"Radius1": 0.34, "Width": 0.9, "Depth": 0.76}), "face first bottom top"),
    "seat": (design(2, {"Radius": 0.3, "Depth": 0.86, "BackAngle": 18, "BackRadius": 0.3}, SeatInfo=SEAT),
             "face seat drop gullet back round top"),
    "insert": (design(1, {"Radius": 0.24, "Depth": 0.76, "BackAngle": 18}, SeatInfo=SEAT), "face seat drop gullet back top"),
    "frost": (design(9, {"Radius1": 0.2, "Radius2": 0.44, "Width": 0.7, "Depth": 1.06, "BackAngle": 14,
                         "FrostWidth": 0.38, "FrostHeight": 0.54, "FrostRadius": 0.15, "FrostAngle": 25},
                     SeatInfo={"State": -1, "Width": 0.1, "Height": 0.2}),
              "face seat notchface notch floor drop first second back top"),
    "band": (design(2, ROUND, Width=2.6),
             "face gullet back round top"),
    "clear": (design(2, ROUND, TipClear=0.16, Width=1.66),
              "face gullet back round top"),
    "butt": (design(2, ROUND, Width=2.4), "face gullet back round top"),
    "lap": (design(2, ROUND, Width=2.4, GeneralInfo={"PlateThick": 0.083}, DesignInfo={"JoinStyle": 1}),
            "face gullet back round top"),
    "cut": (design(2, {"Radius": 0.34, "Depth": 0.7, "BackAngle": 18}, Pitch=1.75, Width=4.5), "face gullet back top"),
}


@dataclasses.dataclass
class Scene:
    """A band on its sheet, and the tooth whose gullet is looked at: points of the sheet throughout."""

    sheet: Sheet
    band: Band
    frame: Frame
    pieces: dict

    def start(self, name):
        return self.frame(self.pieces[name].start)

    def end(self, name):
        return self.frame(self.pieces[name].end)

    def centre(self, name):
        return self.frame(self.pieces[name].centre)

    def reach(self, name):
        return self.pieces[name].radius * self.frame.scale

    def stress(self, *names):
        """Draws pieces over in the accent colour."""
        for name in names:
            self.sheet.stroke(path([self.pieces[name]], self.frame), STRONG)

    def level(self, y):
        """The sheet's height of a height above the back edge."""
        return self.frame((0, y))[1]

    @property
    def tip(self):
        return self.start("face")

    @property
    def next_tip(self):
        return self.end("top")


class Scenes:
    """Calculates each design once, and sets it up on a fresh sheet as often as it is asked for."""

    def __init__(self, cli):
        self.band = functools.lru_cache(None)(lambda name: Band(cli, DESIGNS[name][0]))

    def gullet(self, name, tip=(80, 58)):
        return self.scene(name, 3, 100, tip)

    def whole(self, name, tip=(62, 62), right=RIGHT):
        return self.scene(name, 3, 52, tip, right)

    def scene(self, name, tooth, scale, tip, right=RIGHT):
        band = self.band(name)
        at = band.tips()[tooth]
        frame = Frame(scale, (tip[0] - scale * at[0], tip[1] + scale * at[1]))
        scene = Scene(Sheet(), band, frame, band.tooth(tooth, DESIGNS[name][1]))
        band_on(scene.sheet, band, frame, LEFT, right)
        return scene
