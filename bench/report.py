#!/usr/bin/env python3
"""The tables of the README: how long a band takes, beside the floor under it and beside what else writes drawings, all
from one run.

    bench/report.py [FOLDER]      the build folder of the bench preset; build/bench by default

The floor is what the same bytes cost when nothing is worked out: copying the list or the text in memory, writing the
text to a file.  Repetitions of all measurements are mixed with each other, so that a busy moment of the machine falls
on both sides of a ratio, and the median counts.  Memory is warm: the first bands of a process pay for fresh pages
on top, about as much again at 32,000 teeth.  Exit code 1 when a target is missed.
"""

import json
import statistics
import subprocess
import sys
import tempfile
from collections import namedtuple
from pathlib import Path

REPETITIONS = 15

Row = namedtuple("Row", "what benchmark floor target")
Target = namedtuple("Target", "text holds")  # holds(seconds, bytes a second)

BELOW_100_MICROSECONDS = Target("below 100 µs", lambda seconds, rate: seconds < 100e-6)
ONE_FRAME = Target("one frame, 16 ms", lambda seconds, rate: seconds <= 16e-3)
TEXT_RATE = Target("100 MB/s", lambda seconds, rate: rate >= 100e6)
NO_TARGET = Target("", lambda seconds, rate: True)

ROWS = (
    Row("Calculation, 137 teeth", "CalculateRoundBack/137", "CopyDrawing/137", BELOW_100_MICROSECONDS),
    Row("Calculation, 32,000 teeth", "CalculateRoundBack/32000", "CopyDrawing/32000", ONE_FRAME),
    Row("Extents, 137 teeth", "MeasureExtents/137", "CopyDrawing/137", NO_TARGET),
    Row("Extents, 32,000 teeth", "MeasureExtents/32000", "CopyDrawing/32000", NO_TARGET),
    Row("DXF text, 137 teeth", "MakeText/137", "CopyText/137", TEXT_RATE),
    Row("DXF text, 32,000 teeth", "MakeText/32000", "CopyText/32000", TEXT_RATE),
    Row("DXF file, 137 teeth", "WriteDrawing/137/real_time", "WriteBytes/137/real_time", NO_TARGET),
    Row("DXF file, 32,000 teeth", "WriteDrawing/32000/real_time", "WriteBytes/32000/real_time", NO_TARGET),
)
GROWTH = "GrowthWithTeeth"

# Writers of the same lines and arcs, of benchmarks and of dxf_scripts.py. The scripts run on after the benchmarks.
WRITERS = (("Tarnwick", "WriteDrawing/{}/real_time"), ("dxflib, a C++ library", "WriteByLibrary/{}/real_time"),
           ("Python script, by hand", "by hand"), ("Python script, ezdxf", "ezdxf"))
FLOOR_OF_WRITERS = "WriteBytes/{}/real_time"
WRITTEN_TEETH = (137, 8000)
UNITS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}


def run(program):
    names = {name for row in ROWS for name in (row.benchmark, row.floor)}
    names |= {name.format(teeth) for teeth in WRITTEN_TEETH
              for name in (FLOOR_OF_WRITERS, *(name for _, name in WRITERS)) if "/" in name}
    command = [str(program), f"--benchmark_filter=^({'|'.join(sorted(names))})$|^{GROWTH}/", "--benchmark_format=json",
               "--benchmark_min_time=0.05", f"--benchmark_repetitions={REPETITIONS}",
               "--benchmark_enable_random_interleaving=true"]
    return json.loads(subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout)


def medians(measured):
    """Of each benchmark its median: seconds, and bytes a second.  Time of the processor, but where a disk counts too."""
    found = {}
    for entry in measured:
        if entry.get("aggregate_name") == "median":
            clock = "real_time" if entry["run_name"].endswith("/real_time") else "cpu_time"
            found[entry["run_name"]] = entry[clock] * UNITS[entry["time_unit"]], entry["bytes_per_second"]
    return found


def shown(seconds):
    for unit, size in (("s", 1.0), ("ms", 1e-3), ("µs", 1e-6)):
        if seconds >= size:
            return f"{seconds / size:.3g} {unit}"
    return f"{seconds / 1e-9:.3g} ns"


def growth(measured):
    """What one more tooth costs, for the shortest and the longest band of the growth series."""
    series = {int(name.split("/")[1]): seconds
              for name, (seconds, _) in medians(measured).items() if name.startswith(GROWTH + "/")}
    return [(teeth, series[teeth] / teeth) for teeth in (min(series), max(series))]


def report(measured):
    found, missed = medians(measured), 0
    print("| | takes | a second | floor | takes / floor | target | |")
    print("|---|---|---|---|---|---|---|")
    for row in ROWS:
        seconds, rate = found[row.benchmark]
        floor = found[row.floor][0]
        met = row.target.holds(seconds, rate)
        missed += not met
        verdict = "" if row.target is NO_TARGET else "met" if met else "missed"
        print(f"| {row.what} | {shown(seconds)} | {rate / 1e6:.0f} MB | {shown(floor)} | {seconds / floor:.1f} "
              f"| {row.target.text} | {verdict} |")
    print()
    print("One more tooth costs " + " and ".join(f"{shown(each)} in a band of {teeth:,}" for teeth, each
                                                 in growth(measured)) + ".")
    return missed


def resaw_band(teeth):
    """The band of the benchmarks, as a design for the tool."""
    gullet = {"Radius": 0.3125, "Depth": 0.55, "BackAngle": 16, "BackRadius": 0.2}
    return json.dumps({"ToothStyle": 2, "Pitch": 1.75, "Length": teeth * 1.75 / 12, "Width": 4, "HookAngle": 20,
                       "ClearAngle": 12, "GulletInfo": gullet, "GeneralInfo": {"PlateThick": 0.042}})


def run_scripts(tool):
    """Median seconds of each script, by its name and the number of teeth."""
    with tempfile.TemporaryDirectory() as folder:
        drawings = []
        for teeth in WRITTEN_TEETH:
            drawings.append(f"{folder}/{teeth}.dxf")
            subprocess.run([tool, "dxf", "-", "-o", drawings[-1], "--memory-size", "512000", "--defaults"],
                           input=resaw_band(teeth), check=True, text=True)
        scripts = Path(__file__).resolve().parent / "dxf_scripts.py"
        lines = subprocess.run(["/usr/bin/python3", "-B", scripts, *drawings], check=True, stdout=subprocess.PIPE,
                               text=True).stdout.splitlines()
    found = {}
    for teeth, line in zip(WRITTEN_TEETH, lines):
        result = json.loads(line)
        for name in ("by hand", "ezdxf"):
            found[name, teeth] = statistics.median(result[name]["seconds"])
    return found


def report_writers(measured, scripts):
    """The drawing file of the same band, by everybody who writes it."""
    found = medians(measured)
    print()
    print("| DXF file of a band | " + " | ".join(f"{teeth:,} teeth | times ours" for teeth in WRITTEN_TEETH) + " |")
    print("|---" * (1 + 2 * len(WRITTEN_TEETH)) + "|")
    for who, name in (*WRITERS, ("the same bytes, ready made", FLOOR_OF_WRITERS)):
        cells = []
        for teeth in WRITTEN_TEETH:
            ours = found[WRITERS[0][1].format(teeth)][0]
            seconds = found[name.format(teeth)][0] if "/" in name else scripts[name, teeth]
            ratio = seconds / ours
            cells += [shown(seconds), f"{ratio:.0f}" if ratio >= 10 else f"{ratio:.2g}"]
        print(f"| {who} | " + " | ".join(cells) + " |")


def main():
    build = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent / "build/bench")
    measured = run(build / "bench/tarnwick_bench")["benchmarks"]
    missed = report(measured)
    report_writers(measured, run_scripts(build / "src/tarnwick-cli"))
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
