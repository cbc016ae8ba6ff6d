#!/usr/bin/env python3
"""Holds the include directions between the rooms, and the length of functions.

usage: check-rooms.py [--draw]

--draw prints the include arrows between rooms as a Graphviz drawing instead of checking them.
"""
import collections
import pathlib
import re
import subprocess
import sys

# A room may include itself and what stands behind it, and whatever that may include.
ARROWS = {
    "neighbours": [],
    "base": [],
    "mfc": [],
    "abi": [],
    "include": ["neighbours", "mfc"],
    "module": ["include", "mfc", "base"],
    "config": ["module", "neighbours"],
    "ui": ["config"],
    "sign": ["ui", "config"],
    "plm": ["ui", "config"],
    "standins": ["neighbours", "base"],
    "host": ["include", "base", "mfc"],
    "doctor": ["neighbours", "base"],
    "packaging": ["include"],
}
# These see what they test, measure or are built beside.
OBSERVERS = {"tests", "bench"}
FUNCTION_LIMIT = 60

root = pathlib.Path(__file__).resolve().parent.parent


def sources():
    for path in sorted(root.rglob("*")):
        relative = path.relative_to(root)
        if path.suffix in {".cpp", ".h", ".inl", ".rc"} and relative.parts[0] not in {"build", ".git"}:
            yield relative, path.read_text(encoding="utf-8")


def room_of(include, source):
    """The room that an include leads to; None for headers of the system."""
    quoted, name = include
    first = name.split("/")[0]
    if first == "varnoke":
        return "include"
    if re.match(r"(afx|atl|cstringt)", name) and (root / "mfc" / name).exists():
        return "mfc"
    if quoted and (root / name).exists():
        return first
    return source.parts[0] if quoted else None


def reachable(room, seen=None):
    seen = set() if seen is None else seen
    if room not in seen:
        seen.add(room)
        for target in ARROWS[room]:
            reachable(target, seen)
    return seen


def arrows():
    found = collections.Counter()
    places = {}
    for source, text in sources():
        for match in re.finditer(r'^\s*#\s*include\s+(["<])([^">]+)[">]', text, re.M):
            room = room_of((match[1] == '"', match[2]), source)
            if room and room != source.parts[0]:
                arrow = (source.parts[0], room)
                found[arrow] += 1
                places.setdefault(arrow, f"{source} includes {match[2]}")
    return found, places


def long_functions():
    """Bodies that begin in the first column or one level below, which clang-format guarantees."""
    for source, text in sources():
        start = head = None
        for number, line in enumerate(text.splitlines(), 1):
            if start is None and re.match(r"(    )?[\w~:<>*&,\[\] ]+\(.*\{$", line) or (
                start is None and re.match(r"(    )?\s*[\w:<>*&, ]+\)( const| noexcept| override)*( :.*)? \{$", line)
            ):
                start, head = number, re.match(r" *", line)[0]
            elif start is not None and re.match(head + r"\}", line):
                if number - start + 1 > FUNCTION_LIMIT:
                    yield f"{source}:{start}: the function has {number - start + 1} lines; {FUNCTION_LIMIT} are the limit"
                start = None


def main():
    found, places = arrows()
    if "--draw" in sys.argv[1:]:
        print("digraph rooms {\n    rankdir=BT;")
        for (source, target), count in sorted(found.items()):
            if source not in OBSERVERS:
                print(f'    {source} -> {target} [label="{count}"];')
        print("}")
        return 0
    faults = list(long_functions())
    for source, target in sorted(found):
        if source in OBSERVERS:
            continue
        if source not in ARROWS:
            faults.append(f"{source} is no room: {places[source, target]}")
        elif source == "host" and target not in ARROWS["host"]:
            faults.append(f"host includes nothing by way of others: {places[source, target]}")
        elif target not in reachable(source):
            faults.append(f"{source} must not include {target}: {places[source, target]}")
    for fault in faults:
        print(f"check-rooms: {fault}", file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
