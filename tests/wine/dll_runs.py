#!/usr/bin/env python3
"""Runs the DLL in the small host program and compares what it does with what it should do.

  dll_runs.py golden   every golden deck gives its expected trace, twice in one process
  dll_runs.py native   decks give the same trace and log as the program of the native build
  dll_runs.py progress the shared word and the console tell the percentages of a deck of one chunk
"""
import argparse
import difflib
import itertools
import os
import pathlib
import re
import shutil
import subprocess
import sys

SMALL_DECK = """\
$ One triangle: a deck of one chunk.
GRID    1               0.0     0.0     0.0
GRID    2               1.0     0.0     0.0
GRID    3               0.0     1.0     0.0
CTRIA3  1       7       1       2       3
ENDDATA
"""
LOG_NAME = "Bdf_Reader_Log.txt"
CLOCK = re.compile(rb"(File Reading (?:Started|Ended) : )\d+:\d+:\d+")


def windows_path(path):
    return "Z:" + str(path.resolve())


def normalised(log):
    """The log with LF line ends and without the time of day."""
    return CLOCK.sub(rb"\g<1>0:0:0", log.replace(b"\r\n", b"\n"))


def first_difference(expected, actual):
    """The lines around the first difference, as a list of faults."""
    if expected == actual:
        return []
    expected_lines = expected.decode("utf-8", "replace").splitlines()
    actual_lines = actual.decode("utf-8", "replace").splitlines()
    lines = list(itertools.islice(difflib.unified_diff(expected_lines, actual_lines, "expected", "actual", lineterm="", n=5), 16))
    return lines or ["only the line ends differ"]


def log_of(folder):
    path = folder / LOG_NAME
    return path.read_bytes() if path.exists() else b""


class DllHost:
    """The host program under Wine; each run leaves its files in a folder of its own."""

    def __init__(self, arguments):
        self.command = arguments.emulator + [str(arguments.host), windows_path(arguments.dll)]
        self.work = arguments.work
        shutil.rmtree(self.work, ignore_errors=True)

    def run(self, name, options, deck):
        """Gives the folder of the run, the console's bytes and what went wrong."""
        folder = self.work / name
        folder.mkdir(parents=True)
        command = self.command + [windows_path(folder), windows_path(deck), options]
        run = subprocess.run(command, capture_output=True, env={**os.environ, "QX_SCRATCH_DIR": windows_path(folder)}, check=False, timeout=120)
        faults = []
        if run.returncode != 0:
            faults = [f"the host program ended with {run.returncode}: {run.stderr.decode('utf-8', 'replace')}"]
        elif (folder / "first.trace").read_bytes() != (folder / "second.trace").read_bytes():
            faults = ["the second run in one process gave another trace than the first"]
        return folder, run.stdout, faults


def check_golden(host, arguments):
    cases = {}
    for deck in sorted(arguments.golden.rglob("*.bdf")):
        for trace in sorted(deck.parent.glob(f"{deck.stem}.*trace")):
            options = trace.name[len(deck.stem) : -len(".trace")]
            name = str(trace.relative_to(arguments.golden).with_suffix(""))
            folder, _, faults = host.run(name, options, deck)
            if not faults:
                faults = first_difference(trace.read_bytes(), (folder / "first.trace").read_bytes())
            expected_log = trace.with_suffix(".log")
            if not faults and expected_log.exists():
                faults = first_difference(normalised(expected_log.read_bytes()), normalised(log_of(folder)))
            cases[name] = faults
    if not cases:
        cases["golden decks"] = [f"none in {arguments.golden}"]
    return cases


def check_native(host, arguments):
    cases = {}
    for deck in itertools.chain.from_iterable(sorted(folder.rglob("*.bdf")) for folder in arguments.decks):
        name = f"{deck.parent.name}/{deck.stem}"
        folder, _, faults = host.run(name, "", deck)
        native_folder = folder / "native"
        native_folder.mkdir()
        command = [str(arguments.native), "trace", "--log-dir", str(native_folder), str(deck)]
        native = subprocess.run(command, capture_output=True, check=False, timeout=120)
        if not native.stdout:
            faults.append(f"the native program gave no trace: {native.stderr.decode('utf-8', 'replace')}")
        faults += first_difference(native.stdout, (folder / "first.trace").read_bytes())
        faults += first_difference(normalised(log_of(native_folder)), normalised(log_of(folder)))
        cases[name] = faults
    if not cases:
        cases["decks"] = ["none found"]
    return cases


def check_progress(host, arguments):
    arguments.work.mkdir(parents=True)
    deck = arguments.work / "small.bdf"
    deck.write_text(SMALL_DECK, encoding="ascii")
    folder, console, faults = host.run("progress", "", deck)
    if faults:
        return {"progress": faults}
    # The step of one chunk is 50. Each walk adds it when it asks for a second chunk, which there is not; the rewind behind it stores the
    # value and adds again. So nodes are made at 50; the host hears at 100 that there are more nodes than elements; elements are made at 200,
    # the stages before the last walk run at 300, those behind it at 100.
    words = (folder / "progress.txt").read_text(encoding="ascii").split()
    expected_words = ["50", "100", "200", "300", "100"]
    # What is printed is the value before each addition. Both runs of the host program print.
    percents = [0, 50, 100, 150, 200, 250, 300, 350, 100]
    expected_console = ("\tCompleted .....  0%" + "".join(f"\b\b\b\b{percent:3}%" for percent in percents) + "\n\n") * 2
    actual_console = console.decode("ascii", "replace").replace("\r\n", "\n")
    return {
        "progress word": [] if words == expected_words else [f"expected {expected_words}", f"actual {words}"],
        "console": [] if actual_console == expected_console else [f"expected {expected_console!r}", f"actual {actual_console!r}"],
    }


CHECKS = {"golden": check_golden, "native": check_native, "progress": check_progress}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("check", choices=CHECKS)
    parser.add_argument("--host", required=True, type=pathlib.Path, help="dll_host.exe")
    parser.add_argument("--dll", required=True, type=pathlib.Path, help="BTZDLL.dll")
    parser.add_argument("--work", required=True, type=pathlib.Path, help="folder for the files of the runs; emptied first")
    parser.add_argument("--emulator", nargs="*", default=[], help="command that runs Windows programs")
    parser.add_argument("--golden", type=pathlib.Path, help="folder of the golden decks")
    parser.add_argument("--native", type=pathlib.Path, help="program btz of the native build")
    parser.add_argument("--decks", nargs="*", default=[], type=pathlib.Path, help="folders of decks to compare")
    arguments = parser.parse_args()

    cases = CHECKS[arguments.check](DllHost(arguments), arguments)
    failed = {name: faults for name, faults in cases.items() if faults}
    for name, faults in failed.items():
        print(f"FAILED {name}")
        for fault in faults:
            print(f"  {fault}")
    print(f"{len(cases) - len(failed)} of {len(cases)} cases passed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
