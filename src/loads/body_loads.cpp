#include "loads/body_loads.h"

#include <initializer_list>

#include "deck/fields.h"
#include "loads/load_sets.h"

namespace btz {

namespace {

enum class BodyLoadKind { Gravity, Rotation, ScaledRotation };

constexpr std::int32_t width = 8;

std::int32_t TakeInteger(CardCursor* cursor) {
  std::int32_t value = 0;
  ReadIntField(width, cursor, &value);
  return value;
}

/// A factor and a vector, as both cards end.
struct ScaledVector {
  double factor = 0.0;
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

ScaledVector TakeScaledVector(CardCursor* cursor) {
  ScaledVector v;
  for (double* value : {&v.factor, &v.x, &v.y, &v.z}) {
    ReadRealField(width, cursor, value);
  }
  return v;
}

void CreateBodyLoad(BoundaryStore* boundary, MeshModel* model, BodyLoadKind kind, const ScaledVector& v, std::int32_t setId) {
  BodyLoad* load = nullptr;
  if (boundary->CreateBodyLoad(&load) != 0 || load == nullptr) {
    return;
  }
  switch (kind) {
    case BodyLoadKind::Gravity:
      load->SetGravity(v.x, v.y, v.z);
      break;
    case BodyLoadKind::Rotation:
      load->SetRotationVector(v.x, v.y, v.z);
      break;
    case BodyLoadKind::ScaledRotation:
      load->SetScaledRotationVector(v.x, v.y, v.z);
      break;
  }
  PooledList* parts = nullptr;
  model->GetParts(&parts);
  if (parts != nullptr && parts->size != 0) {
    load->SetParts(parts);
  }
  AddToLoadSet(setId, loadSet, load);
}

}  // namespace

void ReadGravCard(CardCursor* cursor, BoundaryStore* boundary, MeshModel* model) {
  if (BeginsWithKeyword(*cursor, "GRAV*")) {
    return;
  }
  Advance(cursor, 8);
  const std::int32_t setId = TakeInteger(cursor);
  TakeInteger(cursor);  // The coordinate system is not used.
  ScaledVector v = TakeScaledVector(cursor);
  const double acceleration = v.factor == 0.0 ? 1.0 : v.factor;
  v.x *= acceleration;
  v.y *= acceleration;
  v.z *= acceleration;
  CreateBodyLoad(boundary, model, BodyLoadKind::Gravity, v, setId);
}

void ReadRforceCard(CardCursor* cursor, BoundaryStore* boundary, MeshModel* model) {
  if (BeginsWithKeyword(*cursor, "RFORCE*")) {
    return;
  }
  Advance(cursor, 8);
  const std::int32_t setId = TakeInteger(cursor);
  TakeInteger(cursor);  // Neither the node on the axis
  TakeInteger(cursor);  // nor the coordinate system is used.
  const ScaledVector v = TakeScaledVector(cursor);
  // Required: the vector is not multiplied by the factor.
  CreateBodyLoad(boundary, model, v.factor == 0.0 ? BodyLoadKind::Rotation : BodyLoadKind::ScaledRotation, v, setId);
}

}  // namespace btz
