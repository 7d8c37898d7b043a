#!/usr/bin/env python3
"""Keeps the table of the printed sheets what its second computation says."""

import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent

written = subprocess.run([sys.executable, "-B", HERE / "print_sheet.py"], check=True, capture_output=True).stdout
kept = (HERE.parent / "data" / "print.jsonl").read_bytes()
print(f"print.jsonl: {len(kept.splitlines())} rows")
if written != kept or not kept:
    print("print.jsonl is not what print_sheet.py writes")
    sys.exit(1)
