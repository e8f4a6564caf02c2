// Sets, surfaces and coordinate systems of the in-memory boundary store. Each keeps what its setters were told, for reports and tests.
#pragma once

#include <array>
#include <vector>

#include "memory_host/entity_base.h"

namespace btz::memory {

/// Set of nodes, elements or parts.
class MemoryEntitySet final : public EntityBase<EntitySet> {
 public:
  MemoryEntitySet(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::EntitySet, entitySet, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetNodes(PooledList* list) override {
    Told("SetNodes", Nodes{list});
    nodes = ReadNodes(object, "SetNodes", list);
  }
  void SetElements(PooledList* list) override {
    Told("SetElements", Elements{list});
    elements = ReadElements(object, "SetElements", list);
  }
  void SetParts(PooledList* list) override { TakeParts("SetParts", list); }
  void SetMemberType(std::int32_t value) override {
    Told("SetMemberType", value);
    memberType = value;
  }
  void SetKind(std::int32_t value) override {
    Told("SetKind", value);
    kind = value;
  }
  void SetAsetKind(std::int32_t value) override {
    Told("SetAsetKind", value);
    asetKind = value;
  }
  void SetComponentMarks(const std::uint8_t* marks) override {
    Told("SetComponentMarks", ComponentMarks{marks});
    if (marks != nullptr) {
      std::copy_n(marks, componentMarks.size(), componentMarks.begin());
    }
  }

  std::vector<MeshNode*> nodes;
  std::vector<MeshElement*> elements;
  std::int32_t memberType = 0;
  std::int32_t kind = 0;
  std::int32_t asetKind = 0;
  std::array<std::uint8_t, 6> componentMarks{};
};

/// Surface of shell elements. Its parts are the faces that hold them.
class MemorySurface final : public EntityBase<Surface> {
 public:
  MemorySurface(HostContext& context, std::int32_t id)
      : EntityBase(context, ObjectType::Surface, entitySurface, id, PartList::SurfaceParts) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetElements(PooledList* list) override {
    Told("SetElements", Elements{list});
    elements = ReadElements(object, "SetElements", list);
    info.parts.Clear();
    for (const MeshElement* element : elements) {
      MeshPart* owner = element->owner;
      if (owner != nullptr && !info.parts.Holds(owner)) {
        info.parts.Append(owner);
      }
    }
  }
  void SetSurfaceKind(std::int32_t value) override {
    Told("SetSurfaceKind", value);
    surfaceKind = value;
  }
  void SetElementBased(std::int32_t value) override {
    Told("SetElementBased", value);
    elementBased = value;
  }

  std::vector<MeshElement*> elements;
  std::int32_t surfaceKind = 0;
  std::int32_t elementBased = 0;
};

/// System in which the results of nodes are given.
class MemoryNodeSystemAssignment final : public EntityBase<NodeSystemAssignment> {
 public:
  MemoryNodeSystemAssignment(HostContext& context, std::int32_t id)
      : EntityBase(context, ObjectType::NodeSystemAssignment, entityNodeSystemAssignment, id) {}

  void SetCoordinateSystem(std::int32_t value) override {
    Told("SetCoordinateSystem", value);
    coordinateSystem = value;
  }
  void SetNodes(PooledList* list) override {
    Told("SetNodes", Nodes{list});
    nodes = ReadNodes(object, "SetNodes", list);
  }
  void SetKind(std::int32_t value) override {
    Told("SetKind", value);
    kind = value;
  }

  std::int32_t coordinateSystem = 0;
  std::vector<MeshNode*> nodes;
  std::int32_t kind = 0;
};

/// Coordinate system from three nodes: A its origin, B on the third axis, C in the plane of the first and third.
class MemoryCoordinateSystem final : public EntityBase<CoordinateSystem> {
 public:
  MemoryCoordinateSystem(HostContext& context, std::int32_t id)
      : EntityBase(context, ObjectType::CoordinateSystem, entityCoordinateSystem, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetId(std::int32_t value) override;
  void SetFromNodes(std::int32_t value) override;
  void SetPoints(MeshNode* a, MeshNode* b, MeshNode* c) override;
  void GetAxisPoints(double** x, double** y, double** z) override;
  void GetOrigin(double** out) override;
  void SetActive(std::int32_t value) override;
  void SetKind(std::int32_t value) override;
  void SetModels(MeshModel* a, MeshModel* b, MeshModel* c) override;

  std::int32_t systemId = 0;  ///< 0 until SetId.
  std::int32_t fromNodes = 0;
  std::array<MeshNode*, 3> points{};
  std::int32_t active = 0;
  std::int32_t kind = 0;

 private:
  void ComputeAxisPoints();

  std::array<std::array<double, 3>, 3> axisPoints_{};
};

}  // namespace btz::memory
