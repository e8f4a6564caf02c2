"""End-to-end tests of the program btz: exit codes, streams, options and messages.

    btz_program_test.py CASE PROGRAM...

runs the test case CASE on the program, which may be a command of several words ("wine btz.exe").
"""

import json
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM = sys.argv[2:]
IS_WINDOWS = PROGRAM[-1].endswith(".exe")


def card(*fields):
    """A card in fields of eight columns."""
    return "".join(str(field).ljust(8) for field in fields).rstrip() + "\n"


NODES = (
    card("GRID", 1, "", "0.0", "0.0", "0.0")
    + card("GRID", 2, "", "1.0", "0.0", "0.0")
    + card("GRID", 3, "", "0.0", "1.0", "0.0")
)
TRIANGLE = card("CTRIA3", 11, 7, 1, 2, 3)
SMALL_DECK = NODES + TRIANGLE + "ENDDATA\n"


class ProgramTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="btz_cli_")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def write(self, name, text):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(text.encode())
        return str(path)

    def run_btz(self, *arguments, environment=None, cwd=None):
        """Runs the program; its two outputs come as text, the messages with LF line ends."""
        done = subprocess.run(
            PROGRAM + list(arguments),
            stdin=subprocess.DEVNULL,
            capture_output=True,
            env={**os.environ, **(environment or {})},
            cwd=cwd,
            timeout=240,
        )
        done.stdout = done.stdout.decode()
        done.stderr = done.stderr.decode().replace("\r\n", "\n")
        return done

    def trace(self, deck, *options):
        done = self.run_btz("trace", *options, deck)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout.splitlines()


class ExitCodes(ProgramTest):
    def test_translated_is_0(self):
        deck = self.write("small.bdf", SMALL_DECK)
        self.assertEqual(self.run_btz("inspect", deck).returncode, 0)
        self.assertEqual(self.run_btz("trace", deck).returncode, 0)

    def test_no_nodes_is_1(self):
        done = self.run_btz("inspect", self.write("no_nodes.bdf", TRIANGLE))
        self.assertEqual(done.returncode, 1)
        self.assertIn("the deck holds no node (1)", done.stdout)

    def test_no_elements_is_2(self):
        done = self.run_btz("inspect", self.write("no_elements.bdf", NODES))
        self.assertEqual(done.returncode, 2)
        self.assertIn("the deck holds no element (2)", done.stdout)
        self.assertRegex(done.stdout, r"(?m)^Nodes +3$")

    def test_a_trace_ends_with_the_result_whatever_it_is(self):
        for text, code, result in ((TRIANGLE, 1, 1), (NODES, 2, 2), ("nothing\n", 3, -5)):
            done = self.run_btz("trace", self.write("deck.bdf", text))
            self.assertEqual(done.returncode, code)
            self.assertEqual(done.stdout.splitlines()[-1], f"= result {result}")

    def test_an_unusable_deck_leaves_only_the_result_line(self):
        done = self.run_btz("trace", str(self.folder / "none.bdf"))
        self.assertEqual(done.returncode, 3)
        self.assertEqual(done.stdout, "= result -5\n")


class Streams(ProgramTest):
    def test_the_librarys_console_output_is_not_in_the_result(self):
        deck = self.write("small.bdf", SMALL_DECK)
        for command in ("inspect", "trace"):
            done = self.run_btz(command, deck)
            self.assertNotIn("Completed", done.stdout)
            self.assertNotIn("\b", done.stdout)
            self.assertEqual(done.stderr, "")

    def test_lines_end_with_lf_on_every_system(self):
        deck = self.write("small.bdf", SMALL_DECK)
        for command in ("inspect", "trace"):
            self.assertNotIn("\r", self.run_btz(command, deck).stdout)

    def test_two_traces_are_equal(self):
        deck = self.write("small.bdf", SMALL_DECK)
        self.assertEqual(self.run_btz("trace", deck).stdout, self.run_btz("trace", deck).stdout)

    def test_no_bar_where_standard_error_is_no_terminal(self):
        done = self.run_btz("inspect", "--progress", self.write("small.bdf", SMALL_DECK))
        self.assertEqual(done.returncode, 0)
        self.assertEqual(done.stderr, "")

    @unittest.skipIf(IS_WINDOWS, "there is no full device")
    def test_a_result_that_can_not_be_written_is_told(self):
        deck = self.write("small.bdf", SMALL_DECK)
        for command in ("inspect", "trace"):
            with open("/dev/full", "wb") as full:
                done = subprocess.run(PROGRAM + [command, deck], stdout=full, stderr=subprocess.PIPE, timeout=240)
            self.assertEqual(done.returncode, 74)
            self.assertEqual(done.stderr.decode().count("\n"), 1)


class Usage(ProgramTest):
    def assert_wrong(self, *arguments):
        done = self.run_btz(*arguments)
        self.assertEqual(done.returncode, 64, arguments)
        self.assertEqual(done.stdout, "")
        self.assertNotEqual(done.stderr, "")
        return done.stderr

    def test_command_and_deck_are_needed(self):
        self.assert_wrong()
        self.assert_wrong("inspect")
        self.assert_wrong("translate", "deck.bdf")
        self.assert_wrong("inspect", "one.bdf", "two.bdf")

    def test_unknown_options_are_named(self):
        self.assertIn("--quick", self.assert_wrong("inspect", "--quick", "deck.bdf"))
        self.assert_wrong("inspect", "--all", "deck.bdf")
        self.assert_wrong("trace", "--json", "deck.bdf")

    def test_values_are_checked(self):
        self.assertIn("--split-face", self.assert_wrong("inspect", "--split-face", "wide", "deck.bdf"))
        self.assert_wrong("inspect", "--split-face", "nan", "deck.bdf")
        self.assert_wrong("inspect", "--early-topology", "1.5", "deck.bdf")
        self.assert_wrong("inspect", "--thickness-precision", "99999999999", "deck.bdf")
        self.assertIn("--solver", self.assert_wrong("inspect", "--solver", "other", "deck.bdf"))
        self.assert_wrong("inspect", "--solver", "1", "deck.bdf")
        self.assertIn("--log-dir", self.assert_wrong("inspect", "--log-dir", str(self.folder / "none"), "deck.bdf"))

    def test_help_tells_commands_options_and_exit_codes(self):
        done = self.run_btz("--help")
        self.assertEqual(done.returncode, 0)
        self.assertEqual(done.stderr, "")
        for word in ("inspect", "trace", "Exit codes", "64  wrong usage"):
            self.assertIn(word, done.stdout)
        for command in ("inspect", "trace"):
            done = self.run_btz(command, "--help")
            self.assertEqual(done.returncode, 0)
            for word in ("--split-face", "--early-topology", "--thickness-precision", "--solver", "--no-group-store", "--repair",
                         "--split-repair", "--log-dir", "--progress", "Exit codes"):
                self.assertIn(word, done.stdout)

    def test_version(self):
        done = self.run_btz("--version")
        self.assertEqual(done.returncode, 0)
        self.assertRegex(done.stdout.replace("\r\n", "\n"), r"\Abtz \d+\.\d+\.\d+\n\Z")


class UnusableDecks(ProgramTest):
    def assert_reason(self, deck, reason):
        done = self.run_btz("inspect", deck)
        self.assertEqual(done.returncode, 3)
        self.assertEqual(done.stdout, "")
        self.assertEqual(done.stderr, f"btz: {deck}: {reason}\n")

    def test_no_such_file(self):
        self.assert_reason(str(self.folder / "none.bdf"), "no such file")

    def test_a_folder(self):
        self.assert_reason(str(self.folder), "is a directory")

    def test_an_empty_file(self):
        self.assert_reason(self.write("empty.bdf", ""), "the file is empty")

    def test_a_file_that_is_no_deck(self):
        self.assert_reason(self.write("letter.txt", "Dear reader\n"), "holds no node, element or include line")

    def test_a_path_that_is_too_long(self):
        self.assert_reason("d/" * 130 + "deck.bdf", "the path is longer than 259 characters")

    @unittest.skipIf(IS_WINDOWS, "other kinds of files")
    def test_what_is_no_file_at_all(self):
        self.assert_reason("/dev/null", "is not a regular file")

    @unittest.skipIf(IS_WINDOWS, "other permissions")
    def test_permission_denied(self):
        deck = self.write("secret.bdf", SMALL_DECK)
        os.chmod(deck, 0)
        if os.geteuid() == 0:
            # Everything is open to root, so that the program has to be somebody else, who can reach program and deck.
            os.chmod(self.folder, 0o755)
            identity = {"user": 65534, "group": 65534, "extra_groups": []}
        else:
            identity = {}
        try:
            done = subprocess.run(PROGRAM + ["inspect", deck], capture_output=True, timeout=240, **identity)
        except PermissionError:
            self.skipTest("nobody but root can run the program where it lies")
        self.assertEqual(done.returncode, 3)
        self.assertEqual(done.stderr.decode(), f"btz: {deck}: permission denied\n")

    def test_a_trace_says_the_same(self):
        deck = str(self.folder / "none.bdf")
        self.assertEqual(self.run_btz("trace", deck).stderr, f"btz: {deck}: no such file\n")


class Options(ProgramTest):
    def setUp(self):
        super().setUp()
        self.deck = self.write("small.bdf", SMALL_DECK)

    def position(self, lines, head):
        """Place of the only line that begins with `head`."""
        places = [i for i, line in enumerate(lines) if line.startswith(head)]
        self.assertEqual(len(places), 1, head)
        return places[0]

    def test_topology_comes_last_without_options(self):
        lines = self.trace(self.deck)
        self.assertGreater(self.position(lines, "MeshModel.UpdateTopology(0)"), self.position(lines, "HostProject.AttachModel"))
        self.position(lines, "MeshPart#1.SetNumber(")
        self.assertEqual(lines[-1], "= result 0")

    def test_early_topology_1_comes_first_and_leaves_the_numbers(self):
        lines = self.trace(self.deck, "--early-topology", "1")
        self.assertLess(self.position(lines, "MeshModel.UpdateTopology(0)"), self.position(lines, "MaterialStore.Commit()"))
        self.assertFalse([line for line in lines if ".SetNumber(" in line])

    def test_early_topology_of_another_value_means_none(self):
        for value in ("2", "-1"):
            lines = self.trace(self.deck, "--early-topology", value)
            self.assertFalse([line for line in lines if ".UpdateTopology(" in line])

    def test_faces_are_split_with_the_value_given(self):
        self.assertFalse([line for line in self.trace(self.deck) if ".SplitFaces(" in line])
        lines = self.trace(self.deck, "--split-face", "2.5")
        self.assertIn("MeshPart#1.SplitFaces([TopoFace#1], 2.5, 0)", lines)
        self.assertFalse([line for line in lines if ".MergeSplitPart(" in line])

    def test_split_parts_are_merged_on_request(self):
        lines = self.trace(self.deck, "--split-face", "2.5", "--split-repair")
        self.assertIn("MeshModel.MergeSplitPart(MeshPart#1) -> 0", lines)

    def test_repair_asks_for_defects(self):
        asked = "MeshModel.CountDefects(3) -> 0"
        self.assertNotIn(asked, self.trace(self.deck, "--all"))
        self.assertIn(asked, self.trace(self.deck, "--all", "--repair"))

    def test_all_adds_the_questions(self):
        changes = self.trace(self.deck)
        everything = self.trace(self.deck, "--all")
        self.assertNotIn("MeshModel.NextPartId() -> 8", changes)
        self.assertIn("MeshModel.NextPartId() -> 8", everything)
        self.assertEqual([line for line in everything if line in changes], changes)

    def test_the_other_options_are_taken(self):
        lines = self.trace(self.deck, "--solver", "radioss", "--thickness-precision", "3", "--no-group-store")
        self.assertEqual(lines[-1], "= result 0")
        self.trace(self.deck, "--solver", "NASTRAN")


class Log(ProgramTest):
    LOG = "Bdf_Reader_Log.txt"

    def test_log_dir_keeps_the_log(self):
        logs = self.folder / "logs"
        logs.mkdir()
        deck = self.write("small.bdf", SMALL_DECK)
        self.assertEqual(self.run_btz("inspect", "--log-dir", str(logs), deck).returncode, 0)
        text = (logs / self.LOG).read_bytes().decode().replace("\r\n", "\n")
        self.assertRegex(text, r"\A\nFile Reading Started : \d+:\d+:\d+\nNode Reading Started\n\n")
        self.assertIn("\nTotal Nodes Readed -> 3\n", text)
        self.assertTrue(text.endswith("\n...........Log File Ended.........."))

    @staticmethod
    def lasting_temporaries():
        """Temporary folders of the program that stay. Other tests may have theirs for a moment."""
        users = pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c" / "users"
        found = list(users.glob("*/Temp/btz-*")) + list(users.glob("*/AppData/Local/Temp/btz-*"))
        for _ in range(100):
            found = [folder for folder in found if folder.exists()]
            if not found:
                break
            time.sleep(0.1)
        return found

    def test_without_it_nothing_is_left_behind(self):
        deck = self.write("small.bdf", SMALL_DECK)
        home = self.folder / "home"
        temporary = self.folder / "temporary"
        for folder in (home, temporary):
            folder.mkdir()
        (home / self.LOG).write_text("kept")
        environment = {"CAE_HOME": str(home), "QX_SCRATCH_DIR": str(home)}
        if not IS_WINDOWS:
            environment["TMPDIR"] = str(temporary)
        self.assertEqual(self.run_btz("inspect", deck, environment=environment).returncode, 0)
        self.assertEqual((home / self.LOG).read_text(), "kept")
        self.assertEqual(list(temporary.iterdir()), [])
        if IS_WINDOWS:
            self.assertEqual(self.lasting_temporaries(), [])

    @unittest.skipIf(IS_WINDOWS, "other signals")
    def test_a_reader_that_ends_early_leaves_nothing_behind_either(self):
        # More lines than a pipe and the program's own buffer hold.
        deck = self.write("long.bdf", "".join(card("GRID", i, "", "0.0", "0.0", "0.0") for i in range(1, 5001)))
        temporary = self.folder / "temporary"
        temporary.mkdir()
        reader, writer = os.pipe()
        os.close(reader)
        environment = {**os.environ, "TMPDIR": str(temporary)}
        done = subprocess.run(PROGRAM + ["trace", deck], stdout=writer, stderr=subprocess.PIPE, env=environment, timeout=240)
        os.close(writer)
        self.assertEqual(done.returncode, -signal.SIGPIPE)
        self.assertEqual(done.stderr, b"")
        self.assertEqual(list(temporary.iterdir()), [])

    @unittest.skipIf(IS_WINDOWS, "the temporary folder is found otherwise")
    def test_without_any_folder_the_users_log_stays_untouched(self):
        deck = self.write("small.bdf", SMALL_DECK)
        (self.folder / self.LOG).write_text("kept")
        environment = {"CAE_HOME": str(self.folder), "TMPDIR": str(self.folder / "none")}
        done = self.run_btz("inspect", deck, environment=environment)
        self.assertEqual(done.returncode, 0)
        self.assertEqual((self.folder / self.LOG).read_text(), "kept")
        self.assertRegex(done.stdout, r"(?m)^Log +none was written$")

    def test_what_the_log_said_is_in_the_report(self):
        # The second CTRIA3 has the id of the first, and the third has no node 9.
        text = NODES + TRIANGLE * 2 + card("CTRIA3", 12, 7, 1, 2, 9) + "include 'gone.bdf'\n"
        done = self.run_btz("inspect", self.write("faulty.bdf", text))
        self.assertEqual(done.returncode, 0)
        self.assertRegex(done.stdout, r"(?m)^  refused by host +2 x Tri3 Element: 11, 12$")
        self.assertRegex(done.stdout, r'(?m)^  not found +include file "gone.bdf"$')


class Report(ProgramTest):
    DECK = (
        NODES
        + card("GRID", 4, "", "1.0", "1.0", "0.0")
        + card("GRID", 5, "", "0.0", "0.0", "1.0")
        + card("GRID", 6, "", "2.0", "0.0", "0.0")
        + TRIANGLE
        + card("CQUAD4", 12, 7, 1, 2, 4, 3)
        + card("CTETRA", 21, 8, 1, 2, 3, 5)
        + card("CTRIA3", 13, 9, 2, 6, 4)
        + "ENDDATA\n"
    )

    def test_counts_of_nodes_elements_and_parts(self):
        done = self.run_btz("inspect", self.write("parts.bdf", self.DECK))
        self.assertEqual(done.returncode, 0, done.stderr)
        for line in (
            rf"Deck +parts\.bdf, {len(self.DECK)} bytes",
            r"Result +translated \(0\)",
            r"Nodes +6",
            r"Elements +4",
            r" +2  triangles, 3 nodes",
            r" +1  quadrilaterals, 4 nodes",
            r" +1  tetrahedra, 4 nodes",
            r"Parts +3",
            r" +7 +\d+  Body 7 +1 triangles, 3 nodes; 1 quadrilaterals, 4 nodes",
            r" +8 +\d+  Body 8 +1 tetrahedra, 4 nodes",
            r" +9 +\d+  Body 9 +1 triangles, 3 nodes",
        ):
            self.assertRegex(done.stdout, f"(?m)^{line}$")

    def test_json_holds_the_same(self):
        done = self.run_btz("inspect", "--json", self.write("parts.bdf", self.DECK))
        report = json.loads(done.stdout)
        self.assertEqual(report["deck"], {"name": "parts.bdf", "bytes": len(self.DECK)})
        self.assertEqual(report["result"]["code"], 0)
        self.assertEqual(report["model"]["nodes"], 6)
        self.assertEqual(
            report["model"]["elements"], {"triangles, 3 nodes": 2, "quadrilaterals, 4 nodes": 1, "tetrahedra, 4 nodes": 1}
        )
        self.assertEqual([part["id"] for part in report["model"]["parts"]], [7, 8, 9])
        self.assertTrue(report["model"]["handedOver"])
        self.assertEqual(report["log"]["nodesRead"], 6)


    PROPERTIES_DECK = (
        NODES
        + card("GRID", 4, 10, "2.0", "90.0", "1.0")
        + card("GRID", 5, 10, "2.0", "180.0", "1.0")
        + "$Flügelhaut\n"
        + card("PSHELL", 7, 1, "2.5")
        + card("PBAR", 7, 1, "50.0", "416.7")
        + card("PBEAML", 8, 3, "", "TUBE", "", "", "", "").rstrip("\n").ljust(72) + "+\n"
        + card("+", "5.0", "3.0").rstrip("\n").ljust(24) + "\n"
        + card("PSOLID", 9, 2)
        + TRIANGLE
        + card("CBAR", 12, 7, 1, 2, "0.0", "1.0", "0.0")
        + card("CBEAM", 13, 8, 1, 3, "0.0", "1.0", "0.0")
        + card("CTETRA", 21, 9, 1, 2, 3, 4)
        + card("CTRIA3", 14, 11, 1, 2, 3)
        + card("MAT1", 1, "210000.0", "", "0.3", "7.85-9")
        + card("MAT1", 2, "70000.0")
        + '$HMNAME MAT                    1"Steel"\n'
        + card("CORD2C", 10, "", "0.0", "0.0", "5.0", "0.0", "0.0", "6.0").rstrip("\n").ljust(72) + "+\n"
        + card("+", "1.0", "0.0", "5.0").rstrip("\n").ljust(32) + "\n"
        + "ENDDATA\n"
    )

    def test_properties_materials_and_systems(self):
        done = self.run_btz("inspect", self.write("properties.bdf", self.PROPERTIES_DECK))
        self.assertEqual(done.returncode, 0, done.stderr)
        # Five nodes of the deck and the three that hold the system.
        self.assertIn("\nNodes               8\n  in local systems  2\n", done.stdout)
        self.assertIn(
            "\nProperties          4\n"
            "      Part  Class             Name        Material      Thickness or section\n"
            "         7  Shell, Isotropic  Flügelhaut  1 Steel       thickness 2.5\n"
            "         7  Bar, Bar          Property7   1 Steel       area 50\n"
            "         8  Bar, Beam         Property8   3 Material_3  hollow round 5, 3\n"
            "         9  Solid, Isotropic  Property9   2 Material_2  -\n"
            "  without property  1 part: 11 Body 11\n",
            done.stdout,
        )
        # The third material stands on no card.
        self.assertIn(
            "\nMaterials           3\n"
            "    Number  Name        Young's modulus  Poisson's ratio     Density  Class\n"
            "         1  Steel                210000              0.3    7.85e-09  Isotropic, Elastic, Metal\n"
            "         2  Material_2            70000            unset       unset  Isotropic, Elastic, Metal\n"
            "         3  Material_3           208000              0.3        7800  Isotropic, Elastic, Metal\n",
            done.stdout,
        )
        self.assertIn(
            "\nCoordinate systems  1\n"
            "        Id  Kind         Name              Nodes  Origin\n"
            "        10  cylindrical  CyliCoordinate10      2  (0, 0, 5)\n",
            done.stdout,
        )

    def test_json_has_all_values_of_properties_and_materials(self):
        done = self.run_btz("inspect", "--json", self.write("properties.bdf", self.PROPERTIES_DECK))
        model = json.loads(done.stdout)["model"]
        self.assertEqual([part["id"] for part in model["parts"]], [7, 8, 9, 11])
        self.assertEqual([part["properties"] for part in model["parts"]], [[0, 1], [2], [3], []])
        self.assertEqual([prop["parts"] for prop in model["properties"]], [[0], [0], [1], [2]])
        skin, bar, tube, solid = model["properties"]
        self.assertEqual((skin["id"], skin["name"], skin["class"]), (7, "Flügelhaut", "Shell, Isotropic"))
        self.assertEqual(skin["material"], {"number": 1, "name": "Steel"})
        self.assertEqual(skin["values"]["Thickness"], 2.5)
        self.assertIsNone(skin["values"]["Material_Bending"])
        self.assertEqual((bar["values"]["Area"], bar["values"]["I1"]), (50.0, 416.7))
        self.assertIsNone(bar["values"]["I2"])
        self.assertEqual(tube["values"]["SectionParam"], "5.000000,3.000000")
        self.assertEqual(solid["values"], {})
        steel = model["materials"][0]
        self.assertEqual((steel["number"], steel["name"], steel["values"]["Youngs_modulus"]), (1, "Steel", 210000.0))
        self.assertIsNone(steel["values"]["Shear_modulus"])
        self.assertEqual(model["nodesInLocalSystems"], 2)
        self.assertEqual(
            model["coordinate systems"],
            [{"id": 10, "kind": "cylindrical", "name": "CyliCoordinate10", "origin": [0.0, 0.0, 5.0], "nodes": 2}],
        )

    LOADS = (
        "$Pull\n"
        + card("FORCE", 10, 2, 0, "2.0", "1.0", "0.0", "0.0")
        + card("FORCE", 11, 2, 0, "2.0", "1.0", "0.0", "0.0")
        + card("FORCE", 11, 3, 0, "3.0", "1.0", "0.0", "0.0")
        + card("GRAV", 20, 0, "9.81", "0.0", "0.0", "-1.0")
        + card("SPC", 1, 1, 123456, "0.0")
        + card("SPC", 1, 3, 3, "0.5")
        + "ENDDATA\n"
    )
    CASES = (
        "SOL 101\nCEND\n"
        "SUBCASE 1\n  SUBTITLE = Flügel unten\n  SPC = 1\n  LOAD = 10\n"
        "SUBCASE 2\n  LABEL = Own weight\n  SPC = 1\n  LOAD = 20\n"
        "BEGIN BULK\n"
    )

    def test_constraints_loads_and_load_cases(self):
        done = self.run_btz("inspect", self.write("loads.bdf", self.CASES + NODES + TRIANGLE + self.LOADS))
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn(
            "\nConstraints         2\n"
            "        Id  Kind      Name                  Components  Nodes  System  Values\n"
            "         4  enforced  EnforcedConstraint_1  3               1       -  3: 0.5\n"
            "         5  plain     Node_Constraint_1     123456          1       -  -\n",
            done.stdout,
        )
        self.assertIn(
            "\nForces and moments  2\n"
            "        Id  Name         Nodes  System  Force      Moment\n"
            "         2  Pull             1       -  (2, 0, 0)  (0, 0, 0)\n"
            "         3  PointForce1      2       -  by field   by field\n",
            done.stdout,
        )
        self.assertIn(
            "\nBody loads          1\n"
            "        Id  Kind     Name       Parts  Vector\n"
            "         1  gravity  (no name)      1  (0, 0, -9.81)\n",
            done.stdout,
        )
        self.assertIn(
            "\nLoad cases          2\n"
            "  Flügel unten  (NASTRAN, LINEAR)\n"
            "      forces and moments  1       Pull\n"
            "      constraints         2       Node_Constraint_1, EnforcedConstraint_1\n"
            "  Own weight  (NASTRAN, LINEAR)\n"
            "      body loads          1       id 1\n"
            "      constraints         2       Node_Constraint_1, EnforcedConstraint_1\n"
            "  in no load case\n"
            "      forces and moments  1       PointForce1\n",
            done.stdout,
        )

    def test_json_has_all_of_constraints_loads_and_load_cases(self):
        done = self.run_btz("inspect", "--json", self.write("loads.bdf", self.CASES + NODES + TRIANGLE + self.LOADS))
        model = json.loads(done.stdout)["model"]
        enforced, plain = model["constraints"]
        self.assertEqual((enforced["name"], enforced["enforced"], enforced["components"]), ("EnforcedConstraint_1", True, "3"))
        self.assertEqual(enforced["values"], [0.0, 0.0, 0.5, 0.0, 0.0, 0.0])
        self.assertEqual((plain["name"], plain["enforced"], plain["components"]), ("Node_Constraint_1", False, "123456"))
        self.assertIsNone(plain["values"])
        pull, spread = model["forces and moments"]
        self.assertEqual((pull["force"], pull["byField"], pull["nodes"]), ([2.0, 0.0, 0.0], False, 1))
        self.assertEqual((spread["force"], spread["byField"], spread["nodes"]), (None, True, 2))
        self.assertEqual(
            model["body loads"], [{"id": 1, "name": "", "kind": "gravity", "vector": [0.0, 0.0, -9.81], "parts": 1}]
        )
        first, second = model["load cases"]
        self.assertEqual((first["name"], first["solver"], first["analysis"]), ("Flügel unten", "NASTRAN", "LINEAR"))
        self.assertEqual(
            first["members"],
            {
                "forces and moments": [{"id": 2, "name": "Pull"}],
                "constraints": [{"id": 5, "name": "Node_Constraint_1"}, {"id": 4, "name": "EnforcedConstraint_1"}],
            },
        )
        self.assertEqual(second["members"]["body loads"], [{"id": 1, "name": ""}])
        self.assertEqual(model["in no load case"], {"forces and moments": [{"id": 3, "name": "PointForce1"}]})

    PRESSURES = (
        NODES
        + card("GRID", 4, "", "1.0", "1.0", "0.0")
        + TRIANGLE
        + card("CTRIA3", 12, 7, 2, 4, 3)
        + card("PLOAD4", 5, 11, "-0.5")
        + "$Edge\n"
        + card("SET", 8, "GRID")
        + card("+", 1, "THRU", 3)
        + "ENDDATA\n"
    )

    def test_pressures_and_sets(self):
        done = self.run_btz("inspect", self.write("pressures.bdf", self.PRESSURES))
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn(
            "\nPressures           1\n"
            "        Id  Name       Parts  Faces  Area  Value x area  Value\n"
            "         2  Pressure1      1      1   0.5         -0.25  -0.5\n",
            done.stdout,
        )
        self.assertIn(
            "\nSets                1\n"
            "        Id  Kind   Name  Members  Parts  Area\n"
            "         1  nodes  Edge        3      -     -\n",
            done.stdout,
        )
        done = self.run_btz("inspect", "--json", self.write("pressures.bdf", self.PRESSURES))
        model = json.loads(done.stdout)["model"]
        (pressure,) = model["pressures"]
        self.assertEqual((pressure["lowest"], pressure["faces"], pressure["area"]), (-0.5, 1, 0.5))
        self.assertEqual(model["sets"], [{"id": 1, "name": "Edge", "kind": "nodes", "members": 3}])
        self.assertEqual(model["parts"][0]["faces"], 2)

    def test_a_single_subcase_that_uses_everything_makes_no_load_case(self):
        case = "SUBCASE 1\n  SPC = 1\n  LOAD = 10\nBEGIN BULK\n"
        bulk = NODES + TRIANGLE + card("FORCE", 10, 2, 0, "2.0", "1.0", "0.0", "0.0") + card("SPC", 1, 1, 123456, "0.0")
        done = self.run_btz("inspect", self.write("single.bdf", case + bulk))
        self.assertRegex(done.stdout, r"(?m)^Load cases +none: the deck has no subcase with loads, or a single one that uses all of them$")
        done = self.run_btz("inspect", self.write("more.bdf", case + bulk + card("GRAV", 20, 0, "9.81", "0.0", "0.0", "-1.0")))
        self.assertRegex(done.stdout, r"(?m)^Load cases +1$")
        self.assertRegex(done.stdout, r"(?m)^  in no load case$")

    def test_the_readme_shows_what_the_example_gives(self):
        project = pathlib.Path(__file__).resolve().parents[2]
        done = self.run_btz("inspect", str(project / "examples" / "bracket.bdf"))
        self.assertEqual(done.returncode, 0, done.stderr)
        readme = (project / "README.md").read_text(encoding="utf-8")
        shown = readme.split("```\nDeck ", 1)[1].split("```", 1)[0]
        report = [line for line in done.stdout.splitlines() if not line.startswith("Time ")]
        self.assertEqual(("Deck " + shown).splitlines(), report[: shown.count("\n")])


class Paths(ProgramTest):
    def test_a_name_in_any_script(self):
        deck = self.write("Flügel_翼.bdf", SMALL_DECK)
        done = self.run_btz("inspect", deck)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("Flügel_翼.bdf", done.stdout)

    def test_a_name_without_a_folder_finds_its_include_files(self):
        self.write("main.bdf", "include 'nodes.inc'\n" + TRIANGLE)
        self.write("nodes.inc", NODES)
        done = self.run_btz("inspect", "main.bdf", cwd=self.folder)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertRegex(done.stdout, r"(?m)^Nodes +3$")

    def test_the_trace_names_no_folder(self):
        deck = self.write("small.bdf", SMALL_DECK)
        lines = self.trace(deck)
        self.assertIn('MeshModel.SetSourcePath("small.bdf")', lines)
        self.assertFalse([line for line in lines if str(self.folder) in line])

    def test_a_log_folder_in_any_script(self):
        logs = self.folder / "Läufe"
        logs.mkdir()
        done = self.run_btz("inspect", "--log-dir", str(logs), self.write("small.bdf", SMALL_DECK))
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertTrue((logs / Log.LOG).is_file())


@unittest.skipIf(IS_WINDOWS, "needs a terminal")
class Progress(ProgramTest):
    def run_on_terminal(self, *arguments):
        """Runs the program with a terminal for its standard error; gives its exit code, its result, and what the terminal showed."""
        import pty

        reader, writer = pty.openpty()
        self.addCleanup(os.close, reader)
        with subprocess.Popen(PROGRAM + list(arguments), stdout=subprocess.PIPE, stderr=writer) as program:
            os.close(writer)
            shown = b""
            while True:
                try:
                    block = os.read(reader, 4096)
                except OSError:  # The other end is closed.
                    break
                if not block:
                    break
                shown += block
            result = program.stdout.read().decode()
        return program.returncode, result, shown.decode()

    def test_the_bar_ends_full_and_the_word_is_gone(self):
        word = pathlib.Path("/dev/shm/KRT_PROGRESS")
        existed = word.exists()
        code, result, shown = self.run_on_terminal("inspect", "--progress", self.write("small.bdf", SMALL_DECK))
        self.assertEqual(code, 0)
        self.assertIn("[" + "#" * 40 + "] 100%", shown)
        self.assertTrue(shown.endswith("\n"))
        self.assertNotIn("#", result)
        self.assertNotIn("Completed", result + shown)
        self.assertEqual(word.exists(), existed)

    def test_a_failed_run_does_not_fill_the_bar(self):
        code, _, shown = self.run_on_terminal("inspect", "--progress", str(self.folder / "none.bdf"))
        self.assertEqual(code, 3)
        self.assertNotIn("100%", shown)
        self.assertIn("no such file", shown)

    def test_no_bar_unasked(self):
        _, _, shown = self.run_on_terminal("inspect", self.write("small.bdf", SMALL_DECK))
        self.assertEqual(shown, "")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:2], verbosity=1)
