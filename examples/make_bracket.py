#!/usr/bin/env python3
"""Writes the example deck bracket.bdf: a welded steel bracket that carries an aluminium block.

  make_bracket.py            writes bracket.bdf beside this script
  make_bracket.py --check    ends with 1 if bracket.bdf is not what this script writes

Units: mm, N, tonne (so MPa, and 9810 mm/s^2 for gravity). The wall is the plane x = 0, z points up.

                     upright, bolted to the wall through two holes
     z ^  |_____     lip of bars along its upper edge
       |  | o  |
       |  | o  |\\    two gussets, y = 10 and y = 50
       |  |    |  \\      ____
       |  |____|____\\___|____|   block with a ramp, on the base plate
       +-------------------------> x   a tube runs along each long edge of the base plate

The nodes in the lower hole and on its rim are given in a cylindrical system, whose axis is the hole's. Where the block stands on the base plate there
is a contact surface.
"""
import argparse
import pathlib
import sys

CELL = 10.0  # edge of an element, mm
WIDTH = 6  # in cells, along y
BASE_LENGTH = 12  # along x
UPRIGHT_HEIGHT = 8  # along z
GUSSET_LEG = 6  # along x and z
GUSSET_ROWS = (1, 5)  # place along y
HOLE_COLUMN = 3  # place of both holes' centres along y
HOLE_ROWS = (3, 6)  # and along z
BLOCK_X = (9, 12)
BLOCK_Y = (1, 5)
BLOCK_HEIGHT = 3

# Property, that is, part numbers. Elements are numbered from a thousand times the part.
BASE, UPRIGHT, GUSSETS, BLOCK, LIP, TUBES = 1, 2, 3, 4, 5, 6
STEEL, ALUMINIUM = 1, 2
HOLE_SYSTEM = 10
LOAD_NODE = 9001
BOLT_ELEMENT, LOAD_ELEMENT, MASS_ELEMENT = 9101, 9111, 9121
SUPPORT_SET, LIFT_SET, WEIGHT_SET, PRESSURE_SET, LIFT_AND_WEIGHT_SET = 1, 10, 20, 30, 100
RIM_SET, GUSSET_SET, CONTACT_SURFACE = 201, 202, 203


def field(value):
    """A value in eight columns."""
    text = str(value)
    assert len(text) <= 8, text
    return text.ljust(8)


def card(keyword, *values):
    """A card in fields of eight columns, eight a line. The last field of each line keeps its blanks: a reader sees where it ends."""
    lines = [values[i : i + 8] for i in range(0, len(values), 8)]
    heads = [keyword] + ["+"] * (len(lines) - 1)
    text = [field(head) + "".join(field(value) for value in line) for head, line in zip(heads, lines)]
    return [line + "+" for line in text[:-1]] + [text[-1]]


class Model:
    """Nodes by place, so that neighbours share them, and the cards of the elements in order."""

    def __init__(self):
        self.nodes = {}
        self.element_cards = []
        self.elements = {}
        self.undersides = []  # Solids on the base plate, each with two opposite corners of its lower side.

    def node(self, x, y, z):
        """The node at a place given in cells."""
        return self.nodes.setdefault((x, y, z), len(self.nodes) + 1)

    def add(self, keyword, part, nodes, *more):
        """Adds an element and returns its number."""
        number = 1000 * part + self.elements.get(part, 0) + 1
        self.elements[part] = self.elements.get(part, 0) + 1
        self.element_cards += card(keyword, number, part, *nodes, *more)
        return number

    def add_quad(self, part, corners):
        return self.add("CQUAD4", part, [self.node(*corner) for corner in corners])

    def add_triangle(self, part, corners):
        return self.add("CTRIA3", part, [self.node(*corner) for corner in corners])


def add_base(model):
    """The base plate; returns its elements that the block leaves free."""
    free = []
    for x in range(BASE_LENGTH):
        for y in range(WIDTH):
            number = model.add_quad(BASE, [(x, y, 0), (x + 1, y, 0), (x + 1, y + 1, 0), (x, y + 1, 0)])
            if x < BLOCK_X[0] - 1:
                free.append(number)
    return free


def add_upright(model):
    """The upright plate with its two holes: each takes the place of four elements, whose outer halves stay as triangles."""
    for z in range(UPRIGHT_HEIGHT):
        for y in range(WIDTH):
            corners = [(0, y, z), (0, y + 1, z), (0, y + 1, z + 1), (0, y, z + 1)]
            centres = [(0, HOLE_COLUMN, row) for row in HOLE_ROWS]
            centre = next((corner for corner in corners if corner in centres), None)
            if centre is None:
                model.add_quad(UPRIGHT, corners)
            else:
                model.add_triangle(UPRIGHT, [corner for corner in corners if corner != centre])


def add_gussets(model):
    """Two triangular plates: squares below the slope, triangles along it."""
    for y in GUSSET_ROWS:
        for z in range(GUSSET_LEG):
            for x in range(GUSSET_LEG - z):
                corners = [(x, y, z), (x + 1, y, z), (x + 1, y, z + 1), (x, y, z + 1)]
                if x + z == GUSSET_LEG - 1:
                    model.add_triangle(GUSSETS, [corners[0], corners[1], corners[3]])
                else:
                    model.add_quad(GUSSETS, corners)


def add_block(model):
    """The solid block with a ramp of wedges at its foot; it shares the nodes of the base plate below it."""
    for z in range(BLOCK_HEIGHT):
        for x in range(*BLOCK_X):
            for y in range(*BLOCK_Y):
                square = [(x, y), (x + 1, y), (x + 1, y + 1), (x, y + 1)]
                nodes = [model.node(*corner, level) for level in (z, z + 1) for corner in square]
                number = model.add("CHEXA", BLOCK, nodes)
                if z == 0:
                    model.undersides.append((number, nodes[0], nodes[2]))
    foot = BLOCK_X[0]
    for y in range(*BLOCK_Y):
        nodes = [model.node(x, place, z) for place in (y + 1, y) for x, z in ((foot - 1, 0), (foot, 0), (foot, 1))]
        model.add("CPENTA", BLOCK, nodes)


def add_lip(model):
    """Bars along the upper edge of the upright plate."""
    for y in range(WIDTH):
        ends = [model.node(0, place, UPRIGHT_HEIGHT) for place in (y, y + 1)]
        model.add("CBAR", LIP, ends, "1.0", "0.0", "0.0")


def add_tubes(model):
    """Beams along both long edges of the base plate."""
    for y in (0, WIDTH):
        for x in range(BASE_LENGTH):
            ends = [model.node(place, y, 0) for place in (x, x + 1)]
            model.add("CBEAM", TUBES, ends, "0.0", "0.0", "1.0")


def hole_rim(row):
    """Places on the rim of a hole, by their angle in degrees about the x axis from the y axis on."""
    return {
        0: (0, HOLE_COLUMN + 1, row),
        90: (0, HOLE_COLUMN, row + 1),
        180: (0, HOLE_COLUMN - 1, row),
        270: (0, HOLE_COLUMN, row - 1),
    }


def hole_system():
    """The cylindrical system of the lower hole: origin, a point on its axis, and one in the direction of the angle 0."""
    x, y, z = 0.0, CELL * HOLE_COLUMN, CELL * HOLE_ROWS[0]
    return card("CORD2C", HOLE_SYSTEM, "", x, y, z, x + CELL, y, z, x, y + CELL, z)


def case_control():
    return [
        "SOL 101",
        "CEND",
        "TITLE = Bracket with block",
        f"SPC = {SUPPORT_SET}",
        "SUBCASE 1",
        "  SUBTITLE = Lift and weight",
        f"  SPC = {SUPPORT_SET}",
        f"  LOAD = {LIFT_AND_WEIGHT_SET}",
        "SUBCASE 2",
        "  SUBTITLE = Own weight",
        f"  SPC = {SUPPORT_SET}",
        f"  LOAD = {WEIGHT_SET}",
        "SUBCASE 3",
        "  SUBTITLE = Pressure on the base plate",
        f"  SPC = {SUPPORT_SET}",
        f"  LOAD = {PRESSURE_SET}",
        "BEGIN BULK",
    ]


def names():
    parts = {BASE: "Base plate", UPRIGHT: "Upright", GUSSETS: "Gussets", BLOCK: "Block", LIP: "Lip", TUBES: "Edge tubes"}
    lines = [f'$HMNAME COMP            {number:8}"{name}"' for number, name in parts.items()]
    lines += [f'$HMNAME MAT             {number:8}"{name}"' for number, name in {STEEL: "Steel", ALUMINIUM: "Aluminium"}.items()]
    return lines


def materials_and_properties():
    lines = card("MAT1", STEEL, "210000.0", "", "0.3", "7.85-9", "1.2-5", "20.0")
    lines += card("MAT1", ALUMINIUM, "70000.0", "", "0.33", "2.7-9", "2.3-5", "20.0")
    for comment, part, thickness in (("$Sheet_6mm", BASE, "6.0"), ("$Plate_8mm", UPRIGHT, "8.0"), ("$Sheet_4mm", GUSSETS, "4.0")):
        lines += [comment] + card("PSHELL", part, STEEL, thickness, STEEL, "", STEEL)
    lines += ["$Solid_aluminium"] + card("PSOLID", BLOCK, ALUMINIUM, 0)
    # A flat of 5 mm x 10 mm.
    lines += ["$Flat_5x10"] + card("PBAR", LIP, STEEL, "50.0", "416.7", "104.2", "286.0", "0.0")
    # Outer and inner radius.
    lines += ["$Tube_10x2"] + card("PBEAML", TUBES, STEEL, "", "TUBE", "", "", "", "", "5.0", "3.0")
    return lines


def connections(model):
    """Bolts in the holes, and the load point above the block with the mass that hangs there."""
    lines = []
    for i, row in enumerate(HOLE_ROWS):
        centre = model.node(0, HOLE_COLUMN, row)
        lines += card("RBE2", BOLT_ELEMENT + i, centre, 123456, *[model.nodes[place] for place in hole_rim(row).values()])
    top = [model.nodes[x, y, BLOCK_HEIGHT] for x in range(BLOCK_X[0], BLOCK_X[1] + 1) for y in range(BLOCK_Y[0], BLOCK_Y[1] + 1)]
    lines += card("RBE3", LOAD_ELEMENT, "", LOAD_NODE, 123, "1.0", 123, *top)
    return lines + card("CONM2", MASS_ELEMENT, LOAD_NODE, 0, "0.002")


def loads(model, free_elements):
    lines = []
    for row in HOLE_ROWS:
        lines += card("SPC1", SUPPORT_SET, 123456, model.nodes[0, HOLE_COLUMN, row])
    lines += card("LOAD", LIFT_AND_WEIGHT_SET, "1.0", "1.0", LIFT_SET, "1.0", WEIGHT_SET)
    lines += ["$Lift"] + card("FORCE", LIFT_SET, LOAD_NODE, 0, "500.0", "0.0", "0.6", "0.8")
    lines += card("GRAV", WEIGHT_SET, 0, "9810.0", "0.0", "0.0", "-1.0")
    for number in free_elements:
        lines += card("PLOAD4", PRESSURE_SET, number, "-0.02")
    return lines


def sets(model):
    """Nodes around the lower hole, the elements of the gussets, and the sides of the block that lie on the base plate."""
    lines = ["$Rim_of_lower_hole"] + card("SET", RIM_SET, "GRID")
    lines += card("+", *[model.nodes[place] for place in hole_rim(HOLE_ROWS[0]).values()])
    first, count = 1000 * GUSSETS + 1, model.elements[GUSSETS]
    lines += ["$All_gussets"] + card("SET", GUSSET_SET, "ELEM") + card("+", first, "THRU", first + count - 1)
    lines += ["$Block_on_plate"] + card("SURF", CONTACT_SURFACE)
    for element, low, high in model.undersides:
        lines += card("+", element, low, high)
    return lines


def grid_points(model):
    row = HOLE_ROWS[0]
    polar = {(0, HOLE_COLUMN, row): (0.0, 0.0, 0.0), **{place: (CELL, float(angle), 0.0) for angle, place in hole_rim(row).items()}}
    lines = []
    for place, number in model.nodes.items():
        if place in polar:
            lines += card("GRID", number, HOLE_SYSTEM, *polar[place])
        else:
            lines += card("GRID", number, "", *[CELL * step for step in place])
    centre = [(BLOCK_X[0] + BLOCK_X[1]) / 2, (BLOCK_Y[0] + BLOCK_Y[1]) / 2, BLOCK_HEIGHT + 2]
    return lines + card("GRID", LOAD_NODE, "", *[CELL * step for step in centre])


def make_deck():
    model = Model()
    free_elements = add_base(model)
    add_upright(model)
    add_gussets(model)
    add_block(model)
    add_lip(model)
    add_tubes(model)
    rigid = connections(model)
    lines = ["$ A bracket of steel sheet with an aluminium block: written by make_bracket.py. Units: mm, N, tonne."]
    lines += case_control() + names() + materials_and_properties() + hole_system()
    lines += grid_points(model) + model.element_cards + rigid + loads(model, free_elements) + sets(model)
    return "\n".join(lines + ["ENDDATA"]) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true", help="compare only")
    path = pathlib.Path(__file__).with_name("bracket.bdf")
    content = make_deck().encode("ascii")
    if not parser.parse_args().check:
        path.write_bytes(content)
    elif not path.exists() or path.read_bytes() != content:
        print(f"{path.name} is not what {pathlib.Path(__file__).name} writes", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
