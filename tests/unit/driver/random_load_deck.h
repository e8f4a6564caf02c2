// Random decks of shells, solids, pressures, sets and surfaces, with what their cards name: counted here from the mesh and the cards as they are
// written, so that a test can judge what the host was told without asking the code that told it.
#pragma once

#include <algorithm>
#include <array>
#include <compare>
#include <cstdint>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "tests/unit/deck/columns.h"

namespace btz::test {

enum class PieceKind { Shell, Solid, Face };

/// An element, or the face record of a solid's side. A side can have several records: `copy` counts them from 0.
struct Piece {
  PieceKind kind = PieceKind::Shell;
  std::int32_t id = 0;
  std::int32_t side = 0;
  std::int32_t copy = 0;

  auto operator<=>(const Piece&) const = default;
};

using Pieces = std::vector<Piece>;

/// The pieces in order, each once.
inline Pieces Distinct(Pieces pieces) {
  std::sort(pieces.begin(), pieces.end());
  pieces.erase(std::unique(pieces.begin(), pieces.end()), pieces.end());
  return pieces;
}

/// A set of the host, as a `SET` or `SURF` card asks for it.
struct NamedSet {
  std::int32_t kind = 0;
  std::vector<std::int32_t> nodeIds;  ///< Members of a node set, in order of the card.
  Pieces elements;                    ///< Members of an element set, in order of the card.
  Pieces covered;                     ///< What lies in the parts of a surface.
};

enum class Shape { Tria, Quad, Tetra, Hexa, Wedge, Pyramid };

struct DeckElement {
  Shape shape;
  std::vector<std::size_t> nodes;  ///< Places in the list of nodes.
  std::int32_t partId;
  std::int32_t id = 0;
};

class RandomLoadDeck {
 public:
  /// `size` 1 makes decks of some dozen elements and up to ten groups of cards; all grows with it.
  RandomLoadDeck(std::uint32_t seed, std::int32_t size) : random_(seed), size_(size), largeChoicesLeft_(6) {
    MakeMesh();
    Number();
    FindFaces();
    WriteMesh();
    const int groups = 1 + Below(10 * size);
    for (int group = 0; group < groups; ++group) {
      WriteGroup();
    }
    text += "ENDDATA\n";
    CountPressures();
  }

  std::string text;
  std::vector<DeckElement> shells;
  std::vector<DeckElement> solids;
  std::vector<NamedSet> sets;     ///< In the order in which the deck has them made.
  std::vector<Pieces> pressures;  ///< What each pressure covers, in the order in which they are made.

 private:
  static constexpr std::int32_t missingId = 7000000;  ///< No node and no element bears it.
  static constexpr Piece noPiece{PieceKind::Solid, 0, 0, 0};

  struct PressureCard {
    bool isShell;
    bool isFound;   ///< The model has the element.
    Piece element;  ///< A shell's.
    std::size_t solid = 0;
    bool hasFirstNode = false;
    int side = 0;
  };

  int Below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
  std::size_t BelowSize(std::size_t limit) { return random_() % limit; }
  bool OneIn(int chances) { return Below(chances) == 0; }

  template <typename Value>
  void Shuffle(std::vector<Value>* values) {
    for (std::size_t i = values->size(); i > 1; --i) {
      std::swap((*values)[i - 1], (*values)[BelowSize(i)]);
    }
  }

  // The mesh.

  std::size_t AddNode(double x, double y, double z) {
    places_.push_back({x, y, z});
    return places_.size() - 1;
  }

  void AddElement(Shape shape, std::vector<std::size_t> nodes, std::int32_t partId) {
    (shape == Shape::Tria || shape == Shape::Quad ? shells : solids).push_back({shape, std::move(nodes), partId});
  }

  void MakeMesh() {
    const int grids = Below(3);
    const int blocks = grids == 0 ? 1 : Below(3);
    for (int grid = 0; grid < grids; ++grid) {
      MakeGrid();
    }
    for (int block = 0; block < blocks; ++block) {
      MakeBlock();
    }
    GlueShells();
    Shuffle(&shells);
    Shuffle(&solids);
  }

  /// A grid of quadrilaterals and triangles, in stripes of up to three parts.
  void MakeGrid() {
    const int columns = (1 + Below(6)) * size_;
    const int rows = 1 + Below(4);
    const int parts = 1 + Below(3);
    const int stripe = columns / parts + 1;
    const std::size_t first = places_.size();
    for (int row = 0; row <= rows; ++row) {
      for (int column = 0; column <= columns; ++column) {
        AddNode(column, row, 0.0);
      }
    }
    const auto at = [&](int column, int row) { return first + static_cast<std::size_t>(row * (columns + 1) + column); };
    for (int row = 0; row < rows; ++row) {
      for (int column = 0; column < columns; ++column) {
        const std::int32_t part = 1 + (OneIn(8) ? Below(4) : column / stripe);
        const std::size_t a = at(column, row);
        const std::size_t b = at(column + 1, row);
        const std::size_t c = at(column + 1, row + 1);
        const std::size_t d = at(column, row + 1);
        if (OneIn(4)) {
          AddElement(Shape::Tria, {a, b, c}, part);
          AddElement(Shape::Tria, {a, c, d}, part);
        } else {
          AddElement(Shape::Quad, {a, b, c, d}, part);
        }
      }
    }
  }

  /// A block of cells, each a hexahedron or cut into wedges, tetrahedra or pyramids.
  void MakeBlock() {
    const int columns = (1 + Below(3)) * size_;
    const int rows = 1 + Below(2);
    const int layers = 1 + Below(2);
    const int kind = Below(5);
    const std::size_t first = places_.size();
    for (int layer = 0; layer <= layers; ++layer) {
      for (int row = 0; row <= rows; ++row) {
        for (int column = 0; column <= columns; ++column) {
          AddNode(column, row, layer);
        }
      }
    }
    const auto at = [&](int column, int row, int layer) {
      return first + static_cast<std::size_t>((layer * (rows + 1) + row) * (columns + 1) + column);
    };
    for (int layer = 0; layer < layers; ++layer) {
      for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
          const std::array<std::size_t, 8> corners = {at(column, row, layer),
                                                      at(column + 1, row, layer),
                                                      at(column + 1, row + 1, layer),
                                                      at(column, row + 1, layer),
                                                      at(column, row, layer + 1),
                                                      at(column + 1, row, layer + 1),
                                                      at(column + 1, row + 1, layer + 1),
                                                      at(column, row + 1, layer + 1)};
          MakeCell(kind == 4 ? Below(4) : kind, corners, 11 + Below(2));
        }
      }
    }
  }

  void MakeCell(int kind, const std::array<std::size_t, 8>& c, std::int32_t part) {
    const auto add = [&](Shape shape, const std::vector<int>& corners) {
      std::vector<std::size_t> nodes;
      for (const int corner : corners) {
        nodes.push_back(c[static_cast<std::size_t>(corner)]);
      }
      AddElement(shape, nodes, part);
    };
    if (kind == 0) {
      add(Shape::Hexa, {0, 1, 2, 3, 4, 5, 6, 7});
    } else if (kind == 1) {
      add(Shape::Wedge, {0, 1, 2, 4, 5, 6});
      add(Shape::Wedge, {0, 2, 3, 4, 6, 7});
    } else if (kind == 2) {
      for (const std::array<int, 2>& edge : {std::array<int, 2>{1, 2}, {2, 3}, {3, 7}, {7, 4}, {4, 5}, {5, 1}}) {
        add(Shape::Tetra, {0, edge[0], edge[1], 6});
      }
    } else {
      const std::size_t top = AddNode(0.5, 0.5, 0.5);
      for (const std::vector<int>& side : SidesOf(Shape::Hexa)) {
        add(Shape::Pyramid, side);
        solids.back().nodes.push_back(top);
      }
    }
  }

  /// Puts shells on some of the sides of solids, seldom on one between two solids.
  void GlueShells() {
    const std::map<std::vector<std::size_t>, int> users = CountSides();
    for (const DeckElement& solid : solids) {
      for (const std::vector<int>& side : SidesOf(solid.shape)) {
        const bool isInner = users.at(CornersOf(solid, side)) > 1;
        if (!OneIn(isInner ? 30 : 6)) {
          continue;
        }
        std::vector<std::size_t> nodes;
        for (const int corner : side) {
          nodes.push_back(solid.nodes[static_cast<std::size_t>(corner)]);
        }
        std::rotate(nodes.begin(), nodes.begin() + Below(3), nodes.end());
        if (OneIn(2)) {
          std::reverse(nodes.begin(), nodes.end());
        }
        AddElement(nodes.size() == 3 ? Shape::Tria : Shape::Quad, nodes, OneIn(2) ? 21 : 1 + Below(4));
      }
    }
  }

  /// Sides as the host numbers them, as places among the nodes of the solid.
  static const std::vector<std::vector<int>>& SidesOf(Shape shape) {
    static const std::vector<std::vector<int>> tetra = {{1, 2, 3}, {0, 3, 2}, {0, 1, 3}, {0, 2, 1}};
    static const std::vector<std::vector<int>> hexa = {{0, 3, 2, 1}, {0, 1, 5, 4}, {2, 3, 7, 6}, {0, 4, 7, 3}, {1, 2, 6, 5}, {4, 5, 6, 7}};
    static const std::vector<std::vector<int>> wedge = {{0, 2, 1}, {1, 2, 5, 4}, {2, 0, 3, 5}, {0, 1, 4, 3}, {3, 4, 5}};
    static const std::vector<std::vector<int>> pyramid = {{0, 3, 2, 1}, {0, 1, 4}, {1, 2, 4}, {2, 3, 4}, {3, 0, 4}};
    static const std::vector<std::vector<int>> none;
    switch (shape) {
      case Shape::Tetra:
        return tetra;
      case Shape::Hexa:
        return hexa;
      case Shape::Wedge:
        return wedge;
      case Shape::Pyramid:
        return pyramid;
      default:
        return none;
    }
  }

  static std::vector<std::size_t> CornersOf(const DeckElement& solid, const std::vector<int>& side) {
    std::vector<std::size_t> corners;
    for (const int corner : side) {
      corners.push_back(solid.nodes[static_cast<std::size_t>(corner)]);
    }
    std::sort(corners.begin(), corners.end());
    return corners;
  }

  /// How many solids have a side with these corners.
  std::map<std::vector<std::size_t>, int> CountSides() const {
    std::map<std::vector<std::size_t>, int> users;
    for (const DeckElement& solid : solids) {
      for (const std::vector<int>& side : SidesOf(solid.shape)) {
        ++users[CornersOf(solid, side)];
      }
    }
    return users;
  }

  /// Gives ids: from 1 on or with gaps. Shells and solids are registers of their own, whose ids may overlap.
  void Number() {
    const int nodeStep = OneIn(2) ? 1 : 3;
    for (std::size_t i = 0; i < places_.size(); ++i) {
      nodeIds_.push_back(static_cast<std::int32_t>(i) * nodeStep + 1);
      nodeById_[nodeIds_.back()] = i;
    }
    std::int32_t id = 1;
    for (std::size_t i = 0; i < shells.size(); ++i) {
      shells[i].id = id;
      shellById_[id] = i;
      id += 1 + (OneIn(10) ? Below(5) : 0);
    }
    id = OneIn(3) ? 1 : id + 5;
    for (std::size_t i = 0; i < solids.size(); ++i) {
      solids[i].id = id;
      solidById_[id] = i;
      id += 1 + (OneIn(10) ? Below(5) : 0);
    }
  }

  /// What lies on each side of the solids before the first load card: the shell that is glued there, a record of the skin, or nothing between two
  /// solids.
  void FindFaces() {
    const std::map<std::vector<std::size_t>, int> users = CountSides();
    std::map<std::vector<std::size_t>, std::int32_t> firstShell;
    for (const DeckElement& shell : shells) {
      std::vector<std::size_t> corners = shell.nodes;
      std::sort(corners.begin(), corners.end());
      firstShell.emplace(corners, shell.id);
    }
    for (const DeckElement& solid : solids) {
      std::vector<Piece>& faces = faces_.emplace_back();
      for (const std::vector<int>& side : SidesOf(solid.shape)) {
        const std::vector<std::size_t> corners = CornersOf(solid, side);
        const auto shell = firstShell.find(corners);
        if (users.at(corners) > 1) {
          faces.push_back(noPiece);
        } else if (shell != firstShell.end()) {
          faces.push_back({PieceKind::Shell, shell->second, 0, 0});
        } else {
          faces.push_back(NewRecord(solid.id, static_cast<int>(faces.size())));
        }
      }
    }
  }

  Piece NewRecord(std::int32_t solidId, int side) { return {PieceKind::Face, solidId, side, records_[{solidId, side}]++}; }

  void WriteMesh() {
    static constexpr const char* keywords[] = {"CTRIA3", "CQUAD4", "CTETRA", "CHEXA", "CPENTA", "CPYRA"};
    const bool solidsFirst = OneIn(2);
    for (const bool first : {true, false}) {
      for (const DeckElement& element : first == solidsFirst ? solids : shells) {
        std::string card = keywords[static_cast<std::size_t>(element.shape)];
        card += "|" + std::to_string(element.id) + "|" + std::to_string(element.partId);
        for (std::size_t i = 0; i < element.nodes.size(); ++i) {
          if (i == 6) {
            text += Small(card + "|+");
            card = "+";
          }
          card += "|" + std::to_string(nodeIds_[element.nodes[i]]);
        }
        text += Small(card);
      }
    }
    for (std::size_t i = 0; i < places_.size(); ++i) {
      text += "GRID    ";
      text += Small(std::to_string(nodeIds_[i]) + "||" + std::to_string(places_[i][0]).substr(0, 7) + "|" +
                    std::to_string(places_[i][1]).substr(0, 7) + "|" + std::to_string(places_[i][2]).substr(0, 7));
    }
  }

  // Choices among what the mesh has.

  /// Places below `count`: one, a few, a run, half or all of them. Large choices are made some few times a deck.
  std::vector<std::size_t> Choose(std::size_t count) {
    std::vector<std::size_t> chosen;
    if (count == 0) {
      return chosen;
    }
    int way = Below(6);
    if (way >= 3 && largeChoicesLeft_-- <= 0) {
      way = Below(3);
    }
    if (way < 3) {
      const int few = way == 0 ? 1 : 1 + Below(8);
      const std::size_t start = BelowSize(count);
      for (int i = 0; i < few; ++i) {
        chosen.push_back(way == 1 ? (start + static_cast<std::size_t>(i)) % count : BelowSize(count));
      }
      return chosen;
    }
    const std::size_t start = way == 3 ? BelowSize(count) : 0;
    for (std::size_t i = start; i < count; ++i) {
      if (way != 4 || OneIn(2)) {
        chosen.push_back(i);
      }
    }
    if (OneIn(2)) {
      Shuffle(&chosen);
    }
    return chosen;
  }

  /// Shells of any parts, or of one.
  std::vector<std::size_t> ChooseShells() {
    if (OneIn(2) || shells.empty()) {
      return Choose(shells.size());
    }
    const std::int32_t part = shells[BelowSize(shells.size())].partId;
    std::vector<std::size_t> ofPart;
    for (std::size_t i = 0; i < shells.size(); ++i) {
      if (shells[i].partId == part) {
        ofPart.push_back(i);
      }
    }
    std::vector<std::size_t> chosen;
    for (const std::size_t place : Choose(ofPart.size())) {
      chosen.push_back(ofPart[place]);
    }
    return chosen;
  }

  /// Ids of two nodes with which a card names a face of a solid, now and then wrong ones. 0 is none.
  std::array<std::int32_t, 2> NameFace(const DeckElement& solid) {
    const auto id = [&](int corner) { return nodeIds_[solid.nodes[static_cast<std::size_t>(corner)]]; };
    const int corners = static_cast<int>(solid.nodes.size());
    if (OneIn(12)) {
      const std::array<std::int32_t, 4> any = {id(Below(corners)), nodeIds_[BelowSize(nodeIds_.size())], missingId, id(Below(corners))};
      return {any[BelowSize(any.size())], OneIn(3) ? 0 : any[BelowSize(any.size())]};
    }
    const std::vector<std::vector<int>>& sides = SidesOf(solid.shape);
    const std::size_t number = BelowSize(sides.size());
    const std::vector<int>& side = sides[number];
    if (solid.shape == Shape::Tetra) {
      return {id(side[BelowSize(3)]), id(static_cast<int>(number))};
    }
    if (side.size() == 3) {
      return {id(side[BelowSize(3)]), 0};
    }
    const std::size_t start = BelowSize(4);
    return {id(side[start]), id(side[(start + 2) % 4])};
  }

  /// The side that two nodes name, -1 if none: opposite corners of a quadrilateral side, the node opposite the side of a tetrahedron, or one corner of
  /// a triangular side of a wedge.
  int FindSide(const DeckElement& solid, std::int32_t a, std::int32_t b) const {
    const auto place = [&](std::int32_t id) {
      for (std::size_t i = 0; i < solid.nodes.size(); ++i) {
        if (nodeIds_[solid.nodes[i]] == id) {
          return static_cast<int>(i);
        }
      }
      return -1;
    };
    if (a == 0 || solid.shape == Shape::Pyramid) {
      return -1;
    }
    if (solid.shape == Shape::Tetra) {
      return place(b);
    }
    if (solid.shape == Shape::Wedge && b == 0) {
      return place(a) < 0 ? -1 : place(a) < 3 ? 0 : 4;
    }
    const std::vector<std::vector<int>>& sides = SidesOf(solid.shape);
    for (std::size_t number = 0; number < sides.size(); ++number) {
      const std::vector<int>& side = sides[number];
      const auto corner = std::find(side.begin(), side.end(), place(a));
      if (side.size() == 4 && corner != side.end() && side[static_cast<std::size_t>(corner - side.begin() + 2) % 4] == place(b)) {
        return static_cast<int>(number);
      }
    }
    return -1;
  }

  // The cards.

  void WriteGroup() {
    switch (Below(8)) {
      case 0:
        return WriteSetList();
      case 1:
        return WriteSetGroup();
      case 2:
      case 3:
        return WriteSurface();
      default:
        return WritePressures();
    }
  }

  /// Cards of one set on shells, on solids or, seldom, on both. A later group may go on with the set.
  void WritePressures() {
    static constexpr std::int32_t ids[] = {1, 2, 3, 5, 1002, 2003, 7, 9};
    const std::int32_t setId = OneIn(2) ? ids[BelowSize(std::size(ids))] : 10 + Below(20 * size_);
    const int kind = OneIn(6) ? 2 : Below(2);
    if (kind != 1) {
      for (const std::size_t shell : ChooseShells()) {
        WriteShellPressure(setId, shells[shell].id);
      }
    }
    if (kind != 0) {
      for (const std::size_t solid : Choose(solids.size())) {
        WriteFacePressure(setId, solids[solid].id, NameFace(solids[solid]));
      }
    }
    if (OneIn(30)) {
      WriteShellPressure(setId, missingId);
    } else if (OneIn(30)) {
      WriteFacePressure(setId, missingId, {nodeIds_[0], 0});
    } else if (OneIn(10) && !shells.empty()) {
      WriteShellPressure(setId, shells[0].id);
    }
  }

  std::string SomeValue() { return OneIn(5) ? "2.0" : "1.0"; }

  std::vector<PressureCard>* CardsOf(std::int32_t setId) {
    auto found = std::find_if(cards_.begin(), cards_.end(), [&](const auto& set) { return set.first == setId; });
    if (found == cards_.end()) {
      found = cards_.insert(cards_.end(), {setId, {}});
    }
    return &found->second;
  }

  void WriteShellPressure(std::int32_t setId, std::int32_t elementId) {
    std::string card = "PLOAD4|" + std::to_string(setId) + "|" + std::to_string(elementId) + "|" + SomeValue();
    if (OneIn(4)) {
      card += "|1.0|" + SomeValue() + "|3.0";
    }
    text += Small(card);
    CardsOf(setId)->push_back({true, shellById_.count(elementId) != 0, {PieceKind::Shell, elementId, 0, 0}});
  }

  void WriteFacePressure(std::int32_t setId, std::int32_t elementId, const std::array<std::int32_t, 2>& nodes) {
    std::string card = "PLOAD4|" + std::to_string(setId) + "|" + std::to_string(elementId) + "|" + SomeValue();
    card += OneIn(4) ? "|1.0|2.0|3.0" : "|||";
    card += "|" + std::to_string(nodes[0]);
    if (nodes[1] != 0) {
      card += "|" + std::to_string(nodes[1]);
    }
    text += Small(card);
    PressureCard kept{false, solidById_.count(elementId) != 0, {}};
    if (kept.isFound) {
      kept.solid = solidById_[elementId];
      kept.hasFirstNode = nodeById_.count(nodes[0]) != 0;
      kept.side = std::max(FindSide(solids[kept.solid], nodes[0], nodeById_.count(nodes[1]) != 0 ? nodes[1] : 0), 0);
    }
    CardsOf(setId)->push_back(kept);
  }

  /// Ids of nodes or of elements, now and then one that is missing.
  std::vector<std::int32_t> ChooseIds(bool ofNodes) {
    std::vector<std::int32_t> ids;
    if (ofNodes) {
      for (const std::size_t node : Choose(nodeIds_.size())) {
        ids.push_back(nodeIds_[node]);
      }
    } else {
      for (const std::size_t shell : ChooseShells()) {
        ids.push_back(shells[shell].id);
      }
      if (ids.empty() || OneIn(3)) {
        for (const std::size_t solid : Choose(solids.size())) {
          ids.push_back(solids[solid].id);
        }
      }
    }
    if (OneIn(6) || ids.empty()) {
      ids.push_back(missingId);
    }
    return ids;
  }

  /// The element of an id: a shell before a solid.
  bool FindElement(std::int32_t id, Piece* piece) const {
    *piece = {shellById_.count(id) != 0 ? PieceKind::Shell : PieceKind::Solid, id, 0, 0};
    return piece->kind == PieceKind::Shell || solidById_.count(id) != 0;
  }

  /// `SET id = a, b THRU c`: each number counts as a node and as an element, and all must exist.
  void WriteSetList() {
    text += "SET " + std::to_string(1 + Below(9)) + " = ";
    NamedSet nodes{0, {}, {}, {}};
    NamedSet elements{1, {}, {}, {}};
    bool nodeMissing = false;
    bool elementMissing = false;
    const auto take = [&](std::int32_t id) {
      if (nodeById_.count(id) != 0) {
        nodes.nodeIds.push_back(id);
      } else {
        nodeMissing = true;
      }
      Piece piece;
      if (FindElement(id, &piece)) {
        elements.elements.push_back(piece);
      } else {
        elementMissing = true;
      }
      elements.kind = piece.kind == PieceKind::Solid ? 3 : elements.kind;
    };
    int column = 0;
    for (const std::int32_t id : ChooseIds(OneIn(2))) {
      text += column == 0 ? "" : (column % 6 == 0 ? ",\n" : ",");
      ++column;
      text += std::to_string(id);
      take(id);
      // Not behind the equals sign: a list in front of this card would take its first token for a range of its own.
      if (column > 1 && OneIn(6)) {
        const std::int32_t last = id + Below(5);
        text += " THRU " + std::to_string(last);
        for (std::int32_t next = id + 1; next <= last; ++next) {
          take(next);
        }
      }
    }
    text += "\n";
    if (!nodeMissing && !nodes.nodeIds.empty()) {
      sets.push_back(nodes);
    }
    if (!elementMissing && !elements.elements.empty()) {
      sets.push_back(elements);
    }
  }

  /// `SET` with GRID or ELEM: what does not exist is left out.
  void WriteSetGroup() {
    const bool ofNodes = OneIn(2);
    text += Small("SET|" + std::to_string(1 + Below(9)) + (ofNodes ? "|GRID" : "|ELEM"));
    NamedSet set{ofNodes ? 0 : 1, {}, {}, {}};
    const auto take = [&](std::int32_t id) {
      Piece piece;
      if (ofNodes) {
        if (nodeById_.count(id) != 0) {
          set.nodeIds.push_back(id);
        }
      } else if (FindElement(id, &piece)) {
        set.elements.push_back(piece);
        set.kind = piece.kind == PieceKind::Solid ? 3 : set.kind;
      }
    };
    std::string line = "+";
    int fields = 0;
    const auto write = [&](const std::string& field) {
      line += "|" + field;
      if (++fields % 8 == 0) {
        text += Small(line);
        line = "+";
      }
    };
    for (const std::int32_t id : ChooseIds(ofNodes)) {
      write(std::to_string(id));
      take(id);
      if (OneIn(6)) {
        const std::int32_t last = id + Below(5);
        write("THRU");
        write(std::to_string(last));
        for (std::int32_t next = id + 1; next <= last; ++next) {
          take(next);
        }
      }
    }
    if (line != "+") {
      text += Small(line);
    }
    if (!set.nodeIds.empty() || !set.elements.empty()) {
      sets.push_back(set);
    }
  }

  /// `SURF` with faces of solids. Whole solids lie in no face, so nothing of them is covered; a line whose solid is missing ends the card.
  void WriteSurface() {
    text += Small("SURF|" + std::to_string(1 + Below(9)));
    NamedSet set{2, {}, {}, {}};
    bool hasEnded = false;
    std::vector<std::array<std::size_t, 2>> toMake;
    const auto write = [&](std::int32_t elementId, const std::array<std::int32_t, 2>& nodes) {
      text += Small("+|" + std::to_string(elementId) + "|" + std::to_string(nodes[0]) + "|" + std::to_string(nodes[1]));
      hasEnded = hasEnded || solidById_.count(elementId) == 0;
      if (hasEnded || nodes[0] == 0) {
        return;
      }
      const std::size_t solid = solidById_[elementId];
      const int side = FindSide(solids[solid], nodes[0], nodes[1]);
      if (side < 0) {
        return;
      }
      const Piece face = faces_[solid][static_cast<std::size_t>(side)];
      if (face != noPiece) {
        set.covered.push_back(face);
      } else {
        toMake.push_back({solid, static_cast<std::size_t>(side)});
      }
    };
    for (const std::size_t solid : Choose(solids.size())) {
      write(solids[solid].id, OneIn(12) ? std::array<std::int32_t, 2>{0, 0} : NameFace(solids[solid]));
    }
    if (OneIn(8)) {
      write(missingId, {0, 0});
      if (!solids.empty()) {
        write(solids[0].id, NameFace(solids[0]));
      }
    }
    // A side that is named twice while it has no face gets two records; the later one stays with the solid.
    for (const auto& [solid, side] : toMake) {
      faces_[solid][side] = NewRecord(solids[solid].id, static_cast<int>(side));
      set.covered.push_back(faces_[solid][side]);
    }
    set.covered = Distinct(set.covered);
    if (!set.covered.empty()) {
      sets.push_back(set);
    }
  }

  /// The pressures are made behind all cards, from the faces that the sides have then: set by set in the order of a table with 1001 buckets. The last
  /// card decides whether a set lies on shells or on faces, and a card whose element is missing ends it.
  void CountPressures() {
    std::stable_sort(cards_.begin(), cards_.end(), [](const auto& a, const auto& b) { return a.first % 1001 < b.first % 1001; });
    for (const auto& [setId, cards] : cards_) {
      Pieces covered;
      const bool isShell = cards.back().isShell;
      for (const PressureCard& card : cards) {
        if (!card.isFound) {
          break;
        }
        if (isShell && card.isShell) {
          covered.push_back(card.element);
        } else if (!isShell && card.hasFirstNode && faces_[card.solid][static_cast<std::size_t>(card.side)] != noPiece) {
          covered.push_back(faces_[card.solid][static_cast<std::size_t>(card.side)]);
        }
      }
      if (!covered.empty()) {
        pressures.push_back(Distinct(covered));
      }
    }
  }

  std::mt19937 random_;
  std::int32_t size_;
  int largeChoicesLeft_;
  std::vector<std::array<double, 3>> places_;  ///< Positions of the nodes.
  std::vector<std::int32_t> nodeIds_;
  std::map<std::int32_t, std::size_t> nodeById_;
  std::map<std::int32_t, std::size_t> shellById_;
  std::map<std::int32_t, std::size_t> solidById_;
  std::vector<std::vector<Piece>> faces_;                                  ///< What lies on each side of each solid.
  std::map<std::array<std::int32_t, 2>, std::int32_t> records_;            ///< How many records a side of a solid has.
  std::vector<std::pair<std::int32_t, std::vector<PressureCard>>> cards_;  ///< By set, in the order of their first cards.
};

}  // namespace btz::test
