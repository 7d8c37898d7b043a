"""The drawing file of a list, byte for byte, for the second computation of the band."""

from failing import rules, skip, ZERO
from measures import general_text

HEAD = """
0 SECTION|2 HEADER|9 $INSBASE|10 0.0000|20 0.0000|9 $EXTMIN|10 0.0000|20 0.0000|9 $EXTMAX|10 {MaxX}|20 {MaxY}|
9 $LIMMIN|10 0.0000|20 0.0000|9 $VIEWCTR|10 {ViewCenterX}|20 {ViewCenterY}|9 $VIEWSIZE|40 {size}|
9 $TEXTSTYLE|7 STANDARD|9 $CLAYER|8 Default|0 ENDSEC|
0 SECTION|2 TABLES|0 TABLE|2 LTYPE|70      2|
0 LTYPE|2 CONTINUOUS|70     64|3 Solid Line|72     65|73      0|40 0.0|
0 LTYPE|2 DOT|70     64|3 {dots}|72     65|73      2|40 0.25|49 0.0|49 -0.25|0 ENDTAB|
0 TABLE|2 LAYER|70      1|0 LAYER|2 Default|70     64|62      7|6 CONTINUOUS|0 ENDTAB|
0 TABLE|2 VIEW|70      0|0 ENDTAB|0 ENDSEC|0 SECTION|2 BLOCKS|0 ENDSEC|0 SECTION|2 ENTITIES
"""


def head_of(entities):
    size = ZERO
    with skip: size = entities.MaxX * 0.75
    words = {name: general_text(getattr(entities, name)) for name in ("MaxX", "MaxY", "ViewCenterX", "ViewCenterY")}
    text = HEAD.replace("\n", "").format(size=general_text(size), dots="." * 47, **words)
    return [tuple(pair.split(" ", 1)) for pair in text.split("|")]


def pairs_of(entity):
    def numbers(*codes_and_names):
        return [(str(code), general_text(getattr(entity, name))) for code, name in codes_and_names]

    color = [("62", str(rules.DxfSaveColor))]
    if entity.Kind == "LINE":
        dotted = [("6", "DOT")] if entity.IsDotted else []
        return [("0", "LINE"), ("8", "default")] + dotted + color + numbers(
            (10, "Corner1X"), (20, "Corner1Y"), (11, "Corner4X"), (21, "Corner4Y"))
    if entity.Kind == "ARC":
        return [("0", "ARC"), ("8", "default")] + color + numbers(
            (10, "CenterX"), (20, "CenterY"), (40, "Radius"), (50, "StartAngle"), (51, "EndAngle"))
    return []


def dxf_bytes(entities):
    """The file's bytes; None when it has more pairs than the memory setting allows."""
    pairs = head_of(entities)
    for entity in entities.drawn():
        pairs += pairs_of(entity)
    pairs += [("0", "ENDSEC"), ("0", "EOF")]
    if len(pairs) - 1 > rules.MemorySize:
        return None
    return "".join(f" {code} \r\n{value}\r\n" for code, value in pairs).encode("ascii")
