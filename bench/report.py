#!/usr/bin/env python3
"""The table of the README: how long a band takes, beside the floor under it, all from one run.

    bench/report.py [BENCHMARKS]      the program of the bench preset; build/bench/bench/tarnwick_bench by default

The floor is what the same bytes cost when nothing is worked out: copying the list or the text in memory, writing the
text to a file.  Repetitions of all measurements are mixed with each other, so that a busy moment of the machine falls
on both sides of a ratio, and the median counts.  Memory is warm: the first bands of a process pay for fresh pages
on top, about as much again at 32,000 teeth.  Exit code 1 when a target is missed.
"""

import json
import subprocess
import sys
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
UNITS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}


def run(program):
    names = sorted({name for row in ROWS for name in (row.benchmark, row.floor)})
    command = [program, f"--benchmark_filter=^({'|'.join(names)})$|^{GROWTH}/", "--benchmark_format=json",
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


def main():
    default = Path(__file__).resolve().parent.parent / "build/bench/bench/tarnwick_bench"
    program = sys.argv[1] if len(sys.argv) > 1 else str(default)
    return 1 if report(run(program)["benchmarks"]) else 0


if __name__ == "__main__":
    sys.exit(main())
