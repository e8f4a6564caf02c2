// Names of parts, made unique.
#include "mesh/part_names.h"

#include <gmock/gmock.h>

#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;

class PartNamesTest : public MeshTest {
 protected:
  void AddPart(const std::wstring& name) {
    MeshPart* part = nullptr;
    model->CreateBody(1, &part, ++lastId, 0, 1, 1);
    part->SetName(name.c_str());
    ListAppend(&PartList, part);
  }

  /// Names of all parts behind the call, in order.
  std::vector<std::wstring> UniqueNames() {
    Calls();
    MakePartNamesUnique();
    std::vector<std::wstring> names;
    WalkList<MeshPart>(&PartList, [&](MeshPart* part) { names.push_back(part->GetName()); });
    return names;
  }

  std::int32_t lastId = 0;
};

TEST_F(PartNamesTest, DifferentNamesStay) {
  AddPart(L"A");
  AddPart(L"B");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"A", L"B"));
}

TEST_F(PartNamesTest, DuplicatesAreNumbered) {
  AddPart(L"A");
  AddPart(L"A");
  AddPart(L"A");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"A", L"A_1", L"A_2"));
}

TEST_F(PartNamesTest, TheNumberIsNotStartedAnewForAnotherName) {
  AddPart(L"A");
  AddPart(L"B");
  AddPart(L"A");
  AddPart(L"A");
  AddPart(L"B");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"A", L"B", L"A_1", L"A_2", L"B_3"));
}

TEST_F(PartNamesTest, NamesAreEqualInAnyCaseMixAndTheEarlierSpellingIsNumbered) {
  AddPart(L"Door");
  AddPart(L"DOOR");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"Door", L"Door_1"));
}

TEST_F(PartNamesTest, ANewNameMayMeetALaterPart) {
  AddPart(L"A");
  AddPart(L"A");
  AddPart(L"A_1");
  // The second part takes the third one's name, which then gives way.
  EXPECT_THAT(UniqueNames(), ElementsAre(L"A", L"A_1", L"A_1_2"));
}

TEST_F(PartNamesTest, ANewNameDoesNotLookAtEarlierParts) {
  AddPart(L"A_1");
  AddPart(L"A");
  AddPart(L"A");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"A_1", L"A", L"A_1"));
}

TEST_F(PartNamesTest, EmptyNamesAreNamesToo) {
  AddPart(L"");
  AddPart(L"");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"", L"_1"));
}

TEST_F(PartNamesTest, ALongNameIsCutTo255Characters) {
  const std::wstring name(300, L'x');
  AddPart(name);
  AddPart(name);
  const std::vector<std::wstring> names = UniqueNames();
  EXPECT_EQ(names[0], name);
  EXPECT_EQ(names[1].size(), 255u);
}

TEST_F(PartNamesTest, EveryPartIsFirstUnmarkedAndThenMarked) {
  AddPart(L"A");
  AddPart(L"A");
  Calls();
  MakePartNamesUnique();
  EXPECT_THAT(Calls(), ElementsAre("MeshPart#1.SetNamed(0)", "MeshPart#2.SetNamed(0)", "MeshPart#1.SetNamed(1)",
                                   "MeshPart#2.SetName(\"A_1\")", "MeshPart#2.SetNamed(1)"));
}

TEST_F(PartNamesTest, WithoutPartsNothingHappens) { EXPECT_TRUE(UniqueNames().empty()); }

}  // namespace
}  // namespace btz::test
