// Loads and constraints of the in-memory boundary store. Each keeps what its setters were told, for reports and tests.
#pragma once

#include <array>
#include <vector>

#include "memory_host/entity_base.h"

namespace btz::memory {

/// Single-point constraint.
class MemoryConstraint final : public EntityBase<Constraint> {
 public:
  MemoryConstraint(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::Constraint, entityConstraint, id) {}

  void Enforce(std::int32_t value) { enforced = value; }
  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetCoordinateSystem(std::int32_t value) override {
    Told("SetCoordinateSystem", value);
    coordinateSystem = value;
  }
  void SetField(Field* given, std::int32_t fieldMode) override {
    Told("SetField", Object{given}, fieldMode);
    field = Accept(object, "SetField", given);
  }
  void SetTranslations(double x, double y, double z) override {
    Told("SetTranslations", x, y, z);
    translations = {x, y, z};
  }
  void SetRotations(double x, double y, double z) override {
    Told("SetRotations", x, y, z);
    rotations = {x, y, z};
  }
  void SetTranslationMask(std::uint8_t value) override {
    Told("SetTranslationMask", value);
    translationMask = value;
  }
  void SetRotationMask(std::uint8_t value) override {
    Told("SetRotationMask", value);
    rotationMask = value;
  }
  void SetNodes(PooledList* list) override {
    Told("SetNodes", Nodes{list});
    nodes.Clear();
    for (MeshNode* node : ReadNodes(object, "SetNodes", list)) {
      nodes.Append(node);
    }
  }
  void SetNodeBased(std::int32_t value) override {
    Told("SetNodeBased", value);
    nodeBased = value;
  }
  std::int32_t IsEnforced() override {
    Call call(object, "IsEnforced");
    return call.Code(enforced);
  }
  void SetAxisFlag(std::int32_t value) override {
    Told("SetAxisFlag", value);
    axisFlag = value;
  }
  void GetNodes(PooledList** out) override {
    Call call(object, "GetNodes");
    if (call.HasRoom(out)) {
      call.GiveList<Nodes>(out, nodes);
    }
  }

  std::int32_t enforced = 0;  ///< What the create said.
  std::int32_t coordinateSystem = 0;
  Field* field = nullptr;
  std::array<double, 3> translations{};
  std::array<double, 3> rotations{};
  std::int32_t translationMask = 0;
  std::int32_t rotationMask = 0;
  OwnedList nodes{object.context};  ///< MeshNode*.
  std::int32_t nodeBased = 0;
  std::int32_t axisFlag = 0;
};

/// Forces and moments at nodes.
class MemoryForce final : public EntityBase<ForceLoad> {
 public:
  MemoryForce(HostContext& context, std::int32_t id)
      : EntityBase(context, ObjectType::ForceLoad, entityForce, id, PartList::AppliedParts) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetCoordinateSystem(std::int32_t value) override {
    Told("SetCoordinateSystem", value);
    coordinateSystem = value;
  }
  void SetField(Field* given, std::int32_t fieldMode) override {
    Told("SetField", Object{given}, fieldMode);
    field = Accept(object, "SetField", given);
  }
  void SetForce(double x, double y, double z) override {
    Told("SetForce", x, y, z);
    force = {x, y, z};
  }
  void SetMoment(double x, double y, double z) override {
    Told("SetMoment", x, y, z);
    moment = {x, y, z};
  }
  void SetNodes(PooledList* list) override {
    Told("SetNodes", Nodes{list});
    nodes = ReadNodes(object, "SetNodes", list);
  }
  void SetNodeBased(std::int32_t value) override {
    Told("SetNodeBased", value);
    nodeBased = value;
  }

  std::int32_t coordinateSystem = 0;
  Field* field = nullptr;
  std::array<double, 3> force{};
  std::array<double, 3> moment{};
  std::vector<MeshNode*> nodes;
  std::int32_t nodeBased = 0;
};

/// Pressure on faces.
class MemoryPressure final : public EntityBase<Pressure> {
 public:
  MemoryPressure(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::Pressure, entityPressure, id, PartList::Parts) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetField(Field* given, std::int32_t fieldMode) override {
    Told("SetField", Object{given}, fieldMode);
    field = Accept(object, "SetField", given);
  }
  void SetPressure(double value) override {
    Told("SetPressure", value);
    pressure = value;
  }
  void SetParts(PooledList* list) override { TakeParts("SetParts", list); }

  Field* field = nullptr;
  double pressure = 0.0;
};

/// Temperatures.
class MemoryThermalLoad final : public EntityBase<ThermalLoad> {
 public:
  MemoryThermalLoad(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::ThermalLoad, entityThermalLoad, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetField(Field* given) override {
    Told("SetField", Object{given});
    field = Accept(object, "SetField", given);
  }
  void SetLabel(const wchar_t* text) override {
    Told("SetLabel", text);
    label = CopyOf(text);
  }
  void SetMode(std::int32_t given) override {
    Told("SetMode", given);
    mode = given;
  }
  void SetValue(float given) override {
    Told("SetValue", given);
    value = given;
  }
  void SetSecondValue(float given) override {
    Told("SetSecondValue", given);
    secondValue = given;
  }
  void SetBodies(PooledList* list) override {
    Told("SetBodies", Objects{list});
    bodies = ReadParts(object, "SetBodies", list);
  }
  void SetNodes(PooledList* list, std::int32_t nodeMode) override {
    Told("SetNodes", Nodes{list}, nodeMode);
    nodes = ReadNodes(object, "SetNodes", list);
  }

  Field* field = nullptr;
  std::wstring label;
  std::int32_t mode = 0;
  float value = 0.0F;
  float secondValue = 0.0F;
  std::vector<MeshPart*> bodies;
  std::vector<MeshNode*> nodes;
};

/// Convection on faces.
class MemoryConvection final : public EntityBase<Convection> {
 public:
  MemoryConvection(HostContext& context, std::int32_t id)
      : EntityBase(context, ObjectType::Convection, entityConvection, id, PartList::Parts) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetField(Field* given, std::int32_t fieldMode) override {
    Told("SetField", Object{given}, fieldMode);
    field = Accept(object, "SetField", given);
  }
  void SetValues(double first, double second) override {
    Told("SetValues", first, second);
    coefficient = first;
    ambient = second;
  }
  void SetParts(PooledList* list) override { TakeParts("SetParts", list); }
  void SetMode(std::int32_t value) override {
    Told("SetMode", value);
    mode = value;
  }

  Field* field = nullptr;
  double coefficient = 0.0;
  double ambient = 0.0;
  std::int32_t mode = 0;
};

/// Heat flux on faces.
class MemoryFlux final : public EntityBase<Flux> {
 public:
  MemoryFlux(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::Flux, entityFlux, id, PartList::Parts) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetField(Field* given, std::int32_t fieldMode) override {
    Told("SetField", Object{given}, fieldMode);
    field = Accept(object, "SetField", given);
  }
  void SetValue(double given) override {
    Told("SetValue", given);
    value = given;
  }
  void SetParts(PooledList* list) override { TakeParts("SetParts", list); }

  Field* field = nullptr;
  double value = 0.0;
};

/// Gravity or rotation.
class MemoryBodyLoad final : public EntityBase<BodyLoad> {
 public:
  MemoryBodyLoad(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::BodyLoad, entityBodyLoad, id, PartList::Parts) {}

  void SetParts(PooledList* list) override { TakeParts("SetParts", list); }
  void SetGravity(double x, double y, double z) override {
    Told("SetGravity", x, y, z);
    gravity = {x, y, z};
  }
  void SetRotationVector(double x, double y, double z) override {
    Told("SetRotationVector", x, y, z);
    rotation = {x, y, z};
  }
  void SetScaledRotationVector(double x, double y, double z) override {
    Told("SetScaledRotationVector", x, y, z);
    scaledRotation = {x, y, z};
  }

  std::array<double, 3> gravity{};
  std::array<double, 3> rotation{};
  std::array<double, 3> scaledRotation{};
};

/// Pretension of a bolt.
class MemoryPretension final : public EntityBase<Pretension> {
 public:
  MemoryPretension(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::Pretension, entityPretension, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetMode(std::int32_t value) override {
    Told("SetMode", value);
    mode = value;
  }
  void AddPart(MeshPart* part, const CutPartStep* step, double value, BoundaryStore* store, ForceLoad** force,
               Constraint** constraint) override {
    ForceLoad* givenForce = force == nullptr ? nullptr : *force;
    Constraint* givenConstraint = constraint == nullptr ? nullptr : *constraint;
    Told("AddPart", Object{part}, step, value, Object{store}, Object{givenForce}, Object{givenConstraint});
    Accept(object, "AddPart", store);
    cuts.push_back({Accept(object, "AddPart", part), step == nullptr ? CutPartStep{0, 0} : *step, value,
                    Accept(object, "AddPart", givenForce), Accept(object, "AddPart", givenConstraint)});
  }

  struct Cut {
    MeshPart* part;
    CutPartStep step;
    double value;
    ForceLoad* force;
    Constraint* constraint;
  };

  std::int32_t mode = 0;
  std::vector<Cut> cuts;
};

/// Excitation of a frequency response.
class MemoryExcitation final : public EntityBase<Excitation> {
 public:
  MemoryExcitation(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::Excitation, entityExcitation, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetTable(Curve* curve, std::int32_t index) override {
    Told("SetTable", Object{curve}, index);
    if (index == 0 || index == 1) {
      tables[static_cast<std::size_t>(index)] = Accept(object, "SetTable", curve);
    }
  }
  void SetNodes(PooledList* list) override {
    Told("SetNodes", Nodes{list});
    nodes = ReadNodes(object, "SetNodes", list);
  }
  void SetLoadType(std::int32_t value) override {
    Told("SetLoadType", value);
    loadType = value;
  }
  void SetReferenceKind(std::int32_t value) override {
    Told("SetReferenceKind", value);
    referenceKind = value;
  }
  void SetComponentMask(std::uint8_t value) override {
    Told("SetComponentMask", value);
    componentMask = value;
  }
  void SetScales(double s1, double s2, double s3, double s4, double s5, double s6) override {
    Told("SetScales", s1, s2, s3, s4, s5, s6);
    scales = {s1, s2, s3, s4, s5, s6};
  }
  void SetReferenceId(std::int32_t value) override {
    Told("SetReferenceId", value);
    referenceId = value;
  }

  std::array<Curve*, 2> tables{};
  std::vector<MeshNode*> nodes;
  std::int32_t loadType = 0;
  std::int32_t referenceKind = 0;
  std::int32_t componentMask = 0;
  std::array<double, 6> scales{};
  std::int32_t referenceId = 0;
};

/// Modal damping by a table.
class MemoryDamping final : public EntityBase<Damping> {
 public:
  MemoryDamping(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::Damping, entityDamping, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetCurve(Curve* given) override {
    Told("SetCurve", Object{given});
    curve = Accept(object, "SetCurve", given);
  }
  void SetId(std::int32_t value) override {
    Told("SetId", value);
    tableId = value;
  }

  Curve* curve = nullptr;
  std::int32_t tableId = 0;
};

}  // namespace btz::memory
