// Which material a bar or beam gets: the materials of all records are looked up at each visit of the list, before the property ids are compared,
// and an id that was found once has become the host's number.
#include <gmock/gmock.h>

#include "properties/beam_property.h"
#include "tests/unit/properties/beam_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BeamMaterialTest : public BeamPropertyTest {
 protected:
  BeamMaterialTest() { TraceQuestions(); }
};

TEST_F(BeamMaterialTest, LinkedIdBecomesTheNumber) {
  MakeLinkedMaterial(1);
  const BeamPropertyRecord* record = AddRecord(7, 1);
  Transfer(7);
  EXPECT_EQ(record->materialId, 101);
  EXPECT_THAT(MaterialCalls(),
              ElementsAre("MaterialStore.GetMaterial(101) -> Material#1 1", "MaterialStore.CreateProperty(7) -> 0 Property#1",
                          "Property#1.SetDescriptor(<1, Material#1, \"Bar\", \"Bar\">)"));
}

TEST_F(BeamMaterialTest, PartWithoutAPropertyResolvesAllRecordsAllTheSame) {
  MakeLinkedMaterial(1);
  MakeLinkedMaterial(2);
  const BeamPropertyRecord* first = AddRecord(8, 1);
  const BeamPropertyRecord* second = AddRecord(9, 2);
  const BeamPropertyRecord* unknown = AddRecord(9, 3);
  Transfer(7);
  EXPECT_EQ(first->materialId, 101);
  EXPECT_EQ(second->materialId, 102);
  EXPECT_EQ(unknown->materialId, 3) << "made, but not yet found by its link";
  EXPECT_THAT(host.Materials().properties, IsEmpty());
  EXPECT_THAT(MaterialCalls(), ElementsAre("MaterialStore.GetMaterial(101) -> Material#1 1",
                                           "MaterialStore.GetMaterial(102) -> Material#2 2", "MaterialStore.GetMaterial(3) -> null null",
                                           "MaterialStore.CreateMaterial(3) -> 0 Material#3", "MaterialStore.GetMaterial(3) -> null null"));
}

TEST_F(BeamMaterialTest, OwnerModelIsAskedWithoutRecords) {
  Transfer(7);
  EXPECT_THAT(Calls(), ElementsAre("MeshPart#1.GetOwnerModel() -> MeshModel"));
}

TEST_F(BeamMaterialTest, NumberCountsAsDeckIdAtTheNextVisit) {
  // The number of material 1 is the deck id of another material: at the second visit that one is found.
  MakeLinkedMaterial(1);
  MakeLinkedMaterial(101);
  const BeamPropertyRecord* record = AddRecord(7, 1);
  Transfer(7);
  EXPECT_EQ(record->materialId, 101);
  Transfer(7);
  EXPECT_EQ(record->materialId, 201);
  EXPECT_THAT(
      MaterialCalls(),
      ElementsAre("MaterialStore.GetMaterial(101) -> Material#1 1", "MaterialStore.CreateProperty(7) -> 0 Property#1",
                  "Property#1.SetDescriptor(<1, Material#1, \"Bar\", \"Bar\">)", "MaterialStore.GetMaterial(201) -> Material#2 2",
                  "MaterialStore.CreateProperty(7) -> 0 Property#2", "Property#2.SetDescriptor(<1, Material#2, \"Bar\", \"Bar\">)"));
}

TEST_F(BeamMaterialTest, NumberWithoutLinkIsAskedOfTheHost) {
  MakeLinkedMaterial(1);  // Its number 101 is no deck id.
  const BeamPropertyRecord* record = AddRecord(7, 1);
  Transfer(8);
  MaterialCalls();
  Transfer(7);
  EXPECT_EQ(record->materialId, 101);
  EXPECT_THAT(MaterialCalls(),
              ElementsAre("MaterialStore.GetMaterial(101) -> Material#1 1", "MaterialStore.CreateProperty(7) -> 0 Property#1",
                          "Property#1.SetDescriptor(<1, Material#1, \"Bar\", \"Bar\">)"));
}

TEST_F(BeamMaterialTest, WithoutMaterialIdNoProperty) {
  AddRecord(7, 0);
  AddRecord(7, -5);
  Transfer(7);
  EXPECT_THAT(MaterialCalls(), IsEmpty());
}

TEST_F(BeamMaterialTest, IdZeroWithALinkHasAMaterial) {
  // A gasket material may have the id 0.
  MakeLinkedMaterial(1);
  auto* link = static_cast<MaterialLink*>(AllocateZeroed(sizeof(MaterialLink)));
  link->number = 101;
  IndexedListAppend(&run.lists.materials, 0, link);
  const BeamPropertyRecord* record = AddRecord(7, 0);
  Transfer(7);
  EXPECT_EQ(record->materialId, 101);
  EXPECT_EQ(MaterialCalls().back(), "Property#1.SetDescriptor(<1, Material#1, \"Bar\", \"Bar\">)");
}

TEST_F(BeamMaterialTest, FirstOfTwoLinksOfOneId) {
  MakeLinkedMaterial(1);
  MakeLinkedMaterial(2);
  auto* link = static_cast<MaterialLink*>(AllocateZeroed(sizeof(MaterialLink)));
  *link = {1, 102, nullptr};
  IndexedListAppend(&run.lists.materials, 1, link);
  const BeamPropertyRecord* record = AddRecord(7, 1);
  Transfer(7);
  EXPECT_EQ(record->materialId, 101);
}

TEST_F(BeamMaterialTest, UnknownIdGetsADefaultMaterialOnce) {
  // The host numbers it 103, so that the second question under 3 fails; at the next visit it is found by its link.
  const BeamPropertyRecord* record = AddRecord(7, 3);
  Transfer(7);
  EXPECT_THAT(MaterialCalls(), ElementsAre("MaterialStore.GetMaterial(3) -> null null", "MaterialStore.CreateMaterial(3) -> 0 Material#1",
                                           "MaterialStore.GetMaterial(3) -> null null", "MaterialStore.CreateProperty(7) -> 0 Property#1",
                                           "Property#1.SetDescriptor(<1, null, \"Bar\", \"Bar\">)"));
  EXPECT_EQ(record->materialId, 3);
  Transfer(7);
  EXPECT_EQ(record->materialId, 103);
  EXPECT_THAT(MaterialCalls(),
              ElementsAre("MaterialStore.GetMaterial(103) -> Material#1 1", "MaterialStore.CreateProperty(7) -> 0 Property#2",
                          "Property#2.SetDescriptor(<1, Material#1, \"Bar\", \"Bar\">)"));
}

TEST_F(BeamMaterialTest, RefusedDefaultMaterialIsTriedForEachRecord) {
  AddRecord(8, 3);
  AddRecord(7, 3);
  host.Refusals().RefuseFrom("MaterialStore.CreateMaterial", 1);
  Transfer(7);
  EXPECT_THAT(MaterialCalls(),
              ElementsAre("MaterialStore.GetMaterial(3) -> null null", "MaterialStore.CreateMaterial(3) -> 1",
                          "MaterialStore.GetMaterial(3) -> null null", "MaterialStore.GetMaterial(3) -> null null",
                          "MaterialStore.CreateMaterial(3) -> 1", "MaterialStore.GetMaterial(3) -> null null",
                          "MaterialStore.CreateProperty(7) -> 0 Property#1", "Property#1.SetDescriptor(<1, null, \"Bar\", \"Bar\">)"));
}

TEST_F(BeamMaterialTest, MaterialKnownByIdStaysForLinkedOnesBehindIt) {
  MakeLinkedMaterial(1);
  MakeHostMaterial(150);
  const BeamPropertyRecord* known = AddRecord(7, 150);
  const BeamPropertyRecord* linked = AddRecord(7, 1);
  Transfer(7);
  EXPECT_EQ(known->materialId, 150);
  EXPECT_EQ(linked->materialId, 101) << "the number is put in all the same";
  EXPECT_THAT(MaterialCalls(),
              ElementsAre("MaterialStore.GetMaterial(150) -> Material#2 2", "MaterialStore.CreateProperty(7) -> 0 Property#1",
                          "Property#1.SetDescriptor(<1, Material#2, \"Bar\", \"Bar\">)", "MaterialStore.CreateProperty(7) -> 0 Property#2",
                          "Property#2.SetDescriptor(<1, Material#2, \"Bar\", \"Bar\">)"));
}

TEST_F(BeamMaterialTest, MaterialOfAnotherPartStaysToo) {
  // The record of another id is resolved before it is passed by, and one without a material does not end it.
  MakeLinkedMaterial(1);
  MakeHostMaterial(150);
  AddRecord(8, 150);
  AddRecord(7, 0);
  AddRecord(7, 1);
  Transfer(7);
  EXPECT_THAT(MaterialCalls(),
              ElementsAre("MaterialStore.GetMaterial(150) -> Material#2 2", "MaterialStore.CreateProperty(7) -> 0 Property#1",
                          "Property#1.SetDescriptor(<1, Material#2, \"Bar\", \"Bar\">)"));
}

TEST_F(BeamMaterialTest, UnknownMaterialEndsTheStay) {
  MakeLinkedMaterial(1);
  MakeHostMaterial(150);
  AddRecord(8, 150);
  AddRecord(8, 3);
  AddRecord(7, 1);
  Transfer(7);
  EXPECT_THAT(MaterialCalls(),
              ElementsAre("MaterialStore.GetMaterial(150) -> Material#2 2", "MaterialStore.GetMaterial(3) -> null null",
                          "MaterialStore.CreateMaterial(3) -> 0 Material#3", "MaterialStore.GetMaterial(3) -> null null",
                          "MaterialStore.GetMaterial(101) -> Material#1 1", "MaterialStore.CreateProperty(7) -> 0 Property#1",
                          "Property#1.SetDescriptor(<1, Material#1, \"Bar\", \"Bar\">)"));
}

TEST_F(BeamMaterialTest, DefaultMaterialIsAskedForAgainByLinkedOnes) {
  // The flag stays down behind a default material, even when the host then knows it by the id.
  MakeHostMaterial(103);
  host.Refusals().RefuseCall("MaterialStore.GetMaterial", 1);
  AddRecord(8, 103);
  MakeLinkedMaterial(1);
  AddRecord(7, 1);
  Transfer(7);
  EXPECT_THAT(
      MaterialCalls(),
      ElementsAre("MaterialStore.GetMaterial(103) -> null null", "MaterialStore.CreateMaterial(103) -> 0 Material#3",
                  "MaterialStore.GetMaterial(103) -> Material#1 1", "MaterialStore.GetMaterial(101) -> Material#2 2",
                  "MaterialStore.CreateProperty(7) -> 0 Property#1", "Property#1.SetDescriptor(<1, Material#2, \"Bar\", \"Bar\">)"));
}

TEST_F(BeamMaterialTest, EachVisitStartsWithoutAMaterialAtHand) {
  // Linked at both visits, so that a material left from the first one would show.
  MakeLinkedMaterial(1);
  MakeLinkedMaterial(101);
  MakeHostMaterial(150);
  AddRecord(7, 1);
  AddRecord(8, 150);
  Transfer(7);
  MaterialCalls();
  Transfer(7);
  EXPECT_THAT(MaterialCalls(),
              ElementsAre("MaterialStore.GetMaterial(201) -> Material#2 2", "MaterialStore.CreateProperty(7) -> 0 Property#2",
                          "Property#2.SetDescriptor(<1, Material#2, \"Bar\", \"Bar\">)", "MaterialStore.GetMaterial(150) -> Material#3 3"));
}

}  // namespace
}  // namespace btz::test
