#include "mesh/line_orientation.h"

#include <cmath>

#include "mesh/element_topology.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

constexpr std::int32_t coordinateSystemType = 24;

bool IsLine(const MeshElement* element) {
  return element != nullptr && (element->typeIndex == elementLine2 || element->typeIndex == elementLine3);
}

/// Component of the axis that the candidate leaves out.
enum class Omitted { X, Y, Z, None };

/// By which component of the axis is the smallest in size, with exact comparison.
Omitted OmittedComponent(const Vector& d) {
  const double ax = std::fabs(d[0]);
  const double ay = std::fabs(d[1]);
  const double az = std::fabs(d[2]);
  if (ay == az) {  // Also when all three are equal.
    return ax > ay ? Omitted::Y : Omitted::X;
  }
  if (ax == ay) {
    return ax > az ? Omitted::Z : Omitted::Y;
  }
  if (ax == az) {
    return ax > ay ? Omitted::Y : Omitted::X;
  }
  if (ax < ay && ax < az) {
    return Omitted::X;
  }
  if (ay < ax && ay < az) {
    return Omitted::Y;
  }
  return az < ax && az < ay ? Omitted::Z : Omitted::None;
}

/// The axis without its omitted component, the other two exchanged.
Vector Candidate(const Vector& d) {
  switch (OmittedComponent(d)) {
    case Omitted::X:
      return {0.0, d[2], d[1]};
    case Omitted::Y:
      return {d[2], 0.0, d[0]};
    case Omitted::Z:
      return {d[1], d[0], 0.0};
    case Omitted::None:
      break;
  }
  return {};
}

/// `value` with the size it has and a sign: negative when `negative`.
double WithSign(double value, bool negative) { return negative ? -std::fabs(value) : std::fabs(value); }

bool IsUnitAlong(const Vector& v, std::size_t axis) {
  for (std::size_t i = 0; i < 3; ++i) {
    if (v[i] != (i == axis ? 1.0 : 0.0)) {
      return false;
    }
  }
  return true;
}

template <typename Value>
Value* FirstOf(PooledList* list) {
  if (list == nullptr) {
    return nullptr;
  }
  ListRewind(list);
  return static_cast<Value*>(ListNext(list));
}

/// Direction of the system's Y axis from its origin; false when the host does not tell it.
bool AxisY(CoordinateSystem* system, Vector* axis) {
  double* x = nullptr;
  double* y = nullptr;
  double* z = nullptr;
  double* origin = nullptr;
  system->GetAxisPoints(&x, &y, &z);
  system->GetOrigin(&origin);
  if (y == nullptr || origin == nullptr) {
    return false;
  }
  *axis = NormaliseIfFinite(VectorAt(y) - VectorAt(origin));
  return true;
}

}  // namespace

Vector DefaultLineOrientation(const MeshElement* element) {
  if (!IsLine(element) || element->nodes == nullptr || element->nodes[0] == nullptr || element->nodes[1] == nullptr) {
    return {};
  }
  auto [u, v, w] = Candidate(VectorAt(element->nodes[0]->position) - VectorAt(element->nodes[1]->position));
  // Required: the signs go by the components as they stand at each step, so the vector is not always at right angles to the axis.
  if (u == 0.0) {
    w = WithSign(w, v > 0.0);
  }
  if (v == 0.0) {
    w = WithSign(w, u > 0.0);
  }
  if (w == 0.0) {
    v = WithSign(v, u > 0.0);
  }
  Vector direction = {u, v, w};
  for (std::size_t axis = 0; axis < 3; ++axis) {
    if (IsUnitAlong(direction, axis)) {
      direction[axis] = -1.0;
    }
  }
  return NormaliseIfFinite(direction);
}

void FirstElementOrientation(MeshPart* part, Vector* out) {
  PooledList* faces = nullptr;
  part->GetFaces(&faces);
  auto* face = FirstOf<TopoFace>(faces);
  FaceMesh* mesh = nullptr;
  if (face != nullptr) {
    face->GetMesh(&mesh);
  }
  if (mesh == nullptr) {
    return;
  }
  PooledList* elements = nullptr;
  mesh->GetElements(&elements);
  *out = DefaultLineOrientation(FirstOf<MeshElement>(elements));
}

void FindOrientationSystem(MeshPart* part, BoundaryStore* boundary, const double (&orientation)[3], std::int32_t* systemId) {
  const Vector wanted = VectorAt(orientation);
  Vector computed{};
  FirstElementOrientation(part, &computed);
  if (computed == wanted) {
    *systemId = 0;
    return;
  }
  PooledList* entities = nullptr;
  boundary->GetEntities(&entities);
  if (entities == nullptr) {
    return;
  }
  ListRewind(entities);
  for (void* entry = ListNext(entities); entry != nullptr; entry = ListNext(entities)) {
    auto* entity = static_cast<Entity*>(entry);
    if (entity->GetEntityType() != coordinateSystemType) {
      continue;
    }
    auto* system = static_cast<CoordinateSystem*>(entity);
    Vector axis;
    if (AxisY(system, &axis) && axis == wanted) {
      system->GetId(systemId);
      return;
    }
  }
}

}  // namespace btz
