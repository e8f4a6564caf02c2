#!/usr/bin/env python3
"""Shows that golden_test fails when it must: each verdict, the difference it prints, the files it leaves, and the update switch.

  verdicts_test.py GOLDEN_TEST
"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

DECK = "$ One grid point\nGRID    1       0       1.0     2.0     3.0\nENDDATA\n"
TRACE_LINES = [
    "HostProject.GetMeshModel(1) -> MeshModel",
    'MeshModel.SetSourcePath("point_01.bdf")',
    "MeshModel.CreateNode(1, (1.0, 2.0, 3.0), 0) -> 0",
    "MeshModel.Reserve(1, 1)",
    "= result 2",
]
FAMILIES = ["Tet  ", "Tri3 ", "Tri6 ", "Quad4", "Quad8", "Hex  ", "Wedge", "Bar  ", "Rbe2 ", "Rbe3 ", "Mass ", "Pyramid ", "Gasket "]
LOG = (
    "\nFile Reading Started : 0:0:0\nNode Reading Started\n\n\nNode Reading Ended\n\nTotal Nodes Readed -> 1\n\nElement Reading Started\n\n"
    + "\nElement Reading Ended\n"
    + "".join(f"\n No.of {family} Elements -> 0" for family in FAMILIES)
    + "\n\n"
)


class VerdictsTest(unittest.TestCase):
    program = ""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name) / "root"
        self.output = pathlib.Path(folder.name) / "output"
        self.write("topic/point_01.bdf", DECK)
        self.write_trace("point_01", TRACE_LINES)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(text.encode())
        return path

    def write_trace(self, name, lines):
        return self.write(f"topic/{name}.trace", "\n".join(lines) + "\n")

    def run_program(self, *arguments):
        command = [self.program, f"--root={self.root}", f"--output={self.output}", *arguments]
        run = subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=False, timeout=60)
        return run.returncode, run.stderr

    def test_right_trace_and_log_pass(self):
        self.write("topic/point_01.log", LOG)
        self.assertEqual(self.run_program("topic/point_01"), (0, "1 of 1 golden cases passed\n"))
        self.assertEqual(self.run_program(), (0, "1 of 1 golden cases passed\n"))

    def test_missing_deck(self):
        self.write_trace("nowhere_01", TRACE_LINES)
        code, text = self.run_program()
        self.assertEqual(code, 1)
        self.assertIn("FAILED topic/nowhere_01: deck missing: ", text)
        self.assertIn("1 of 2 golden cases passed", text)

    def test_unknown_option_is_a_failed_run(self):
        for options in ["colour=1", "early_topology=x", "solver=other", "all=2", "repair"]:
            self.write_trace(f"point_01.{options}", TRACE_LINES)
            code, text = self.run_program(f"topic/point_01.{options}")
            self.assertEqual(code, 1, options)
            self.assertIn(f'run failed: no options in ".{options}"', text)

    def test_value_with_a_point_is_one_option(self):
        options = "split_face=0.5.split_repair=1.thickness_precision=2.solver=radioss.group_store=0.repair=1.all=0"
        self.write_trace(f"point_01.{options}", TRACE_LINES)
        self.assertEqual(self.run_program(f"topic/point_01.{options}")[0], 0)

    def test_other_trace_differs_and_the_actual_one_is_kept(self):
        changed = list(TRACE_LINES)
        changed[2] = changed[2].replace("3.0", "3.5")
        self.write_trace("point_01", changed)
        code, text = self.run_program("topic/point_01")
        self.assertEqual(code, 1)
        self.assertIn("FAILED topic/point_01: trace differs at line 3\n", text)
        self.assertIn("  > 3  " + changed[2], text)
        self.assertIn("  > 3  " + TRACE_LINES[2], text)
        self.assertIn("    5  = result 2", text)
        self.assertEqual((self.output / "topic/point_01/actual.trace").read_text(), "\n".join(TRACE_LINES) + "\n")
        self.write_trace("point_01", TRACE_LINES)
        self.assertEqual(self.run_program("topic/point_01")[0], 0)
        self.assertFalse((self.output / "topic/point_01/actual.trace").exists())

    def test_trace_that_is_short_or_ends_otherwise_differs(self):
        self.write_trace("point_01", TRACE_LINES[:-1])
        self.assertIn("trace differs at line 5\n", self.run_program("topic/point_01")[1])
        self.write("topic/point_01.trace", "\n".join(TRACE_LINES))
        self.assertIn("trace differs in its last line end\n", self.run_program("topic/point_01")[1])

    def test_other_log_differs_but_not_by_its_line_ends(self):
        self.write("topic/point_01.log", LOG.replace("\n", "\r\n"))
        self.assertEqual(self.run_program("topic/point_01")[0], 0)
        self.write("topic/point_01.log", LOG.replace("Readed -> 1", "Readed -> 2"))
        code, text = self.run_program("topic/point_01")
        self.assertEqual(code, 1)
        self.assertIn("FAILED topic/point_01: log differs at line 8\n", text)
        self.assertEqual((self.output / "topic/point_01/actual.log").read_text(), LOG)

    def test_files_without_a_trace_fail_the_whole_run(self):
        self.write("topic/lonely_01.bdf", DECK)
        self.write("topic/point_01.all=1.log", LOG)
        code, text = self.run_program()
        self.assertEqual(code, 1)
        self.assertIn("FAILED topic/lonely_01.bdf: no trace belongs to it\n", text)
        self.assertIn("FAILED topic/point_01.all=1.log: no trace belongs to it\n", text)

    def test_empty_root_fails(self):
        self.root = self.root / "topic"
        self.assertEqual(self.run_program(), (1, "0 of 0 golden cases passed\n"))

    def test_update_writes_the_files_that_are_expected(self):
        trace = self.write("topic/point_01.trace", "")
        self.assertEqual(self.run_program("--update-golden=topic/point_01")[0], 0)
        self.assertEqual(trace.read_text(), "\n".join(TRACE_LINES) + "\n")
        self.assertFalse((self.root / "topic/point_01.log").exists())
        log = self.write("topic/point_01.log", "")
        self.assertEqual(self.run_program("--update-golden=topic/point_01")[0], 0)
        self.assertEqual(log.read_text(), LOG)

    def test_wrong_usage(self):
        self.assertEqual(self.run_program("--no-such-option")[0], 64)
        self.assertEqual(self.run_program("--update-golden=topic/point_01", "topic/point_01")[0], 64)


if __name__ == "__main__":
    VerdictsTest.program = sys.argv.pop(1)
    unittest.main()
