#include <cmath>

#include "memory_host/sets_and_systems.h"

namespace btz::memory {

namespace {

using Vector = std::array<double, 3>;

Vector Difference(const double* to, const double* from) { return {to[0] - from[0], to[1] - from[1], to[2] - from[2]}; }

Vector Cross(const Vector& a, const Vector& b) { return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]}; }

Vector Unit(const Vector& v) {
  const double length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
  return length > 0.0 ? Vector{v[0] / length, v[1] / length, v[2] / length} : v;
}

Vector Behind(const double* point, const Vector& v) { return {point[0] + v[0], point[1] + v[1], point[2] + v[2]}; }

}  // namespace

void MemoryCoordinateSystem::SetId(std::int32_t value) {
  Told("SetId", value);
  systemId = value;
  info.shownId = value;
}

void MemoryCoordinateSystem::SetFromNodes(std::int32_t value) {
  Told("SetFromNodes", value);
  fromNodes = value;
}

void MemoryCoordinateSystem::SetPoints(MeshNode* a, MeshNode* b, MeshNode* c) {
  Told("SetPoints", a, b, c);
  points = {AcceptNode(object, "SetPoints", a), AcceptNode(object, "SetPoints", b), AcceptNode(object, "SetPoints", c)};
}

void MemoryCoordinateSystem::ComputeAxisPoints() {
  const double* a = points[0]->position;
  const Vector w = Difference(points[1]->position, a);
  const Vector v = Cross(w, Difference(points[2]->position, a));
  const Vector u = Cross(v, w);
  axisPoints_ = {Behind(a, Unit(u)), Behind(a, Unit(v)), Behind(a, Unit(w))};
}

void MemoryCoordinateSystem::GetAxisPoints(double** x, double** y, double** z) {
  Call call(object, "GetAxisPoints");
  if (!call.HasRoom(x) || !call.HasRoom(y) || !call.HasRoom(z)) {
    return;
  }
  double** const outs[] = {x, y, z};
  if (call.IsRefused() || points[0] == nullptr || points[1] == nullptr || points[2] == nullptr) {
    for (double** out : outs) {
      call.Withhold(out);
    }
    return;
  }
  // The nodes may have moved since the last question.
  ComputeAxisPoints();
  for (std::size_t i = 0; i < axisPoints_.size(); ++i) {
    *outs[i] = axisPoints_[i].data();
    call.Gave(Point{*outs[i]});
  }
}

void MemoryCoordinateSystem::GetOrigin(double** out) {
  Call call(object, "GetOrigin");
  if (!call.HasRoom(out)) {
    return;
  }
  if (call.IsRefused() || points[0] == nullptr) {
    call.Withhold(out);
    return;
  }
  *out = points[0]->position;
  call.Gave(Point{*out});
}

void MemoryCoordinateSystem::SetActive(std::int32_t value) {
  Told("SetActive", value);
  active = value;
}

void MemoryCoordinateSystem::SetKind(std::int32_t value) {
  Told("SetKind", value);
  kind = value;
}

void MemoryCoordinateSystem::SetModels(MeshModel* a, MeshModel* b, MeshModel* c) {
  Told("SetModels", Object{a}, Object{b}, Object{c});
  for (MeshModel* model : {a, b, c}) {
    Accept(object, "SetModels", model);
  }
}

}  // namespace btz::memory
