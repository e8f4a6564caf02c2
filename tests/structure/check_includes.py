#!/usr/bin/env python3
"""Checks that every room of the translator includes only its own files, the public headers, the standard library, and rooms below it."""
import pathlib
import re
import sys

FLOORS = {
    "support": 0,
    "platform": 0,
    "host": 1,
    "deck": 1,
    "properties": 2,
    "materials": 2,
    "mesh": 3,
    "loads": 4,
    "sets": 5,
    "analysis": 5,
    "driver": 6,
}
INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]', re.MULTILINE)


def fault_of(room, kind, header):
    """What is wrong with one include, or an empty text."""
    if kind == "<":
        return "streams do not belong into the library" if header in ("iostream", "fstream", "sstream") else ""
    other = header.split("/")[0]
    if other == room:
        return ""
    if other not in FLOORS:
        return "no room of this name"
    if FLOORS[other] >= FLOORS[room]:
        return f"{other} does not stand below {room}"
    return ""


def main(source_folder):
    source = pathlib.Path(source_folder)
    rooms = sorted(entry.name for entry in source.iterdir() if entry.is_dir())
    faults = [f"src/{room}: no floor is known for this room" for room in rooms if room not in FLOORS]
    files = 0
    for room in rooms:
        for path in sorted((source / room).rglob("*")) if room in FLOORS else []:
            if path.suffix not in (".h", ".cpp"):
                continue
            files += 1
            for kind, header in INCLUDE.findall(path.read_text(encoding="utf-8")):
                fault = fault_of(room, kind, header)
                if fault:
                    faults.append(f"{path.relative_to(source.parent)}: {header}: {fault}")
    if files == 0:
        faults.append(f"{source}: no source files")
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
