#!/usr/bin/env python3
"""Gathers the texts that the windows show into translations/tarnwick.ts, from which a translator starts.

    catalogue.py            writes the catalogue
    catalogue.py --check    fails when the sources say something else than the catalogue

The windows name their texts themselves, by tr(). The core, which knows no toolkit, says its own in English; they are
looked up line by line under the name "core" (platform/qt/Language.h), so each of its lines is an entry here.
Needs lupdate (qt6-l10n-tools)."""

import pathlib
import re
import subprocess
import sys
import tempfile

TOP = pathlib.Path(__file__).resolve().parent.parent
SOURCES = TOP / "src"
CATALOGUE = TOP / "translations" / "tarnwick.ts"
LUPDATE = "/usr/lib/qt6/bin/lupdate"

WINDOW = re.compile(r"(^|/)(frm|fra)[^/]*$|^platform/qt/|^shell/main\.cpp$")

# Texts of these are data, or go to files, printers and command lines, which speak English everywhere.
NO_WINDOW = re.compile(
    r"^(cli|pdf)/|^dxf/modDXF\.cpp|/SvgCanvas|/mod(MachineSvg|Svg|Fields|Wood|Characters|TimeDate|ToolCommands)\."
    r"|^print/mod|^store/(modCfg(Table)?\.|modReg|modUser|modSettingsFile|modRecoveryCopy|modImage|modCodePage)"
    r"|^shell/(Recovery|OpenDesign)\.h|/modGauge\.cpp$|/modPresetList\.cpp$|^entry/modFormat\.cpp$")

# What the core puts together, with what is filled in as %1. The pieces must stand in the sources so.
COMPOSED = """
Error %1
Error Number: %1
Error Number = %1
Error in function CalculateVariableSaw  Error Number%1
Teeth are required to calculate power requirements.
Tooth width (Kerf) is required to calculate power requirements.
Plate thickness is required to calculate power requirements.
Wheel diameter is required to calculate power requirements.
variable pitch teeth requires %1 pages.
Contact www.tarnwick.example for an update.
Made by the Tarnwick makers, www.tarnwick.example
Tarnwick for Windows Version: %1
Power Estimate # %1
Power estimates based on increasing feedrate by %1 percent.
%1 Percent
%1 Teeth
%1 in  (Average)
%1 in²  (Average)
%1 cm  (Average)
%1 cm²  (Average)
%1 mm  (Average)
""".strip().splitlines()

# Whole texts from sources whose other words are no window's.
SINGLE = ["No", "GA", "Inches", "Millimeters", "Unable to save config file", "Error", "None", "Softwoods:", "Hardwoods:"]

# Of other sources, these are data.
DATA = {"Tarnwick", "True", "False", "Hook", "Pitch", "Length", "Width", "Centers", "Overlap", "Sub Program",
        "Current Estimate", "Power Calculation #", "Bandsaw Power File   Version:",
        "Estimates for bandsaw based on increasing feedrate by"}

STRING = r'"(?:[^"\\\n]|\\.)*"'
MESSAGE = re.compile(r" *<message>.*?</message>\n", re.DOTALL)
MESSAGES = re.compile(rf"({MESSAGE.pattern})+", re.DOTALL)
NAME = re.compile(r"^\S*[a-z][A-Z0-9]\S*$|[_<>$=%]|^\.")  # of controls, fields, pictures; formats


def unquoted(literal):
    return bytes(literal[1:-1], "utf-8").decode("unicode_escape").encode("latin-1").decode("utf-8")


def literals(path):
    """The texts of a source, neighbours joined as the compiler joins them."""
    code = "\n".join(line for line in path.read_text().splitlines() if not line.startswith("#"))
    code = re.sub(rf"({STRING})|//[^\n]*", lambda m: m.group(1) or "", code)
    for match in re.finditer(rf"{STRING}(?:\s*{STRING})*", code):
        yield "".join(unquoted(each) for each in re.findall(STRING, match.group()))


def is_text(line):
    """Words for people: several, or one that begins with a capital."""
    return not NAME.search(line) and (re.search(r"[A-Za-z] +[A-Za-z(]", line) or re.match(r"[A-Z][a-z]+[a-z:!.]$", line))


def core_lines():
    found, all_texts, pieces = set(SINGLE), "", " ".join(COMPOSED)
    for path in sorted(SOURCES.rglob("*.[ch]*")):
        place = path.relative_to(SOURCES).as_posix()
        if path.suffix not in (".cpp", ".h") or WINDOW.search(place):
            continue
        for text in literals(path):
            all_texts += text + "\n"
            if NO_WINDOW.search(place):
                continue
            for line in re.split(r"[\n|]", text):
                line = line.strip()
                if is_text(line) and line not in DATA and (" " not in line or line not in pieces):
                    found.add(line)
    for text in [*SINGLE, *(piece.strip() for line in COMPOSED for piece in line.split("%1"))]:
        if not all(word in all_texts for word in re.findall(r"[A-Za-z]+", text)):
            sys.exit(f"No source says: {text}")
    return sorted(found | set(COMPOSED))


def made():
    with tempfile.TemporaryDirectory() as folder:
        core, catalogue = pathlib.Path(folder, "core.cpp"), pathlib.Path(folder, "tarnwick.ts")
        escaped = (line.replace("\\", "\\\\").replace('"', '\\"') for line in core_lines())
        core.write_text("".join(f'QT_TRANSLATE_NOOP("core", "{line}");\n' for line in escaped))
        windows = [str(p) for p in sorted(SOURCES.rglob("*.[ch]*")) if WINDOW.search(p.relative_to(SOURCES).as_posix())]
        run = subprocess.run(
            [LUPDATE, "-silent", "-locations", "none", "-source-language", "en", "-I", str(SOURCES), *windows, str(core),
             "-ts", str(catalogue)],
            capture_output=True, text=True, check=False)
        if run.returncode or run.stderr:  # such as a class that tr() knows by no name of its own
            sys.exit(run.stderr or f"{LUPDATE} has failed")
        return MESSAGES.sub(in_order, catalogue.read_text())


def in_order(messages):
    """By their texts, wherever in a source they stand."""
    return "".join(sorted(MESSAGE.findall(messages.group())))


def main():
    text = made()
    if sys.argv[1:] != ["--check"]:
        CATALOGUE.write_text(text)
    elif not CATALOGUE.exists() or CATALOGUE.read_text() != text:
        sys.exit("translations/tarnwick.ts is not what the sources say; scripts/catalogue.py writes it anew")


main()
