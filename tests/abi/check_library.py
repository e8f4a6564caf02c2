#!/usr/bin/env python3
"""Checks what a built library shows to the outside: one check a call, the faults on standard output.

  check_library.py exports LIBRARY NAME...       exactly these names are exported
  check_library.py needs LIBRARY NAME...         no other libraries are needed at run time
  check_library.py version DLL 1.2.3             the version resource tells this version
  check_library.py paths LIBRARY FOLDER...       the file holds none of these paths of the build machine
  check_library.py same DLL DLL                  two links of one DLL are the same bytes, without a time in them
"""
import pathlib
import re
import struct
import subprocess
import sys

FIXED_FILE_INFO = struct.pack("<I", 0xFEEF04BD)


def is_pe(library):
    return library.read_bytes()[:2] == b"MZ"


def tool(library, *arguments):
    return subprocess.run([*arguments, str(library)], capture_output=True, text=True, check=True).stdout


def headers_of(library):
    return tool(library, "x86_64-w64-mingw32-objdump", "-p")


def exported(library):
    if is_pe(library):
        table = headers_of(library).split("[Ordinal/Name Pointer] Table", 1)[1]
        return re.findall(r"^\s+\[\s*\d+\] (\S+)$", table, re.MULTILINE)
    return [line.split()[-1] for line in tool(library, "nm", "-D", "--defined-only").splitlines()]


def needed(library):
    if is_pe(library):
        return re.findall(r"^\s*DLL Name: (\S+)$", headers_of(library), re.MULTILINE)
    return re.findall(r"\(NEEDED\).*\[(.+)\]", tool(library, "readelf", "-d", "-W"))


def check_exports(library, *names):
    found = exported(library)
    if sorted(found) == sorted(names):
        return []
    return [f"exported: {' '.join(found) or 'nothing'}", f"expected: {' '.join(names)}"]


def check_needs(library, *names):
    found = needed(library)
    if not found:
        return ["no needed library found: the list could not be read"]
    return [f"needs {name}" for name in found if name not in names]


def check_version(library, version):
    data = library.read_bytes()
    faults = []
    start = data.find(FIXED_FILE_INFO)
    if start < 0:
        return ["no version resource"]
    numbers = [int(part) for part in version.split(".")]
    expected = struct.pack("<II", numbers[0] << 16 | numbers[1], numbers[2] << 16) * 2
    if data[start + 8 : start + 24] != expected:
        faults.append("the numbers of file or product are not " + version)
    for key in ("FileVersion", "ProductVersion"):
        # Key and value each end with a zero; the value begins at a multiple of four bytes of the resource.
        text = re.escape((key + "\0").encode("utf-16-le")) + b"(?:\0\0)?" + re.escape((version + "\0").encode("utf-16-le"))
        if not re.search(text, data):
            faults.append(f"the text {key} is not {version}")
    return faults


def check_paths(library, *folders):
    data = library.read_bytes()
    return [f"holds the path {folder}" for folder in folders if folder.encode() in data]


def check_same(library, other):
    first = library.read_bytes()
    second = pathlib.Path(other).read_bytes()
    faults = []
    if first != second:
        faults.append(f"{library} and {other} differ")
    header = struct.unpack_from("<I", first, 0x3C)[0]
    if struct.unpack_from("<I", first, header + 8)[0] != 0:
        faults.append("the header holds the time of the link")
    return faults


CHECKS = {"exports": check_exports, "needs": check_needs, "version": check_version, "paths": check_paths, "same": check_same}


def main(arguments):
    if len(arguments) < 3 or arguments[0] not in CHECKS:
        print(__doc__)
        return 64
    faults = CHECKS[arguments[0]](pathlib.Path(arguments[1]), *arguments[2:])
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
