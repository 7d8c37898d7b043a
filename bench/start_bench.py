#!/usr/bin/env python3
"""From the start of the program to its first paint, beside an empty window of the same toolkit.

    start_bench.py build/bench/bench/tarnwick_start_window [DESIGN.bsw]

Needs a display, or QT_QPA_PLATFORM=offscreen. Prints the median and the best of many starts, in milliseconds.
"""

import statistics
import subprocess
import sys
import time

ROUNDS = 25


def start(command):
    begun = time.perf_counter()
    subprocess.run(command, check=True, stderr=subprocess.DEVNULL)
    return 1000 * (time.perf_counter() - begun)


def main(program, *design):
    kinds = {"empty window": [program, "empty"], "main window": [program, "main"]}
    if design:
        kinds["main window, design painted"] = [program, "main", *design]
    taken = {kind: [] for kind in kinds}
    for _ in range(ROUNDS):  # in turn, so that a busy moment of the machine hits all alike
        for kind, command in kinds.items():
            taken[kind].append(start(command))
    for kind, times in taken.items():
        print(f"{kind:30} median {statistics.median(times):7.1f} ms   best {min(times):7.1f} ms")


if __name__ == "__main__":
    main(*sys.argv[1:])
