#include "loads/pressure_loads.h"

#include <algorithm>
#include <iterator>

#include "loads/element_faces.h"
#include "loads/load_parts.h"
#include "loads/load_sets.h"
#include "loads/pressures.h"
#include "mesh/element_topology.h"
#include "support/bucket_order.h"
#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

namespace {

constexpr std::size_t rowLength = 4;  ///< x, y, z and the value.
constexpr std::int32_t markedNode = 1;

/// What the pressures of all sets are made with.
struct PressureStage {
  BoundaryStore* boundary;
  CurveStore* curves;
  std::int32_t* nameNumber;
  ListCellPool cells;
};

/// Rows of a field. There is room for as many as the set's cards have values.
class Rows {
 public:
  explicit Rows(std::size_t most) : values_(most * rowLength) {}

  std::int32_t Count() const { return count_; }

  void Add(const double (&position)[3], double value) {
    const std::size_t at = static_cast<std::size_t>(count_) * rowLength;
    if (at + rowLength > values_.size()) {
      return;
    }
    std::copy(std::begin(position), std::end(position), &values_[at]);
    values_[at + 3] = value;
    ++count_;
  }

  void List(PooledList* rows) {
    for (std::int32_t row = 0; row < count_; ++row) {
      ListAppend(rows, &values_[static_cast<std::size_t>(row) * rowLength]);
    }
  }

 private:
  HeapArray<double> values_;
  std::int32_t count_ = 0;
};

constexpr std::int32_t valueCount = 4;  ///< Values of a card.

std::int32_t CornersOf(const MeshElement* face) { return TopologyOf(ElementCornerCount, face->typeIndex); }

void MarkNodes(const MeshElement* face, std::int32_t count, std::int32_t mark) {
  for (std::int32_t i = 0; i < count; ++i) {
    if (face->nodes[i] != nullptr) {
      face->nodes[i]->mark = mark;
    }
  }
}

bool AreEqual(const CornerValues& p) { return p[0] == p[1] && p[0] == p[2] && p[0] == p[3]; }

/// Rows of one face: its centre when the values are equal, else each corner that has no row yet, from the corner at `first` on.
void AddRows(const MeshElement* face, const CornerValues& values, std::int32_t first, Rows* rows) {
  if (AreEqual(values)) {
    double centre[3];
    ElementFaceCentre(face, centre);
    rows->Add(centre, values[0]);
    return;
  }
  const std::int32_t corners = CornersOf(face);
  // A solid that came into a set of shells has more corners than the card has values.
  for (std::int32_t i = 0; i < std::min(corners, valueCount); ++i) {
    const MeshNode* node = face->nodes[(first + i) % corners];
    if (node != nullptr && node->mark != markedNode) {
      rows->Add(node->position, values[i]);
    }
  }
}

/// Required: the first card whose element the model lacks ends the set.
std::size_t CountCards(const PressureSetRecord& set) {
  std::size_t count = 0;
  for (const PressureCard* card = set.first; card != nullptr && card->element != nullptr; card = card->next) {
    ++count;
  }
  return count;
}

/// A field of the rows. False when the host refused it: the set is given up then.
bool CreateField(PressureStage* stage, Rows* rows, Field** field) {
  if (rows->Count() == 0) {
    return true;
  }
  stage->curves->CreateField(field);
  if (*field == nullptr) {
    return false;
  }
  PooledList list;
  ListInit(&list, &stage->cells);
  rows->List(&list);
  (*field)->SetQuantity(L"XYZ");
  (*field)->SetColumnCount(rowLength);
  (*field)->SetRowCount(rows->Count());
  (*field)->SetRows(&list);
  ListClear(&list);
  return true;
}

void CreatePressureLoad(PressureStage* stage, const PressureSetRecord& set, PooledList* parts, Field* field) {
  Pressure* pressure = nullptr;
  if (stage->boundary->CreatePressure(&pressure) != 0 || pressure == nullptr) {
    return;
  }
  pressure->SetPressure(set.pressure);
  pressure->SetParts(parts);
  pressure->SetField(field, 0);
  wchar_t name[32];
  FormatNumbered(name, std::size(name), "Pressure", (*stage->nameNumber)++);
  pressure->SetName(name);
  AddToLoadSet(set.setId, loadSet, pressure);
}

/// Cuts the faces out of their parts and loads these.
void LoadFaces(PressureStage* stage, const PressureSetRecord& set, PooledList* faces, Field* field) {
  PooledList parts;
  ListInit(&parts, &stage->cells);
  CollectLoadParts(faces, &parts, stage->boundary);
  if (parts.size != 0) {
    CreatePressureLoad(stage, set, &parts, field);
  }
  ListClear(&parts);
}

/// Rows of a set on shells, whose nodes have the order of the values.
void AddShellRows(const PressureSetRecord& set, Rows* rows) {
  for (const PressureCard* card = set.first; card != nullptr && card->element != nullptr; card = card->next) {
    MarkNodes(card->element, CornersOf(card->element), 0);
  }
  for (const PressureCard* card = set.first; card != nullptr && card->element != nullptr; card = card->next) {
    AddRows(card->element, card->values, 0, rows);
    if (!AreEqual(card->values)) {
      MarkNodes(card->element, CornersOf(card->element), markedNode);
    }
  }
}

/// The face that a card loads, or null. Required: nodes that name no face load the first.
MeshElement* FaceOf(const PressureCard& card) {
  if (card.firstNode == nullptr) {
    return nullptr;
  }
  std::int32_t index = 0;
  FindElementFace(card.element, card.firstNode->id, card.secondNode == nullptr ? 0 : card.secondNode->id, &index);
  const bool hasFace = card.element->faces != nullptr && index < TopologyOf(ElementSideCount, card.element->typeIndex);
  MeshElement* face = hasFace ? card.element->faces[index] : nullptr;
  return face != nullptr && StandsInFace(face) ? face : nullptr;
}

/// Position of a node among the corners of a face; their number when it is none of them.
std::int32_t PositionOf(const MeshElement* face, std::int32_t nodeId) {
  const std::int32_t corners = CornersOf(face);
  for (std::int32_t i = 0; i < corners; ++i) {
    if (face->nodes[i] != nullptr && face->nodes[i]->id == nodeId) {
      return i;
    }
  }
  return corners;
}

/// Rows of a set on faces of solids. Required: faces and cards are walked side by side, so a card whose face was dropped shifts the nodes and values
/// of the later ones. Required: unlike shells, a face with one row at its centre leaves no corner to its neighbours either, and mid-side nodes count.
void AddSolidRows(const PressureSetRecord& set, PooledList* faces, Rows* rows) {
  WalkList<MeshElement>(faces, [](const MeshElement* face) { MarkNodes(face, CornersOf(face), 0); });
  const PressureCard* card = set.first;
  WalkList<MeshElement>(faces, [&](const MeshElement* face) {
    if (card == nullptr) {
      return;
    }
    if (card->firstNode != nullptr) {
      AddRows(face, card->values, PositionOf(face, card->firstNode->id), rows);
      MarkNodes(face, TopologyOf(ElementNodeCount, face->typeIndex), markedNode);
    }
    card = card->next;
  });
}

void CreatePressureOfSet(PressureStage* stage, PressureSetRecord* set) {
  PooledList faces;
  ListInit(&faces, &stage->cells);
  for (const PressureCard* card = set->first; card != nullptr && card->element != nullptr; card = card->next) {
    MeshElement* face = set->isShell != 0 ? card->element : FaceOf(*card);
    if (face != nullptr) {
      ListAppend(&faces, face);
    }
  }
  Field* field = nullptr;
  bool goesOn = true;
  if (set->mixed != 0) {
    set->pressure = 1.0;
    Rows rows(CountCards(*set) * std::size_t{valueCount});
    if (set->isShell != 0) {
      AddShellRows(*set, &rows);
    } else {
      AddSolidRows(*set, &faces, &rows);
    }
    goesOn = CreateField(stage, &rows, &field);
  }
  if (goesOn) {
    LoadFaces(stage, *set, &faces, field);
  }
  ListClear(&faces);
}

}  // namespace

void CreatePressures(BoundaryStore* boundary, CurveStore* curves, std::int32_t* nameNumber) {
  PressureStage stage{boundary, curves, nameNumber, {}};
  ListCellPoolInit(&stage.cells);
  HeapArray<PressureSetRecord*> sets(static_cast<std::size_t>(PressureSetTable.size));
  std::size_t count = 0;
  WalkIndexedList<PressureSetRecord>(&PressureSetTable, [&](PressureSetRecord* set) {
    if (count < sets.size()) {
      sets[count++] = set;
    }
  });
  SortByBucket(&sets, tableBucketCount, [](const PressureSetRecord* set) { return set->setId; });
  for (PressureSetRecord* set : sets) {
    CreatePressureOfSet(&stage, set);
  }
  ListCellPoolReset(&stage.cells);
}

}  // namespace btz
