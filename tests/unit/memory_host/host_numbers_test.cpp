// Numbers that the in-memory host hands out: part ids, node and element ids, entity ids and type codes, material numbers, field ids.
#include <algorithm>

#include "memory_host/host_fixture.h"

namespace btz::memory {
namespace {

class HostNumbers : public MemoryHostTest {};

TEST_F(HostNumbers, PartIdsStartAtOneAndAreOnlyTold) {
  EXPECT_EQ(model->NextPartId(), 1);
  EXPECT_EQ(model->NextPartId(), 1);
}

TEST_F(HostNumbers, ReservingAPartIdRaisesTheNextOneAboveIt) {
  model->ReservePartId(7);
  EXPECT_EQ(model->NextPartId(), 8);
  model->ReservePartId(3);
  EXPECT_EQ(model->NextPartId(), 8);
}

TEST_F(HostNumbers, TheHighestPartIdIsNotOverrun) {
  model->ReservePartId(2147483647);
  EXPECT_EQ(model->NextPartId(), 2147483647);
}

TEST_F(HostNumbers, BodiesAndTheirFacesLeaveThePartIdsAlone) {
  MeshPart* body = MakeBody(50);
  MakeFace(body, 50);
  EXPECT_EQ(model->NextPartId(), 1);
}

TEST_F(HostNumbers, ChildPartsRaiseThePartIds) {
  MeshPart* body = MakeBody(5);
  TopoEntity* face = nullptr;
  model->CreatePart(2, &face, 9, body);
  EXPECT_EQ(model->NextPartId(), 10);
  TopoEntity* edge = nullptr;
  model->CreatePart(3, &edge, 4, body);
  EXPECT_EQ(model->NextPartId(), 10);
  EXPECT_EQ(face->GetTopoKind(), 2);
  EXPECT_EQ(edge->GetTopoKind(), 3);
}

TEST_F(HostNumbers, ARigidBodyTakesTheNextPartId) {
  model->ReservePartId(20);
  MeshPart* rigid = model->CreateRigidBody(1);
  ASSERT_NE(rigid, nullptr);
  EXPECT_EQ(rigid->GetId(), 21);
  EXPECT_EQ(model->NextPartId(), 22);
}

TEST_F(HostNumbers, NodeAndElementIdsFollowTheHighestInUse) {
  EXPECT_EQ(model->NextNodeId(), 1);
  EXPECT_EQ(model->NextElementId(), 0);
  MakeNodes(4);
  MakeNode(30, 0.0, 0.0, 0.0);
  MakeBody(1);
  ASSERT_EQ(MakeElement(12, 5, {1, 2, 3, 4}, 1), 0);
  ASSERT_EQ(MakeElement(11, 7, {1, 2, 3, 4}, 1), 0);
  EXPECT_EQ(model->NextNodeId(), 31);
  EXPECT_EQ(model->NextElementId(), 12);
}

TEST_F(HostNumbers, ANumberForDisplayDoesNotChangeThePartId) {
  MeshPart* body = MakeBody(50);
  body->SetNumber(3);
  EXPECT_EQ(body->GetId(), 50);
  EXPECT_EQ(host.Model().bodies[0].number, 3);
}

TEST_F(HostNumbers, EntityIdsRunOverAllKinds) {
  Pressure* pressure = nullptr;
  ForceLoad* force = nullptr;
  Spring* spring = nullptr;
  Bush* bush = nullptr;
  std::int32_t forceId = 0;
  std::int32_t bushId = 0;
  EXPECT_EQ(boundary->CreatePressure(&pressure), 0);
  EXPECT_EQ(boundary->CreateForce(&force, &forceId), 0);
  boundary->CreateSpring(&spring);
  boundary->CreateBush(&bush, &bushId);
  std::int32_t springId = 0;
  spring->GetId(&springId);
  EXPECT_EQ(forceId, 2);
  EXPECT_EQ(springId, 3);
  EXPECT_EQ(bushId, 4);
}

template <typename Interface>
std::int32_t TypeOf(BoundaryStore* store, std::int32_t (BoundaryStore::*create)(Interface**)) {
  Interface* entity = nullptr;
  EXPECT_EQ((store->*create)(&entity), 0);
  return entity->GetEntityType();
}

template <typename Interface>
std::int32_t TypeOf(BoundaryStore* store, void (BoundaryStore::*create)(Interface**)) {
  Interface* entity = nullptr;
  (store->*create)(&entity);
  return entity->GetEntityType();
}

TEST_F(HostNumbers, KnownKindsHaveTheirTypeCodes) {
  std::int32_t id = 0;
  ForceLoad* force = nullptr;
  Constraint* constraint = nullptr;
  boundary->CreateForce(&force, &id);
  boundary->CreateConstraint(&constraint, 0);
  EXPECT_EQ(TypeOf(boundary, &BoundaryStore::CreatePressure), 0);
  EXPECT_EQ(force->GetEntityType(), 1);
  EXPECT_EQ(constraint->GetEntityType(), 6);
  EXPECT_EQ(TypeOf(boundary, &BoundaryStore::CreateFlux), 11);
  EXPECT_EQ(TypeOf(boundary, &BoundaryStore::CreateConvection), 13);
  EXPECT_EQ(TypeOf(boundary, &BoundaryStore::CreateCoordinateSystem), 24);
  EXPECT_EQ(TypeOf(boundary, &BoundaryStore::CreateBodyLoad), 29);
  EXPECT_EQ(TypeOf(boundary, &BoundaryStore::CreateSurface), 44);
  EXPECT_EQ(TypeOf(boundary, &BoundaryStore::CreateGap), 47);
}

TEST_F(HostNumbers, AllOtherKindsHaveCodesOfTheirOwnFrom101) {
  std::int32_t id = 0;
  Bush* bush = nullptr;
  boundary->CreateBush(&bush, &id);
  std::vector<std::int32_t> codes = {
      TypeOf(boundary, &BoundaryStore::CreateSet),         TypeOf(boundary, &BoundaryStore::CreateNodeSystemAssignment),
      TypeOf(boundary, &BoundaryStore::CreateThermalLoad), TypeOf(boundary, &BoundaryStore::CreatePretension),
      TypeOf(boundary, &BoundaryStore::CreateExcitation),  TypeOf(boundary, &BoundaryStore::CreateDamping),
      TypeOf(boundary, &BoundaryStore::CreateMpc),         TypeOf(boundary, &BoundaryStore::CreateRigidConnection),
      TypeOf(boundary, &BoundaryStore::CreateMass),        TypeOf(boundary, &BoundaryStore::CreateSpring),
      TypeOf(boundary, &BoundaryStore::CreatePlot),        bush->GetEntityType()};
  std::sort(codes.begin(), codes.end());
  EXPECT_EQ(std::unique(codes.begin(), codes.end()), codes.end());
  EXPECT_GE(codes.front(), 101);
}

TEST_F(HostNumbers, OnlyForcesAndConstraintsAreAppliedToNodes) {
  std::int32_t id = 0;
  ForceLoad* force = nullptr;
  Constraint* constraint = nullptr;
  Pressure* pressure = nullptr;
  boundary->CreateForce(&force, &id);
  boundary->CreateConstraint(&constraint, 1);
  boundary->CreatePressure(&pressure);
  EXPECT_EQ(force->GetApplyKind(), 1);
  EXPECT_EQ(constraint->GetApplyKind(), 1);
  EXPECT_EQ(pressure->GetApplyKind(), 0);
}

TEST_F(HostNumbers, MaterialNumbersAreTheirIdsAndIndicesTheirOrder) {
  MaterialStore* store = host.GetMaterialStore();
  Material* second = nullptr;
  Material* first = nullptr;
  ASSERT_EQ(store->CreateMaterial(&first, 9), 0);
  ASSERT_EQ(store->CreateMaterial(&second, 4), 0);
  std::int32_t number = 0;
  second->GetNumber(&number);
  EXPECT_EQ(number, 4);
  Material* found = nullptr;
  std::int32_t index = 0;
  store->GetMaterial(4, &found, &index);
  EXPECT_EQ(found, second);
  EXPECT_EQ(index, 2);
}

TEST_F(HostNumbers, ATakenMaterialIdIsRefused) {
  MaterialStore* store = host.GetMaterialStore();
  Material* first = nullptr;
  Material* second = nullptr;
  ASSERT_EQ(store->CreateMaterial(&first, 9), 0);
  EXPECT_NE(store->CreateMaterial(&second, 9), 0);
  EXPECT_EQ(second, nullptr);
}

TEST_F(HostNumbers, MaterialZeroGetsTheHighestNumberPlusOne) {
  MaterialStore* store = host.GetMaterialStore();
  Material* material = nullptr;
  std::int32_t number = 0;
  ASSERT_EQ(store->CreateMaterial(&material, 0), 0);
  material->GetNumber(&number);
  EXPECT_EQ(number, 1);
  ASSERT_EQ(store->CreateMaterial(&material, 40), 0);
  ASSERT_EQ(store->CreateMaterial(&material, 0), 0);
  material->GetNumber(&number);
  EXPECT_EQ(number, 41);
}

TEST(HostNumbersWithOffset, MaterialNumbersDifferFromTheirIds) {
  HostOptions options;
  options.materialNumberOffset = 1000;
  MemoryHost host(options);
  MaterialStore* store = host.GetMaterialStore();
  Material* material = nullptr;
  std::int32_t number = 0;
  ASSERT_EQ(store->CreateMaterial(&material, 9), 0);
  material->GetNumber(&number);
  EXPECT_EQ(number, 1009);
  Material* found = nullptr;
  std::int32_t index = 0;
  store->GetMaterial(9, &found, &index);
  EXPECT_EQ(found, nullptr);
  store->GetMaterial(1009, &found, &index);
  EXPECT_EQ(found, material);
}

TEST_F(HostNumbers, PropertiesOfOneIdAreAllMade) {
  MaterialStore* store = host.GetMaterialStore();
  Property* first = nullptr;
  Property* second = nullptr;
  EXPECT_EQ(store->CreateProperty(&first, 5), 0);
  EXPECT_EQ(store->CreateProperty(&second, 5), 0);
  EXPECT_NE(first, second);
  EXPECT_EQ(host.Materials().properties.size(), 2U);
}

TEST_F(HostNumbers, FieldsHaveIdsAboveAMillionUntilTheyAreGivenOne) {
  CurveStore* store = host.GetCurveStore();
  Field* first = nullptr;
  Field* second = nullptr;
  store->CreateField(&first);
  store->CreateField(&second);
  std::int32_t id = 0;
  first->GetId(&id);
  EXPECT_EQ(id, 1000001);
  second->GetId(&id);
  EXPECT_EQ(id, 1000002);
  second->SetId(12);
  second->GetId(&id);
  EXPECT_EQ(id, 12);
}

TEST_F(HostNumbers, TheNextGapGroupFollowsTheHighest) {
  EXPECT_EQ(boundary->GetNextGapGroupId(), 1);
  GapEntity* gap = nullptr;
  boundary->CreateGap(&gap);
  EXPECT_EQ(boundary->GetNextGapGroupId(), 1);
  gap->SetGroupId(6);
  EXPECT_EQ(gap->GetGroupId(), 6);
  EXPECT_EQ(boundary->GetNextGapGroupId(), 7);
}

TEST_F(HostNumbers, TheDescriptorNumberIsOne) { EXPECT_EQ(model->GetDescriptorNumber(), 1); }

}  // namespace
}  // namespace btz::memory
