// What the host interfaces do by themselves, without a host: conversions along their single inheritance, and the one operation without a
// slot.
#include <gtest/gtest.h>

#include <cstring>

#include "host/host_interfaces.h"
#include "memory_host/memory_host.h"

namespace btz {
namespace {

TEST(HostInterfaces, AListValueIsTheSamePointerForEachOfItsInterfaces) {
  // Lists hold void*: what goes in as a face comes out as a part, what goes in as a force comes out as an entity.
  MemoryHost host;
  MeshModel* model = nullptr;
  host.GetProject()->GetMeshModel(&model, 1);
  MeshPart* body = nullptr;
  model->CreateBody(1, &body, 1, 0, 1, 1);
  TopoEntity* entity = nullptr;
  model->CreateTopoEntity(2, &entity, 1, body, 1);
  auto* face = static_cast<TopoFace*>(entity);
  EXPECT_EQ(static_cast<void*>(face), static_cast<void*>(static_cast<MeshPart*>(face)));
  EXPECT_EQ(static_cast<void*>(face), static_cast<void*>(entity));
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  host.GetBoundaryStore()->CreateForce(&force, &id);
  EXPECT_EQ(static_cast<void*>(force), static_cast<void*>(static_cast<Entity*>(force)));
}

TEST(HostInterfaces, RotationalStiffnessHasNoSlotOfItsOwn) {
  MemoryHost host;
  Spring* spring = nullptr;
  host.GetBoundaryStore()->CreateSpring(&spring);
  std::vector<std::string> called;
  host.SetHook([&](const char*, const char* operation) { called.emplace_back(operation); });
  spring->SetRotationalStiffness(4.0, 5.0, 6.0);
  EXPECT_EQ(called, std::vector<std::string>{"SetDamping"});
}

TEST(HostInterfaces, ValueKindsHaveTheirNumbers) {
  EXPECT_EQ(ValueInteger, 1);
  EXPECT_EQ(ValueFlag, 2);
  EXPECT_EQ(ValueEnum, 3);
  EXPECT_EQ(ValueReal, 4);
  EXPECT_EQ(ValueText, 5);
  EXPECT_EQ(ValueFieldRef, 6);
  EXPECT_EQ(ValueObject, 8);
  EXPECT_EQ(ValueUnset, 9);
}

TEST(HostInterfaces, AnIntegerChoiceLiesInTheLowHalfOfTheSlot) {
  NamedValue value{};
  value.value.choice = 3;
  std::uint64_t slot = 0;
  static_assert(sizeof(slot) == sizeof(value.value));
  std::memcpy(&slot, &value.value, sizeof(slot));
  EXPECT_EQ(slot & 0xFFFFFFFFU, 3U);
}

}  // namespace
}  // namespace btz
