// The kinds of objects that the in-memory host hands out, under the names of their interfaces. The names appear in traces and messages.
#pragma once

#include <cstddef>

namespace btz::memory {

enum class ObjectType {
  HostProject,
  MeshModel,
  MaterialStore,
  BoundaryStore,
  CurveStore,
  GroupStore,
  MeshPart,
  TopoFace,
  TopoEdge,
  FaceMesh,
  Solid,
  Shell,
  Material,
  Property,
  SectionCalculator,
  Field,
  Curve,
  Group,
  LoadCase,
  ParameterSet,
  CoordinateSystem,
  NodeSystemAssignment,
  EntitySet,
  Surface,
  Constraint,
  ForceLoad,
  Pressure,
  ThermalLoad,
  Convection,
  Flux,
  BodyLoad,
  Pretension,
  Excitation,
  Damping,
  Mpc,
  RigidConnection,
  MassEntity,
  Spring,
  Bush,
  GapEntity,
  PlotEntity
};

inline constexpr std::size_t objectTypeCount = static_cast<std::size_t>(ObjectType::PlotEntity) + 1;

/// Interface name of the type.
const char* TypeName(ObjectType type);

/// True for project, model and stores, of which a host has one each: they bear no number.
inline bool IsSingle(ObjectType type) { return type <= ObjectType::GroupStore; }

/// True for what may stand in a part list.
inline bool IsPart(ObjectType type) { return type == ObjectType::MeshPart || type == ObjectType::TopoFace; }

}  // namespace btz::memory
