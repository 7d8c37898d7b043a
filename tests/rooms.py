#!/usr/bin/env python3
"""The fence between the rooms: reads every #include under src/ and names those that must not be.

    rooms.py SRC        prints one line for each offence; exit code 1 when there is one

A file's rank shows in its name:

    figures      model/, mod*, and the ports (the files of platform/ itself)
    behaviours   every other name
    windows      frm*, fra*, platform/qt/, main.cpp, and the tool that prints with Qt (pdf/)

Refused are: an include of a higher rank; a Qt header outside the windows (and anywhere in cli/);
another library's header in the core; an include of the command line's folder from outside it; and
a circle of files.
"""

import re
import sys
from pathlib import Path, PurePosixPath

RANKS = ("figures", "behaviours", "windows")
FIGURES, BEHAVIOURS, WINDOWS = range(3)

COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*[<"]([^>"\n]+)[>"]', re.MULTILINE)
QT_HEADER = re.compile(r"(Qt[A-Z]\w*(/.+)?|Q[A-Z]\w*|q[a-z0-9_]+\.h|ui_\w+\.h)$")


def rank(file):
    """The rank of a path relative to src/."""
    folder = file.parts[0]
    name = file.name
    if folder == "pdf" or name.startswith(("frm", "fra")) or name == "main.cpp" or file.parts[:2] == ("platform", "qt"):
        return WINDOWS
    if folder in ("model", "platform") or name.startswith("mod"):
        return FIGURES
    return BEHAVIOURS


def in_core(file):
    return file.parts[0] != "cli" and rank(file) != WINDOWS


def includes(src):
    """All files with what they include, as written: {path relative to src: [text, ...]}."""
    found = {}
    for path in sorted(src.rglob("*")):
        if path.suffix in (".h", ".cpp") and path.is_file():
            text = COMMENT.sub(" ", path.read_text(encoding="utf-8"))
            found[PurePosixPath(path.relative_to(src).as_posix())] = INCLUDE.findall(text)
    return found


def resolve(file, name, files):
    """The file of ours that `name` stands for in `file`, or None when it is nobody of ours."""
    for candidate in (PurePosixPath(name), file.parent / name):
        if candidate in files:
            return candidate
    return None


def refuse_own(file, target):
    """Why `file` must not include `target`, both ours; None when it may."""
    if rank(target) > rank(file):
        return f"{RANKS[rank(file)]} must not include {RANKS[rank(target)]}"
    if target.parts[0] == "cli" and file.parts[0] not in ("cli", "pdf"):
        return "only the command line tools include cli/"
    return None


def refuse_foreign(file, name):
    """Why `file` must not include the header `name` of somebody else; None when it may."""
    if QT_HEADER.match(name):
        if file.parts[0] == "cli" or rank(file) != WINDOWS:
            return "only windows include Qt"
    elif "/" in name and not name.startswith("sys/") and in_core(file):
        return "no file of ours, and the core includes the standard library alone"
    return None


def circles(graph):
    """One line for each circle met on a walk along the includes."""
    found, done = [], set()

    def walk(file, road):
        if file in road:
            found.append("a circle of files: " + " -> ".join(map(str, [*road[road.index(file):], file])))
        elif file not in done:
            for target in graph[file]:
                walk(target, [*road, file])
            done.add(file)

    for file in graph:
        walk(file, [])
    return found


def check(src):
    """All offences under the folder `src`, as lines of text."""
    files = includes(Path(src))
    graph = {file: [] for file in files}
    offences = []
    for file, names in files.items():
        for name in names:
            target = resolve(file, name, files)
            if target:
                graph[file].append(target)
            why = refuse_own(file, target) if target else refuse_foreign(file, name)
            if why:
                offences.append(f"{file}: {name}: {why}")
    return offences + circles(graph)


def main(arguments):
    if len(arguments) != 1 or not Path(arguments[0]).is_dir():
        print("usage: rooms.py SRC", file=sys.stderr)
        return 2
    offences = check(arguments[0])
    for offence in offences:
        print(offence)
    return 1 if offences else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
