#!/usr/bin/env python3
"""Has clang-tidy look at every source under src/. Prints what it finds; exit code 1 when there is something.

    static_checks.py BUILD_FOLDER      that cmake has configured, without precompiled headers

Most of its time clang-tidy spends on the headers of libraries, again for each source. So it is given several sources at
once, as one that includes them all. As sources that are right can be wrong together, a batch with findings is looked at
again in halves, and what counts is found in a single source.
"""

import json
import os
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from functools import lru_cache
from pathlib import Path

SOURCES = Path(__file__).resolve().parent.parent / "src"
LARGEST_BATCH = 16

UNNAMED = re.compile(r"^namespace \{$(.*?)^\}  // namespace$", re.MULTILINE | re.DOTALL)
OUTERMOST = re.compile(r"^(?!//|#|\}| ).+$", re.MULTILINE)
NAMED = re.compile(r"\b([A-Za-z_]\w*)(?= ?[({;=\[])|\b(?:struct|class|enum|using|concept) (?:class )?(\w+)")
ALIAS = re.compile(r"^#define (\w+)|^(?:using|namespace) (\w+) =", re.MULTILINE)
INCLUDE = re.compile(r'^#include "(.*)"', re.MULTILINE)


def either(pairs):
    return {first or second for first, second in pairs}


def named_in(text):
    """Names of a text's outermost lines. Roughly: one too many makes a smaller batch, one too few costs a second look."""
    return either(pair for line in OUTERMOST.findall(text) for pair in NAMED.findall(line))


@lru_cache(maxsize=None)
def own_names(source):
    """What a source gives a meaning of its own: in namespaces without a name, by macros and by aliases."""
    text = source.read_text(encoding="utf-8")
    return named_in("".join(UNNAMED.findall(text))) | either(ALIAS.findall(text))


@lru_cache(maxsize=None)
def headers_of(source):
    direct = {SOURCES / name for name in INCLUDE.findall(source.read_text(encoding="utf-8"))}
    direct = {header for header in direct if header.exists()}
    return direct.union(*map(headers_of, direct))


@lru_cache(maxsize=None)
def names_in_header(header):
    return named_in(header.read_text(encoding="utf-8"))


def seen_names(source):
    """What stands in its headers and in itself."""
    return named_in(source.read_text(encoding="utf-8")).union(*map(names_in_header, headers_of(source)))


def flags_of(command):
    """The arguments of a compiler but for the source and what is made of it."""
    arguments = iter(shlex.split(command))
    return tuple(argument for argument in arguments if argument not in ("-o", "-c") or not next(arguments))


class Batch:
    """Sources that are compiled alike, where none gives a meaning of its own to a name that another one sees."""

    def __init__(self, flags):
        self.flags, self.sources, self.own, self.seen = flags, [], set(), set()

    def takes(self, source, flags):
        return (self.flags == flags and len(self.sources) < LARGEST_BATCH and not self.own & seen_names(source)
                and not self.seen & own_names(source))

    def add(self, source):
        self.sources.append(source)
        self.own |= own_names(source)
        self.seen |= seen_names(source)


def batches_of(sources):
    batches = []
    for source, flags in sorted(sources, key=lambda entry: -len(own_names(entry[0]))):
        batch = next((batch for batch in batches if batch.takes(source, flags)), None)
        if not batch:
            batch = Batch(flags)
            batches.append(batch)
        batch.add(source)
    return batches


class Checks:
    def __init__(self, build):
        self.folder = build / "static-checks"
        self.folder.mkdir(exist_ok=True)

    def findings(self, flags, sources):
        """What is wrong with sources: lines of text, none when all is well."""
        if len(sources) > 1:
            if not self.look(flags, self.together(sources), "--checks=-bugprone-suspicious-include"):
                return []
            half = len(sources) // 2
            return self.findings(flags, sources[:half]) + self.findings(flags, sources[half:])
        return self.look(flags, sources[0])

    def together(self, sources):
        batch = self.folder / f"{sources[0].stem}-{len(sources)}.cpp"
        batch.write_text("".join(f'#include "{source}"\n' for source in sources), encoding="utf-8")
        return batch

    def look(self, flags, source, *options):
        run = subprocess.run(["clang-tidy-14", "-quiet", *options, str(source), "--", *flags[1:]], cwd=self.folder,
                             capture_output=True, text=True)
        said = [line for line in run.stdout.splitlines() if re.search(r"(warning|error):", line)]
        if run.returncode and not said:
            said = [f"{source}: clang-tidy failed", *run.stderr.splitlines()]
        return said


def main():
    build = Path(sys.argv[1]).resolve()
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    sources = sorted((Path(entry["file"]), flags_of(entry["command"])) for entry in commands
                     if SOURCES in Path(entry["file"]).parents)
    checks = Checks(build)
    with ThreadPoolExecutor(os.cpu_count()) as workers:
        findings = list(workers.map(lambda batch: checks.findings(batch.flags, batch.sources), batches_of(sources)))
    found = sorted({line for lines in findings for line in lines})
    print("\n".join(found) or f"no findings in {len(sources)} sources")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
