#!/usr/bin/env python3
"""Checks the virtual tables of all interfaces in a folder of headers, for the Microsoft and the Itanium C++ ABI.

clang lays out each class for both ABIs without any header of the platforms. The check asks that
 - both give the same operations in the same slots, and those of the committed list;
 - every operation is pure and has a name of its own in its class;
 - only scalars and pointers cross the boundary, since compilers disagree about structures by value.
"""
import argparse
import pathlib
import re
import subprocess
import sys
import tempfile

TARGETS = {
    "Microsoft": "x86_64-pc-windows-msvc",
    "MinGW": "x86_64-w64-mingw32",
    "Linux": "x86_64-linux-gnu",
}
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)
CLASS = re.compile(r"^\s*(?:class|struct)\s+(\w+)\s*(?:final\s*)?(?::[^;{]*)?\{", re.MULTILINE)
TABLE = re.compile(r"^VF?[Tt]able for .*?'(\w+)' \(\d+ entr(?:y|ies)\)\.$")
ENTRY = re.compile(r"^\s*\d+ \| (.*)$")
OPERATION = re.compile(r"^(?P<result>.*?)(?:\w+::)*(?P<name>\w+)\((?P<arguments>.*)\)(?: const)?(?P<pure> \[pure\])?$")
SCALAR = re.compile(r"^(const )?(void|bool|float|double|(std::)?u?int(8|16|32|64)_t)$")
USER = "UserOf_"


def class_names(headers):
    names = []
    for header in headers:
        names += CLASS.findall(COMMENT.sub("", header.read_text(encoding="utf-8")))
    return names


def dump_tables(compiler, target, include_folders, stubs, headers, namespace, names):
    """Gives {class: [entry text, ...]} for one target, and the faults found on the way."""
    lines = [f'#include "{header}"' for header in headers]
    for name in names:
        # The constructor of a derived class is what makes the compiler lay out the tables of its base.
        lines += [f"struct {USER}{name} : {namespace}{name} {{ {USER}{name}(); }};", f"{USER}{name}::{USER}{name}() {{}}"]
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder) / "tables.cpp"
        source.write_text("\n".join(lines) + "\n", encoding="utf-8")
        command = [compiler, "-target", target, "-std=c++20", "-ffreestanding", "-nostdinc++", "-isystem", str(stubs), "-w"]
        command += [f"-I{include}" for include in include_folders]
        command += ["-S", "-o", "/dev/null", "-Xclang", "-fdump-vtable-layouts", str(source)]
        run = subprocess.run(command, capture_output=True, text=True, check=False)
    if run.returncode != 0:
        sys.exit(f"The headers do not compile for {target}:\n{run.stderr}")
    tables, faults, current = {}, [], None
    for line in run.stdout.splitlines():
        table = TABLE.match(line)
        entry = ENTRY.match(line)
        if table:
            user = table.group(1)
            current = user[len(USER):] if user.startswith(USER) else None
            if current in tables:
                faults.append(f"{current}: more than one virtual table")
            if current:
                tables.setdefault(current, [])
        elif entry and current:
            text = entry.group(1)
            if text.startswith("offset_to_top"):
                if any(not known.endswith("RTTI") for known in tables[current]):
                    faults.append(f"{current}: more than one virtual table")
            elif not text.endswith(" RTTI"):
                tables[current].append(text)
        elif not line.strip():
            current = None
    return tables, faults


def split_arguments(text):
    parts, depth, start = [], 0, 0
    for index, character in enumerate(text):
        depth += (character == "(") - (character == ")")
        if character == "," and depth == 0:
            parts.append(text[start:index].strip())
            start = index + 1
    parts.append(text[start:].strip())
    return [part for part in parts if part]


def may_cross(type_text):
    return type_text.endswith("*") or "(*)(" in type_text or SCALAR.match(type_text) is not None


def check_entries(tables):
    """Gives the operation names by class and what is wrong with single operations."""
    operations, faults = {}, []
    for name, entries in tables.items():
        operations[name] = []
        for text in entries:
            match = OPERATION.match(text)
            if "~" in text:
                faults.append(f"{name}: virtual destructor")
                continue
            if not match:
                faults.append(f"{name}: an entry that is no operation: {text}")
                continue
            operation = match["name"]
            if not match["pure"]:
                faults.append(f"{name}.{operation}: not pure")
            if operation in operations[name]:
                faults.append(f"{name}.{operation}: more than one operation of this name")
            for type_text in [match["result"].strip()] + split_arguments(match["arguments"]):
                if type_text and not may_cross(type_text):
                    faults.append(f"{name}.{operation}: {type_text} crosses the boundary by value")
            operations[name].append(operation)
    return operations, faults


def slot_lines(operations):
    return [f"{name}.{slot} {operation}" for name in sorted(operations) for slot, operation in enumerate(operations[name])]


def compare(abi, expected, actual):
    faults = [f"{abi} ABI lacks {line}" for line in expected if line not in set(actual)]
    return faults + [f"{abi} ABI has unlisted {line}" for line in actual if line not in set(expected)]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--compiler", required=True, help="clang++")
    parser.add_argument("--headers", required=True, type=pathlib.Path, help="folder of the interface headers")
    parser.add_argument("--include", action="append", default=[], help="include folder")
    parser.add_argument("--stubs", required=True, type=pathlib.Path, help="stand-ins for the C++ library's headers")
    parser.add_argument("--namespace", default="", help="namespace of the interfaces, with its colons")
    parser.add_argument("--slots", required=True, type=pathlib.Path, help="list of all slots")
    options = parser.parse_args()

    headers = sorted(options.headers.resolve().glob("*.h"))
    names = class_names(headers)
    expected = [line for line in options.slots.read_text(encoding="utf-8").splitlines() if line and not line.startswith("#")]
    faults, signatures = [], {}
    for abi, target in TARGETS.items():
        tables, found = dump_tables(options.compiler, target, options.include, options.stubs, headers, options.namespace, names)
        operations, found_in_entries = check_entries(tables)
        faults += found + found_in_entries + compare(abi, expected, slot_lines(operations))
        signatures[abi] = tables
    if signatures["Microsoft"] != signatures["MinGW"]:
        faults.append("The signatures differ between the Microsoft and the MinGW layout")
    for fault in dict.fromkeys(faults):
        print(fault)
    if faults:
        return 1
    print(f"{len(expected)} slots of {len(signatures['Microsoft'])} interfaces agree in {len(TARGETS)} ABIs")
    return 0


if __name__ == "__main__":
    sys.exit(main())
