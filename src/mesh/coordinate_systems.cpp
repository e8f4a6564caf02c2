#include "mesh/coordinate_systems.h"

#include <iterator>

#include "deck/card_boundaries.h"
#include "mesh/nodes.h"
#include "support/block_pool.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

/// The three nodes that define a system.
struct DefiningNodes {
  MeshNode* a = nullptr;
  MeshNode* b = nullptr;
  MeshNode* c = nullptr;
};

void FormatSystemName(wchar_t* dest, std::size_t capacity, SystemKind kind, std::int32_t id) {
  switch (kind) {
    case rectangularSystem:
      return FormatNumbered(dest, capacity, "RectCoordinate", id);
    case cylindricalSystem:
      return FormatNumbered(dest, capacity, "CyliCoordinate", id);
    case sphericalSystem:
      return FormatNumbered(dest, capacity, "SpheCoordinate", id);
  }
}

MeshNode* FindNode(MeshModel* model, std::int32_t id) {
  MeshNode* node = nullptr;
  model->GetNode(id, &node);
  return node;
}

MeshNode* MakeHelperNode(MeshModel* model, const double* point) {
  const std::int32_t id = model->NextNodeId();
  model->CreateNode(id, point, 0);
  NoteNodeId(id);
  return FindNode(model, id);
}

/// The host's system through the nodes, or null.
CoordinateSystem* CreateSystem(MeshModel* model, BoundaryStore* boundary, SystemKind kind, std::int32_t id, bool fromNodes,
                               const DefiningNodes& nodes) {
  CoordinateSystem* system = nullptr;
  boundary->CreateCoordinateSystem(&system);
  if (system == nullptr) {
    return nullptr;
  }
  system->SetPoints(nodes.a, nodes.b, nodes.c);
  system->SetModels(model, model, model);
  system->SetKind(kind);
  system->SetActive(1);
  system->SetId(id);
  system->SetFromNodes(fromNodes ? 1 : 0);
  wchar_t name[32];
  FormatSystemName(name, std::size(name), kind, id);
  system->SetName(name);
  return system;
}

/// Direction from the origin to a point on an axis; zero when the host gave no point.
Vector AxisTo(const double* axisPoint, const Vector& origin) {
  return axisPoint == nullptr ? Vector{} : NormaliseIfFinite(VectorAt(axisPoint) - origin);
}

/// The record of a system, or null when memory ran out.
CsRecord* NewRecord(CoordinateSystem* system, SystemKind kind, std::int32_t id, const Vector& origin) {
  auto* record = static_cast<CsRecord*>(AllocateZeroed(sizeof(CsRecord)));
  if (record == nullptr) {
    return nullptr;
  }
  record->id = id;
  record->kind = kind;
  record->origin = origin;
  double* x = nullptr;
  double* y = nullptr;
  double* z = nullptr;
  system->GetAxisPoints(&x, &y, &z);
  BuildRotation(origin, AxisTo(x, origin), AxisTo(y, origin), AxisTo(z, origin), &record->rotation, &record->translation);
  return record;
}

void Append(PooledList* list, CsRecord* record) {
  if (record != nullptr) {
    ListAppend(list, record);
  }
}

/// The fields of a CORD1 card: a system and its nodes, twice.
enum Cord1Field : std::size_t { firstId, firstA, firstB, firstC, secondId, secondA, secondB, secondC, cord1FieldCount };

using Cord1Fields = std::int32_t[cord1FieldCount];

/// Reads the fields of the fixed format. False when there is no first id.
bool ReadFixedCord1(CardCursor* cursor, std::int32_t width, Cord1Fields& fields) {
  Advance(cursor, 8);
  if (!ReadIdField(width, cursor, &fields[firstId], false) || fields[firstId] == 0) {
    return false;
  }
  const FieldWalk walk{width, StopTest::Keyword, NumericTest::Decimal};
  WalkFields(cursor, cord1FieldCount - 1, walk, [&](std::int32_t slot) { ReadIdField(width, cursor, &fields[slot + 1], false); });
  return true;
}

void ReadFreeCord1(CardCursor* cursor, Cord1Fields& fields) {
  char line[deckLineCapacity];
  ReadDeckLine(cursor, line, sizeof(line));
  for (std::int32_t field = 0; field < static_cast<std::int32_t>(cord1FieldCount); ++field) {
    fields[field] = GetFreeInteger(line, field + 1);
  }
}

void CreateFromNodeIds(MeshModel* model, BoundaryStore* boundary, SystemKind kind, const std::int32_t* idAndNodes,
                       PooledList* coordinateSystemList) {
  MeshNode* a = FindNode(model, idAndNodes[1]);
  MeshNode* b = FindNode(model, idAndNodes[2]);
  MeshNode* c = FindNode(model, idAndNodes[3]);
  CreateCord1System(model, boundary, idAndNodes[0], kind, a, b, c, coordinateSystemList);
}

}  // namespace

void ReadCord2Card(MeshModel* model, BoundaryStore* boundary, SystemKind kind, CardCursor* cursor, PooledList* coordinateSystemList) {
  const std::int32_t width = FieldWidthFor(*cursor, kind == rectangularSystem ? "CORD2R*" : "CORD2C*");
  Advance(cursor, 8);
  std::int32_t id = 0;
  std::int32_t reference = 0;
  ReadIdField(width, cursor, &id, false);
  ReadIdField(width, cursor, &reference, false);
  double points[9] = {};
  const FieldWalk walk{width, StopTest::Keyword, NumericTest::Decimal};
  WalkFields(cursor, 9, walk, [&](std::int32_t slot) { ReadRealField(width, cursor, &points[slot]); });
  DefiningNodes nodes;
  nodes.a = MakeHelperNode(model, points);
  nodes.b = MakeHelperNode(model, points + 3);
  nodes.c = MakeHelperNode(model, points + 6);
  CoordinateSystem* system = CreateSystem(model, boundary, kind, id, false, nodes);
  if (system == nullptr) {
    return;
  }
  ListRewind(coordinateSystemList);
  Append(coordinateSystemList, NewRecord(system, kind, id, VectorAt(points)));
}

void ReadCord1Card(MeshModel* model, BoundaryStore* boundary, SystemKind kind, CardCursor* cursor, PooledList* coordinateSystemList) {
  const bool rectangular = kind == rectangularSystem;
  Cord1Fields fields = {};
  if (BeginsWithKeyword(*cursor, rectangular ? "CORD1R," : "CORD1C,")) {
    ReadFreeCord1(cursor, fields);
  } else if (!ReadFixedCord1(cursor, FieldWidthFor(*cursor, rectangular ? "CORD1R*" : "CORD1C*"), fields)) {
    return;
  }
  CreateFromNodeIds(model, boundary, kind, &fields[firstId], coordinateSystemList);
  if (fields[secondId] != 0 && fields[secondA] != 0 && fields[secondB] != 0 && fields[secondC] != 0) {
    CreateFromNodeIds(model, boundary, kind, &fields[secondId], coordinateSystemList);
  }
}

void CreateCord1System(MeshModel* model, BoundaryStore* boundary, std::int32_t cid, SystemKind kind, MeshNode* nodeA, MeshNode* nodeB,
                       MeshNode* nodeC, PooledList* coordinateSystemList) {
  if (boundary == nullptr || nodeA == nullptr || nodeB == nullptr || nodeC == nullptr) {
    return;
  }
  CoordinateSystem* system = CreateSystem(model, boundary, kind, cid, true, {nodeA, nodeB, nodeC});
  if (system == nullptr) {
    return;
  }
  Append(coordinateSystemList, NewRecord(system, kind, cid, VectorAt(nodeA->position)));
}

}  // namespace btz
