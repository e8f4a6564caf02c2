// The stores of the in-memory host: finding entities, part lists, coordinate systems, copies of values, sections, fields and curves,
// groups.
#include <algorithm>
#include <numbers>

#include "memory_host/host_fixture.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"

namespace btz::memory {
namespace {

class HostStores : public MemoryHostTest {
 protected:
  Constraint* MakeConstraint(const wchar_t* name) {
    Constraint* constraint = nullptr;
    EXPECT_EQ(boundary->CreateConstraint(&constraint, 0), 0);
    constraint->SetName(name);
    return constraint;
  }
  EntitySet* MakeSet(const wchar_t* name, std::int32_t kind) {
    EntitySet* set = nullptr;
    EXPECT_EQ(boundary->CreateSet(&set), 0);
    set->SetName(name);
    set->SetKind(kind);
    return set;
  }
};

TEST_F(HostStores, EntitiesAreListedInOrderOfCreation) {
  Entity* first = MakeConstraint(L"a");
  Entity* second = MakeSet(L"b", 0);
  LoadCase* loadCase = nullptr;
  ASSERT_EQ(boundary->CreateLoadCase(&loadCase, -1), 0);
  PooledList* list = nullptr;
  boundary->GetEntities(&list);
  EXPECT_EQ(ValuesOf<Entity>(list), (std::vector<Entity*>{first, second})) << "a load case is no entity";
}

TEST_F(HostStores, FindEntityTakesTheFirstOfTypeAndName) {
  MakeSet(L"Fix", 0);
  MakeConstraint(L"fix");
  Constraint* wanted = MakeConstraint(L"Fix");
  MakeConstraint(L"Fix");
  Entity* found = nullptr;
  boundary->FindEntity(L"Fix", &found, 0, 6);
  EXPECT_EQ(found, wanted);
  Entity* missing = nullptr;
  boundary->FindEntity(L"Fi", &missing, 0, 6);
  EXPECT_EQ(missing, nullptr);
}

TEST_F(HostStores, FindEntityTakesTheFirstMadeWhateverWasNamedFirst) {
  Constraint* first = MakeConstraint(L"Other");
  MakeConstraint(L"Fix");
  first->SetName(L"Fix");
  Entity* found = nullptr;
  boundary->FindEntity(L"Fix", &found, 0, 6);
  EXPECT_EQ(found, first);
}

TEST_F(HostStores, FindEntityForgetsAnOldName) {
  Constraint* renamed = MakeConstraint(L"Fix");
  renamed->SetName(L"Fixed");
  Entity* found = nullptr;
  boundary->FindEntity(L"Fix", &found, 0, 6);
  EXPECT_EQ(found, nullptr);
  boundary->FindEntity(L"Fixed", &found, 0, 6);
  EXPECT_EQ(found, renamed);
}

TEST_F(HostStores, EntitiesOfATypeAreAppended) {
  Entity* first = MakeConstraint(L"a");
  MakeSet(L"b", 0);
  Entity* second = MakeConstraint(L"c");
  GivenList list({first});
  boundary->GetEntitiesOfType(6, list.Get());
  EXPECT_EQ(ValuesOf<Entity>(list.Get()), (std::vector<Entity*>{first, first, second}));
}

TEST_F(HostStores, ASetNameIsTakenForItsKindOnly) {
  MakeSet(L"Skin", 1);
  EXPECT_EQ(boundary->CheckSetName(0, L"Skin", 1), -1);
  EXPECT_EQ(boundary->CheckSetName(0, L"Skin", 0), 0);
  EXPECT_EQ(boundary->CheckSetName(0, L"Ski", 1), 0);
}

TEST_F(HostStores, ANameIsGivenWithAtMost511Characters) {
  const std::wstring longName(600, L'x');
  Constraint* constraint = MakeConstraint(longName.c_str());
  std::vector<wchar_t> buffer(520, L'!');
  constraint->GetName(buffer.data());
  EXPECT_EQ(std::wstring(buffer.data()), std::wstring(511, L'x'));
  EXPECT_EQ(buffer[512], L'!');
}

TEST_F(HostStores, APressureGivesItsPartListForEditing) {
  MeshPart* body = MakeBody(1);
  MeshPart* a = MakeFace(body, 1);
  MeshPart* b = MakeFace(body, 1);
  MeshPart* c = MakeFace(body, 1);
  Pressure* pressure = nullptr;
  ASSERT_EQ(boundary->CreatePressure(&pressure), 0);
  GivenList given({a, b});
  pressure->SetParts(given.Get());
  PooledList* parts = nullptr;
  pressure->GetParts(&parts);
  EXPECT_NE(parts, given.Get()) << "the host copies";
  // Replaces a by c, as a split of a does.
  ListRewind(parts);
  ASSERT_EQ(ListNext(parts), a);
  ASSERT_EQ(ListRemoveCurrent(parts, a), 0);
  ListRewind(parts);
  ListAppend(parts, c);
  pressure->GetParts(&parts);
  EXPECT_EQ(ValuesOf<MeshPart>(parts), (std::vector<MeshPart*>{c, b}));
}

TEST_F(HostStores, EachKindAnswersOnlyItsOwnPartQuestion) {
  Flux* flux = nullptr;
  Surface* surface = nullptr;
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  boundary->CreateFlux(&flux);
  boundary->CreateSurface(&surface);
  boundary->CreateForce(&force, &id);
  PooledList* list = nullptr;
  flux->GetSurfaceParts(&list);
  flux->GetAppliedParts(&list);
  flux->GetContactParts(&list);
  surface->GetParts(&list);
  EXPECT_EQ(list, nullptr);
  flux->GetParts(&list);
  EXPECT_NE(list, nullptr);
  list = nullptr;
  surface->GetSurfaceParts(&list);
  EXPECT_NE(list, nullptr);
  list = nullptr;
  force->GetAppliedParts(&list);
  EXPECT_NE(list, nullptr);
}

TEST_F(HostStores, ASurfacesPartsAreTheFacesOfItsElements) {
  MakeNodes(4);
  MakeBody(1);
  MakeBody(2);
  ASSERT_EQ(MakeElement(1, 3, {1, 2, 3}, 1), 0);
  ASSERT_EQ(MakeElement(2, 3, {1, 2, 4}, 2), 0);
  ASSERT_EQ(MakeElement(3, 3, {2, 3, 4}, 1), 0);
  Surface* surface = nullptr;
  ASSERT_EQ(boundary->CreateSurface(&surface), 0);
  GivenList elements({Element(3), Element(2), Element(1)});
  surface->SetElements(elements.Get());
  PooledList* parts = nullptr;
  surface->GetSurfaceParts(&parts);
  EXPECT_EQ(ValuesOf<MeshPart>(parts), (std::vector<MeshPart*>{Element(1)->owner, Element(2)->owner}));
}

TEST_F(HostStores, AConstraintRemembersItsNodesAndKind) {
  MakeNodes(3);
  Constraint* constraint = nullptr;
  ASSERT_EQ(boundary->CreateConstraint(&constraint, 1), 0);
  EXPECT_NE(constraint->IsEnforced(), 0);
  EXPECT_EQ(MakeConstraint(L"plain")->IsEnforced(), 0);
  GivenList nodes({Node(3), Node(1)});
  constraint->SetNodes(nodes.Get());
  PooledList* kept = nullptr;
  constraint->GetNodes(&kept);
  EXPECT_EQ(ValuesOf<MeshNode>(kept), (std::vector<MeshNode*>{Node(3), Node(1)}));
}

TEST_F(HostStores, CoordinateSystemsAreFoundByTheIdOfTheirCard) {
  CoordinateSystem* system = nullptr;
  boundary->CreateCoordinateSystem(&system);
  std::int32_t id = 0;
  system->GetId(&id);
  EXPECT_EQ(id, 1) << "the entity's own, before SetId";
  system->SetId(17);
  system->GetId(&id);
  EXPECT_EQ(id, 17);
  CoordinateSystem* found = nullptr;
  boundary->GetCoordinateSystem(1, &found);
  EXPECT_EQ(found, nullptr);
  boundary->GetCoordinateSystem(17, &found);
  EXPECT_EQ(found, system);
}

// A at (1, 1, 1), B two above it, C three to the right: the third axis points up, the first to the right, the second is their product.
TEST_F(HostStores, AxisPointsLieOneUnitFromTheOrigin) {
  MakeNode(1, 1.0, 1.0, 1.0);
  MakeNode(2, 1.0, 1.0, 3.0);
  MakeNode(3, 4.0, 1.0, 1.0);
  CoordinateSystem* system = nullptr;
  boundary->CreateCoordinateSystem(&system);
  system->SetPoints(Node(1), Node(2), Node(3));
  double* x = nullptr;
  double* y = nullptr;
  double* z = nullptr;
  double* origin = nullptr;
  system->GetAxisPoints(&x, &y, &z);
  system->GetOrigin(&origin);
  ASSERT_NE(x, nullptr);
  EXPECT_EQ(std::vector<double>(x, x + 3), (std::vector<double>{2.0, 1.0, 1.0}));
  EXPECT_EQ(std::vector<double>(y, y + 3), (std::vector<double>{1.0, 2.0, 1.0}));
  EXPECT_EQ(std::vector<double>(z, z + 3), (std::vector<double>{1.0, 1.0, 2.0}));
  EXPECT_EQ(std::vector<double>(origin, origin + 3), (std::vector<double>{1.0, 1.0, 1.0}));
}

TEST_F(HostStores, AnAxisWithoutLengthStaysAtTheOrigin) {
  MakeNode(1, 1.0, 1.0, 1.0);
  MakeNode(2, 1.0, 1.0, 3.0);
  CoordinateSystem* system = nullptr;
  boundary->CreateCoordinateSystem(&system);
  system->SetPoints(Node(1), Node(2), Node(2));
  double* x = nullptr;
  double* y = nullptr;
  double* z = nullptr;
  system->GetAxisPoints(&x, &y, &z);
  EXPECT_EQ(std::vector<double>(x, x + 3), (std::vector<double>{1.0, 1.0, 1.0}));
  EXPECT_EQ(std::vector<double>(y, y + 3), (std::vector<double>{1.0, 1.0, 1.0}));
  EXPECT_EQ(std::vector<double>(z, z + 3), (std::vector<double>{1.0, 1.0, 2.0}));
}

TEST_F(HostStores, ASystemWithoutNodesHasNoPoints) {
  CoordinateSystem* system = nullptr;
  boundary->CreateCoordinateSystem(&system);
  double* x = nullptr;
  double* y = nullptr;
  double* z = nullptr;
  system->GetAxisPoints(&x, &y, &z);
  system->GetOrigin(&x);
  EXPECT_EQ(x, nullptr);
  EXPECT_EQ(y, nullptr);
  EXPECT_EQ(z, nullptr);
}

TEST_F(HostStores, ValuesAreCopiedDuringTheCall) {
  Material* material = nullptr;
  ASSERT_EQ(host.GetMaterialStore()->CreateMaterial(&material, 5), 0);
  char real[] = "1.50";
  char word[] = "steel";
  std::int32_t fieldId = 12;
  NamedValue values[5] = {};
  std::snprintf(values[0].key, sizeof(values[0].key), "Density");
  values[0].kind = ValueReal;
  values[0].text = real;
  values[0].value.real = 1.5;
  std::snprintf(values[1].key, sizeof(values[1].key), "Law");
  values[1].kind = ValueEnum;
  values[1].value.choice = 4;
  values[2].kind = ValueText;
  values[2].extent = 5;
  values[2].value.characters = word;
  values[3].kind = ValueFieldRef;
  values[3].extent = 1;
  values[3].value.fieldId = &fieldId;
  values[4].kind = ValueObject;
  values[4].extent = 1;
  values[4].value.object = material;
  {
    GivenList list({&values[0], &values[1], &values[2], &values[3], &values[4]});
    material->SetValues(list.Get());
  }
  real[0] = word[0] = 'X';
  fieldId = 99;
  std::fill_n(reinterpret_cast<char*>(values), sizeof(values), '\x7F');
  const std::vector<StoredValue>& kept = host.Materials().materials[0].values;
  ASSERT_EQ(kept.size(), 5U);
  EXPECT_EQ(kept[0].key, "Density");
  EXPECT_EQ(kept[0].kind, ValueReal);
  EXPECT_EQ(kept[0].real, 1.5);
  EXPECT_EQ(kept[0].text, "1.50");
  EXPECT_EQ(kept[1].key, "Law");
  EXPECT_EQ(kept[1].integer, 4);
  EXPECT_FALSE(kept[1].text.has_value());
  EXPECT_EQ(kept[2].characters, "steel");
  EXPECT_EQ(kept[3].integer, 12);
  EXPECT_EQ(kept[4].object, material);
}

TEST_F(HostStores, DescriptorsAreCopiedAndAMaterialIsRenamedInPlace) {
  Material* material = nullptr;
  Property* property = nullptr;
  ASSERT_EQ(host.GetMaterialStore()->CreateMaterial(&material, 5), 0);
  ASSERT_EQ(host.GetMaterialStore()->CreateProperty(&property, 5), 0);
  {
    MaterialDescriptor ofMaterial{};
    std::copy_n(L"Steel", 6, ofMaterial.name);
    material->SetDescriptor(&ofMaterial);
    PropertyDescriptor ofProperty{};
    ofProperty.number = 3;
    ofProperty.material = material;
    std::copy_n(L"Shell", 6, ofProperty.propertyClass);
    property->SetDescriptor(&ofProperty);
  }
  MaterialDescriptor* own = nullptr;
  material->GetDescriptor(&own);
  EXPECT_STREQ(own->name, L"Steel");
  std::copy_n(L"Iron", 5, own->name);
  material->GetDescriptor(&own);
  EXPECT_STREQ(own->name, L"Iron");
  EXPECT_EQ(host.Materials().properties[0].descriptor.number, 3);
  EXPECT_EQ(host.Materials().properties[0].descriptor.material, material);
  EXPECT_STREQ(host.Materials().properties[0].descriptor.propertyClass, L"Shell");
}

TEST_F(HostStores, SectionsOfRoundBars) {
  SectionCalculator* calculator = nullptr;
  host.GetMaterialStore()->GetSectionCalculator(&calculator);
  ASSERT_NE(calculator, nullptr);
  SectionValues values{};
  values.k1 = values.k2 = 1.0;
  calculator->ComputeSolidSection(2.0, &values);
  // Radius 2: area 4 pi, second moments 16 pi / 4, torsion 16 pi / 2.
  EXPECT_DOUBLE_EQ(values.area, 4.0 * std::numbers::pi);
  EXPECT_DOUBLE_EQ(values.i1, 4.0 * std::numbers::pi);
  EXPECT_DOUBLE_EQ(values.i2, 4.0 * std::numbers::pi);
  EXPECT_DOUBLE_EQ(values.torsion, 8.0 * std::numbers::pi);
  EXPECT_EQ(values.c1, 2.0);
  EXPECT_EQ(values.d2, 2.0);
  EXPECT_EQ(values.e1, -2.0);
  EXPECT_EQ(values.f2, -2.0);
  EXPECT_EQ(values.k1, 1.0);
  EXPECT_EQ(values.c2, 0.0);
  EXPECT_EQ(values.nonStructuralMass, 0.0);

  calculator->ComputeHollowSection(2.0, 1.0, &values);
  // A hole of radius 1: area 3 pi, second moments 15 pi / 4, torsion 15 pi / 2.
  EXPECT_DOUBLE_EQ(values.area, 3.0 * std::numbers::pi);
  EXPECT_DOUBLE_EQ(values.i1, 3.75 * std::numbers::pi);
  EXPECT_DOUBLE_EQ(values.torsion, 7.5 * std::numbers::pi);
  EXPECT_EQ(values.c1, 2.0);
}

TEST_F(HostStores, AFieldIsACurveUnderTheSameId) {
  CurveStore* store = host.GetCurveStore();
  Field* field = nullptr;
  store->CreateField(&field);
  field->SetId(12);
  Field* found = nullptr;
  Curve* curve = nullptr;
  store->GetField(12, &found);
  store->GetCurve(12, &curve);
  EXPECT_EQ(found, field);
  ASSERT_NE(curve, nullptr);
  curve->SetQuantity(L"Frequency_Stiffness");
  EXPECT_EQ(host.Curves().fields[0].quantity, L"Frequency_Stiffness");
  Curve* missing = nullptr;
  store->GetCurve(1000001, &missing);
  EXPECT_EQ(missing, nullptr) << "the first id was given up";
}

TEST_F(HostStores, RowsAreCopiedByColumnCount) {
  Field* field = nullptr;
  host.GetCurveStore()->CreateField(&field);
  double first[3] = {1.0, 2.0, 99.0};
  double second[3] = {3.0, 4.0, 99.0};
  field->SetColumnCount(2);
  field->SetRowCount(2);
  {
    GivenList rows({first, second});
    field->SetRows(rows.Get());
  }
  first[0] = 50.0;
  EXPECT_EQ(host.Curves().fields[0].rows, (std::vector<std::vector<double>>{{1.0, 2.0}, {3.0, 4.0}}));
}

TEST_F(HostStores, AGroupIsMadeOfATableAndDeletedAfterItWasFound) {
  MakeNodes(3);
  MakeBody(1);
  ASSERT_EQ(MakeElement(4, 3, {1, 2, 3}, 1), 0);
  ASSERT_EQ(MakeElement(2, 3, {1, 2, 3}, 1), 0);
  HashTable table;
  HashInit(&table);
  HashCreate(&table, 6, HashFirstInt, nullptr, nullptr, 0);
  HashInsert(&table, Element(4));
  HashInsert(&table, Element(2));
  GroupStore* store = host.GetGroupStore();
  Group* group = nullptr;
  ASSERT_EQ(store->CreateGroup(&group, &table, 0, 0, 0, 0, 0, 10), 0);
  HashRelease(&table);
  group->SetName(L"SL_TransitionElements");
  group->SetType(11);
  EXPECT_EQ(host.Groups().groups[0].elements, (std::vector<MeshElement*>{Element(2), Element(4)}));
  Group* found = nullptr;
  store->DeleteFound();
  store->FindGroup(L"SL_TransitionElements", &found);
  EXPECT_EQ(found, group) << "nothing was found before, so nothing was deleted";
  store->DeleteFound();
  found = nullptr;
  store->FindGroup(L"SL_TransitionElements", &found);
  EXPECT_EQ(found, nullptr);
}

TEST_F(HostStores, ALoadCaseKeepsItsMembersAndParameters) {
  LoadCase* loadCase = nullptr;
  ASSERT_EQ(boundary->CreateLoadCase(&loadCase, -1), 0);
  Constraint* constraint = MakeConstraint(L"fix");
  loadCase->SetName(L"Case 1");
  loadCase->SetSolverProfile(L"NASTRAN", L"STATIC");
  loadCase->AddEntity(constraint, 0, 0.0);
  loadCase->AddEntity(constraint, 0, 2.5);
  ParameterSet* first = loadCase->GetParameters(L"NASTRAN", L"STATIC", 14);
  ParameterSet* second = loadCase->GetParameters(L"NASTRAN", L"STATIC", 14);
  ASSERT_NE(first, nullptr);
  EXPECT_NE(first, second) << "a new set for each question";
  first->SetReal(L"Density", 1.5);
  first->SetInt(L"Method", 2, 3);
  first->SetRealOptional(L"Min frequency", 10.0, 0, 7);
  first->SetEntityName(L"System", L"Rect1", 5);
  const MemoryLoadCase& seen = host.Boundary().loadCases[0];
  EXPECT_EQ(seen.name, L"Case 1");
  EXPECT_EQ(seen.solver, L"NASTRAN");
  EXPECT_EQ(seen.analysis, L"STATIC");
  ASSERT_EQ(seen.members.size(), 2U);
  EXPECT_EQ(seen.members[1].payload, 2.5);
  const std::vector<MemoryParameterSet::Parameter>& parameters = seen.parameterSets[0].parameters;
  ASSERT_EQ(parameters.size(), 4U);
  EXPECT_EQ(parameters[0].value, 1.5);
  EXPECT_EQ(parameters[1].value, 2.0);
  EXPECT_EQ(parameters[1].typeCode, 3);
  EXPECT_FALSE(parameters[2].present);
  EXPECT_EQ(parameters[3].entity, L"Rect1");
}

TEST_F(HostStores, RotationalStiffnessTravelsAsDamping) {
  Spring* spring = nullptr;
  boundary->CreateSpring(&spring);
  spring->SetRotationalStiffness(1.0, 2.0, 3.0);
  EXPECT_EQ(host.Boundary().springs[0].damping, (std::array<double, 3>{1.0, 2.0, 3.0}));
}

TEST_F(HostStores, APretensionReadsThePointersOfItsEntities) {
  MeshPart* face = MakeFace(MakeBody(1), 1);
  Pretension* pretension = nullptr;
  ForceLoad* force = nullptr;
  Constraint* none = nullptr;
  std::int32_t id = 0;
  ASSERT_EQ(boundary->CreatePretension(&pretension), 0);
  ASSERT_EQ(boundary->CreateForce(&force, &id), 0);
  ForceLoad* given = force;
  CutPartStep step{3, 5};
  pretension->AddPart(face, &step, 0.0, boundary, &given, &none);
  given = nullptr;
  step.id = 99;
  const MemoryPretension::Cut& cut = host.Boundary().pretensions[0].cuts.at(0);
  EXPECT_EQ(cut.part, face);
  EXPECT_EQ(cut.step.id, 3);
  EXPECT_EQ(cut.step.kind, 5);
  EXPECT_EQ(cut.force, force);
  EXPECT_EQ(cut.constraint, nullptr);
}

}  // namespace
}  // namespace btz::memory
